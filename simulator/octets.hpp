// Octets as the simulator hands them about, and as scripts write them.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace vorlan::simulator {

using Octets = std::vector<std::uint8_t>;

/// Reads "01 0A ff" or "010AFF"; error 13 for anything else and for half an octet.
Octets parse_hex(std::string_view text);

/// Two octets as a number, high one first.
constexpr int number16(std::span<const std::uint8_t> octets) noexcept { return octets[0] << 8 | octets[1]; }

}  // namespace vorlan::simulator
