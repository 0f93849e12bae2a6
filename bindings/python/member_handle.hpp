// What an attribute gives that is not a plain property: a method to call, or an indexed property to subscript.
#pragma once

#include <string>

#include "class_type.hpp"

namespace vorlan::python {

struct Handle {
  PyObject_HEAD PyObject* self;  ///< a Wrapper; null: the member of a class
  const ClassType* cls;
  const Member* member;
  vectorcallfunc call;
};

inline Handle& as_handle(PyObject* object) noexcept { return *reinterpret_cast<Handle*>(object); }

/// "SB_GlobalParameters.PRint_MACIndex"
std::string qualified_name(const Handle& handle);

/// The property without an index: a new reference, null if an exception is set; or as the library holds it.
PyObject* read_handle(PyObject* handle) noexcept;
Value value_of_handle(PyObject* handle);

/// Makes the types.
void add_member_types(State& state);

/// A new reference: the member of an object, or of the class itself if `self` is null. Null if an exception is set.
PyObject* make_handle(const ClassType& cls, const Member& member, PyObject* self) noexcept;

}  // namespace vorlan::python
