#include "errors.hpp"

#include <memory>

namespace vorlan::python {

namespace {

constexpr const char* kErrorText =
    "An error raised by the library: number, source, description and help_file.\n\n"
    "Number 1 is raised on purpose by a class; its source is the class, a full stop and the member. An object of a\n"
    "script may raise it too; it then comes through the library as it stands.";
constexpr const char* kMemberText = "Error 438: the object has no such member, or not for this access.";

/// An automation error that began as a Python exception; that is kept for the way back.
class PythonError : public Error {
 public:
  PythonError(const Error& error, py::object exception)
      : Error(error), exception_(exception.release().ptr(), [](PyObject* held) {
          const InterpreterLock lock;
          Py_DECREF(held);
        }) {}
  [[nodiscard]] PyObject* exception() const noexcept { return exception_.get(); }

 private:
  std::shared_ptr<PyObject> exception_;
};

std::string text_of(py::handle object) {
  PyObject* text = PyObject_Str(object.ptr());
  if (text == nullptr) PyErr_Clear();
  py::object held = py::reinterpret_steal<py::object>(text);
  Py_ssize_t size = 0;
  const char* octets = text == nullptr ? nullptr : PyUnicode_AsUTF8AndSize(text, &size);
  if (octets == nullptr) PyErr_Clear();
  return octets == nullptr ? std::string() : std::string(octets, static_cast<std::size_t>(size));
}

Error error_of(py::handle exception) {
  const auto text = [&](const char* name) { return text_of(py::getattr(exception, name, py::str())); };
  const py::object number = py::getattr(exception, "number", py::none());
  long value = PyLong_Check(number.ptr()) ? PyLong_AsLong(number.ptr()) : kAutomationError;
  if (PyErr_Occurred() != nullptr) {
    PyErr_Clear();
    value = kAutomationError;
  }
  return {static_cast<std::int32_t>(value), text("source"), text("description"), text("help_file")};
}

bool same(const Error& a, const Error& b) {
  return a.number() == b.number() && a.source() == b.source() && a.description() == b.description() &&
         a.help_file() == b.help_file();
}

py::object make_exception(State& state, const Error& error) {
  const bool member = error.is(ErrorNumber::MemberNotFound);
  const py::handle type(member ? state.member_not_found_error : state.automation_error);
  const auto text = [](const std::string& octets) {
    PyObject* decoded = PyUnicode_DecodeUTF8(octets.data(), static_cast<Py_ssize_t>(octets.size()), "surrogateescape");
    if (decoded == nullptr) throw py::error_already_set();
    return py::reinterpret_steal<py::object>(decoded);
  };
  return type(error.number(), text(error.source()), text(error.description()), text(error.help_file()));
}

void set_error(State& state, const Error& error) {
  const auto* python_error = dynamic_cast<const PythonError*>(&error);
  PyObject* cause = python_error != nullptr ? python_error->exception() : nullptr;
  if (cause != nullptr && PyObject_IsInstance(cause, state.automation_error) == 1 && same(error_of(cause), error)) {
    PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(cause)), cause);
    return;
  }
  const py::object exception = make_exception(state, error);
  if (cause != nullptr) PyException_SetCause(exception.ptr(), Py_NewRef(cause));
  PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(exception.ptr())), exception.ptr());
}

}  // namespace

void add_errors(State& state, py::module_& module) {
  const auto add = [&](const char* name, const char* full_name, const char* text, PyObject* bases) {
    PyObject* type = PyErr_NewExceptionWithDoc(full_name, text, bases, nullptr);
    if (type == nullptr) throw py::error_already_set();
    module.attr(name) = py::handle(type);
    return type;
  };
  state.automation_error = add("AutomationError", "vorlan.AutomationError", kErrorText, nullptr);
  const py::handle error(state.automation_error);
  // Under its own name: pybind11 takes a function called __init__ for the constructor of a type of its own.
  error.attr("__init__") = py::cpp_function(
      [](const py::object& self, const py::int_& number, const py::str& source, const py::str& description,
         const py::str& help_file) {
        self.attr("number") = number;
        self.attr("source") = source;
        self.attr("description") = description;
        self.attr("help_file") = help_file;
      },
      py::name("set_up"), py::is_method(error), py::arg("number"), py::arg("source") = "", py::arg("description") = "",
      py::arg("help_file") = "");
  error.attr("__str__") = py::cpp_function(
      [](const py::object& self) {
        return py::str("{} (error {}{}{})")
            .format(self.attr("description"), self.attr("number"), text_of(self.attr("source")).empty() ? "" : ", ",
                    self.attr("source"));
      },
      py::name("__str__"), py::is_method(error));
  const py::tuple bases = py::make_tuple(error, py::handle(PyExc_AttributeError));
  state.member_not_found_error = add("MemberNotFoundError", "vorlan.MemberNotFoundError", kMemberText, bases.ptr());
}

void set_python_error(State& state) noexcept {
  try {
    try {
      throw;
    } catch (const Error& error) {
      set_error(state, error);
    }
  } catch (py::error_already_set& error) {
    error.restore();
  } catch (const std::bad_alloc&) {
    PyErr_NoMemory();
  } catch (const std::exception& error) {
    PyErr_SetString(PyExc_RuntimeError, error.what());
  } catch (...) {
    PyErr_SetString(PyExc_SystemError, "an exception of no known kind");
  }
}

void set_member_not_found(State& state, std::string_view class_name, PyObject* object, PyObject* name) noexcept {
  guarded(state, [&]() -> PyObject* {
    const py::object error =
        make_exception(state, Error(ErrorNumber::MemberNotFound, class_name, text_of(py::handle(name))));
    // From these newer interpreters make their "Did you mean".
    error.attr("name") = py::handle(name);
    error.attr("obj") = py::handle(object);
    PyErr_SetObject(state.member_not_found_error, error.ptr());
    return nullptr;
  });
}

void throw_automation_error(State& state, const py::error_already_set& raised, const std::string& source,
                            std::int32_t number) {
  if (!raised.matches(PyExc_Exception)) throw raised;
  py::object exception = raised.value();
  if (raised.trace()) PyException_SetTraceback(exception.ptr(), raised.trace().ptr());
  const auto error = [&]() -> Error {
    if (raised.matches(state.automation_error)) return error_of(exception);
    const std::string text = std::string(Py_TYPE(exception.ptr())->tp_name) + ": " + text_of(exception);
    if (number == kAutomationError) return {number, source, "Automation error: " + text};
    return Error(static_cast<ErrorNumber>(number), source, text);
  }();
  throw PythonError(error, std::move(exception));
}

}  // namespace vorlan::python
