#include "common/band_class.hpp"

#include <algorithm>
#include <array>

namespace vorlan {

namespace {

// clang-format off
constexpr std::array kRanges{
    // class, first,  last, origin,  reverse,  forward, spacing
    ChannelRange{ 0,    1,   799,     0,  8250000,  8700000, 300},  // 800 MHz
    ChannelRange{ 0,  991,  1023,  1023,  8250000,  8700000, 300},
    ChannelRange{ 0, 1024,  1323,  1024,  8150400,  8600400, 300},
    ChannelRange{ 1,    0,  1199,     0, 18500000, 19300000, 500},  // 1900 MHz
    ChannelRange{ 2,    0,  1000,     0,  8900000,  9350000, 250},  // TACS
    ChannelRange{ 2, 1329,  2047,  2048,  8900000,  9350000, 250},
    ChannelRange{ 3,    1,   799,     0,  9150000,  8600000, 125},  // JTACS: the forward link is the lower one
    ChannelRange{ 3,  801,  1039,   800,  8980000,  8430000, 125},
    ChannelRange{ 3, 1041,  1199,  1040,  8870000,  8320000, 125},
    ChannelRange{ 3, 1201,  1600,  1200,  8930000,  8380000, 125},
    ChannelRange{ 4,    0,   599,     0, 17500000, 18400000, 500},  // Korean PCS
    ChannelRange{ 5,    1,   300,     1,  4500000,  4600000, 250},  // 450 MHz
    ChannelRange{ 5,  539,   871,   512,  4100000,  4200000, 250},
    ChannelRange{ 5, 1039,  1473,  1024,  4510100,  4610100, 200},
    ChannelRange{ 5, 1792,  2016,  1792,  4790000,  4890000, 200},
    ChannelRange{ 6,    0,  1199,     0, 19200000, 21100000, 500},  // 2 GHz
    ChannelRange{ 7,    0,   240,     0,  7760000,  7460000, 500},  // upper 700 MHz: the forward link is the lower one
    ChannelRange{ 8,    0,  1499,     0, 17100000, 18050000, 500},  // 1800 MHz
    ChannelRange{ 9,    0,   699,     0,  8800000,  9250000, 500},  // 900 MHz
    ChannelRange{10,    0,   719,     0,  8060000,  8510000, 250},  // secondary 800 MHz
    ChannelRange{10,  720,   919,   720,  8960000,  9350000, 250},
    ChannelRange{12,    0,   239,     0,  8700125,  9150125, 250},  // 800 MHz PAMR
    ChannelRange{13,    0,  1399,     0, 25000000, 26200000, 500},  // 2.5 GHz IMT-2000 extension
    ChannelRange{14,    0,  1299,     0, 18500000, 19300000, 500},  // US PCS
    ChannelRange{15,    0,   899,     0, 17100000, 21100000, 500},  // AWS
};
// clang-format on

}  // namespace

std::span<const ChannelRange> channel_ranges() noexcept { return kRanges; }

std::optional<double> centre_frequency(std::int32_t band_class, std::int32_t channel, bool forward) noexcept {
  const auto range = std::find_if(kRanges.begin(), kRanges.end(), [&](const ChannelRange& r) {
    return r.band_class == band_class && channel >= r.first && channel <= r.last;
  });
  if (range == kRanges.end()) return std::nullopt;
  // Whole units up to the one division, so that 870.03 is the double nearest to 870.03.
  return ((forward ? range->forward : range->reverse) + (channel - range->origin) * range->spacing) / 10000.0;
}

bool is_known_band_class(std::int32_t band_class) noexcept {
  return std::any_of(kRanges.begin(), kRanges.end(), [=](const auto& range) { return range.band_class == band_class; });
}

}  // namespace vorlan
