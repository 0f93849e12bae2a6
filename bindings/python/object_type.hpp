// The Python face of an object of the library.
#pragma once

#include "class_type.hpp"

namespace vorlan::python {

/// The memory of every Python object whose type derives from vorlan.Object.
struct Wrapper {
  PyObject_HEAD Object* object;  ///< counted
  ClassType* cls;
  PyObject* weak_references;
};

inline Wrapper& as_wrapper(PyObject* object) noexcept { return *reinterpret_cast<Wrapper*>(object); }

/// Makes vorlan.Object.
void add_object_type(State& state, py::module_& module);

/// A new reference to the one Python face of an object.
PyObject* wrap(State& state, const Ref<Object>& object);

void deallocate(PyObject* self) noexcept;

/// Calls a member for Python: converts arguments and result, writes ByRef arguments back, sets the exception. Values of
/// arguments given by name stand behind the others. An assigned value is the last argument; the access tells Let from
/// Set then. Null if an exception is set.
PyObject* invoke(Wrapper& self, const Member& member, Access access, PyObject* const* arguments, std::size_t count,
                 PyObject* names = nullptr) noexcept;

}  // namespace vorlan::python
