// Session Management Protocol messages (C.S0024-A 7.2) of the session layer.
#pragma once

#include "codec/meanings.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

namespace session_management {
inline constexpr Code kCloseReasons[] = {
    {0, "normal close"},
    {1, "close reply"},
    {2, "protocol error"},
    {3, "protocol configuration failure"},
    {4, "protocol negotiation error"},
    {5, "session configuration failure"},
    {6, "session lost"},
    {7, "session unreachable"},
    {8, "all session resources busy"},
};
inline constexpr Meaning kCloseReason{.codes = kCloseReasons, .summary = "reason"};
}  // namespace session_management

inline constexpr FieldSpec kSessionCloseFields[] = {
    {.name = "PRstr_CloseReason",
     .bits = 8,
     .starts_empty = true,
     .wrong_length = "Length of <CloseReason> field should be 8 bits.",
     .meaning = &session_management::kCloseReason,
     .summary = "Why the session is closed."},
    {.name = "PRstr_MoreInfoLen",
     .bits = 8,
     .starts_empty = true,
     .wrong_length = "Length of <MoreInfoLen> field should be 8 bits.",
     .meaning = &kOctets,
     .summary = "Octets of MoreInfo. To be set before MoreInfo."},
    // The text says MoreInfo where it means MoreInfoLen.
    {.name = "PRstr_MoreInfo",
     .starts_empty = true,
     .width = octets_counted_by("PRstr_MoreInfoLen"),
     .present = is_above_zero("PRstr_MoreInfoLen"),
     .wrong_length = "Length of MoreInfo field should be MoreInfo * 8 bits.",
     .summary = "For reasons 3 and 4: protocol type and offending attribute or subtype."},
};
inline constexpr MessageSpec kSessionClose{
    .name = "SB_Ses_MsgSessionClose",
    .summary = "Either side closes the session.",
    .clause = "7.2.6.2.1",
    .protocol = Protocol::SessionManagement,
    .direction = Direction::Both,
    .id = "00000001",
    .fields = kSessionCloseFields,
    .not_initialized = "Class not initialized. Please call <Initialize> of SessionClose Message first.",
    .not_set = "SessionClose message object not set. Please set property <PRobj_MessageObject> first.",
};
using SB_Ses_MsgSessionClose = MessageOf<kSessionClose>;

// The response raises its width error with the request's source; scripts compare it.
inline constexpr FieldSpec kKeepAliveFields[] = {
    {.name = "PRstr_TransactionID",
     .bits = 8,
     .initial = "00000000",
     .wrong_length = "Length of TransactionID field should be 8 bits.",
     .length_source = "SB_Ses_MsgKeepAliveRequest.PRstr_TransactionID",
     .summary = "TransactionID; the response repeats the request's."},
};
inline constexpr MessageSpec kKeepAliveRequest{
    .name = "SB_Ses_MsgKeepAliveRequest",
    .summary = "Either side asks whether the other still holds the session.",
    .clause = "7.2.6.2.2",
    .protocol = Protocol::SessionManagement,
    .direction = Direction::Both,
    .id = "00000010",
    .fields = kKeepAliveFields,
    .not_initialized = "Please call initialize of KeepAliveRequest Message first.",
    .not_set = "KeepAlive message object set to nothing.Please set PRobj_MessageObject property first",
};
using SB_Ses_MsgKeepAliveRequest = MessageOf<kKeepAliveRequest>;

inline constexpr MessageSpec kKeepAliveResponse{
    .name = "SB_Ses_MsgKeepAliveResponse",
    .summary = "The answer to KeepAliveRequest.",
    .clause = "7.2.6.2.3",
    .protocol = Protocol::SessionManagement,
    .direction = Direction::Both,
    .id = "00000011",
    .fields = kKeepAliveFields,
    .not_initialized = "Please Call Initialize of KeepAliveResponse Message first.",
    .string_unchecked = true,
};
using SB_Ses_MsgKeepAliveResponse = MessageOf<kKeepAliveResponse>;

}  // namespace vorlan
