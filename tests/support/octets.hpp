// Octets as people write them, and the bits in them.
#pragma once

#include <string>
#include <string_view>

#include "simulator/message_object.hpp"

namespace vorlan::test {

/// The bits of "01 A0".
inline std::string bits_of(std::string_view hex) {
  std::string bits;
  for (const char c : hex) {
    if (c == ' ') continue;
    const int digit = c <= '9' ? c - '0' : c - 'A' + 10;
    for (int bit = 3; bit >= 0; --bit) bits += (digit >> bit & 1) != 0 ? '1' : '0';
  }
  return bits;
}

/// A received message object.
inline Ref<simulator::MessageObject> received(const std::string& hex) {
  auto message = make<simulator::MessageObject>();
  message->set_hex(hex);
  return message;
}

}  // namespace vorlan::test
