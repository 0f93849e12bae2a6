// How a failing test shows a value: its type and its text.
#pragma once

#include <ostream>

#include "automation/error.hpp"
#include "automation/value.hpp"

namespace vorlan {

inline void PrintTo(const Value& value, std::ostream* out) {
  *out << type_name(value.type());
  try {
    *out << " " << value.to_text();
  } catch (const Error&) {
    *out << " without a text";
  }
}

}  // namespace vorlan
