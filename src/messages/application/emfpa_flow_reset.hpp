// Reset messages of the Radio Link Protocol of the enhanced multi-flow packet application (C.S0063-A).
#pragma once

#include "messages/application/emfpa.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

namespace emfpa {
inline constexpr FieldSpec kResetFields[] = {
    {.name = "PRstr_LinkFlowNumber",
     .bits = 5,
     .wrong_length = "Length of <LinkFlowNumber> Field should be 5 bits.",
     .summary = "Link flow that is reset."},
    {.name = "PRstr_Route",
     .bits = 1,
     .wrong_length = "Length of <Route> Field should be 1 bit.",
     .meaning = &kRoute,
     .summary = "Route of the link flow."},
    {.name = "PRstr_Reserved",
     .bits = 2,
     .wrong_length = "Length of <Reserved> Field should be 2 bit.",
     .summary = "Zero."},
};
}  // namespace emfpa

inline constexpr MessageSpec kEmfpaResetTxIndication{
    .name = "SB_App_MsgEmfpaResetTxIndication",
    .summary = "Opens the reset of a flow, from its transmitting side.",
    .clause = "C.S0063-A",
    .protocol = Protocol::EnhancedMultiFlowPacket,
    .direction = Direction::Both,
    .id = "00000000",
    .fields = emfpa::kResetFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of EmfpaResetTxIndication Message first.",
    .not_set = "EmfpaResetTxIndication message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgEmfpaResetTxIndication = MessageOf<kEmfpaResetTxIndication>;

inline constexpr MessageSpec kEmfpaResetRxIndication{
    .name = "SB_App_MsgEmfpaResetRxIndication",
    .summary = "Opens the reset of a flow, from its receiving side.",
    .clause = "C.S0063-A",
    .protocol = Protocol::EnhancedMultiFlowPacket,
    .direction = Direction::Both,
    .id = "00000001",
    .fields = emfpa::kResetFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of EmfpaResetRxIndication Message first.",
    .not_set = "EmfpaResetRxIndication message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgEmfpaResetRxIndication = MessageOf<kEmfpaResetRxIndication>;

inline constexpr MessageSpec kEmfpaResetTxIndicationAck{
    .name = "SB_App_MsgEmfpaResetTxIndicationAck",
    .summary = "The answer to ResetTxIndication.",
    .clause = "C.S0063-A",
    .protocol = Protocol::EnhancedMultiFlowPacket,
    .direction = Direction::Both,
    .id = "00001101",
    .fields = emfpa::kResetFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of EmfpaResetTxIndicationAck Message first.",
    .not_set =
        "EmfpaResetTxIndicationAck message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgEmfpaResetTxIndicationAck = MessageOf<kEmfpaResetTxIndicationAck>;

inline constexpr MessageSpec kEmfpaResetTxComplete{
    .name = "SB_App_MsgEmfpaResetTxComplete",
    .summary = "Completes the reset that ResetTxIndication opened.",
    .clause = "C.S0063-A",
    .protocol = Protocol::EnhancedMultiFlowPacket,
    .direction = Direction::Both,
    .id = "00001110",
    .fields = emfpa::kResetFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of EmfpaResetTxComplete Message first.",
    .not_set = "EmfpaResetTxComplete message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgEmfpaResetTxComplete = MessageOf<kEmfpaResetTxComplete>;

inline constexpr MessageSpec kEmfpaResetRxComplete{
    .name = "SB_App_MsgEmfpaResetRxComplete",
    .summary = "Completes the reset that ResetRxIndication opened.",
    .clause = "C.S0063-A",
    .protocol = Protocol::EnhancedMultiFlowPacket,
    .direction = Direction::Both,
    .id = "00001111",
    .fields = emfpa::kResetFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of EmfpaResetRxComplete Message first.",
    .not_set = "EmfpaResetRxComplete message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgEmfpaResetRxComplete = MessageOf<kEmfpaResetRxComplete>;

}  // namespace vorlan
