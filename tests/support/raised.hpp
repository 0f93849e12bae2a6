// What a call raised, as one value that a table of cases can hold and compare.
#pragma once

#include <ostream>
#include <string>
#include <utility>

#include "automation/error.hpp"

namespace vorlan::test {

/// Number 0 if nothing was raised.
struct Raised {
  std::int32_t number = 0;
  std::string source;
  std::string description;
  friend bool operator==(const Raised&, const Raised&) = default;
  friend void PrintTo(const Raised& raised, std::ostream* out) {
    *out << raised.number << " from \"" << raised.source << "\": " << raised.description;
  }
};

template <class F>
Raised raised_by(F&& call) {
  try {
    std::forward<F>(call)();
  } catch (const Error& error) {
    return {error.number(), error.source(), error.description()};
  }
  return {};
}

template <class F>
std::int32_t error_number(F&& call) {
  return raised_by(std::forward<F>(call)).number;
}

}  // namespace vorlan::test
