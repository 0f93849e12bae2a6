// Units and codes that messages of several protocols share (C.S0024-A, and C.S0057 for channels).
#pragma once

#include "codec/meaning.hpp"

namespace vorlan {

/// "SystemType 0, BandClass 1, ChannelNumber 25" of a 24-bit channel record.
std::string channel_record_text(std::string_view bits);
/// Degrees, minutes and seconds of a two's complement number of quarter arc seconds.
std::string arc_text(std::string_view bits);
/// PN offset and phase of a 15-bit PilotPNPhase.
std::string pilot_phase_text(std::string_view bits);
/// 0x and hexadecimal digits.
std::string hex_text(std::string_view bits);
/// Three decimal digits, one in each four bits.
std::string bcd_text(std::string_view bits);

inline constexpr Meaning kChannelRecord{.text = channel_record_text, .summary = "channel record"};
inline constexpr Meaning kArc{.text = arc_text, .summary = "0.25 arc seconds, two's complement"};
inline constexpr Meaning kPilotPhase{.text = pilot_phase_text, .summary = "PN chips"};
inline constexpr Meaning kHex{.text = hex_text, .summary = "hexadecimal"};
inline constexpr Meaning kBcd{.text = bcd_text, .summary = "three BCD digits"};

inline constexpr Meaning kOctets{.unit = "octets"};
inline constexpr Meaning kSlots{.unit = "slots"};
inline constexpr Meaning kFrames{.unit = "frames"};
inline constexpr Meaning kMinutes{.unit = "minutes", .is_signed = true};
inline constexpr Meaning kSeconds{.unit = "s"};
inline constexpr Meaning kMilliseconds{.unit = "ms"};
inline constexpr Meaning kPilotPN{.unit = "chips", .scale = 64, .summary = "PN offset, 64 chips"};
inline constexpr Meaning kMinusHalfDb{.unit = "dB", .scale = -0.5, .summary = "-0.5 dB"};
inline constexpr Meaning kQuarterDb{.unit = "dB", .scale = 0.25, .summary = "0.25 dB"};
inline constexpr Meaning kSignedQuarterDb{
    .unit = "dB", .scale = 0.25, .is_signed = true, .summary = "0.25 dB, two's complement"};
inline constexpr Meaning kSignedHalfDb{
    .unit = "dB", .scale = 0.5, .is_signed = true, .summary = "0.5 dB, two's complement"};
inline constexpr Meaning kSignedHalfDbm{
    .unit = "dBm", .scale = 0.5, .is_signed = true, .summary = "0.5 dBm, two's complement"};

inline constexpr Code kDRCLengths[] = {{0, "1 slot"}, {1, "2 slots"}, {2, "4 slots"}, {3, "8 slots"}};
inline constexpr Meaning kDRCLength{.codes = kDRCLengths, .summary = "1, 2, 4 or 8 slots"};
inline constexpr Code kRABLengths[] = {{0, "8 slots"}, {1, "16 slots"}, {2, "32 slots"}, {3, "64 slots"}};
inline constexpr Meaning kRABLength{.codes = kRABLengths, .summary = "8, 16, 32 or 64 slots"};
inline constexpr Code kRAChannelGains[] = {{0, "-6 dB"}, {1, "-9 dB"}, {2, "-12 dB"}, {3, "-15 dB"}};
inline constexpr Meaning kRAChannelGain{.codes = kRAChannelGains, .summary = "-6, -9, -12 or -15 dB"};

inline constexpr Code kSearchWindowSizes[] = {
    {0, "4 chips"},    {1, "6 chips"},    {2, "8 chips"},    {3, "10 chips"},  {4, "14 chips"},   {5, "20 chips"},
    {6, "28 chips"},   {7, "40 chips"},   {8, "60 chips"},   {9, "80 chips"},  {10, "100 chips"}, {11, "130 chips"},
    {12, "160 chips"}, {13, "226 chips"}, {14, "320 chips"}, {15, "452 chips"}};
inline constexpr Meaning kSearchWindowSize{.codes = kSearchWindowSizes, .summary = "PN chips, by table"};
inline constexpr Code kSearchWindowOffsets[] = {{0, "none"},         {1, "+half a window"}, {2, "+1 window"},
                                                {3, "+1.5 windows"}, {4, "-half a window"}, {5, "-1 window"},
                                                {6, "-1.5 windows"}};
inline constexpr Meaning kSearchWindowOffset{.codes = kSearchWindowOffsets, .summary = "windows, by table"};

}  // namespace vorlan
