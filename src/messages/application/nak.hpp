// Nak of the Radio Link Protocol: default packet application, and multi-flow with an RLP flow in front (C.S0024-A 3.4).
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

// One property, two layouts: a script sets PRint_NakType to that of a received message before it reads the fields.
inline constexpr FieldSpec kNakFields[] = {
    {.name = "PRint_NakType",
     .bits = 1,
     .integer = true,
     .summary = "0: default packet application; 1: with RLPFlow and SequenceLength."},
    {.name = "PRstr_RLPFlow",
     .bits = 5,
     .present = is_one("PRint_NakType"),
     .wrong_length = " The length of argument passed should be equal to the length of RLPFlow(length=5).",
     .summary = "RLP flow; only in layout 1."},
    {.name = "PRstr_Reserved1",
     .bits = 3,
     .present = is_one("PRint_NakType"),
     .wrong_length = " The length of argument passed should be equal to the length of Reserved1(length=3).",
     .summary = "Only in layout 1."},
    {.name = "PRstr_SequenceLength",
     .bits = 8,
     .present = is_one("PRint_NakType"),
     .wrong_length = " The length of argument passed should be equal to the length of SequenceLength(length=8).",
     .summary = "Bits of the sequence numbers; only in layout 1."},
    {.name = "PRstr_NakRequests",
     .bits = 8,
     .initial = "00000001",
     .wrong_length = " The length of argument passed should be equal to  the length of NakRequests (length=8).",
     .summary = "Number of requests; setting it keeps the requests within the new number."},
    {.name = "PRstr_Reserved",
     .bits = 2,
     .present = is_zero("PRint_NakType"),
     .repeat = in_record(1, "PRstr_NakRequests"),
     .on_resize = OnResize::KeepOld,
     .exposure = Exposure::GetOnly,
     .index_optional = true,
     .summary = "Zero; before the record in layout 0, behind it in layout 1."},
    {.name = "PRstr_FirstErased",
     .bits = 22,
     .repeat = in_record(1, "PRstr_NakRequests"),
     .on_resize = OnResize::KeepOld,
     .wrong_length = " The length of argument passed should be equal to the length of FirstErased(length=22).",
     .beyond_count = "Index for FirstErased exceeds NakRequests.",
     .summary = "Sequence number of the first octet that is missing."},
    // The index error carries the source of the property above; scripts compare it.
    {.name = "PRstr_WindowLen",
     .bits = 16,
     .repeat = in_record(1, "PRstr_NakRequests"),
     .on_resize = OnResize::KeepOld,
     .wrong_length = " The length of argument passed should be equal to the length of WindowLen(length=16).",
     .beyond_count = "Index for WindowLen exceeds NakRequests.",
     .index_source = "SB_App_MsgNak.PRstr_FirstErased",
     .summary = "Octets that are missing."},
    {.name = "Reserved",
     .bits = 2,
     .present = is_one("PRint_NakType"),
     .repeat = in_record(1, "PRstr_NakRequests"),
     .same_as = "PRstr_Reserved"},
};
inline constexpr MessageSpec kNak{
    .name = "SB_App_MsgNak",
    .summary = "Either side asks for octets again that it has not received.",
    .clause = "3.4.4.2.2",
    .protocol = Protocol::DefaultPacket,
    .direction = Direction::Both,
    .id = "00000010",
    .fields = kNakFields,
    .not_initialized = "Please Call <Initialize> of Nak Message first.",
    .in_encoder_mode = "Encoder and this property cannot be used simultaneously",
    .not_set = "Nak message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_App_MsgNak = MessageOf<kNak>;

}  // namespace vorlan
