// Signaling Link Protocol messages (C.S0024-A 2.6) of the default signaling application.
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

inline constexpr FieldSpec kSigResetFields[] = {
    {.name = "PRstr_MessageSequence",
     .bits = 8,
     .wrong_length = "Length of MessageSequence field should be 8 bits .",
     .summary = "One more than that of the last Reset, modulo 256."},
};
inline constexpr MessageSpec kSigReset{
    .name = "SB_App_MsgSigReset",
    .summary = "The access network resets the signaling link.",
    .clause = "2.6",
    .protocol = Protocol::DefaultSignaling,
    .id = "00000000",
    .fields = kSigResetFields,
    .not_initialized = "Please call initialize of Reset Message first.",
};
using SB_App_MsgSigReset = MessageOf<kSigReset>;

// Its sources name the other message; scripts compare them.
inline constexpr FieldSpec kSigResetAckFields[] = {
    {.name = "PRstr_MessageSequence", .bits = 8, .summary = "That of the Reset."},
};
inline constexpr MessageSpec kSigResetAck{
    .name = "SB_App_MsgSigResetAck",
    .summary = "The access terminal has reset the signaling link.",
    .clause = "2.6",
    .protocol = Protocol::DefaultSignaling,
    .direction = Direction::Parsed,
    .id_value = 0x01,
    .has_id_value = true,
    .fields = kSigResetAckFields,
    .not_set = "MsgResetAck message Object Set To Nothing. Please set PRobj_MessageObject property first.",
    .source = "SB_App_MsgSigReset",
    .id_source = "SB_App_MsgSigReset.PRstr_MessageId",
};
using SB_App_MsgSigResetAck = MessageOf<kSigResetAck>;

}  // namespace vorlan
