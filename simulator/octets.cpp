#include "simulator/octets.hpp"

#include "automation/error.hpp"

namespace vorlan::simulator {

namespace {

int hex_digit(char c) noexcept {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

std::string hex_text(std::span<const std::uint8_t> octets) {
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

Octets parse_hex(std::string_view text) {
  Octets octets;
  int high = -1;
  for (const char c : text) {
    if (c == ' ') continue;
    const int digit = hex_digit(c);
    if (digit < 0) throw Error(ErrorNumber::TypeMismatch, {}, "hexadecimal digits wanted");
    if (high < 0) {
      high = digit;
    } else {
      octets.push_back(static_cast<std::uint8_t>(high * 16 + digit));
      high = -1;
    }
  }
  if (high >= 0) throw Error(ErrorNumber::TypeMismatch, {}, "an even number of hexadecimal digits wanted");
  return octets;
}

}  // namespace vorlan::simulator
