// Octets as people read and write them.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace vorlan {

/// "01 0A FF".
std::string octets_text(std::span<const std::uint8_t> octets);

/// The value of a hexadecimal digit; -1 for any other character.
constexpr int hex_digit(char c) noexcept {
  if (c >= '0' && c <= '9') return c - '0';
  const char folded = static_cast<char>(c | 0x20);
  return folded >= 'a' && folded <= 'f' ? folded - 'a' + 10 : -1;
}

}  // namespace vorlan
