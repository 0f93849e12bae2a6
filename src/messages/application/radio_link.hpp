// Reset and ResetAck of the Radio Link Protocol (C.S0024-A 3.4) of the default packet application; Nak is in nak.hpp.
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

inline constexpr MessageSpec kPktReset{
    .name = "SB_App_MsgPktReset",
    .summary = "Either side resets the radio link.",
    .clause = "3.4",
    .protocol = Protocol::DefaultPacket,
    .direction = Direction::Both,
    .id = "00000000",
    .not_initialized = "Class not initialized. Please call <Initialize> of PktReset Message first.",
    .not_set = "PktReset message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_App_MsgPktReset = MessageOf<kPktReset>;

inline constexpr MessageSpec kPktResetAck{
    .name = "SB_App_MsgPktResetAck",
    .summary = "The answer to Reset.",
    .clause = "3.4",
    .protocol = Protocol::DefaultPacket,
    .direction = Direction::Both,
    .id = "00000001",
    .not_initialized = "Class not initialized. Please call <Initialize> of PktResetAck Message first.",
    .not_set = "PktResetAck message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_App_MsgPktResetAck = MessageOf<kPktResetAck>;

}  // namespace vorlan
