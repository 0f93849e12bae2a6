// Values across the boundary: None is Nothing, a list is an array, a foreign object becomes an automation object.
#pragma once

#include "state.hpp"

namespace vorlan::python {

/// An int becomes the smallest of Integer, Long and Double that holds it; error 6 beyond a Double.
Value to_value(State& state, PyObject* object);

/// A new reference. Empty is None; text that is not UTF-8 keeps its octets as surrogate escapes.
PyObject* from_value(State& state, const Value& value);

inline py::object to_object(State& state, const Value& value) {
  return py::reinterpret_steal<py::object>(from_value(state, value));
}

}  // namespace vorlan::python
