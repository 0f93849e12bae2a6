// Field values as people type them, made into bit strings.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vorlan::cli {

/// The rule, for --help.
inline constexpr std::string_view kValueRule =
    "A VALUE of only 0 and 1 that is exactly as long as its field is the field's bits. \"0b\" in front makes it bits\n"
    "whatever its length (blanks and \"_\" between them are ignored). Anything else is a number, 0x... or decimal, and "
    "is\n"
    "widened to the field; a negative one is taken as two's complement.";

/// `width` in bits; 0: the field has none of its own, and the text says it (bits, or four of them per hexadecimal
/// digit). Error 6 if the number does not fit, error 13 if the text is none of these, both with `source`.
std::string field_bits(std::string_view text, std::size_t width, std::string_view source);

}  // namespace vorlan::cli
