// Hand-written packers and parsers, the yardstick of the codecs: text bits in, octets out, no heap, one message known.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vorlan::yardstick {

/// For each octet, the octet with its bits in reverse order, and its eight characters.
struct Tables {
  std::array<std::uint8_t, 256> reversed{};
  std::array<std::array<char, 8>, 256> text{};
  constexpr Tables() {
    for (unsigned octet = 0; octet < 256; ++octet) {
      for (unsigned bit = 0; bit < 8; ++bit) {
        const bool set = (octet >> (7 - bit) & 1U) != 0;
        text[octet][bit] = set ? '1' : '0';
        if (set) reversed[octet] = static_cast<std::uint8_t>(reversed[octet] | 1U << bit);
      }
    }
  }
};
inline constexpr Tables kTables;

/// The bits of a bit string, sixteen characters at a time.
inline void pack(const char* text, std::size_t bits, std::uint8_t* octets) noexcept {
#if defined(__SSE2__)
  const __m128i one = _mm_set1_epi8('1');
  for (; bits >= 16; bits -= 16, text += 16, octets += 2) {
    const __m128i characters = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
    const auto mask = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(characters, one)));
    octets[0] = kTables.reversed[mask & 0xFFU];
    octets[1] = kTables.reversed[mask >> 8U];
  }
#endif
  for (std::size_t i = 0; i < bits; ++i) {
    if (i % 8 == 0) octets[i / 8] = 0;
    if (text[i] == '1') octets[i / 8] = static_cast<std::uint8_t>(octets[i / 8] | (0x80U >> (i % 8)));
  }
}

inline void unpack(const std::uint8_t* octets, std::size_t count, char* text) noexcept {
  for (std::size_t i = 0; i < count; ++i) std::memcpy(text + 8 * i, kTables.text[octets[i]].data(), 8);
}

/// UATIAssignment with its subnet: 176 bits. The widths are known, and so are the places.
struct UATIAssignment {
  const char *sequence, *mask, *uati104, *colour, *uati024, *length;
};
inline void pack(const UATIAssignment& message, std::uint8_t* octets) noexcept {
  char text[176];
  std::memcpy(text, "00000001", 8);
  std::memcpy(text + 8, message.sequence, 8);
  std::memcpy(text + 16, "00000001", 8);
  std::memcpy(text + 24, message.mask, 8);
  std::memcpy(text + 32, message.uati104, 104);
  std::memcpy(text + 136, message.colour, 8);
  std::memcpy(text + 144, message.uati024, 24);
  std::memcpy(text + 168, message.length, 4);
  std::memcpy(text + 172, "0000", 4);
  pack(text, sizeof text, octets);
}

}  // namespace vorlan::yardstick
