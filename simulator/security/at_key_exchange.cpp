#include "simulator/security/at_key_exchange.hpp"

#include "simulator/security/diffie_hellman.hpp"

namespace vorlan::simulator {

namespace {

constexpr std::uint8_t kKeyRequest = 0;
constexpr std::uint8_t kKeyResponse = 1;
constexpr std::uint8_t kANKeyComplete = 2;
constexpr std::uint8_t kATKeyComplete = 3;

/// What the terminal sends as its public key.
Octets shown_key(Cheat cheat, int key_bits, const Octets& exponent) {
  switch (cheat) {
    case Cheat::WrongKey:
    case Cheat::FalseSuccess: return public_key(key_bits, draw_exponent(key_bits));
    case Cheat::DegenerateKey: {
      Octets one(static_cast<std::size_t>(key_bits / 8));
      one.back() = 1;
      return one;
    }
    case Cheat::None:
    case Cheat::FalseFailure: break;
  }
  return public_key(key_bits, exponent);
}

}  // namespace

AtKeyExchange::AtKeyExchange(Link& link, std::function<std::uint64_t()> system_time)
    : link_(&link), system_time_(std::move(system_time)) {}

void AtKeyExchange::receive(std::span<const std::uint8_t> octets, int key_bits) {
  if (octets[0] == kKeyRequest) {
    answer_key_request(octets, key_bits);
  } else if (octets[0] == kANKeyComplete) {
    check_signature(octets);
  } else {
    link_->complain("not a message that the access network sends");
  }
}

void AtKeyExchange::answer_key_request(std::span<const std::uint8_t> octets, int key_bits) {
  constexpr std::size_t kPublicKey = 3;
  if (octets.size() != kPublicKey + static_cast<std::size_t>(key_bits / 8)) {
    link_->complain("KeyRequest has no public key of the " + std::to_string(key_bits) + " bits agreed upon");
    return;
  }
  const auto peer = octets.subspan(kPublicKey);
  if (is_degenerate(key_bits, peer)) {
    link_->complain("the access network's public key is degenerate");
    return;
  }
  const Octets exponent = draw_exponent(key_bits);
  session_key_ = simulator::session_key(key_bits, peer, exponent);
  Octets response{kKeyResponse, octets[1], time_out};
  const Octets shown = shown_key(link_->behaviour().cheat, key_bits, exponent);
  response.insert(response.end(), shown.begin(), shown.end());
  link_->send(kProtocol, std::move(response));
}

void AtKeyExchange::check_signature(std::span<const std::uint8_t> octets) {
  constexpr std::size_t kSize = 26;
  if (octets.size() != kSize || session_key_.empty()) {
    link_->complain(session_key_.empty() ? "ANKeyComplete before KeyRequest" : "ANKeyComplete has not 26 octets");
    return;
  }
  const auto nonce = static_cast<std::uint16_t>(number16(octets.subspan(2)));
  const auto stamp = static_cast<std::uint16_t>(number16(octets.subspan(4)));
  const Octets expected = key_signature(session_key_, octets[1], nonce, long_time_stamp(system_time_(), stamp));
  const auto received = octets.subspan(6);
  const bool good = std::equal(expected.begin(), expected.end(), received.begin(), received.end());
  if (!good) link_->complain("KeySignature does not verify");
  const Cheat cheat = link_->behaviour().cheat;
  const bool reported = (good || cheat == Cheat::FalseSuccess) && cheat != Cheat::FalseFailure;
  link_->send(kProtocol, {kATKeyComplete, octets[1], static_cast<std::uint8_t>(reported ? 0x80 : 0x00)});
}

}  // namespace vorlan::simulator
