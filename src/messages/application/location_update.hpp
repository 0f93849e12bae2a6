// Location Update Protocol messages (C.S0024-A 3.5) of the default packet application.
#pragma once

#include "codec/meanings.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

namespace location_update {
inline constexpr Code kLocationTypes[] = {{0, "none"}, {1, "SID, NID and PACKET_ZONE_ID"}};
inline constexpr Meaning kLocationType{.codes = kLocationTypes, .summary = "kind of location"};
/// "SID 12, NID 3, PACKET_ZONE_ID 4" of a value of 40 bits.
std::string location_text(std::string_view bits);
inline constexpr Meaning kLocation{.text = location_text, .summary = "SID 15, reserved 1, NID 16, PACKET_ZONE_ID 8"};

/// SID, a zero, NID of the configuration and the PACKET_ZONE_ID property: 40 bits if all are as wide as they should be.
std::string location_value(const Message& message, std::size_t index);
/// Type, length and value at once, since the last two follow from the one read of the first.
void join_location(const BuildContext& context, BitBuffer& bits);
void already_joined(const BuildContext& context, BitBuffer& bits);
void check_packet_zone_id(const Message& message, std::size_t index, std::string_view value);
inline constexpr ErrorRow kWrongLocationValue{
    "SB_App_MsgLocationAssignment.CreateMessage", "The <LocationValue> field should be 40 bits long.",
    "CreateMessage where SID, NID and PACKET_ZONE_ID are not as wide as that"};
inline constexpr ErrorRow kNoPacketZone{"SB_App_MsgLocationAssignment.PRstr_PACKET_ZONE_ID",
                                        "This property cannot be set when <LocationType> is not 0x01",
                                        "let with another LocationType in the configuration"};
inline constexpr ErrorRow kErrors[] = {kNoPacketZone, kWrongLocationValue};
}  // namespace location_update

inline constexpr MessageSpec kLocationRequest{
    .name = "SB_App_MsgLocationRequest",
    .summary = "The access network asks for the location that the access terminal holds.",
    .clause = "3.5",
    .protocol = Protocol::DefaultPacket,
    .id = "00000011",
    .not_initialized = "Class not initialized. Please call <Initialize> of LocationRequest Message first.",
};
using SB_App_MsgLocationRequest = MessageOf<kLocationRequest>;

// The text names another message; scripts compare it.
inline constexpr FieldSpec kLocationNotificationFields[] = {
    {.name = "PRstr_LocationType",
     .bits = 8,
     .meaning = &location_update::kLocationType,
     .summary = "Kind of location; nothing follows type 0."},
    {.name = "PRstr_LocationLength",
     .bits = 8,
     .present = is_above_zero("PRstr_LocationType"),
     .absent = "Location Length not included in the message string",
     .meaning = &kOctets,
     .summary = "Octets of LocationValue."},
    {.name = "PRstr_LocationValue",
     .width = octets_counted_by("PRstr_LocationLength"),
     .present = is_above_zero("PRstr_LocationType"),
     .absent = "Location Value not included in the message string",
     .meaning = &location_update::kLocation,
     .summary = "The location."},
};
inline constexpr MessageSpec kLocationNotification{
    .name = "SB_App_MsgLocationNotification",
    .summary = "The access terminal tells the location that it holds.",
    .clause = "3.5",
    .protocol = Protocol::DefaultPacket,
    .direction = Direction::Parsed,
    .id_value = 0x04,
    .has_id_value = true,
    .fields = kLocationNotificationFields,
    .not_set = "LocationComplete message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_App_MsgLocationNotification = MessageOf<kLocationNotification>;

inline constexpr FieldSpec kLocationAssignmentFields[] = {
    {.name = "PRstr_TransactionID",
     .bits = 8,
     .wrong_length = "Length of <TransactionID> field should be 8 bits.",
     .summary = "TransactionID."},
    {.name = "PRstr_PACKET_ZONE_ID",
     .bits = 8,
     .sent = false,
     .check = location_update::check_packet_zone_id,
     .wrong_length = "Length of <PACKET_ZONE_ID> field should be 8 bits.",
     .summary = "Part of LocationValue; only where the configuration's LocationType is 1."},
    {.name = "LocationType",
     .bits = 8,
     .from = {.property = "PRstr_LocationType"},
     .build = location_update::join_location,
     .meaning = &location_update::kLocationType},
    {.name = "LocationLength", .bits = 8, .build = location_update::already_joined, .meaning = &kOctets},
    {.name = "LocationValue",
     .width = octets_counted_by("LocationLength"),
     .build = location_update::already_joined,
     .meaning = &location_update::kLocation},
    {.name = "PRstr_LocationValue",
     .view = location_update::location_value,
     .sent = false,
     .exposure = Exposure::GetOnly,
     .summary = "SID and NID of the configuration with the PACKET_ZONE_ID, unchecked; what LocationType 1 sends."},
};
inline constexpr MessageSpec kLocationAssignment{
    .name = "SB_App_MsgLocationAssignment",
    .summary = "The access network gives the access terminal a location.",
    .clause = "3.5",
    .protocol = Protocol::DefaultPacket,
    .id = "00000101",
    .fields = kLocationAssignmentFields,
    .takes_sector = true,
    .not_initialized = "Class not initialized. Please Call <Initialize> of LocationAssignment Message first.",
    .further_errors = location_update::kErrors,
};
using SB_App_MsgLocationAssignment = MessageOf<kLocationAssignment>;

inline constexpr FieldSpec kLocationCompleteFields[] = {
    {.name = "PRstr_TransactionId", .bits = 8, .summary = "That of the LocationAssignment."},
};
inline constexpr MessageSpec kLocationComplete{
    .name = "SB_App_MsgLocationComplete",
    .summary = "The access terminal has taken the location.",
    .clause = "3.5",
    .protocol = Protocol::DefaultPacket,
    .direction = Direction::Parsed,
    .id_value = 0x06,
    .has_id_value = true,
    .fields = kLocationCompleteFields,
    .not_set = "LocationComplete message object set to nothing. Please set PRobj_MessageObject property first.",
};
using SB_App_MsgLocationComplete = MessageOf<kLocationComplete>;

}  // namespace vorlan
