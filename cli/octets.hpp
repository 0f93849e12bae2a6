// Octets as people type them.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace vorlan::cli {

/// Reads hexadecimal text: "010AFF", "0x01 0x0A", "01:0a:ff", in one word or several. Error 13 for anything else and
/// for half an octet.
std::vector<std::uint8_t> parse_octets(std::span<const std::string> words);

}  // namespace vorlan::cli
