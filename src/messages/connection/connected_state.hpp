// ConnectionClose of the Connected State Protocol (C.S0024-A 8.6.6.2.1).
#pragma once

#include "messages/connection/system_time.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

namespace connected_state {
inline constexpr Code kCloseReasons[] = {
    {0, "normal close"},
    {1, "close reply"},
    {2, "connection error"},
    {3, "transition to cdma2000 1x"},
    {4, "normal close with suspend"},
    {5, "normal close without suspend"},
};
inline constexpr Meaning kCloseReason{.codes = kCloseReasons, .summary = "reason"};
}  // namespace connected_state

inline constexpr FieldSpec kConnectionCloseFields[] = {
    {.name = "PRstr_CloseReason",
     .bits = 3,
     .wrong_length = "Length of <CloseReason> Field should be 3 bits.",
     .meaning = &connected_state::kCloseReason,
     .summary = "Why the connection is closed."},
    {.name = "PRstr_SuspendEnable",
     .bits = 1,
     .wrong_length = "Length of <SuspendEnable> Field should be 1 bit. ",
     .summary = "\"1\" if SuspendTime is sent; only access terminals suspend."},
    {.name = "PRstr_SuspendTime",
     .bits = 36,
     .present = is_one("PRstr_SuspendEnable"),
     .wrong_length = "Length of <SuspendTime> Field should be 36 bits.",
     .absent = "Suspend Time not included in the message string.",
     .meaning = &kTimeIn80Ms,
     .summary = "Until when the access terminal goes on listening to the control channel."},
};
inline constexpr MessageSpec kConnectionClose{
    .name = "SB_Con_MsgConnectionClose",
    .summary = "Either side closes the connection.",
    .clause = "8.6.6.2.1",
    .protocol = Protocol::ConnectedState,
    .direction = Direction::Both,
    .id = "00000000",
    .fields = kConnectionCloseFields,
    .padded = true,
    .not_initialized = "Class not initialized. Please call <Initialize> of ConnectionClose Message first.",
    .in_encoder_mode = "Encoder and this property cannot be used simultaneously",
    .not_set = "ConnectionClose Message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_Con_MsgConnectionClose = MessageOf<kConnectionClose>;

}  // namespace vorlan
