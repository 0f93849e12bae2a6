// Reverse Test Application Protocol messages (C.S0029).
#pragma once

#include "messages/testapp/attribute_records.hpp"

namespace vorlan {

inline constexpr FieldSpec kRTAPParameterAssignmentFields[] = {
    {.name = "PRstr_TransactionID",
     .bits = 8,
     .wrong_length = "Length of <TransactionID> Field should be 8 bits.",
     .summary = "TransactionID."},
    {.name = "AttributeRecords",
     .width = rest_of_message(),
     .build = testapp::join_records,
     .meaning = &testapp::kRtapRecords},
};
inline constexpr MessageSpec kRTAPParameterAssignment{
    .name = "SB_TAS_MsgRTAPParameterAssignment",
    .summary = "The access network configures the reverse test application.",
    .clause = "C.S0029",
    .protocol = Protocol::TestApplication,
    .id = "10000000",
    .fields = kRTAPParameterAssignmentFields,
    .arguments = testapp::kArguments,
    .not_initialized =
        "Class not initialized. Please Call <Initialize> of SB_TAS_MsgRTAPParameterAssignment Message first.",
};
using SB_TAS_MsgRTAPParameterAssignment = MessageOf<kRTAPParameterAssignment>;

// The text of the MessageID names another message; scripts compare it.
inline constexpr FieldSpec kRTAPParameterCompleteFields[] = {
    {.name = "PRstr_TransactionID", .bits = 8, .summary = "That of the ParameterAssignment."},
};
inline constexpr MessageSpec kRTAPParameterComplete{
    .name = "SB_TAS_MsgRTAPParameterComplete",
    .summary = "The access terminal has configured its reverse test application.",
    .clause = "C.S0029",
    .protocol = Protocol::TestApplication,
    .direction = Direction::Parsed,
    .id_value = 0x81,
    .has_id_value = true,
    .fields = kRTAPParameterCompleteFields,
    .not_set = "RTAPParameterComplete message Object Set To Nothing. Please set PRobj_MessageObject property first.",
    .id_not_set = "MsgResetAck message Object Set To Nothing. Please set PRobj_MessageObject property first.",
};
using SB_TAS_MsgRTAPParameterComplete = MessageOf<kRTAPParameterComplete>;

}  // namespace vorlan
