// What the bits of a field mean: units and codes, for the people who read listings and dissections.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vorlan {

struct Code {
  std::uint32_t value;
  std::string_view text;
};

/// A scale with a unit, a list of codes, or a function that writes the value. The number is (value x scale) unit.
struct Meaning {
  std::string_view unit = {};
  double scale = 1;
  bool is_signed = false;  ///< two's complement in the field's width
  std::span<const Code> codes = {};
  std::string (*text)(std::string_view bits) = nullptr;
  std::string_view summary = {};  ///< for listings, where the unit does not say it all

  [[nodiscard]] constexpr std::string_view listed() const noexcept { return summary.empty() ? unit : summary; }
};

/// "-7 dB", "normal"; the empty text where the meaning does not cover the value.
std::string value_text(const Meaning& meaning, std::string_view bits);

}  // namespace vorlan
