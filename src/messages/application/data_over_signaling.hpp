// Data Over Signaling Protocol messages of the multi-flow packet application (C.S0024-A chapter 4).
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

inline constexpr FieldSpec kDataOverSignalingFields[] = {
    {.name = "PRstr_AckRequired",
     .bits = 1,
     .initial = "1",
     .wrong_length = "Length of <AckRequired> Field should be 1 bit.",
     .summary = "\"1\" if the receiver is to acknowledge."},
    {.name = "PRstr_Reset",
     .bits = 1,
     .initial = "0",
     .wrong_length = "Length of <Reset> Field should be 1 bit.",
     .summary = "\"1\" if the receiver is to reset its sequence."},
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
inline constexpr MessageSpec kDataOverSignaling{
    .name = "SB_App_MsgDataOverSignaling",
    .summary = "Either side sends a higher-layer packet without a traffic channel.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .direction = Direction::Both,
    .id = "00010100",
    .fields = kDataOverSignalingFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of DataOverSignaling Message first.",
    .not_set = "DataOverSignaling message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgDataOverSignaling = MessageOf<kDataOverSignaling>;

inline constexpr FieldSpec kDataOverSignalingAckFields[] = {
    {.name = "PRstr_Reserved",
     .bits = 2,
     .wrong_length = "Length of <Reserved> Field should be 2 bit.",
     .summary = "Zero."},
    {.name = "PRstr_AckSequence",
     .bits = 6,
     .wrong_length = "Length of <AckSequence> Field should be 6 bits.",
     .summary = "MessageSequence of the message acknowledged."},
};
inline constexpr MessageSpec kDataOverSignalingAck{
    .name = "SB_App_MsgDataOverSignalingAck",
    .summary = "The answer to DataOverSignaling, where it asks for one.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .direction = Direction::Both,
    .id = "00010101",
    .fields = kDataOverSignalingAckFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of DataOverSignalingAck Message first.",
    .not_set = "DataOverSignalingAck message object set to nothing.Please set <PRobj_MessageObject> Property first",
};
using SB_App_MsgDataOverSignalingAck = MessageOf<kDataOverSignalingAck>;

}  // namespace vorlan
