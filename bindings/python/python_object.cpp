#include "python_object.hpp"

#include "automation/class_info.hpp"
#include "errors.hpp"
#include "value_conversion.hpp"

namespace vorlan::python {

namespace {

/// What is called when it is read without arguments; any other callable may be a value.
bool is_routine(const State& state, PyObject* object) {
  return PyMethod_Check(object) || PyFunction_Check(object) || PyCFunction_Check(object) ||
         Py_TYPE(object) == state.method_type;
}

bool is_plain(PyObject* object) {
  return object == Py_None || PyUnicode_Check(object) || PyLong_Check(object) || PyFloat_Check(object);
}

bool has_subscript(PyObject* object) {
  const PyTypeObject* type = Py_TYPE(object);
  return (type->tp_as_mapping != nullptr && type->tp_as_mapping->mp_subscript != nullptr) || PySequence_Check(object);
}

bool takes_subscript(PyObject* object) {
  const PyTypeObject* type = Py_TYPE(object);
  return (type->tp_as_mapping != nullptr && type->tp_as_mapping->mp_ass_subscript != nullptr) ||
         (type->tp_as_sequence != nullptr && type->tp_as_sequence->sq_ass_item != nullptr);
}

/// Whether an attribute is there, without running a property's code.
bool has_attribute(PyObject* object, PyObject* name) {
  if (PyObject_HasAttr(reinterpret_cast<PyObject*>(Py_TYPE(object)), name) != 0) return true;
  const auto members = py::reinterpret_steal<py::object>(PyObject_GenericGetDict(object, nullptr));
  if (members) return PyDict_Contains(members.ptr(), name) == 1;
  PyErr_Clear();
  return false;
}

bool is_bad_subscript(const py::error_already_set& error) {
  return error.matches(PyExc_IndexError) || error.matches(PyExc_KeyError);
}

}  // namespace

Ref<Object> PythonObject::of(State& state, PyObject* object) {
  const auto known = state.python_objects.find(object);
  if (known != state.python_objects.end()) return Ref<Object>(known->second);
  return Ref<Object>::adopt(new PythonObject(state, object));
}

PythonObject::PythonObject(State& state, PyObject* object) : state_(state), object_(object) {
  state_.python_objects.emplace(object, this);
  Py_INCREF(object);
}

PythonObject::~PythonObject() {
  if (Py_IsInitialized() == 0) return;
  const InterpreterLock lock;
  state_.python_objects.erase(object_);
  Py_DECREF(object_);
}

Value PythonObject::invoke(std::string_view member, Access access, std::span<Value> arguments) {
  const InterpreterLock lock;
  const Ref<Object> held(this);  // the script's code may let go of its object
  try {
    if (access == Access::Get || access == Access::Call) return read(member, access, arguments);
    assign(member, arguments);
    return {};
  } catch (const py::error_already_set& error) {
    throw_automation_error(state_, error, source(member));
  }
}

std::string PythonObject::source(std::string_view member) const {
  const std::string_view type(Py_TYPE(object_)->tp_name);
  return std::string(type.substr(type.rfind('.') + 1)).append(".").append(member);
}

/// The attribute's name with its own capitals; error 438 if there is none.
py::object PythonObject::spelling(std::string_view member) const {
  const auto names = py::reinterpret_steal<py::object>(PyObject_Dir(object_));
  if (!names) throw py::error_already_set();
  for (const py::handle name : names) {
    if (PyUnicode_Check(name.ptr()) && equals_ignoring_case(name.cast<std::string>(), member)) {
      return py::reinterpret_borrow<py::object>(name);
    }
  }
  const std::string full = source(member);
  throw Error(ErrorNumber::MemberNotFound, full.substr(0, full.rfind('.')), member);
}

py::object PythonObject::attribute(std::string_view member) const {
  const py::str name(member.data(), member.size());
  if (PyObject* found = PyObject_GetAttr(object_, name.ptr())) return py::reinterpret_steal<py::object>(found);
  const py::error_already_set missing;
  if (!missing.matches(PyExc_AttributeError)) throw missing;
  // The default member of a collection: a mere dict will do.
  if (equals_ignoring_case(member, "Item") && has_subscript(object_))
    return py::reinterpret_borrow<py::object>(object_);
  const py::object spelt = spelling(member);
  // It is there: the exception came from within.
  if (spelt.equal(name)) throw missing;
  return py::getattr(object_, spelt);
}

py::tuple PythonObject::to_tuple(std::span<const Value> values) const {
  py::tuple tuple(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) tuple[i] = to_object(state_, values[i]);
  return tuple;
}

py::object PythonObject::key(std::span<const Value> indices) const {
  return indices.size() == 1 ? to_object(state_, indices[0]) : py::object(to_tuple(indices));
}

Value PythonObject::read(std::string_view member, Access access, std::span<const Value> arguments) const {
  const py::object found = attribute(member);
  const bool callable = PyCallable_Check(found.ptr()) != 0;
  const auto call = [&] {
    const py::object result = found(*to_tuple(arguments));
    return result.is_none() ? Value() : to_value(state_, result.ptr());
  };
  if (arguments.empty()) {
    const bool calls = access == Access::Call ? callable : is_routine(state_, found.ptr());
    return calls ? call() : to_value(state_, found.ptr());
  }
  if (is_plain(found.ptr()) && arguments.size() == 1 && arguments[0].is(ValueType::String)) {
    return to_value(state_, found.ptr());
  }
  const bool subscript = has_subscript(found.ptr()) && !is_plain(found.ptr());
  if (callable && (access == Access::Call || !subscript)) return call();
  if (!subscript) throw Error(ErrorNumber::WrongArgumentCount, source(member));
  try {
    const py::object element = found[key(arguments)];
    return to_value(state_, element.ptr());
  } catch (const py::error_already_set& error) {
    if (!is_bad_subscript(error)) throw;
    throw_automation_error(state_, error, source(member), static_cast<std::int32_t>(ErrorNumber::SubscriptOutOfRange));
  }
}

void PythonObject::assign(std::string_view member, std::span<const Value> arguments) const {
  if (arguments.empty()) throw Error(ErrorNumber::WrongArgumentCount, source(member));
  const py::object value = to_object(state_, arguments.back());
  const auto indices = arguments.first(arguments.size() - 1);
  if (indices.empty()) {
    py::object name = py::str(member.data(), member.size());
    // A class with a __setattr__ of its own decides itself what can be assigned.
    const bool open = Py_TYPE(object_)->tp_setattro != &PyObject_GenericSetAttr;
    if (!open && !has_attribute(object_, name.ptr())) name = spelling(member);
    py::setattr(object_, name, value);
    return;
  }
  const py::object found = attribute(member);
  if (takes_subscript(found.ptr())) {
    const py::object index = key(indices);
    if (PyObject_SetItem(found.ptr(), index.ptr(), value.ptr()) == 0) return;
    const py::error_already_set error;
    if (!is_bad_subscript(error)) throw error;
    throw_automation_error(state_, error, source(member), static_cast<std::int32_t>(ErrorNumber::SubscriptOutOfRange));
  }
  if (PyCallable_Check(found.ptr()) == 0) throw Error(ErrorNumber::WrongArgumentCount, source(member));
  found(*to_tuple(arguments));
}

}  // namespace vorlan::python
