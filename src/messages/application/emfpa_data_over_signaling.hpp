// Data Over Signaling Protocol messages of the enhanced multi-flow packet application (C.S0063-A).
#pragma once

#include "messages/application/emfpa.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

inline constexpr FieldSpec kEmfpaDataOverSignalingFields[] = {
    {.name = "PRstr_LinkFlowNumber",
     .bits = 5,
     .wrong_length = "Length of <LinkFlowNumber> Field should be 5 bit.",
     .summary = "Link flow to which the packet belongs."},
    {.name = "PRstr_Route",
     .bits = 1,
     .wrong_length = "Length of <Route> Field should be 1 bit.",
     .meaning = &emfpa::kRoute,
     .summary = "Route of the link flow."},
    {.name = "PRstr_AckRequired",
     .bits = 1,
     .wrong_length = "Length of <AckRequired> Field should be 1 bit.",
     .summary = "\"1\" if the receiver is to acknowledge."},
    {.name = "PRstr_Reset",
     .bits = 1,
     .wrong_length = "Length of <Reset> Field should be 1 bit.",
     .summary = "\"1\" if the receiver is to reset its sequence."},
    {.name = "PRstr_Reserved",
     .bits = 2,
     .wrong_length = "Length of <Reserved> Field should be 2 bit.",
     .summary = "Zero."},
    {.name = "PRstr_MessageSequence",
     .bits = 6,
     .wrong_length = "Length of <MessageSequence> Field should be 6 bits.",
     .summary = "One more than that of the last message, modulo 64."},
    // Misspelt; scripts compare it.
    {.name = "PRstr_HigherLayerPacket",
     .width = rest_of_message(),
     .accepts = Accepts::WholeOctets,
     .wrong_length = "Length of <HigherLayerPacket> Field should be a mutiple of 8.",
     .summary = "The packet that is carried: whole octets."},
};
inline constexpr MessageSpec kEmfpaDataOverSignaling{
    .name = "SB_App_MsgEmfpaDataOverSignaling",
    .summary = "Either side sends a higher-layer packet of a link flow without a traffic channel.",
    .clause = "C.S0063-A",
    .protocol = Protocol::EnhancedMultiFlowPacket,
    .direction = Direction::Both,
    .id = "00010100",
    .fields = kEmfpaDataOverSignalingFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of EmfpaDataOverSignaling Message first.",
    .not_set = "EmfpaDataOverSignaling message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgEmfpaDataOverSignaling = MessageOf<kEmfpaDataOverSignaling>;

// Scripts set two reserved bits, which makes 17 of a message of 16: it is sent in three octets, of which a receiver
// ignores the last. Of a received message of two octets the getter gives the one reserved bit that there is.
inline constexpr FieldSpec kEmfpaDataOverSignalingAckFields[] = {
    {.name = "PRstr_Route",
     .bits = 1,
     .wrong_length = "Length of <Route> Field should be 1 bits.",
     .meaning = &emfpa::kRoute,
     .summary = "Route of the message acknowledged."},
    {.name = "PRstr_AckSequence",
     .bits = 6,
     .wrong_length = "Length of <AckSequence> Field should be 6 bits.",
     .summary = "MessageSequence of the message acknowledged."},
    {.name = "PRstr_Reserved",
     .bits = 2,
     .wrong_length = "Length of <Reserved> Field should be 2 bit.",
     .summary = "Zero; one bit of it in a message of two octets."},
};
inline constexpr MessageSpec kEmfpaDataOverSignalingAck{
    .name = "SB_App_MsgEmfpaDataOverSignalingAck",
    .summary = "The answer to DataOverSignaling, where it asks for one.",
    .clause = "C.S0063-A",
    .protocol = Protocol::EnhancedMultiFlowPacket,
    .direction = Direction::Both,
    .id = "00010101",
    .fields = kEmfpaDataOverSignalingAckFields,
    .padded = true,
    .not_initialized = "Class not initialized. Please Call <Initialize> of EmfpaDataOverSignalingAck Message first.",
    .not_set =
        "EmfpaDataOverSignalingAck message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgEmfpaDataOverSignalingAck = MessageOf<kEmfpaDataOverSignalingAck>;

}  // namespace vorlan
