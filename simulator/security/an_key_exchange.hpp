// The access network's side of the Diffie-Hellman key exchange, as a test set computes it.
#pragma once

#include <functional>

#include "simulator/octets.hpp"

namespace vorlan::simulator {

class AnKeyExchange {
 public:
  explicit AnKeyExchange(std::function<std::uint64_t()> system_time) : system_time_(std::move(system_time)) {}

  /// Draws a new exponent; its public key. Error 5 for a length other than 768 or 1024.
  Octets new_public_key(int key_bits);
  /// Computes the session key. Error 5 before new_public_key(), for a key of another length, and for a degenerate one.
  void take_at_public_key(std::span<const std::uint8_t> key);
  /// Draws a new Nonce and takes the time with it.
  std::uint16_t new_nonce();
  [[nodiscard]] std::uint16_t time_stamp_short() const noexcept { return static_cast<std::uint16_t>(time_stamp_); }
  /// Over the latest Nonce and its time. Error 5 before there is a session key.
  [[nodiscard]] Octets signature(std::uint8_t transaction_id) const;
  /// Empty before there is one.
  [[nodiscard]] const Octets& session_key() const noexcept { return session_key_; }

 private:
  std::function<std::uint64_t()> system_time_;
  int key_bits_ = 0;
  Octets exponent_;
  Octets session_key_;
  std::uint16_t nonce_ = 0;
  std::uint64_t time_stamp_ = 0;
};

}  // namespace vorlan::simulator
