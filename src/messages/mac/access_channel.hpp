// Access Channel MAC Protocol messages (C.S0024-A 10.4 and, for the enhanced protocol, 10.5).
#pragma once

#include "codec/meanings.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

inline constexpr MessageSpec kAcAck{
    .name = "SB_Mac_MsgAcAck",
    .summary = "The access network has received an access probe.",
    .clause = "10.4.6.2",
    .protocol = Protocol::AccessChannelMac,
    .id = "00000000",
    .not_initialized = "Class not initialized. Please call <Initialize> of AcAck message first.",
};
using SB_Mac_MsgAcAck = MessageOf<kAcAck>;

namespace access_channel {
/// 5 bits, two's complement: the amount is rounded before its sign is taken in.
std::string probe_initial_adjust(Configuration& configuration);
/// "2^(-6/4)", or "0" for all ones.
std::string persistence_text(std::string_view bits);

inline constexpr Meaning kMinusDb{.unit = "dB", .scale = -1, .summary = "-1 dB"};
inline constexpr Meaning kSignedDb{.unit = "dB", .is_signed = true, .summary = "1 dB, two's complement"};
inline constexpr Meaning kHalfDb{.unit = "dB", .scale = 0.5, .summary = "0.5 dB"};
inline constexpr Meaning kPersistence{.text = persistence_text, .summary = "probability 2^(-n/4)"};
inline constexpr Code kPreambleLengths[] = {{0, "4 slots"}, {1, "16 slots"}};
inline constexpr Meaning kPreambleLengthSlots{.codes = kPreambleLengths, .summary = "4 or 16 slots"};
inline constexpr Meaning kFourSlots{.unit = "slots", .scale = 4, .summary = "4 slots"};
inline constexpr Meaning kSixteenSlots{.unit = "slots", .scale = 16, .summary = "16 slots"};
inline constexpr Code kMaxRates[] = {{0, "9.6 kbit/s"}, {1, "19.2 kbit/s"}, {2, "38.4 kbit/s"}};
inline constexpr Meaning kMaxRate{.codes = kMaxRates, .summary = "9.6, 19.2 or 38.4 kbit/s"};
inline constexpr Code kNominalStrengths[] = {{0, "0 dB"},  {1, "-1 dB"}, {2, "-2 dB"}, {3, "-3 dB"},
                                             {4, "-4 dB"}, {5, "+1 dB"}, {6, "+2 dB"}, {7, "+3 dB"}};
inline constexpr Meaning kNominalStrength{.codes = kNominalStrengths, .summary = "-4 to +3 dB, by table"};
inline constexpr Meaning kPlusDb{.unit = "dB"};
}  // namespace access_channel

// All but the persistence vector comes from the configuration. The rows behind it are the enhanced protocol's; they are
// never sent, but taken apart in a message that carries them.
inline constexpr FieldSpec kAccessParametersFields[] = {
    {.name = "AccessCycleDuration", .bits = 8, .from = configured("PRint_AccessCycleDuration", 8), .meaning = &kSlots},
    {.name = "AccessSignature", .bits = 16, .from = configured("PRstr_AccessSignature")},
    {.name = "OpenLoopAdjust",
     .bits = 8,
     .from = configured("PRsin_OpenLoopAdjust", 8),
     .meaning = &access_channel::kMinusDb},
    {.name = "ProbeInitialAdjust",
     .bits = 5,
     .from = {.property = "PRsin_ProbeInitialAdjust", .read = access_channel::probe_initial_adjust, .at_create = true},
     .meaning = &access_channel::kSignedDb},
    {.name = "ProbeNumStep", .bits = 4, .from = configured("PRint_ProbeNumStep", 4)},
    {.name = "PowerStep", .bits = 4, .from = configured("PRint_PowerStep", 4), .meaning = &access_channel::kHalfDb},
    {.name = "PreambleLength", .bits = 3, .from = configured("PRint_PreambleLength", 3), .meaning = &kFrames},
    {.name = "CapsuleLengthMax", .bits = 4, .from = configured("PRint_CapsuleLengthMax", 4), .meaning = &kFrames},
    // Three spellings of class and field in texts and sources; scripts compare them.
    {.name = "PRstr_APersistence",
     .bits = 6,
     .repeat = times(4),
     .exposure = Exposure::LetOnly,
     .wrong_length = "Length of <Apersistence> field should be 6 bits.",
     .beyond_count = "Index is out of bounds",
     .too_few = "The APersistance Vector array should contain N_ACMPAPERSIST number of 6-bit elements",
     .source = "SB_Mac_MsgAccessparameters.PRstr_APersistence",
     .meaning = &access_channel::kPersistence,
     .summary = "Persistence of the access terminal classes 0 to 3."},
    {.name = "EnhancedAccessParametersIncluded", .bits = 1, .constant = true, .present = in_chain()},
    {.name = "PreambleLengthSlots",
     .bits = 1,
     .constant = true,
     .present = is_one("EnhancedAccessParametersIncluded"),
     .meaning = &access_channel::kPreambleLengthSlots},
    {.name = "AccessOffset",
     .bits = 2,
     .constant = true,
     .present = is_one("EnhancedAccessParametersIncluded"),
     .meaning = &access_channel::kFourSlots},
    {.name = "SectorAccessMaxRate",
     .bits = 2,
     .constant = true,
     .present = is_one("EnhancedAccessParametersIncluded"),
     .meaning = &access_channel::kMaxRate},
    {.name = "ProbeTimeOutAdjust",
     .bits = 3,
     .constant = true,
     .present = is_one("EnhancedAccessParametersIncluded"),
     .meaning = &access_channel::kSixteenSlots},
    {.name = "PilotStrengthNominal",
     .bits = 3,
     .constant = true,
     .present = is_one("EnhancedAccessParametersIncluded"),
     .meaning = &access_channel::kNominalStrength},
    {.name = "PilotStrengthCorrectionMin",
     .bits = 3,
     .constant = true,
     .present = is_one("EnhancedAccessParametersIncluded"),
     .meaning = &access_channel::kMinusDb},
    {.name = "PilotStrengthCorrectionMax",
     .bits = 3,
     .constant = true,
     .present = is_one("EnhancedAccessParametersIncluded"),
     .meaning = &access_channel::kPlusDb},
};
inline constexpr MessageSpec kAccessParameters{
    .name = "SB_MAC_MsgAccessParameters",
    .summary = "How access terminals may use the access channel.",
    .clause = "10.5.6.2.6",
    .protocol = Protocol::AccessChannelMac,
    .id = "00000001",
    .fields = kAccessParametersFields,
    .takes_sector = true,
    .padded = true,
    .not_initialized = "Class not initialized. Please call <Initialize> of AccessParameters Message first.",
    .in_encoder_mode = "Encoder and this property cannot be used simultaneously",
    .create_source = "SB_Mac_MsgAccessParameters.CreateMessage",
    .check_source = "SB_Mac_MsgAccessParameters.CreateMessage()",
};
using SB_MAC_MsgAccessParameters = MessageOf<kAccessParameters>;

}  // namespace vorlan
