// Reset messages of the Radio Link Protocol of the multi-flow packet application (C.S0024-A chapter 4).
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

namespace flow_reset {
inline constexpr FieldSpec kRLPFlow{.name = "PRstr_RLPFlow",
                                    .bits = 5,
                                    .wrong_length = "Length of <RLPFlow> Field should be 5 bits.",
                                    .summary = "RLP flow that is reset."};
inline constexpr FieldSpec kFields[] = {
    kRLPFlow,
    {.name = "PRstr_Reserved",
     .bits = 3,
     .wrong_length = "Length of <Reserved> Field should be 3 bits.",
     .summary = "Zero."},
};
// One of the five offers no property for the reserved bits.
inline constexpr FieldSpec kCompleteFields[] = {
    kRLPFlow,
    {.name = "Reserved", .bits = 3, .constant = true},
};
}  // namespace flow_reset

inline constexpr MessageSpec kResetTxIndication{
    .name = "SB_App_MsgResetTxIndication",
    .summary = "Opens the reset of a flow, from its transmitting side.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .direction = Direction::Both,
    .id = "00000000",
    .fields = flow_reset::kFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of ResetTxIndication Message first.",
    .not_set = "ResetTxIndication message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgResetTxIndication = MessageOf<kResetTxIndication>;

inline constexpr MessageSpec kResetRxIndication{
    .name = "SB_App_MsgResetRxIndication",
    .summary = "Opens the reset of a flow, from its receiving side.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .direction = Direction::Both,
    .id = "00000001",
    .fields = flow_reset::kFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of ResetRxIndication Message first.",
    .not_set = "ResetRxIndication message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgResetRxIndication = MessageOf<kResetRxIndication>;

inline constexpr MessageSpec kResetTxIndicationAck{
    .name = "SB_App_MsgResetTxIndicationAck",
    .summary = "The answer to ResetTxIndication.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .direction = Direction::Both,
    .id = "00001101",
    .fields = flow_reset::kFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of ResetTxIndicationAck Message first.",
    .not_set = "ResetTxIndicationAck message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgResetTxIndicationAck = MessageOf<kResetTxIndicationAck>;

inline constexpr MessageSpec kResetTxComplete{
    .name = "SB_App_MsgResetTxComplete",
    .summary = "Completes the reset that ResetTxIndication opened.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .direction = Direction::Both,
    .id = "00001110",
    .fields = flow_reset::kCompleteFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of ResetTxComplete Message first.",
    .not_set = "ResetTxComplete message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgResetTxComplete = MessageOf<kResetTxComplete>;

inline constexpr MessageSpec kResetRxComplete{
    .name = "SB_App_MsgResetRxComplete",
    .summary = "Completes the reset that ResetRxIndication opened.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .direction = Direction::Both,
    .id = "00001111",
    .fields = flow_reset::kFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of ResetRxComplete Message first.",
    .not_set = "ResetRxComplete message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgResetRxComplete = MessageOf<kResetRxComplete>;

}  // namespace vorlan
