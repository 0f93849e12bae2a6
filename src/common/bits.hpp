// Bit strings and octets. A bit string is a text of "0" and "1", most significant bit first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vorlan {

/// Octets that hold so many bits.
constexpr std::size_t octets_for(std::size_t bits) noexcept { return (bits + 7) / 8; }

/// Writes octets_for(bits.size()) octets. A character "1" is a one, every other one a zero; the low bits of a last
/// partial octet are zero.
void pack_bits(std::string_view bits, std::uint8_t* octets) noexcept;

/// Writes `bits` characters; the low bits of a last partial octet are not read.
void unpack_bits(const std::uint8_t* octets, std::size_t bits, char* text) noexcept;

/// The bit string of all octets.
std::string bits_of(std::span<const std::uint8_t> octets);

namespace portable {
// The same two without vector instructions, for other processors.
void pack_bits(std::string_view bits, std::uint8_t* octets) noexcept;
void unpack_bits(const std::uint8_t* octets, std::size_t bits, char* text) noexcept;
}  // namespace portable

}  // namespace vorlan
