// Places of fields in received bits, and the values of counts and flags found there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vorlan {

/// A bit string's value, where only zero, one and small counts matter: no error, however odd the text.
constexpr std::size_t small_value(std::string_view bits) noexcept {
  std::size_t value = 0;
  for (const char bit : bits) value = (value << 1U) | (bit == '1' ? 1U : 0U);
  return value;
}

/// Where a field's bits stand in received bits. Whatever lies past their end is empty.
struct Extent {
  std::uint32_t offset = 0;
  std::uint32_t width = 0;
  bool present = true;  ///< false: what was received says that it does not carry the field
};

/// The part of a bit string that an extent covers, as far as the bit string goes.
constexpr std::string_view slice(std::string_view bits, Extent extent) noexcept {
  return extent.offset < bits.size() ? bits.substr(extent.offset, extent.width) : std::string_view{};
}

}  // namespace vorlan
