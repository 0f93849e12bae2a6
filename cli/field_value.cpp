#include "cli/field_value.hpp"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "automation/error.hpp"
#include "common/octets.hpp"

namespace vorlan::cli {

namespace {

bool is_bits(std::string_view text) noexcept { return text.find_first_not_of("01") == std::string_view::npos; }

/// Without leading zeros.
std::string bits_of_number(std::uint64_t number) {
  std::string bits;
  for (; number != 0; number >>= 1U) bits.insert(bits.begin(), (number & 1U) != 0 ? '1' : '0');
  return bits;
}

/// Empty if there is a character that is no digit.
std::string bits_of_hex(std::string_view digits) {
  std::string bits;
  for (const char digit : digits) {
    const int value = hex_digit(digit);
    if (value < 0) return {};
    for (int mask = 8; mask != 0; mask >>= 1) bits += (value & mask) != 0 ? '1' : '0';
  }
  return bits;
}

std::string widened(std::string bits, std::size_t width, std::string_view text, std::string_view source) {
  bits.erase(0, std::min(bits.find('1'), bits.size()));
  if (bits.size() > width) {
    throw Error(ErrorNumber::Overflow, source,
                "\"" + std::string(text) + "\" does not fit into " + std::to_string(width) + " bits");
  }
  return bits.insert(0, width - bits.size(), '0');
}

[[noreturn]] void refuse(std::string_view text, std::string_view source, std::string_view wanted) {
  throw Error(ErrorNumber::TypeMismatch, source, "\"" + std::string(text) + "\" is not " + std::string(wanted));
}

}  // namespace

std::string field_bits(std::string_view text, std::size_t width, std::string_view source) {
  constexpr std::size_t kNumberBits = 64;
  if (text.empty() || (is_bits(text) && (width == 0 || text.size() == width))) return std::string(text);
  if (text.starts_with("0b") || text.starts_with("0B")) {
    std::string bits(text.substr(2));
    std::erase_if(bits, [](char c) { return c == '_' || c == ' '; });
    if (!is_bits(bits)) refuse(text, source, "made of 0 and 1 behind its 0b");
    return bits;
  }
  if (text.starts_with("0x") || text.starts_with("0X")) {
    std::string bits = bits_of_hex(text.substr(2));
    if (bits.empty()) refuse(text, source, "a hexadecimal number");
    return width == 0 ? bits : widened(std::move(bits), width, text, source);
  }
  if (width == 0) refuse(text, source, "bits or a 0x number, which this field wants as it has no width of its own");

  const bool negative = text.starts_with('-');
  const std::string_view digits = text.substr(negative ? 1 : 0);
  std::uint64_t number = 0;
  const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (end != digits.data() + digits.size() || fault == std::errc::invalid_argument) {
    refuse(text, source, "bits, a 0x number or a decimal number");
  }
  if (fault == std::errc::result_out_of_range) {
    throw Error(ErrorNumber::Overflow, source, "\"" + std::string(text) + "\" is too large; write it as 0x...");
  }
  if (!negative || number == 0) return widened(bits_of_number(number), width, text, source);
  const std::string magnitude = bits_of_number(number - 1);
  if (magnitude.size() >= width || width > kNumberBits) {
    throw Error(ErrorNumber::Overflow, source,
                "\"" + std::string(text) + "\" does not fit into " + std::to_string(width) + " bits");
  }
  std::string bits = widened(magnitude, width, text, source);
  for (char& bit : bits) bit = bit == '0' ? '1' : '0';
  return bits;
}

}  // namespace vorlan::cli
