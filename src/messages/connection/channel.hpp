// The 24-bit channel record (C.S0024-A 12).
#pragma once

#include <string>

#include "codec/meaning.hpp"

namespace vorlan {

class Configuration;

/// SystemType 8, BandClass 5, ChannelNumber 11 of the sector's own channel.
std::string channel_of_sector(Configuration& configuration);

inline constexpr Code kSystemTypes[] = {{0, "HRPD"}, {1, "cdma2000 1x"}, {2, "HRPD, forward channel not paired"}};
inline constexpr Meaning kSystemType{.codes = kSystemTypes, .summary = "system"};

}  // namespace vorlan
