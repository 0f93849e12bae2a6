// Address Management Protocol messages (C.S0024-A 7.3) of the session layer.
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

namespace address_management {
/// The upper 104 of the 128 bits of the sector's identifier.
void upper_sector_id(const BuildContext& context, BitBuffer& bits);
/// CreateMessage's colour-code argument, else the colour code of the sector's base station.
void colour_code(const BuildContext& context, BitBuffer& bits);
/// The low 24 bits of the sector's UATI.
void low_uati(const BuildContext& context, BitBuffer& bits);
}  // namespace address_management

inline constexpr FieldSpec kUATIRequestFields[] = {
    {.name = "PRstr_TransactionId", .bits = 8, .summary = "TransactionID."},
};
inline constexpr MessageSpec kUATIRequest{
    .name = "SB_Ses_MsgUATIRequest",
    .summary = "The access terminal asks for a UATI.",
    .clause = "7.3.7.2.1",
    .protocol = Protocol::AddressManagement,
    .direction = Direction::Parsed,
    .id_value = 0x00,
    .has_id_value = true,
    .fields = kUATIRequestFields,
    .not_set = "UATIRequest Message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_Ses_MsgUATIRequest = MessageOf<kUATIRequest>;

inline constexpr FieldSpec kUATIAssignmentFields[] = {
    {.name = "PRstr_MessageSequence",
     .bits = 8,
     .initial = "00000000",
     .wrong_length = "Length of MessageSequence string should be 8 bits.",
     .summary = "One more than that of the last UATIAssignment, modulo 256."},
    {.name = "PRstr_Reserved1", .bits = 7, .initial = "0000000", .constant = true, .summary = "Always zero."},
    {.name = "PRstr_SubnetIncluded",
     .bits = 1,
     .initial = "1",
     .wrong_length = "Length of SubnetIncluded string should be 1 bits.",
     .summary = "\"1\" if UATISubnetMask and UATI104 are sent."},
    {.name = "UATISubnetMask",
     .bits = 8,
     .present = is_one("PRstr_SubnetIncluded"),
     .from = configured("PRstr_SubnetMask")},
    {.name = "UATI104",
     .bits = 104,
     .present = is_one("PRstr_SubnetIncluded"),
     .from = {.property = "PRstr_SectorID"},
     .build = address_management::upper_sector_id},
    {.name = "UATIColorCode",
     .bits = 8,
     .from = {.property = "PRstr_ColorCode"},
     .build = address_management::colour_code},
    {.name = "UATI024", .bits = 24, .from = {.property = "PRstr_UATI"}, .build = address_management::low_uati},
    {.name = "PRstr_UpperOldUATILength",
     .bits = 4,
     .initial = "0010",
     .wrong_length = "Length of UpperOldUATILength string should be 4 bits.",
     .summary = "Octets of the old UATI that UATIComplete is to carry."},
};
inline constexpr std::string_view kUATIAssignmentArguments[] = {"UATIColorCode"};
inline constexpr MessageSpec kUATIAssignment{
    .name = "SB_Ses_MsgUATIAssignment",
    .summary = "The access network assigns a UATI.",
    .clause = "7.3.7.2.2",
    .protocol = Protocol::AddressManagement,
    .id = "00000001",
    .fields = kUATIAssignmentFields,
    .takes_sector = true,
    .padded = true,
    .arguments = kUATIAssignmentArguments,
    .not_initialized = "Class not initialized. Please call <Initialize> of UATIAssignment Message first.",
};
using SB_Ses_MsgUATIAssignment = MessageOf<kUATIAssignment>;

inline constexpr FieldSpec kUATICompleteFields[] = {
    {.name = "PRstr_MessageSequence", .bits = 8, .summary = "That of the UATIAssignment."},
    {.name = "PRstr_Reserved", .bits = 4, .summary = "Zero."},
    {.name = "PRstr_UpperOldUATILength", .bits = 4, .summary = "Octets of UpperOldUATI."},
    {.name = "PRstr_UpperOldUATI",
     .width = octets_counted_by("PRstr_UpperOldUATILength"),
     .summary = "The upper octets of the UATI before."},
};
inline constexpr MessageSpec kUATIComplete{
    .name = "SB_Ses_MsgUATIComplete",
    .summary = "The access terminal has taken the UATI.",
    .clause = "7.3.7.2.3",
    .protocol = Protocol::AddressManagement,
    .direction = Direction::Parsed,
    .id_value = 0x02,
    .has_id_value = true,
    .fields = kUATICompleteFields,
    .not_set = "UATI Complete Message Object Set To Nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_Ses_MsgUATIComplete = MessageOf<kUATIComplete>;

inline constexpr FieldSpec kHardwareIDRequestFields[] = {
    {.name = "PRstr_TransactionId",
     .bits = 8,
     .initial = "00000000",
     .wrong_length = "Length of <TransactionId> field should be 8 bits.",
     .summary = "TransactionID."},
};
inline constexpr MessageSpec kHardwareIDRequest{
    .name = "SB_Ses_MsgHardwareIDRequest",
    .summary = "The access network asks for the access terminal's hardware identifier.",
    .clause = "7.3.7.2.4",
    .protocol = Protocol::AddressManagement,
    .id = "00000011",
    .fields = kHardwareIDRequestFields,
    .not_initialized = "Class not initialized. Please call <Initialize> of HardwareIDRequest Message first.",
};
using SB_Ses_MsgHardwareIDRequest = MessageOf<kHardwareIDRequest>;

namespace address_management {
inline constexpr Code kHardwareIdTypes[] = {{0x010000, "ESN"}, {0x00FFFF, "MEID"}, {0xFFFFFF, "null"}};
inline constexpr Meaning kHardwareIdType{.codes = kHardwareIdTypes, .summary = "ESN, MEID or null"};
/// The value must end with the message: padding behind it is refused.
void check_hardware_id_value(const Message& message, std::string_view value);
inline constexpr ErrorRow kWrongHardwareIdValue{
    "SB_Ses_HardwareIDResponse.PRstr_HardwareIdValue",
    "PRobj_MessageObject not set properly Length of <HardwareIdValue> field is not 8 * HardwareIdLength ",
    "get of more or less than the received HardwareIdLength says"};
}  // namespace address_management

// The four not-set texts of this message are all different, and its sources lack "Msg".
inline constexpr FieldSpec kHardwareIDResponseFields[] = {
    {.name = "PRstr_TransactionId",
     .bits = 8,
     .not_set = "HardwareIDResponse message Object set To Nothing. Please set <PRobj_MessageObject> property first",
     .summary = "That of the HardwareIDRequest."},
    {.name = "PRstr_HardwareIdType",
     .bits = 24,
     .not_set = "HardwareIDResponse message Object Set To Nothing. Please set <PRobj_MessageObject> property first",
     .meaning = &address_management::kHardwareIdType,
     .summary = "Kind of hardware identifier."},
    {.name = "PRstr_HardwareIdLength",
     .bits = 8,
     .not_set = "HardwareIDResponse message object set to nothing. Please set <PRobj_MessageObject> property first",
     .summary = "Octets of the identifier."},
    {.name = "PRstr_HardwareIdValue",
     .width = octets_counted_by("PRstr_HardwareIdLength"),
     .get_to_end = true,
     .check_received = address_management::check_hardware_id_value,
     .not_set = "HardwareIDResponse message object set to nothing. Please set <PRobj_MessageObject> property first",
     .summary = "The identifier: everything behind its length, which must be as long as that says."},
};
inline constexpr MessageSpec kHardwareIDResponse{
    .name = "SB_Ses_MsgHardwareIDResponse",
    .summary = "The access terminal's hardware identifier.",
    .clause = "7.3.7.2.5",
    .protocol = Protocol::AddressManagement,
    .direction = Direction::Parsed,
    .id_value = 0x04,
    .has_id_value = true,
    .fields = kHardwareIDResponseFields,
    .id_not_set = "HardwareIDResponse message Object Set To Nothing.Please set <PRobj_MessageObject> property first",
    .string_unchecked = true,
    .source = "SB_Ses_HardwareIDResponse",
    .id_source = "SB_Ses_HardwareIDResponse.PRstr_MessageId",
    .further_errors = {&address_management::kWrongHardwareIdValue, 1},
};
using SB_Ses_MsgHardwareIDResponse = MessageOf<kHardwareIDResponse>;

}  // namespace vorlan
