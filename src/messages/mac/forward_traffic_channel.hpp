// Forward Traffic Channel MAC Protocol messages (C.S0024-A 10.6): what the access terminal says of its fixed mode.
#pragma once

#include "codec/meanings.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

namespace forward_traffic_channel {
/// Rates that a data rate control value asks for; 13 and 14 are the enhanced protocol's.
inline constexpr Code kDRCValues[] = {
    {0, "null rate"},
    {1, "38.4 kbit/s, 16 slots"},
    {2, "76.8 kbit/s, 8 slots"},
    {3, "153.6 kbit/s, 4 slots"},
    {4, "307.2 kbit/s, 2 slots"},
    {5, "307.2 kbit/s, 4 slots"},
    {6, "614.4 kbit/s, 1 slot"},
    {7, "614.4 kbit/s, 2 slots"},
    {8, "921.6 kbit/s, 2 slots"},
    {9, "1228.8 kbit/s, 1 slot"},
    {10, "1228.8 kbit/s, 2 slots"},
    {11, "1843.2 kbit/s, 1 slot"},
    {12, "2457.6 kbit/s, 1 slot"},
    {13, "1536 kbit/s, 2 slots"},
    {14, "3072 kbit/s, 1 slot"},
};
inline constexpr Meaning kDRCValue{.codes = kDRCValues, .summary = "rate and slots, by table"};
}  // namespace forward_traffic_channel

// Two spellings of one text, each with a blank behind it; scripts compare them.
inline constexpr FieldSpec kFixedModeEnableFields[] = {
    {.name = "PRstr_TCAMessageSequence",
     .bits = 8,
     .not_set = "FixedModeEnable message Object Set To Nothing. Please set PRobj_MessageObject property first. ",
     .summary = "MessageSequence of the last TrafficChannelAssignment."},
    {.name = "PRstr_DRCCover", .bits = 3, .summary = "DRC cover of the sector that is to send."},
    {.name = "PRstr_DRCValue",
     .bits = 4,
     .meaning = &forward_traffic_channel::kDRCValue,
     .summary = "Rate at which the sector is to send."},
    {.name = "PRstr_EndTime", .bits = 16, .meaning = &kSlots, .summary = "Low bits of the system time at the end."},
    {.name = "PRstr_Reserved", .bits = 1, .summary = "Zero."},
};
inline constexpr MessageSpec kFixedModeEnable{
    .name = "SB_Mac_MsgFixedModeEnable",
    .summary = "The access terminal asks for one sector and rate until a time.",
    .clause = "10.6.6.2",
    .protocol = Protocol::ForwardTrafficChannelMac,
    .direction = Direction::Parsed,
    .id_value = 0x00,
    .has_id_value = true,
    .fields = kFixedModeEnableFields,
    .not_set = "FixedModeEnable message object set to nothing. Please set PRobj_MessageObject property first. ",
    .id_not_set = "FixedModeEnable message Object Set To Nothing. Please set PRobj_MessageObject property first. ",
    .id_source = "SB_Mac_MsgFixedModeEnable.PRstr_MessageId",
};
using SB_Mac_MsgFixedModeEnable = MessageOf<kFixedModeEnable>;

inline constexpr MessageSpec kFixedModeXoff{
    .name = "SB_Mac_MsgFixedModeXoff",
    .summary = "The access terminal ends its fixed mode.",
    .clause = "10.6.6.2",
    .protocol = Protocol::ForwardTrafficChannelMac,
    .direction = Direction::Parsed,
    .id_value = 0x01,
    .has_id_value = true,
    .not_set = "FixedModeXoff message object set to nothing. Please set PRobj_MessageObject property first.",
    .id_source = "SB_Mac_MsgFixedModeXoff.PRstr_MessageId",
};
using SB_Mac_MsgFixedModeXoff = MessageOf<kFixedModeXoff>;

}  // namespace vorlan
