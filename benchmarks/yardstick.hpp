// Hand-written packers and parsers, the yardstick of the codecs: text bits in, octets out, no heap, one message known.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vorlan::yardstick {

/// The bits of a bit string that is as long as a whole number of octets, sixteen characters at a time.
inline void pack(const char* text, std::size_t bits, std::uint8_t* octets) noexcept {
#if defined(__SSE2__)
  const __m128i one = _mm_set1_epi8('1');
  for (; bits >= 16; bits -= 16, text += 16, octets += 2) {
    const __m128i characters = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
    auto mask = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(characters, one)));
    mask = ((mask >> 1U) & 0x5555U) | ((mask & 0x5555U) << 1U);
    mask = ((mask >> 2U) & 0x3333U) | ((mask & 0x3333U) << 2U);
    mask = ((mask >> 4U) & 0x0F0FU) | ((mask & 0x0F0FU) << 4U);
    octets[0] = static_cast<std::uint8_t>(mask);
    octets[1] = static_cast<std::uint8_t>(mask >> 8U);
  }
#endif
  for (std::size_t i = 0; i < bits; ++i) {
    if (i % 8 == 0) octets[i / 8] = 0;
    if (text[i] == '1') octets[i / 8] = static_cast<std::uint8_t>(octets[i / 8] | (0x80U >> (i % 8)));
  }
}

inline void unpack(const std::uint8_t* octets, std::size_t count, char* text) noexcept {
#if defined(__SSE2__)
  const __m128i select = _mm_set1_epi64x(static_cast<long long>(0x0102040810204080ULL));
  const __m128i zero = _mm_set1_epi8('0');
  for (; count >= 2; count -= 2, octets += 2, text += 16) {
    const __m128i spread =
        _mm_unpacklo_epi64(_mm_set1_epi8(static_cast<char>(octets[0])), _mm_set1_epi8(static_cast<char>(octets[1])));
    const __m128i set = _mm_cmpeq_epi8(_mm_and_si128(spread, select), select);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(text), _mm_sub_epi8(zero, set));
  }
#endif
  for (std::size_t i = 0; i < count * 8; ++i) text[i] = (octets[i / 8] >> (7 - i % 8) & 1) != 0 ? '1' : '0';
}

/// UATIAssignment with its subnet: 176 bits.
struct UATIAssignment {
  std::string_view sequence, mask, uati104, colour, uati024, length;
};
inline void pack(const UATIAssignment& message, std::uint8_t* octets) noexcept {
  char text[176];
  char* out = text;
  const auto put = [&out](std::string_view field) {
    std::memcpy(out, field.data(), field.size());
    out += field.size();
  };
  put("00000001");
  put(message.sequence);
  put("00000001");
  put(message.mask);
  put(message.uati104);
  put(message.colour);
  put(message.uati024);
  put(message.length);
  put("0000");
  pack(text, sizeof text, octets);
}

}  // namespace vorlan::yardstick
