#include "common/ansi_code.hpp"

#include <algorithm>
#include <array>
#include <bit>

namespace vorlan {

namespace {

/// What Windows-1252 has at 0x80 to 0x9F; everything else is where Unicode has it.
constexpr std::array<char16_t, 32> kFrom80{0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                           0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

}  // namespace

std::int32_t take_ansi_code(std::string_view& text) noexcept {
  const auto first = static_cast<unsigned char>(text.front());
  const auto length = static_cast<std::size_t>(std::countl_one(first));
  std::uint32_t code = first & (0x7FU >> length);
  bool whole = length >= 2 && length <= 4 && text.size() >= length;
  for (std::size_t i = 1; whole && i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    whole = (next & 0xC0U) == 0x80;
    code = code << 6U | (next & 0x3FU);
  }
  text.remove_prefix(whole ? length : 1);
  if (!whole) return first;
  const auto listed = std::find(kFrom80.begin(), kFrom80.end(), code);
  return listed == kFrom80.end() ? static_cast<std::int32_t>(code)
                                 : 0x80 + static_cast<std::int32_t>(listed - kFrom80.begin());
}

}  // namespace vorlan
