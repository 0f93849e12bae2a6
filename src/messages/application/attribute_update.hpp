// The answers of the Generic Attribute Update Protocol, which the multi-flow packet application uses (C.S0024-A
// chapter 4). The request carries attribute records and is among the messages of negotiation.
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

namespace attribute_update {
inline constexpr FieldSpec kFields[] = {
    {.name = "PRstr_TransactionId",
     .bits = 8,
     .wrong_length = "Length of TransactionId string should be 8 bits.",
     .summary = "That of the AttributeUpdateRequest."},
};
}  // namespace attribute_update

inline constexpr MessageSpec kAttributeUpdateAccept{
    .name = "SB_App_MsgAttributeUpdateAccept",
    .summary = "The answer that takes the attributes of an AttributeUpdateRequest.",
    .clause = "4",
    .direction = Direction::Both,
    .id = "01010011",
    .fields = attribute_update::kFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of AttributeUpdateAccept Message first.",
    .not_set = "AttributeUpdateAccept Message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_App_MsgAttributeUpdateAccept = MessageOf<kAttributeUpdateAccept>;

inline constexpr MessageSpec kAttributeUpdateReject{
    .name = "SB_App_MsgAttributeUpdateReject",
    .summary = "The answer that refuses the attributes of an AttributeUpdateRequest.",
    .clause = "4",
    .id = "01010100",
    .fields = attribute_update::kFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of AttributeUpdateReject Message first.",
};
using SB_App_MsgAttributeUpdateReject = MessageOf<kAttributeUpdateReject>;

}  // namespace vorlan
