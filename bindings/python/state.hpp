// What the module knows while it is loaded. Made once, when it is imported, and handed to whoever needs it.
#pragma once

#include <pybind11/pybind11.h>

#include <memory>
#include <unordered_map>

#include "automation/registry.hpp"
#include "platform/platform.hpp"

namespace vorlan::python {

namespace py = pybind11;

class ClassType;
class PythonObject;

/// Never freed: objects may outlive the module when the interpreter ends. Used with the interpreter's lock held.
struct State {
  Registry registry;
  Platform platform;

  PyTypeObject* object_type = nullptr;  ///< base of every class of the registry
  PyTypeObject* method_type = nullptr;
  PyTypeObject* indexed_type = nullptr;   ///< an indexed property, waiting for its subscript
  PyTypeObject* optional_type = nullptr;  ///< the same, but a value without one, too
  PyTypeObject* by_ref_type = nullptr;
  PyObject* automation_error = nullptr;
  PyObject* member_not_found_error = nullptr;
  PyObject* null = nullptr;
  PyObject* empty = nullptr;

  std::unordered_map<const ClassInfo*, std::unique_ptr<ClassType>> class_types;
  // One Python face per library object and the other way round, so that identity survives the way in and out.
  std::unordered_map<Object*, PyObject*> wrappers;
  std::unordered_map<PyObject*, PythonObject*> python_objects;
};

/// Holds a value that the library may change.
struct ByRef {
  py::object value;
};

/// The interpreter's lock, for code that the library may call from anywhere.
class InterpreterLock {
 public:
  InterpreterLock() : state_(PyGILState_Ensure()) {}
  InterpreterLock(const InterpreterLock&) = delete;
  InterpreterLock& operator=(const InterpreterLock&) = delete;
  ~InterpreterLock() { PyGILState_Release(state_); }

 private:
  PyGILState_STATE state_;
};

}  // namespace vorlan::python
