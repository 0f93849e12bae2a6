// Carrier frequencies of the CDMA band classes (C.S0057).
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace vorlan {

/// Consecutive channel numbers of a band class. Frequencies are whole numbers of 100 Hz.
struct ChannelRange {
  std::int32_t band_class;
  std::int32_t first;
  std::int32_t last;
  std::int32_t origin;   ///< the channel number that the two frequencies belong to, inside the range or not
  std::int32_t reverse;  ///< access terminal transmits
  std::int32_t forward;  ///< access network transmits
  std::int32_t spacing;
};

/// All ranges known, by band class.
std::span<const ChannelRange> channel_ranges() noexcept;

/// In MHz; nothing for a channel number outside the band class.
std::optional<double> centre_frequency(std::int32_t band_class, std::int32_t channel, bool forward) noexcept;

bool is_known_band_class(std::int32_t band_class) noexcept;

}  // namespace vorlan
