// Indices as scripts give them.
#pragma once

#include <cstddef>
#include <cstdint>

#include "automation/value.hpp"

namespace vorlan {

/// A negative index is beyond every count.
inline std::size_t index_of(const Value& argument) {
  return static_cast<std::size_t>(static_cast<std::int64_t>(argument.to_integer()));
}

}  // namespace vorlan
