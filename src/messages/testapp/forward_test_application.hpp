// Forward Test Application Protocol messages (C.S0029).
#pragma once

#include "codec/meanings.hpp"
#include "messages/testapp/attribute_records.hpp"

namespace vorlan {

inline constexpr FieldSpec kFTAPParameterAssignmentFields[] = {
    {.name = "PRstr_TransactionID",
     .bits = 8,
     .wrong_length = "Length of <TransactionID> field should be 8 bits.",
     .summary = "TransactionID."},
    {.name = "AttributeRecords",
     .width = rest_of_message(),
     .build = testapp::join_records,
     .meaning = &testapp::kFtapRecords},
};
inline constexpr MessageSpec kFTAPParameterAssignment{
    .name = "SB_TAS_MsgFTAPParameterAssignment",
    .summary = "The access network configures the forward test application.",
    .clause = "C.S0029",
    .protocol = Protocol::TestApplication,
    .id = "00000000",
    .fields = kFTAPParameterAssignmentFields,
    .arguments = testapp::kArguments,
    .not_initialized = "Class not initialized. Please call <Initialize> of FTAPParameterAssignment Message first.",
};
using SB_TAS_MsgFTAPParameterAssignment = MessageOf<kFTAPParameterAssignment>;

inline constexpr FieldSpec kFTAPParameterCompleteFields[] = {
    {.name = "PRstr_TransactionId", .bits = 8, .summary = "That of the ParameterAssignment."},
};
inline constexpr MessageSpec kFTAPParameterComplete{
    .name = "SB_TAS_MsgFTAPParameterComplete",
    .summary = "The access terminal has configured its forward test application.",
    .clause = "C.S0029",
    .protocol = Protocol::TestApplication,
    .direction = Direction::Parsed,
    .id_value = 0x01,
    .has_id_value = true,
    .fields = kFTAPParameterCompleteFields,
    .not_set = "FTAPParameterComplete Message Object Set To Nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_TAS_MsgFTAPParameterComplete = MessageOf<kFTAPParameterComplete>;

inline constexpr FieldSpec kFTAPStatsRequestFields[] = {
    {.name = "PRstr_TransactionID",
     .bits = 8,
     .wrong_length = "Length of <TransactionID> Field should be 8 bits.",
     .summary = "TransactionID."},
    {.name = "AttributeRecords",
     .width = rest_of_message(),
     .build = testapp::join_records,
     .meaning = &kHex,
     .summary = "The attributes whose statistics are meant: an octet each."},
};
inline constexpr MessageSpec kFTAPStatsClearRequest{
    .name = "SB_TAS_MsgFTAPStatsClearRequest",
    .summary = "The access network has statistics of the forward test application cleared.",
    .clause = "C.S0029",
    .protocol = Protocol::TestApplication,
    .id = "00000010",
    .fields = kFTAPStatsRequestFields,
    .arguments = testapp::kArguments,
    .not_initialized =
        "Class not initialized. Please Call <Initialize> of SB_TAS_MsgFTAPStatsClearRequest Message first.",
};
using SB_TAS_MsgFTAPStatsClearRequest = MessageOf<kFTAPStatsClearRequest>;

inline constexpr FieldSpec kFTAPStatsClearResponseFields[] = {
    {.name = "PRstr_TransactionId", .bits = 8, .summary = "That of the StatsClearRequest."},
};
inline constexpr MessageSpec kFTAPStatsClearResponse{
    .name = "SB_TAS_MsgFTAPStatsClearResponse",
    .summary = "The access terminal has cleared the statistics.",
    .clause = "C.S0029",
    .protocol = Protocol::TestApplication,
    .direction = Direction::Parsed,
    .id_value = 0x03,
    .has_id_value = true,
    .fields = kFTAPStatsClearResponseFields,
    .not_set = "FTAPStatsClearResponse message Object Set To Nothing. Please set PRobj_MessageObject property first.",
};
using SB_TAS_MsgFTAPStatsClearResponse = MessageOf<kFTAPStatsClearResponse>;

inline constexpr MessageSpec kFTAPStatsGetRequest{
    .name = "SB_TAS_MsgFTAPStatsGetRequest",
    .summary = "The access network asks for statistics of the forward test application.",
    .clause = "C.S0029",
    .protocol = Protocol::TestApplication,
    .id = "00000100",
    .fields = kFTAPStatsRequestFields,
    .arguments = testapp::kArguments,
    .not_initialized =
        "Class not initialized. Please Call <Initialize> of SB_TAS_MsgFTAPStatsGetRequest Message first.",
};
using SB_TAS_MsgFTAPStatsGetRequest = MessageOf<kFTAPStatsGetRequest>;

inline constexpr FieldSpec kFTAPStatsGetResponseFields[] = {
    {.name = "PRstr_TransactionId", .bits = 8, .summary = "That of the StatsGetRequest."},
    {.name = "AttributeRecords", .width = rest_of_message(), .meaning = &testapp::kFtapRecords},
    {.name = "PRstr_IdleASPStatsAttr",
     .bits = 56,
     .view = testapp::idle_stats,
     .sent = false,
     .summary = "The IdleASPStats record with its Length; empty if there is none."},
    {.name = "PRstr_ConnectedSSStatsAttr",
     .bits = 56,
     .view = testapp::connected_stats,
     .sent = false,
     .summary = "The ConnectedSSStats record with its Length; empty if there is none."},
    {.name = "PRstr_FirstSyncCCPktStatsAttr",
     .bits = 48,
     .view = testapp::first_sync_stats,
     .sent = false,
     .summary = "The FirstSyncCCPktStats record with its Length; empty if there is none."},
};
inline constexpr MessageSpec kFTAPStatsGetResponse{
    .name = "SB_TAS_MsgFTAPStatsGetResponse",
    .summary = "The access terminal sends statistics.",
    .clause = "C.S0029",
    .protocol = Protocol::TestApplication,
    .direction = Direction::Parsed,
    .id_value = 0x05,
    .has_id_value = true,
    .fields = kFTAPStatsGetResponseFields,
    .not_set = "FTAPStatsGetResponse message Object Set To Nothing. Please set PRobj_MessageObject property first.",
    .string_not_set =
        "FTAPStatsGetResponse Message Object Set To Nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_TAS_MsgFTAPStatsGetResponse = MessageOf<kFTAPStatsGetResponse>;

}  // namespace vorlan
