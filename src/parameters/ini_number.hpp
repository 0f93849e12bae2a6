// Numbers and switches as people write them into parameter files.
#pragma once

#include <optional>
#include <string_view>

namespace vorlan {

/// Decimals with a point whatever the locale, an exponent, &H1F and 0x1F, which are never negative.
std::optional<double> parse_ini_number(std::string_view text) noexcept;

/// True, Yes, On and any number but 0; False, No, Off and 0.
std::optional<bool> parse_ini_switch(std::string_view text) noexcept;

}  // namespace vorlan
