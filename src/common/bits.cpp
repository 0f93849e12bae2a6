// Packing and unpacking of bit strings: sixteen characters at a time with SSE2, eight at a time elsewhere.
#include "common/bits.hpp"

#include <algorithm>
#include <array>
#include <cstring>

#include "common/swar.hpp"

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define VORLAN_SSE2 1
#endif

namespace vorlan {

namespace {

std::uint8_t pack8(const char* text) noexcept { return swar::gather(swar::ones(swar::load(text))); }

/// The characters behind the last whole octet.
void pack_rest(std::string_view bits, std::uint8_t* octet) noexcept {
  if (bits.empty()) return;
  std::array<char, 8> text{};
  std::copy(bits.begin(), bits.end(), text.begin());
  *octet = pack8(text.data());
}

void unpack_rest(std::uint8_t octet, std::size_t bits, char* text) noexcept {
  std::array<char, 8> characters;
  swar::store(swar::spread(octet), characters.data());
  std::memcpy(text, characters.data(), bits);
}

}  // namespace

void portable::pack_bits(std::string_view bits, std::uint8_t* octets) noexcept {
  for (; bits.size() >= 8; bits.remove_prefix(8)) *octets++ = pack8(bits.data());
  pack_rest(bits, octets);
}

void portable::unpack_bits(const std::uint8_t* octets, std::size_t bits, char* text) noexcept {
  for (; bits >= 8; bits -= 8, text += 8) swar::store(swar::spread(*octets++), text);
  if (bits > 0) unpack_rest(*octets, bits, text);
}

#ifdef VORLAN_SSE2

namespace {

/// Sixteen bits, the first character's in bit 0.
std::uint64_t mask16(const char* text) noexcept {
  const __m128i characters = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
  return static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(characters, _mm_set1_epi8('1'))));
}

/// The movemask counts from bit 0, an octet of a message from bit 7: turns the bits of every octet round.
constexpr std::uint64_t reverse_bits_of_octets(std::uint64_t word) noexcept {
  word = ((word >> 1U) & 0x5555555555555555) | ((word & 0x5555555555555555) << 1U);
  word = ((word >> 2U) & 0x3333333333333333) | ((word & 0x3333333333333333) << 2U);
  return ((word >> 4U) & 0x0F0F0F0F0F0F0F0F) | ((word & 0x0F0F0F0F0F0F0F0F) << 4U);
}

}  // namespace

void pack_bits(std::string_view bits, std::uint8_t* octets) noexcept {
  for (; bits.size() >= 64; bits.remove_prefix(64), octets += 8) {
    const char* text = bits.data();
    const std::uint64_t word = reverse_bits_of_octets(mask16(text) | mask16(text + 16) << 16U |
                                                      mask16(text + 32) << 32U | mask16(text + 48) << 48U);
    std::memcpy(octets, &word, sizeof word);
  }
  for (; bits.size() >= 16; bits.remove_prefix(16), octets += 2) {
    const auto pair = static_cast<std::uint16_t>(reverse_bits_of_octets(mask16(bits.data())));
    std::memcpy(octets, &pair, sizeof pair);
  }
  portable::pack_bits(bits, octets);
}

void unpack_bits(const std::uint8_t* octets, std::size_t bits, char* text) noexcept {
  const __m128i bit_of_character = _mm_set1_epi64x(static_cast<long long>(swar::kBitOfCharacter));
  for (; bits >= 16; bits -= 16, octets += 2, text += 16) {
    __m128i pair = _mm_cvtsi32_si128(octets[0] | octets[1] << 8);
    pair = _mm_unpacklo_epi8(pair, pair);
    pair = _mm_unpacklo_epi16(pair, pair);
    pair = _mm_shuffle_epi32(pair, _MM_SHUFFLE(1, 1, 0, 0));  // eight times each octet
    const __m128i ones = _mm_cmpeq_epi8(_mm_and_si128(pair, bit_of_character), bit_of_character);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(text), _mm_sub_epi8(_mm_set1_epi8('0'), ones));
  }
  portable::unpack_bits(octets, bits, text);
}

#else

void pack_bits(std::string_view bits, std::uint8_t* octets) noexcept { portable::pack_bits(bits, octets); }
void unpack_bits(const std::uint8_t* octets, std::size_t bits, char* text) noexcept {
  portable::unpack_bits(octets, bits, text);
}

#endif

std::string bits_of(std::span<const std::uint8_t> octets) {
  std::string bits(octets.size() * 8, '0');
  unpack_bits(octets.data(), bits.size(), bits.data());
  return bits;
}

}  // namespace vorlan
