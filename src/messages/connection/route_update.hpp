// RouteUpdate of the Route Update Protocol (C.S0024-A 8.7.6.2.1).
#pragma once

#include "codec/meanings.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

inline constexpr FieldSpec kRouteUpdateFields[] = {
    {.name = "PRstr_MessageSequence", .bits = 8, .summary = "One more than that of the last RouteUpdate, modulo 256."},
    {.name = "PRstr_ReferencePilotPN", .bits = 9, .meaning = &kPilotPN, .summary = "PN offset of the reference pilot."},
    {.name = "PRstr_ReferencePilotStrength",
     .bits = 6,
     .meaning = &kMinusHalfDb,
     .summary = "Strength of the reference pilot."},
    {.name = "PRstr_ReferenceKeep",
     .bits = 1,
     .summary = "\"0\" if the drop timer of the reference pilot has expired."},
    {.name = "PRstr_NumPilots", .bits = 4, .summary = "Number of pilots reported besides the reference pilot."},
    {.name = "PRstr_PilotPNPhase",
     .bits = 15,
     .repeat = in_record(1, "PRstr_NumPilots"),
     .meaning = &kPilotPhase,
     .summary = "PN offset and phase of the pilot."},
    {.name = "PRstr_ChannelIncluded",
     .bits = 1,
     .repeat = in_record(1, "PRstr_NumPilots"),
     .summary = "\"1\" if the pilot is on another channel, which follows."},
    // Two blanks, and a quotation mark behind the full stop: scripts compare it.
    {.name = "PRstr_Channel",
     .bits = 24,
     .present = is_one("PRstr_ChannelIncluded"),
     .repeat = in_record(1, "PRstr_NumPilots"),
     .absent = "ChannelNumber Not included For this  index.\"",
     .meaning = &kChannelRecord,
     .summary = "Channel of the pilot."},
    {.name = "PRstr_PilotStrength",
     .bits = 6,
     .repeat = in_record(1, "PRstr_NumPilots"),
     .meaning = &kMinusHalfDb,
     .summary = "Strength of the pilot."},
    {.name = "PRstr_Keep",
     .bits = 1,
     .repeat = in_record(1, "PRstr_NumPilots"),
     .summary = "\"0\" if the drop timer of the pilot has expired."},
    // Rev A terminals go on with these; a Rel 0 terminal's message ends before them.
    {.name = "ATTotalPilotTransmissionIncluded", .bits = 1, .present = in_chain()},
    {.name = "ATTotalPilotTransmission",
     .bits = 8,
     .present = is_one("ATTotalPilotTransmissionIncluded"),
     .meaning = &kSignedHalfDbm},
    {.name = "ReferencePilotChannelIncluded", .bits = 1, .present = in_chain()},
    {.name = "ReferencePilotChannel",
     .bits = 24,
     .present = is_one("ReferencePilotChannelIncluded"),
     .meaning = &kChannelRecord},
};
inline constexpr MessageSpec kRouteUpdate{
    .name = "SB_Con_MsgRouteUpdate",
    .summary = "The access terminal reports the pilots that it receives.",
    .clause = "8.7.6.2.1",
    .protocol = Protocol::RouteUpdate,
    .direction = Direction::Parsed,
    .id_value = 0x00,
    .has_id_value = true,
    .fields = kRouteUpdateFields,
    .received_flag = "PRbln_MessageReceived",
    .not_set = "RouteUpdate Message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_Con_MsgRouteUpdate = MessageOf<kRouteUpdate>;

}  // namespace vorlan
