#include "handle_value.hpp"

#include <array>
#include <type_traits>

#include "errors.hpp"
#include "member_handle.hpp"

namespace vorlan::python {

namespace {

template <auto Use, class Result = PyObject*>
Result use_value(PyObject* handle) noexcept {
  const auto value = py::reinterpret_steal<py::object>(read_handle(handle));
  if constexpr (std::is_pointer_v<Result>) {
    return value ? Use(value.ptr()) : nullptr;
  } else {
    return value ? Use(value.ptr()) : -1;
  }
}

PyObject* format(PyObject* handle, PyObject* specification) noexcept {
  const auto value = py::reinterpret_steal<py::object>(read_handle(handle));
  return value ? PyObject_Format(value.ptr(), specification) : nullptr;
}

/// A type is no value: inspect compares what it is given with some.
PyObject* compare(PyObject* handle, PyObject* other, int operation) noexcept {
  if (PyType_Check(other)) Py_RETURN_NOTIMPLEMENTED;
  const auto value = py::reinterpret_steal<py::object>(read_handle(handle));
  return value ? PyObject_RichCompare(value.ptr(), other, operation) : nullptr;
}

PyObject* ask_for_index(PyObject* object) noexcept {
  const Handle& handle = as_handle(object);
  return guarded(handle.cls->state(), [&]() -> PyObject* {
    const MemberInfo& info = *handle.member->info;
    std::string text = qualified_name(handle) + " has no value without an index: write ";
    text.append(info.name);
    for (std::size_t i = 0; i < info.required_parameters(); ++i) {
      text.append(i == 0 ? "[" : ", ").append(info.parameters[i].name);
    }
    text += "]";
    PyErr_SetString(PyExc_TypeError, text.c_str());
    return nullptr;
  });
}

int ask_for_index_as_truth(PyObject* handle) noexcept {
  ask_for_index(handle);
  return -1;
}

bool is_value(const State& state, PyObject* object) noexcept {
  return object == Py_None || object == state.null || object == state.empty || PyUnicode_Check(object) ||
         PyLong_Check(object) || PyFloat_Check(object) || PyList_Check(object) || PyTuple_Check(object) ||
         PyObject_TypeCheck(object, state.object_type) || Py_TYPE(object) == state.optional_type;
}

PyObject* refuse_comparison(PyObject* handle, PyObject* other, int) noexcept {
  if (is_value(as_handle(handle).cls->state(), other)) return ask_for_index(handle);
  Py_RETURN_NOTIMPLEMENTED;
}

Py_hash_t hash_of_identity(PyObject* handle) noexcept { return PyBaseObject_Type.tp_hash(handle); }

std::array kMethods{
    PyMethodDef{"__format__", &format, METH_O, nullptr},
    PyMethodDef{},
};

template <class Function>
PyType_Slot slot(int id, Function* function) noexcept {
  return {id, reinterpret_cast<void*>(function)};
}

}  // namespace

std::span<const PyType_Slot> slots_of_optional_index() {
  static const std::array kSlots{
      slot(Py_tp_str, &use_value<&PyObject_Str>),
      slot(Py_tp_hash, &use_value<&PyObject_Hash, Py_hash_t>),
      slot(Py_tp_richcompare, &compare),
      PyType_Slot{Py_tp_methods, kMethods.data()},
      slot(Py_nb_bool, &use_value<&PyObject_IsTrue, int>),
      slot(Py_nb_int, &use_value<&PyNumber_Long>),
      slot(Py_nb_float, &use_value<&PyNumber_Float>),
      slot(Py_nb_index, &use_value<&PyNumber_Index>),
  };
  return kSlots;
}

std::span<const PyType_Slot> slots_of_needed_index() {
  static const std::array kSlots{
      slot(Py_tp_hash, &hash_of_identity),       slot(Py_tp_richcompare, &refuse_comparison),
      slot(Py_nb_bool, &ask_for_index_as_truth), slot(Py_nb_int, &ask_for_index),
      slot(Py_nb_float, &ask_for_index),
  };
  return kSlots;
}

}  // namespace vorlan::python
