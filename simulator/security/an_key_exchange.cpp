#include "simulator/security/an_key_exchange.hpp"

#include "automation/error.hpp"
#include "simulator/security/diffie_hellman.hpp"

namespace vorlan::simulator {

Octets AnKeyExchange::new_public_key(int key_bits) {
  check_key_length(key_bits);
  Octets exponent = draw_exponent(key_bits);
  Octets key = public_key(key_bits, exponent);
  key_bits_ = key_bits;
  exponent_ = std::move(exponent);
  session_key_.clear();
  return key;
}

void AnKeyExchange::take_at_public_key(std::span<const std::uint8_t> key) {
  if (exponent_.empty()) throw Error(ErrorNumber::InvalidCall, {}, "no public key of the access network was asked for");
  if (key.size() * 8 != static_cast<std::size_t>(key_bits_)) {
    throw Error(
        ErrorNumber::InvalidCall, {},
        "the terminal's public key has " + std::to_string(key.size() * 8) + " bits, not " + std::to_string(key_bits_));
  }
  if (is_degenerate(key_bits_, key)) {
    throw Error(ErrorNumber::InvalidCall, {}, "the terminal's public key is degenerate");
  }
  session_key_ = simulator::session_key(key_bits_, key, exponent_);
}

std::uint16_t AnKeyExchange::new_nonce() {
  nonce_ = draw_nonce();
  time_stamp_ = system_time_();
  return nonce_;
}

Octets AnKeyExchange::signature(std::uint8_t transaction_id) const {
  if (session_key_.empty()) throw Error(ErrorNumber::InvalidCall, {}, "no session key has been computed");
  return key_signature(session_key_, transaction_id, nonce_, time_stamp_);
}

}  // namespace vorlan::simulator
