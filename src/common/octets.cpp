#include "common/octets.hpp"

#include <string_view>

namespace vorlan {

std::string octets_text(std::span<const std::uint8_t> octets) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  text.reserve(octets.size() * 3);
  for (const std::uint8_t octet : octets) {
    if (!text.empty()) text += ' ';
    text += kDigits[octet >> 4U];
    text += kDigits[octet & 0xFU];
  }
  return text;
}

}  // namespace vorlan
