// An object of a script, as the library sees it.
#pragma once

#include "state.hpp"

namespace vorlan::python {

/// Members are attributes and methods, found as spelt or else without regard to case. An indexed property is anything
/// with subscripts, or a callable. A plain attribute read with one text (a sector's name) is the attribute itself, so
/// that a configuration can be a mere bag of values. A member that is not there is error 438; an exception becomes
/// one automation error; a bad subscript is error 9.
class PythonObject final : public Object {
 public:
  /// The one automation object of a Python object, as long as the library holds it.
  static Ref<Object> of(State& state, PyObject* object);
  ~PythonObject() override;

  Value invoke(std::string_view member, Access access, std::span<Value> arguments) override;
  [[nodiscard]] PyObject* object() const noexcept { return object_; }

 private:
  PythonObject(State& state, PyObject* object);

  [[nodiscard]] std::string source(std::string_view member) const;
  [[nodiscard]] py::object spelling(std::string_view member) const;
  [[nodiscard]] py::object attribute(std::string_view member) const;
  [[nodiscard]] Value read(std::string_view member, Access access, std::span<const Value> arguments) const;
  void assign(std::string_view member, std::span<const Value> arguments) const;
  [[nodiscard]] py::tuple to_tuple(std::span<const Value> values) const;
  [[nodiscard]] py::object key(std::span<const Value> indices) const;

  State& state_;
  PyObject* object_;
};

}  // namespace vorlan::python
