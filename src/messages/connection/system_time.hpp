// CDMA system time as people read it. It began on 1980-01-06 at 00:00:00 UTC and knows no leap seconds.
#pragma once

#include "codec/meaning.hpp"

namespace vorlan {

/// "1980-01-06 00:00:00.400" for 15 frames of 26 2/3 ms.
std::string frames_text(std::string_view bits);
/// The same for units of 80 ms.
std::string units_of_80_ms_text(std::string_view bits);

inline constexpr Meaning kTimeInFrames{.text = frames_text, .summary = "system time, frames of 26 2/3 ms"};
inline constexpr Meaning kTimeIn80Ms{.text = units_of_80_ms_text, .summary = "system time, 80 ms"};

}  // namespace vorlan
