// Idle State Protocol messages (C.S0024-A 8.4).
#pragma once

#include "codec/meanings.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

namespace idle_state {
inline constexpr Code kRequestReasons[] = {{0, "access terminal initiated"}, {1, "access network initiated"}};
inline constexpr Meaning kRequestReason{.codes = kRequestReasons, .summary = "reason"};
inline constexpr Code kDenyReasons[] = {
    {0, "general"},
    {1, "network busy"},
    {2, "authentication or billing failure"},
    {3, "preferred channel not available"},
};
inline constexpr Meaning kDenyReason{.codes = kDenyReasons, .summary = "reason"};
}  // namespace idle_state

inline constexpr MessageSpec kPage{
    .name = "SB_Con_MsgPage",
    .summary = "The access network asks the access terminal to request a connection.",
    .clause = "8.4.6.2.1",
    .protocol = Protocol::IdleState,
    .id = "00000000",
    .not_initialized = "Class not initialized. Please call <Initialize> of Page Message first.",
};
using SB_Con_MsgPage = MessageOf<kPage>;

inline constexpr FieldSpec kConnectionRequestFields[] = {
    {.name = "PRstr_TransactionId", .bits = 8, .summary = "TransactionID."},
    {.name = "PRstr_RequestReason",
     .bits = 4,
     .meaning = &idle_state::kRequestReason,
     .summary = "Who wants the connection."},
    {.name = "Reserved", .bits = 4},
};
inline constexpr MessageSpec kConnectionRequest{
    .name = "SB_Con_MsgConnectionRequest",
    .summary = "The access terminal asks for a traffic channel.",
    .clause = "8.4.6.2.2",
    .protocol = Protocol::IdleState,
    .direction = Direction::Parsed,
    .id_value = 0x01,
    .has_id_value = true,
    .fields = kConnectionRequestFields,
    .not_set = "ConnectionRequest Message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_Con_MsgConnectionRequest = MessageOf<kConnectionRequest>;

inline constexpr FieldSpec kConnectionDenyFields[] = {
    {.name = "PRstr_TransactionId",
     .bits = 8,
     .wrong_length = "Length of <TransactionId> field should be 8 bits .",
     .summary = "That of the ConnectionRequest."},
    {.name = "PRstr_DenyReason",
     .bits = 4,
     .wrong_length = "Length of <DenyReason> field should be 4 bits .",
     .meaning = &idle_state::kDenyReason,
     .summary = "Why there is no connection."},
};
inline constexpr MessageSpec kConnectionDeny{
    .name = "SB_Con_MsgConnectionDeny",
    .summary = "The access network refuses a ConnectionRequest.",
    .clause = "8.4.6.2.3",
    .protocol = Protocol::IdleState,
    .id = "00000010",
    .fields = kConnectionDenyFields,
    .padded = true,
    .not_initialized = "Class not initialized. Please call <Initialize> of ConnectionDeny Message first.",
    .in_encoder_mode = "Encoder and this property cannot be used simultaneously",
    .create_source = "SB_Ses_MsgKeepAliveRequest.CreateMessage",  // another class: scripts compare it
};
using SB_Con_MsgConnectionDeny = MessageOf<kConnectionDeny>;

}  // namespace vorlan
