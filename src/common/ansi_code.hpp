// Character codes of a single-byte character set, for texts held as UTF-8.
#pragma once

#include <cstdint>
#include <string_view>

namespace vorlan {

/// Takes the first character off a text that is not empty and gives its code in Windows-1252; a character outside that
/// set gives its Unicode number, which is above 255. An octet that is no UTF-8 stands for itself.
std::int32_t take_ansi_code(std::string_view& text) noexcept;

}  // namespace vorlan
