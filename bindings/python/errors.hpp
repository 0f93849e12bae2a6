// Automation errors as Python exceptions, and the other way round.
#pragma once

#include "automation/error.hpp"
#include "state.hpp"

namespace vorlan::python {

/// Number of an error whose cause is an exception of a script's own object.
inline constexpr std::int32_t kAutomationError = 440;
/// Number of an error for an argument given by a name that the method does not have.
inline constexpr std::int32_t kNamedArgumentNotFound = 448;

/// Makes vorlan.AutomationError and vorlan.MemberNotFoundError, which is an AttributeError as well.
void add_errors(State& state, py::module_& module);

/// Sets the Python exception for the C++ exception that is being handled.
void set_python_error(State& state) noexcept;

/// Raises AttributeError and error 438 in one, for an object of the library.
void set_member_not_found(State& state, std::string_view class_name, PyObject* object, PyObject* name) noexcept;

/// Raises a Python exception as an automation error: an AutomationError as it stands, any other Exception as error
/// `number` with its text. What is not an Exception (KeyboardInterrupt) goes on as it is.
[[noreturn]] void throw_automation_error(State& state, const py::error_already_set& raised, const std::string& source,
                                         std::int32_t number = kAutomationError);

/// Runs a function that returns a new reference; an exception becomes a Python exception and null.
template <class F>
PyObject* guarded(State& state, F&& function) noexcept {
  try {
    return function();
  } catch (...) {
    set_python_error(state);
    return nullptr;
  }
}

}  // namespace vorlan::python
