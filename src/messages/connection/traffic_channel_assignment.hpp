// TrafficChannelAssignment of the Route Update Protocol (C.S0024-A 8.7.6.2.2).
#pragma once

#include "codec/meanings.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

namespace traffic_channel_assignment {
/// The channel record of the configuration, its numbers read before its SystemType.
std::string channel(Configuration& configuration);
/// The MACIndex of the configuration: that of subtype 2, in 7 bits, exactly when the physical layer subtype is 2, for
/// only then can it exceed 63; otherwise 6 bits.
std::string mac_index(Configuration& configuration);
/// The 6 low bits of a pilot's MACIndex, and its most significant bit: what Rev A sends in its place.
std::string mac_index_lsbs(const Message& message, std::size_t pilot);
std::string mac_index_msb(const Message& message, std::size_t pilot);
void check_mac_index_lsbs(const Message& message, std::size_t pilot, std::string_view value);
void check_mac_index_msb(const Message& message, std::size_t pilot, std::string_view value);
inline constexpr ErrorRow kWrongLSBs{
    "SB_Con_MsgTrafficChannelAssigment.PRstr_MACIndexLSBs",
    "Incorrect value supplied.Please make sure that any occurence of MACIndexLSBs "
    "is equal to the 6 least significant bits of the corresponding occurence of MACIndex",
    "let of others"};
inline constexpr ErrorRow kWrongMSB{"SB_Con_MsgTrafficChannelAssigment.PRstr_MACIndexMSB",
                                    "Incorrect value supplied.Please make sure that any occurence of MACIndexMSB "
                                    "is equal to the most significant bit of the corresponding occurence of MACIndex",
                                    "let of another"};
inline constexpr ErrorRow kErrors[] = {kWrongLSBs, kWrongMSB};
}  // namespace traffic_channel_assignment

// The Rev A tail is sent only when a script asks for it: some terminals fall silent on receiving it.
inline constexpr FieldSpec kTrafficChannelAssignmentFields[] = {
    {.name = "PRstr_MessageSequence",
     .bits = 8,
     .wrong_length = "Length of <MessageSequence> field should be 8 bits.",
     .summary = "One more than that of the last TrafficChannelAssignment, modulo 256."},
    {.name = "PRstr_ChannelIncluded",
     .bits = 1,
     .wrong_length = "Length of <ChannelIncluded> field should be 1 bit.",
     .summary = "\"1\" if Channel is sent."},
    {.name = "PRstr_Channel",
     .bits = 24,
     .present = is_one("PRstr_ChannelIncluded"),
     .from = {.property = "PRint_ChannelNumber", .read = traffic_channel_assignment::channel, .at_initialize = true},
     .wrong_length = "Length of <Channel> field should be 24 bits.",
     .meaning = &kChannelRecord,
     .summary = "SystemType 8, BandClass 5, ChannelNumber 11."},
    {.name = "FrameOffset", .bits = 4, .from = configured("PRint_FrameOffset", 4), .meaning = &kSlots},
    {.name = "DRCLength", .bits = 2, .from = configured("PRint_DRCLength", 2), .meaning = &kDRCLength},
    {.name = "PRstr_DRCChannelGain",
     .bits = 6,
     .wrong_length = "Length of <DRCChannelGain> field should be 6 bits.",
     .meaning = &kSignedHalfDb,
     .summary = "DRC channel gain, -9 to +6 dB."},
    {.name = "PRstr_AckChannelGain",
     .bits = 6,
     .wrong_length = "Length of <AckChannelGain> field should be 6 bits.",
     .meaning = &kSignedHalfDb,
     .summary = "ACK channel gain, -3 to +6 dB."},
    {.name = "PRstr_NumPilots",
     .bits = 4,
     .initial = "0001",
     .wrong_length = "Length of <NumPilots> field should be 4 bits.",
     .summary = "Number of pilots; setting it makes the records of the pilots afresh."},
    {.name = "PRstr_PilotPN",
     .bits = 9,
     .repeat = in_record(1, "PRstr_NumPilots"),
     .from = {.property = "PRstr_PilotPN", .at_initialize = true, .at_count = true},
     .wrong_length = "Length of <PilotPN> field should be 9 bits.",
     .too_few = "PilotPN array should contain ",
     .index_source = "SB_Con_MsgTrafficChannelAssignment.PRstr_PilotPN",
     .meaning = &kPilotPN,
     .summary = "PN offset of the pilot."},
    {.name = "PRstr_SofterHandoff",
     .bits = 1,
     .repeat = in_record(1, "PRstr_NumPilots"),
     .wrong_length = "Length of <SofterHandoff> field should be 1 bit.",
     .too_few = "SofterHandoff array should contain ",
     .summary = "\"1\" if the pilot is of the same cell as the one before it."},
    {.name = "PRstr_MACIndex",
     .bits = 6,
     .repeat = in_record(1, "PRstr_NumPilots"),
     .from = {.property = "PRint_MACIndex",
              .read = traffic_channel_assignment::mac_index,
              .at_initialize = true,
              .at_count = true},
     .sent = false,
     .wrong_length = "Length of <MACIndex> field should be 6 bits.",
     .too_few = "MACIndex array should contain ",
     .summary = "MACIndex of the forward traffic channel; 7 bits when it comes from a subtype 2 configuration."},
    {.name = "PRstr_MACIndexLSBs",
     .bits = 6,
     .repeat = in_record(1, "PRstr_NumPilots"),
     .view = traffic_channel_assignment::mac_index_lsbs,
     .check = traffic_channel_assignment::check_mac_index_lsbs,
     .wrong_length = "Length of <MACIndexLSBs> field should be 6 bits.",
     .summary = "The 6 low bits of MACIndex; setting only checks that."},
    {.name = "PRstr_DRCCover",
     .bits = 3,
     .repeat = in_record(1, "PRstr_NumPilots"),
     .from = {.property = "PRint_DRCCover", .bits = 3, .at_initialize = true, .at_count = true},
     .wrong_length = "Length of <DRCCover> field should be 3 bits.",
     .too_few = "DRCCover array should contain ",
     .summary = "DRC cover of the sector, 1 to 7; 0 is the null cover."},
    {.name = "PRstr_RABLength",
     .bits = 2,
     .repeat = in_record(1, "PRstr_NumPilots"),
     .from = {.property = "PRint_RABLength", .bits = 2, .at_initialize = true, .at_count = true},
     .wrong_length = "Length of <RABLength> field should be 2 bits.",
     .too_few = "RABLength array should contain ",
     .meaning = &kRABLength,
     .summary = "Slots over which the reverse activity bit is sent."},
    {.name = "PRstr_RABOffset",
     .bits = 3,
     .repeat = in_record(1, "PRstr_NumPilots"),
     .from = {.property = "PRint_RABOffset", .bits = 3, .at_initialize = true},
     .wrong_length = "Length of <RABOffset> field should be 3 bits.",
     .too_few = "RABOffset array should contain ",
     .summary = "Start of the reverse activity bit, in RABLength / 8 slots."},
    {.name = "PRstr_RAChannelGainIncluded",
     .bits = 1,
     .present = any_is_one("PRstr_RAChannelGainIncluded", "PRstr_MACIndexMSBsIncluded"),
     .wrong_length = "Length of <RAChannelGainIncluded> field should be 1 bit.",
     .summary = "\"1\" if RAChannelGain is sent; asks for the Rev A tail."},
    {.name = "PRstr_RAChannelGain",
     .bits = 2,
     .present = is_one("PRstr_RAChannelGainIncluded"),
     .repeat = list_of("PRstr_NumPilots"),
     .wrong_length = "Length of <RAChannelGain> field should be 2 bits.",
     .too_few = "RAChannelGain array should contain ",
     .meaning = &kRAChannelGain,
     .summary = "Gain of the reverse activity channel."},
    {.name = "PRstr_MACIndexMSBsIncluded",
     .bits = 1,
     .present = any_is_one("PRstr_RAChannelGainIncluded", "PRstr_MACIndexMSBsIncluded"),
     .wrong_length = "Length of <MACIndexMSBsIncluded> field should be 1 bit.",
     .summary = "\"1\" if MACIndexMSB is sent; asks for the Rev A tail."},
    {.name = "PRstr_MACIndexMSB",
     .bits = 1,
     .present = is_one("PRstr_MACIndexMSBsIncluded"),
     .repeat = list_of("PRstr_NumPilots"),
     .view = traffic_channel_assignment::mac_index_msb,
     .check = traffic_channel_assignment::check_mac_index_msb,
     .wrong_length = "Length of <MACIndexMSB> field should be 1 bit.",
     .summary = "The most significant bit of MACIndex; setting only checks that."},
    {.name = "PRstr_DSCChannelGain",
     .bits = 5,
     .present = any_is_one("PRstr_RAChannelGainIncluded", "PRstr_MACIndexMSBsIncluded"),
     .wrong_length = "Length of <DSCChannelGain> field should be 5 bits.",
     .meaning = &kMinusHalfDb,
     .summary = "DSC channel gain, 0 to -15.5 dB."},
    {.name = "PRstr_DSC",
     .bits = 3,
     .present = in_tail(is_zero("PRstr_SofterHandoff")),
     .repeat = list_of("PRstr_NumPilots"),
     .wrong_length = "Length of <DSC> field should be 3 bits.",
     .too_few = "DSC array should contain ",
     .summary = "Data source control value; sent for the first pilot of each cell."},
};
// Most sources lack the second "n" of Assignment; scripts compare them.
inline constexpr MessageSpec kTrafficChannelAssignment{
    .name = "SB_Con_MsgTrafficChannelAssignment",
    .summary = "The access network assigns a traffic channel, or changes the active set.",
    .clause = "8.7.6.2.2",
    .protocol = Protocol::RouteUpdate,
    .id = "00000001",
    .fields = kTrafficChannelAssignmentFields,
    .takes_sector = true,
    .padded = true,
    .not_initialized = "Class not initialized. Please call <Initialize> of TrafficChannelAssignment Message first.",
    .in_encoder_mode = "Encoder and this property cannot be used simultaneously",
    .beyond_count = "Out of range index. Please add elements with index 0 through ",
    .names_highest_index = true,
    .get_beyond_count = "Trying to access Array Index Value that is out of range.",
    .too_few_end = " elements.",
    .source = "SB_Con_MsgTrafficChannelAssigment",
    .check_source = "Sb_Con_MsgTrafficChannelAssignment.CreateMessage",
    .further_errors = traffic_channel_assignment::kErrors,
};
using SB_Con_MsgTrafficChannelAssignment = MessageOf<kTrafficChannelAssignment>;

}  // namespace vorlan
