// What messages of the enhanced multi-flow packet application (C.S0063-A) share.
#pragma once

#include "codec/meaning.hpp"

namespace vorlan::emfpa {

inline constexpr Code kRoutes[] = {{0, "route A"}, {1, "route B"}};
inline constexpr Meaning kRoute{.codes = kRoutes, .summary = "route A or B"};

}  // namespace vorlan::emfpa
