#include "cli/octets.hpp"

#include <string_view>

#include "automation/error.hpp"
#include "common/octets.hpp"

namespace vorlan::cli {

std::vector<std::uint8_t> parse_octets(std::span<const std::string> words) {
  std::vector<std::uint8_t> octets;
  int pending = 0;
  bool half = false;
  for (const std::string& whole : words) {
    std::string_view word = whole;
    while (!word.empty()) {
      if (!half && (word.starts_with("0x") || word.starts_with("0X"))) {
        word.remove_prefix(2);
        continue;
      }
      const char c = word.front();
      word.remove_prefix(1);
      if (c == ' ' || c == ':' || c == '\t' || c == '\n' || c == '\r') continue;
      const int digit = hex_digit(c);
      if (digit < 0) {
        throw Error(ErrorNumber::TypeMismatch, "Vorlan", "\"" + whole + "\" is not hexadecimal");
      }
      pending = pending * 16 + digit;
      if (half) octets.push_back(static_cast<std::uint8_t>(pending));
      if (half) pending = 0;
      half = !half;
    }
  }
  if (half) throw Error(ErrorNumber::TypeMismatch, "Vorlan", "an odd number of hexadecimal digits");
  return octets;
}

}  // namespace vorlan::cli
