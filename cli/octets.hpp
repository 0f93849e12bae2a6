// Octets as people write and read them.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace vorlan::cli {

/// Reads hexadecimal text: "010AFF", "0x01 0x0A", "01:0a:ff", in one word or several. Error 13 for anything else and
/// for half an octet.
std::vector<std::uint8_t> parse_octets(std::span<const std::string> words);

/// "01 0A FF".
std::string octets_text(std::span<const std::uint8_t> octets);

}  // namespace vorlan::cli
