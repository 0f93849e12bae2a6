// The terminal's side of the Diffie-Hellman key exchange (C.S0024-400-C 2.6).
#pragma once

#include <functional>

#include "simulator/terminal/link.hpp"

namespace vorlan::simulator {

class AtKeyExchange {
 public:
  static constexpr int kProtocol = 5;

  AtKeyExchange(Link& link, std::function<std::uint64_t()> system_time);

  /// A message of the key exchange protocol; `key_bits` has been negotiated.
  void receive(std::span<const std::uint8_t> octets, int key_bits);

  /// Empty before a KeyRequest has been answered.
  [[nodiscard]] const Octets& session_key() const noexcept { return session_key_; }

  /// Seconds that the terminal asks for in KeyResponse.
  std::uint8_t time_out = 4;

 private:
  void answer_key_request(std::span<const std::uint8_t> octets, int key_bits);
  void check_signature(std::span<const std::uint8_t> octets);

  Link* link_;
  std::function<std::uint64_t()> system_time_;
  Octets session_key_;
};

}  // namespace vorlan::simulator
