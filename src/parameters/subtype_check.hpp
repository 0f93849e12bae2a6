// Which protocol subtypes go together.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "parameters/personalities.hpp"

namespace vorlan {

/// The nine values of one personality, in the order of kPersonalitySpecs.
using SubtypeSet = std::array<std::int16_t, kPersonalityParameters>;

/// Corrects subtypes out of range and combinations that do not exist, in this order: ranges; what the multi-flow packet
/// application needs; what the enhanced idle state, control channel and access channel protocols need; reverse traffic
/// channel subtype 3; the asynchronous rate. Returns the warnings, a line each; their texts are fixed.
std::vector<std::string> correct_subtypes(SubtypeSet& subtypes);

}  // namespace vorlan
