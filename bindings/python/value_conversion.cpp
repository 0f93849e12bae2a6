#include "value_conversion.hpp"

#include <datetime.h>

#include <chrono>
#include <cmath>
#include <limits>

#include "errors.hpp"
#include "member_handle.hpp"
#include "object_type.hpp"
#include "python_object.hpp"

namespace vorlan::python {

namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr sys_days kDayZero{std::chrono::year{1899} / 12 / 30};
constexpr std::int64_t kMillisecondsPerDay = 86'400'000;

// datetime's interface is a table per source file, filled on first use.
void import_datetime() {
  if (PyDateTimeAPI == nullptr) PyDateTime_IMPORT;
  if (PyDateTimeAPI == nullptr) throw py::error_already_set();
}

PyObject* checked(PyObject* made) {
  if (made == nullptr) throw py::error_already_set();
  return made;
}

/// A date to the millisecond: its days are too coarse for all of the microseconds.
PyObject* from_date(Date date) {
  import_datetime();
  constexpr double kFirst = -693593;  // 0001-01-01
  constexpr double kEnd = 2958466;    // 10000-01-01
  if (!(date.days >= kFirst && date.days < kEnd))
    throw Error(ErrorNumber::Overflow, {}, "a date outside the years 1 to 9999");
  const auto all = std::llround(date.days * static_cast<double>(kMillisecondsPerDay));
  auto whole = all / kMillisecondsPerDay;
  auto rest = all % kMillisecondsPerDay;
  if (rest < 0) {
    --whole;
    rest += kMillisecondsPerDay;
  }
  const std::chrono::year_month_day day(kDayZero + days(whole));
  const auto milliseconds = static_cast<int>(rest);
  return PyDateTime_FromDateAndTime(static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
                                    static_cast<int>(static_cast<unsigned>(day.day())), milliseconds / 3'600'000,
                                    milliseconds / 60'000 % 60, milliseconds / 1000 % 60, milliseconds % 1000 * 1000);
}

/// A date with a time zone becomes local time, the only kind there is.
Date to_date(PyObject* object) {
  py::object held = py::reinterpret_borrow<py::object>(object);
  const bool has_time = PyDateTime_Check(object) != 0;
  if (has_time && !held.attr("tzinfo").is_none()) held = held.attr("astimezone")();
  PyObject* local = held.ptr();
  const std::chrono::year_month_day day(std::chrono::year(PyDateTime_GET_YEAR(local)) / PyDateTime_GET_MONTH(local) /
                                        PyDateTime_GET_DAY(local));
  const auto whole = (sys_days(day) - kDayZero).count();
  if (!has_time) return {static_cast<double>(whole)};
  const std::int64_t seconds = PyDateTime_DATE_GET_HOUR(local) * 3600 + PyDateTime_DATE_GET_MINUTE(local) * 60 +
                               PyDateTime_DATE_GET_SECOND(local);
  const auto milliseconds = static_cast<double>(seconds) * 1000 + PyDateTime_DATE_GET_MICROSECOND(local) / 1000.0;
  return {static_cast<double>(whole) + milliseconds / static_cast<double>(kMillisecondsPerDay)};
}

Value to_number(PyObject* object) {
  int overflow = 0;
  const long number = PyLong_AsLongAndOverflow(object, &overflow);
  if (number == -1 && PyErr_Occurred() != nullptr) throw py::error_already_set();
  const auto fits = [&]<class T>(T) {
    return overflow == 0 && number >= std::numeric_limits<T>::min() && number <= std::numeric_limits<T>::max();
  };
  if (fits(std::int16_t{})) return static_cast<std::int16_t>(number);
  if (fits(std::int32_t{})) return static_cast<std::int32_t>(number);
  const double real = PyLong_AsDouble(object);
  if (real == -1 && PyErr_Occurred() != nullptr) {
    PyErr_Clear();
    throw Error(ErrorNumber::Overflow, {}, "an int beyond the range of Double");
  }
  return real;
}

std::string to_text(PyObject* object) {
  Py_ssize_t size = 0;
  if (const char* text = PyUnicode_AsUTF8AndSize(object, &size)) return {text, static_cast<std::size_t>(size)};
  PyErr_Clear();
  const auto octets = py::reinterpret_steal<py::bytes>(PyUnicode_AsEncodedString(object, "utf-8", "surrogateescape"));
  if (!octets) throw py::error_already_set();
  return octets;
}

Value to_array(State& state, PyObject* object) {
  // A list may hold itself.
  if (Py_EnterRecursiveCall(" in a list handed to the library") != 0) throw py::error_already_set();
  struct Leave {
    ~Leave() { Py_LeaveRecursiveCall(); }
  } leave;
  Value::Array values;
  values.reserve(static_cast<std::size_t>(PySequence_Fast_GET_SIZE(object)));
  // The list may change while its elements are converted.
  for (Py_ssize_t i = 0; i < PySequence_Fast_GET_SIZE(object); ++i) {
    values.push_back(to_value(state, py::reinterpret_borrow<py::object>(PySequence_Fast_GET_ITEM(object, i)).ptr()));
  }
  return values;
}

/// What a ByRef holds; a ByRef in a ByRef has no value, and neither has one that was made around its constructor.
Value referenced(State& state, PyObject* object) {
  const auto* const by_ref = py::handle(object).cast<const ByRef*>();
  if (by_ref == nullptr || by_ref->value.ptr() == nullptr || Py_TYPE(by_ref->value.ptr()) == state.by_ref_type) {
    throw Error(ErrorNumber::TypeMismatch);
  }
  return to_value(state, by_ref->value.ptr());
}

}  // namespace

Value to_value(State& state, PyObject* object) {
  if (PyUnicode_Check(object)) return to_text(object);
  if (PyBool_Check(object)) return object == Py_True;
  if (PyLong_Check(object)) return to_number(object);
  if (PyFloat_Check(object)) return PyFloat_AS_DOUBLE(object);
  if (object == Py_None) return Ref<Object>();
  if (object == state.null) return Null{};
  if (object == state.empty) return {};
  if (PyObject_TypeCheck(object, state.object_type)) return Ref<Object>(as_wrapper(object).object);
  if (Py_TYPE(object) == state.by_ref_type) return referenced(state, object);
  if (Py_TYPE(object) == state.optional_type) return value_of_handle(object);
  if (PyList_Check(object) || PyTuple_Check(object)) return to_array(state, object);
  import_datetime();
  if (PyDate_Check(object)) return to_date(object);
  if (PyIndex_Check(object)) {
    return to_number(py::reinterpret_steal<py::object>(checked(PyNumber_Index(object))).ptr());
  }
  return PythonObject::of(state, object);
}

PyObject* from_value(State& state, const Value& value) {
  switch (value.type()) {
    case ValueType::String: {
      const std::string& text = *value.as<std::string>();
      return checked(PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "surrogateescape"));
    }
    case ValueType::Null: return Py_NewRef(state.null);
    case ValueType::Boolean: return PyBool_FromLong(*value.as<bool>() ? 1 : 0);
    case ValueType::Integer: return checked(PyLong_FromLong(*value.as<std::int16_t>()));
    case ValueType::Long: return checked(PyLong_FromLong(*value.as<std::int32_t>()));
    case ValueType::Single: return checked(PyFloat_FromDouble(static_cast<double>(*value.as<float>())));
    case ValueType::Double: return checked(PyFloat_FromDouble(*value.as<double>()));
    case ValueType::Date: return checked(from_date(*value.as<Date>()));
    case ValueType::Array: {
      py::list list;
      for (const Value& element : *value.as<Value::Array>()) list.append(to_object(state, element));
      return list.release().ptr();
    }
    case ValueType::Object: {
      const Ref<Object>& object = *value.as<Ref<Object>>();
      if (const auto* python = dynamic_cast<PythonObject*>(object.get())) return Py_NewRef(python->object());
      if (object) return wrap(state, object);
      break;
    }
    case ValueType::Empty:
    case ValueType::Any: break;
  }
  return Py_NewRef(Py_None);
}

}  // namespace vorlan::python
