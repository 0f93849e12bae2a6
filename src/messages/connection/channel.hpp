// The 24-bit channel record (C.S0024-A 14.1).
#pragma once

#include <string>

namespace vorlan {

class Configuration;

/// SystemType 8, BandClass 5, ChannelNumber 11 of the sector's own channel.
std::string channel_of_sector(Configuration& configuration);

}  // namespace vorlan
