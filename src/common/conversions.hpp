// Conversions between bit strings and numbers, as every codec uses them. SB_GeneralFunctions offers the same to
// scripts; the errors carry its name, because scripts compare it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "automation/value.hpp"

namespace vorlan {

class Object;

/// A non-negative value in exactly `width` bits, else the error "The given value: ... cannot be converted into ...".
/// A negative one gives "1" and the digits of value + 2^31, whatever the width.
std::string long_to_bin(std::int32_t value, int width);

/// The value converted to a Long (errors 6 and 13), then as long_to_bin.
std::string dec_to_bin(const Value& value, int width);

/// Unsigned value of a bit string. Digits other than 0 and 1 count with their own value; error 13 for anything else,
/// error 6 above 32767.
std::int16_t bin_to_dec(std::string_view bits);

/// Unsigned value of a bit string; error 1 for a character other than 0 and 1, error 6 above 2147483647.
std::int32_t bin_to_long(std::string_view bits);

/// A whole number from 0 to below 2^width; the empty text for a larger one.
std::string double_to_bin(double value, int width);

/// Hexadecimal text in exactly `width` bits, excess high bits dropped; error 1 for a character that is no hex digit.
std::string hex_to_bin(std::string_view text, int width);

/// Two's complement of the rightmost `width` bits.
std::string find_2s_complement(std::string_view bits, int width);

/// -1, 0 or 1: compares two numeric texts of any length by value.
std::int32_t compare_numeric_text(std::string_view a, std::string_view b);

/// Appends "0" up to the next multiple of 8 bits.
void add_padding(std::string& bits);

/// Reads a message object, foreign or not: `Length` bits. Every octet is read once, the one past the end included.
std::string message_to_bits(Object& message);

/// Fills a message object's octets, each written once, the one past the end included; `Length` is left alone.
/// Error 6 for more than 32767 bits.
void bits_to_message(std::string_view bits, Object& message);

/// The longest bit string that a message object takes.
inline constexpr std::size_t kMaxMessageBits = 32767;

}  // namespace vorlan
