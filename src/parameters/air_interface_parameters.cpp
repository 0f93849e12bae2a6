// What the overhead and address messages carry: bit strings of the fields' widths.
#include <array>

#include "common/conversions.hpp"
#include "parameters/parameter_spec.hpp"

namespace vorlan {

namespace {

std::string uati_bits(const Value& value, int bits) { return long_to_bin(value.to_long(), bits); }
std::string sector_id_bits(const Value& value, int bits) { return double_to_bin(value.to_double(), bits); }

constexpr std::string_view kUatiText =
    "The maximum value for UATI that can be handled currently is limited to signed Long precision (2 raised to power "
    "31 - 1).";
constexpr RangeSpec kUatiRange{"2147483647", kUatiText, kUatiText};

// Word for word as scripts know them: misspelt, a blank behind some, the third one naming another part.
constexpr RangeSpec kSectorId31To0{"4294967295", "The value for SectorID should be set between 0 and 4294967295",
                                   "The value for SectorID should be between 1 and 4294967295"};
constexpr RangeSpec kSectorId63To32{"4294967295", "The value for SectorID63_32 should be set bewteen 0 and 4294967295 ",
                                    "The value for SectorID63_32 should be between 0 and 4294967295."};
constexpr RangeSpec kSectorId95To64{"4294967295", "The value for SectorID63_32 should be set between 0 and 4294967295 ",
                                    "The value for SectorID95_64 should be between 0 and 4294967295."};
constexpr RangeSpec kSectorId127To96{"4294967295", "The value for SectorID127_96 should be between 1 and 4294967295.",
                                     "The value for SectorID127_96 should be between 0 and 4294967295."};

constexpr std::array kRows{
    ParameterSpec{.name = "PRstr_SystemType",
                  .bits = 8,
                  .where = Where::BaseStation,
                  .summary = "System type of channel records; 0 = this air interface, 1 = cdma2000 1x"},
    ParameterSpec{.name = "PRstr_MaximumRevision", .bits = 8, .summary = "Highest revision of Sync; 0 to 255"},
    ParameterSpec{.name = "PRstr_MinimumRevision", .bits = 8, .summary = "Lowest revision of Sync; 0 to 255"},
    ParameterSpec{.name = "PRstr_ColorCode", .bits = 8, .summary = "Colour code of the subnet; 0 to 255"},
    ParameterSpec{.name = "PRstr_CountryCode",
                  .bits = 12,
                  .summary = "Mobile country code, a digit in each 4 bits; 784 (0x310) = MCC 310"},
    ParameterSpec{.name = "PRstr_SectorSignature",
                  .read = ReadAs::Long,
                  .bits = 16,
                  .summary = "Signature of SectorParameters; 0 to 65535"},
    ParameterSpec{.name = "PRstr_AccessSignature",
                  .read = ReadAs::Long,
                  .bits = 16,
                  .summary = "Signature of AccessParameters; 0 to 65535"},
    ParameterSpec{.name = "PRstr_PilotPN", .bits = 9, .summary = "Pilot PN offset in units of 64 chips; 0 to 511"},
    ParameterSpec{.name = "PRstr_SID", .bits = 15, .summary = "System identification; 0 to 32767"},
    ParameterSpec{
        .name = "PRstr_NID", .read = ReadAs::Long, .bits = 16, .summary = "Network identification; 0 to 65535"},
    ParameterSpec{.name = "PRstr_SameChnl_PilotAdd",
                  .bits = 6,
                  .summary = "Pilot add threshold, same channel, in -0.5 dB; 0 to 63"},
    ParameterSpec{.name = "PRstr_SameChnl_PilotCompare",
                  .bits = 6,
                  .summary = "Pilot compare threshold, same channel, in 0.5 dB; 0 to 63"},
    ParameterSpec{.name = "PRstr_SameChnl_PilotDrop",
                  .bits = 6,
                  .summary = "Pilot drop threshold, same channel, in -0.5 dB; 0 to 63"},
    ParameterSpec{.name = "PRstr_SameChnl_PilotDropTimer",
                  .bits = 4,
                  .summary = "Pilot drop timer, same channel, an index of the timer table; 0 to 15"},
    ParameterSpec{.name = "PRstr_DiffChnl_PilotAdd",
                  .bits = 6,
                  .summary = "Pilot add threshold, another channel, in -0.5 dB; 0 to 63"},
    ParameterSpec{.name = "PRstr_DiffChnl_PilotCompare",
                  .bits = 6,
                  .summary = "Pilot compare threshold, another channel, in 0.5 dB; 0 to 63"},
    ParameterSpec{.name = "PRstr_DiffChnl_PilotDrop",
                  .bits = 6,
                  .summary = "Pilot drop threshold, another channel, in -0.5 dB; 0 to 63"},
    ParameterSpec{.name = "PRstr_DiffChnl_PilotDropTimer",
                  .bits = 4,
                  .summary = "Pilot drop timer, another channel, an index of the timer table; 0 to 15"},
    ParameterSpec{.name = "PRstr_SoftSlope", .bits = 6, .summary = "Slope of the dynamic thresholds; 0 to 63"},
    ParameterSpec{.name = "PRstr_AddIntercept",
                  .bits = 6,
                  .summary = "Intercept of the dynamic add threshold, two's complement; 0 to 63"},
    ParameterSpec{.name = "PRstr_DropIntercept",
                  .bits = 6,
                  .summary = "Intercept of the dynamic drop threshold, two's complement; 0 to 63"},
    ParameterSpec{.name = "PRstr_NeighborMaxAge", .bits = 4, .summary = "Age at which a neighbour is dropped; 0 to 15"},
    ParameterSpec{.name = "PRstr_SubnetMask", .bits = 8, .summary = "Leading ones of the subnet mask; 0 to 128"},
    ParameterSpec{.name = "PRstr_Longitude",
                  .read = ReadAs::Long,
                  .bits = 23,
                  .summary = "Longitude in 0.25 seconds of arc, east, two's complement; 0 to 8388607"},
    ParameterSpec{.name = "PRstr_Latitude",
                  .read = ReadAs::Long,
                  .bits = 22,
                  .summary = "Latitude in 0.25 seconds of arc, north, two's complement; 0 to 4194303"},
    ParameterSpec{.name = "PRstr_RouteUpdateRadius",
                  .bits = 11,
                  .summary = "Distance that triggers a route update; 0 (never) to 2047"},
    ParameterSpec{
        .name = "PRstr_RevLinkSilenceDuration", .bits = 2, .summary = "Reverse link silence in frames; 0 to 3"},
    ParameterSpec{
        .name = "PRstr_RevLinkSilencePeriod", .bits = 2, .summary = "Code of the reverse link silence period; 0 to 3"},
    ParameterSpec{.name = "PRstr_LocationType",
                  .bits = 8,
                  .summary = "Location that is assigned; 0 = none, 1 = SID, NID and packet zone"},
    ParameterSpec{.name = "PRstr_UATI",
                  .read = ReadAs::String,
                  .bits = 128,
                  .to_bits = uati_bits,
                  .range = &kUatiRange,
                  .where = Where::BaseStation,
                  .summary = "Unicast access terminal identifier, decimal; 0 to 2147483647"},
    ParameterSpec{.name = "PRstr_SectorID",
                  .read = ReadAs::String,
                  .bits = 32,
                  .to_bits = sector_id_bits,
                  .range = &kSectorId31To0,
                  .summary = "Bits 31 to 0 of the sector identifier, decimal; 0 to 4294967295"},
    ParameterSpec{.name = "PRstr_SectorID63_32",
                  .read = ReadAs::String,
                  .bits = 32,
                  .to_bits = sector_id_bits,
                  .range = &kSectorId63To32,
                  .summary = "Bits 63 to 32 of the sector identifier, decimal; 0 to 4294967295"},
    ParameterSpec{.name = "PRstr_SectorID95_64",
                  .read = ReadAs::String,
                  .bits = 32,
                  .to_bits = sector_id_bits,
                  .range = &kSectorId95To64,
                  .summary = "Bits 95 to 64 of the sector identifier, decimal; 0 to 4294967295"},
    ParameterSpec{.name = "PRstr_SectorID127_96",
                  .read = ReadAs::String,
                  .bits = 32,
                  .to_bits = sector_id_bits,
                  .range = &kSectorId127To96,
                  .summary = "Bits 127 to 96 of the sector identifier, decimal; 0 to 4294967295"},
};

}  // namespace

std::span<const ParameterSpec> air_interface_parameters() noexcept { return kRows; }

}  // namespace vorlan
