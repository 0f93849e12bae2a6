// Flow Control Protocol messages (C.S0024-A 3.6) of the default packet application.
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

// The two requests differ in which texts end in a blank; scripts compare them.
inline constexpr MessageSpec kXonRequest{
    .name = "SB_App_MsgXonRequest",
    .summary = "The access terminal asks for data to be sent again.",
    .clause = "3.6",
    .protocol = Protocol::DefaultPacket,
    .direction = Direction::Parsed,
    .id_value = 0x07,
    .has_id_value = true,
    .not_set = "XonRequest message object set to Nothing. Please set <PRobj_MessageObject> property first.",
    .id_not_set = "XonRequest message object set to Nothing. Please set <PRobj_MessageObject> property first. ",
    .id_source = "SB_App_MsgXonRequest.PRstr_MessageId",
};
using SB_App_MsgXonRequest = MessageOf<kXonRequest>;

inline constexpr MessageSpec kXonResponse{
    .name = "SB_App_MsgXonResponse",
    .summary = "The access network will send data again.",
    .clause = "3.6",
    .protocol = Protocol::DefaultPacket,
    .id = "00001000",
    .not_initialized = "Class not initialized. Please call <Initialize> of XonResponse Message first.",
};
using SB_App_MsgXonResponse = MessageOf<kXonResponse>;

inline constexpr MessageSpec kXoffRequest{
    .name = "SB_App_MsgXoffRequest",
    .summary = "The access terminal asks for data to be held back.",
    .clause = "3.6",
    .protocol = Protocol::DefaultPacket,
    .direction = Direction::Parsed,
    .id_value = 0x09,
    .has_id_value = true,
    .not_set = "XoffRequest message object set to Nothing. Please set <PRobj_MessageObject> property first. ",
    .id_source = "SB_App_MsgXoffRequest.PRstr_MessageId",
};
using SB_App_MsgXoffRequest = MessageOf<kXoffRequest>;

inline constexpr MessageSpec kXoffResponse{
    .name = "SB_App_MsgXoffResponse",
    .summary = "The access network will hold data back.",
    .clause = "3.6",
    .protocol = Protocol::DefaultPacket,
    .id = "00001010",
    .not_initialized = "Class not initialized. Please Call <Initialize> of XoffResponse Message first.",
};
using SB_App_MsgXoffResponse = MessageOf<kXoffResponse>;

inline constexpr FieldSpec kDataReadyFields[] = {
    {.name = "PRstr_TransactionID",
     .bits = 8,
     .wrong_length = "Length of <TransactionID> should be 8 bits.",
     .summary = "TransactionID."},
};
inline constexpr MessageSpec kDataReady{
    .name = "SB_App_MsgDataReady",
    .summary = "The access network has data for an access terminal that holds it back.",
    .clause = "3.6",
    .protocol = Protocol::DefaultPacket,
    .id = "00001011",
    .fields = kDataReadyFields,
    .not_initialized = "Please Call <Initialize> of DataReady Message first.",
};
using SB_App_MsgDataReady = MessageOf<kDataReady>;

inline constexpr FieldSpec kDataReadyAckFields[] = {
    {.name = "PRstr_TransactionId", .bits = 8, .summary = "That of the DataReady."},
};
inline constexpr MessageSpec kDataReadyAck{
    .name = "SB_App_MsgDataReadyAck",
    .summary = "The access terminal knows of the data.",
    .clause = "3.6",
    .protocol = Protocol::DefaultPacket,
    .direction = Direction::Parsed,
    .id_value = 0x0C,
    .has_id_value = true,
    .fields = kDataReadyAckFields,
    .not_set = "DataReadyAck message Object Set To Nothing. Please set PRobj_MessageObject property first.",
};
using SB_App_MsgDataReadyAck = MessageOf<kDataReadyAck>;

}  // namespace vorlan
