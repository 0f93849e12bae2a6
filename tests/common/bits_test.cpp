#include "common/bits.hpp"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace vorlan {
namespace {

using Octets = std::vector<std::uint8_t>;

Octets packed(std::string_view bits, void (*pack)(std::string_view, std::uint8_t*) noexcept) {
  Octets octets(octets_for(bits.size()));
  pack(bits, octets.data());
  return octets;
}

TEST(Bits, FirstCharacterIsBitSeven) {
  EXPECT_EQ(packed("1", &pack_bits), Octets{0x80});
  EXPECT_EQ(packed("101010111100", &pack_bits), (Octets{0xAB, 0xC0}));
  EXPECT_EQ(packed("0000000100100011010001010110011110001001", &pack_bits), (Octets{0x01, 0x23, 0x45, 0x67, 0x89}));
}

// Characters next to '1' in every way that the arithmetic could confuse: neighbours, the high bit, zero.
TEST(Bits, EveryLengthAndEveryCharacterAsTheRuleSays) {
  std::mt19937 random(1);
  const std::string alphabet(
      "01"
      "01"
      "23/:\x00\xB1\xB0\xFF\x11 q",
      15);
  for (std::size_t length = 0; length <= 200; ++length) {
    std::string bits;
    for (std::size_t i = 0; i < length; ++i) bits += alphabet[random() % alphabet.size()];
    Octets expected(octets_for(length));
    std::string text(length, '0');
    for (std::size_t i = 0; i < length; ++i) {
      if (bits[i] != '1') continue;
      expected[i / 8] = static_cast<std::uint8_t>(expected[i / 8] | 0x80U >> i % 8);
      text[i] = '1';
    }
    ASSERT_EQ(packed(bits, &pack_bits), expected) << length;
    ASSERT_EQ(packed(bits, &portable::pack_bits), expected) << length;
    std::string unpacked(length, '?');
    unpack_bits(expected.data(), length, unpacked.data());
    ASSERT_EQ(unpacked, text);
    portable::unpack_bits(expected.data(), length, unpacked.data());
    ASSERT_EQ(unpacked, text);
  }
}

}  // namespace
}  // namespace vorlan
