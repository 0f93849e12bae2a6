#include "simulator/octets.hpp"

#include "automation/error.hpp"
#include "common/octets.hpp"

namespace vorlan::simulator {

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
