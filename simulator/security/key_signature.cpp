#include "automation/error.hpp"
#include "simulator/security/diffie_hellman.hpp"

namespace vorlan::simulator {

void check_key_length(int key_bits) {
  if (key_bits != 768 && key_bits != 1024) {
    throw Error(ErrorNumber::InvalidCall, {}, "a key has 768 or 1024 bits");
  }
}

Octets key_signature(std::span<const std::uint8_t> session_key, std::uint8_t transaction_id, std::uint16_t nonce,
                     std::uint64_t time_stamp) {
  Octets text(session_key.begin(), session_key.end());
  text.push_back(transaction_id);
  text.push_back(static_cast<std::uint8_t>(nonce >> 8));
  text.push_back(static_cast<std::uint8_t>(nonce & 0xFF));
  for (int shift = 56; shift >= 0; shift -= 8) text.push_back(static_cast<std::uint8_t>(time_stamp >> shift & 0xFF));
  return sha1(text);
}

}  // namespace vorlan::simulator
