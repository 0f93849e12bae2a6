// Messages that carry attribute records or keys, taken apart for the ladder.
#pragma once

#include <optional>

#include "simulator/trace/ladder.hpp"

namespace vorlan::simulator {

/// Nothing if it is another message.
std::optional<LadderRung> carrier_message(int protocol, std::span<const std::uint8_t> octets);

}  // namespace vorlan::simulator
