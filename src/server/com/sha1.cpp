#include "server/com/sha1.hpp"

#include <bit>
#include <vector>

namespace vorlan::com {

namespace {

constexpr std::size_t kBlock = 64;
using State = std::array<std::uint32_t, 5>;

/// The message, a one, zeros, and the length in bits: whole blocks.
std::vector<std::uint8_t> padded(std::span<const std::uint8_t> message) {
  std::vector<std::uint8_t> octets(message.begin(), message.end());
  octets.push_back(0x80);
  while (octets.size() % kBlock != kBlock - 8) octets.push_back(0);
  const std::uint64_t bits = message.size() * 8;
  for (unsigned shift = 64; shift > 0;) octets.push_back(static_cast<std::uint8_t>(bits >> (shift -= 8)));
  return octets;
}

void add_block(State& state, std::span<const std::uint8_t, kBlock> block) {
  std::array<std::uint32_t, 80> w{};
  for (std::size_t i = 0; i < kBlock; ++i) w[i / 4] = w[i / 4] << 8U | block[i];
  for (std::size_t i = 16; i < w.size(); ++i) w[i] = std::rotl(w[i - 3] ^ w[i - 8] ^ w[i - 14] ^ w[i - 16], 1);
  auto [a, b, c, d, e] = state;
  for (std::size_t i = 0; i < w.size(); ++i) {
    std::uint32_t f = b ^ c ^ d;
    std::uint32_t k = 0x6ED9EBA1;
    if (i < 20) {
      f = (b & c) | (~b & d);
      k = 0x5A827999;
    } else if (i >= 40 && i < 60) {
      f = (b & c) | (b & d) | (c & d);
      k = 0x8F1BBCDC;
    } else if (i >= 60) {
      k = 0xCA62C1D6;
    }
    const std::uint32_t next = std::rotl(a, 5) + f + e + k + w[i];
    e = d;
    d = c;
    c = std::rotl(b, 30);
    b = a;
    a = next;
  }
  const State added{a, b, c, d, e};
  for (std::size_t i = 0; i < state.size(); ++i) state[i] += added[i];
}

}  // namespace

std::array<std::uint8_t, 20> sha1(std::span<const std::uint8_t> message) {
  State state{0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476, 0xC3D2E1F0};
  const std::vector<std::uint8_t> octets = padded(message);
  for (std::size_t at = 0; at < octets.size(); at += kBlock) {
    add_block(state, std::span(octets).subspan(at).first<kBlock>());
  }
  std::array<std::uint8_t, 20> digest{};
  for (std::size_t i = 0; i < digest.size(); ++i) {
    digest[i] = static_cast<std::uint8_t>(state[i / 4] >> (24 - i % 4 * 8));
  }
  return digest;
}

}  // namespace vorlan::com
