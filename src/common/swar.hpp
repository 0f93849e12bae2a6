// Eight characters of a bit string at a time, as one word.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace vorlan::swar {

inline constexpr std::uint64_t kOnes = 0x0101010101010101;
inline constexpr std::uint64_t kLow7 = 0x7F7F7F7F7F7F7F7F;
/// The first character, in the low octet of a word, holds bit 7.
inline constexpr std::uint64_t kBitOfCharacter = 0x0102040810204080;

inline std::uint64_t load(const char* text) noexcept {
  std::uint64_t word = 0;
  if constexpr (std::endian::native == std::endian::little) {
    std::memcpy(&word, text, sizeof word);
  } else {
    for (unsigned i = 0; i < 8; ++i) word |= std::uint64_t{static_cast<unsigned char>(text[i])} << (8 * i);
  }
  return word;
}

inline void store(std::uint64_t word, char* text) noexcept {
  if constexpr (std::endian::native == std::endian::little) {
    std::memcpy(text, &word, sizeof word);
  } else {
    for (unsigned i = 0; i < 8; ++i) text[i] = static_cast<char>(word >> (8 * i));
  }
}

/// From octets of 0 and 1: octet i moves to bit 63 - i, and the products never meet.
constexpr std::uint8_t gather(std::uint64_t bits) noexcept {
  return static_cast<std::uint8_t>((bits * 0x8040201008040201) >> 56U);
}

/// One for each character "1", zero for any other.
constexpr std::uint64_t ones(std::uint64_t characters) noexcept {
  const std::uint64_t difference = characters ^ (kOnes * '1');
  // Bit 7 of each octet that is no difference at all; no carry crosses an octet.
  return ~(((difference & kLow7) + kLow7) | difference | kLow7) >> 7U;
}

/// The eight characters of an octet.
constexpr std::uint64_t spread(std::uint8_t octet) noexcept {
  const std::uint64_t bits = (octet * kOnes) & kBitOfCharacter;
  return (((bits + kLow7) >> 7U) & kOnes) | (kOnes * '0');
}

}  // namespace vorlan::swar
