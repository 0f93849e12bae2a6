// The arithmetic of the Diffie-Hellman key exchange protocol (C.S0024-400-C 2.6). It needs OpenSSL's libcrypto; where
// the simulator was built without it, every function raises error 429.
#pragma once

#include "simulator/octets.hpp"

namespace vorlan::simulator {

/// A key length in bits; error 5 if it is neither 768 nor 1024.
void check_key_length(int key_bits);

/// g^exponent mod p for the modulus of that length and the generator 2, leading zeros kept.
Octets public_key(int key_bits, std::span<const std::uint8_t> exponent);

/// peer^exponent mod p, leading zeros kept.
Octets session_key(int key_bits, std::span<const std::uint8_t> peer, std::span<const std::uint8_t> exponent);

/// A random exponent, 1 to p - 2.
Octets draw_exponent(int key_bits);

/// Whether it is a public key that no honest exponent gives, which would give the session key away: 0, 1, p - 1 and
/// everything from p on.
bool is_degenerate(int key_bits, std::span<const std::uint8_t> key);

Octets sha1(std::span<const std::uint8_t> octets);

std::uint16_t draw_nonce();

/// The signature of ANKeyComplete: SHA-1 over session key, TransactionID, Nonce and the 64-bit time stamp, whose unit
/// is 80 ms of system time. 20 octets.
Octets key_signature(std::span<const std::uint8_t> session_key, std::uint8_t transaction_id, std::uint16_t nonce,
                     std::uint64_t time_stamp);

/// The latest time, up to now, that ends in these 16 bits.
constexpr std::uint64_t long_time_stamp(std::uint64_t now, std::uint16_t time_stamp_short) noexcept {
  return now - static_cast<std::uint16_t>(now - time_stamp_short);
}

}  // namespace vorlan::simulator
