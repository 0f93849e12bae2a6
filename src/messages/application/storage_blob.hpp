// Storage BLOB messages of the Location Update Protocol of the multi-flow packet application (C.S0024-A chapter 4).
#pragma once

#include "codec/meanings.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

inline constexpr MessageSpec kStorageBLOBRequest{
    .name = "SB_App_MsgStorageBLOBRequest",
    .summary = "The access network asks for the BLOB that the access terminal holds.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .id = "00010000",
    .not_initialized = "Class not initialized. Please Call <Initialize> of StorageBLOBRequest Message first.",
};
using SB_App_MsgStorageBLOBRequest = MessageOf<kStorageBLOBRequest>;

inline constexpr FieldSpec kStorageBLOBNotificationFields[] = {
    {.name = "PRstr_StorageBLOBType", .bits = 16, .meaning = &kHex, .summary = "Kind of BLOB."},
    {.name = "PRstr_StorageBLOBLength", .bits = 8, .meaning = &kOctets, .summary = "Octets of the BLOB."},
    {.name = "PRstr_StorageBLOB", .width = octets_counted_by("PRstr_StorageBLOBLength"), .summary = "The BLOB."},
};
inline constexpr MessageSpec kStorageBLOBNotification{
    .name = "SB_App_MsgStorageBLOBNotification",
    .summary = "The access terminal sends the BLOB that it holds.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .direction = Direction::Parsed,
    .id_value = 0x11,
    .has_id_value = true,
    .fields = kStorageBLOBNotificationFields,
    .not_set =
        "StorageBLOBNotification Message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_App_MsgStorageBLOBNotification = MessageOf<kStorageBLOBNotification>;

// The setter of the BLOB takes an octet, so a BLOB is set octet by octet; one of a single octet needs neither an
// index nor its length set first.
inline constexpr FieldSpec kStorageBLOBAsgnmntFields[] = {
    {.name = "PRstr_TransactionId",
     .bits = 8,
     .wrong_length = "Length of <TransactionId> Field should be 8 bits.",
     .summary = "TransactionID."},
    {.name = "PRstr_StorageBLOBType",
     .bits = 16,
     .wrong_length = "Length of <StorageBLOBType> Field should be 16 bits.",
     .meaning = &kHex,
     .summary = "Kind of BLOB."},
    {.name = "PRstr_StorageBLOBLength",
     .bits = 8,
     .wrong_length = "Length of <StorageBLOBLength> Field should be 8 bits.",
     .meaning = &kOctets,
     .summary = "Octets of the BLOB."},
    {.name = "PRstr_StorageBLOB",
     .bits = 8,
     .repeat = list_of("PRstr_StorageBLOBLength"),
     .on_resize = OnResize::KeepOld,
     .first_stays = true,
     .index_optional = true,
     .wrong_length = "Length of <StorageBLOB> Field should be 8 bits.",
     .meaning = &kHex,
     .summary = "An octet of the BLOB."},
};
inline constexpr MessageSpec kStorageBLOBAsgnmnt{
    .name = "SB_App_MsgStorageBLOBAsgnmnt",
    .summary = "The access network gives the access terminal a BLOB.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .id = "00010010",
    .fields = kStorageBLOBAsgnmntFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of StorageBLOBAssignment Message first.",
};
using SB_App_MsgStorageBLOBAsgnmnt = MessageOf<kStorageBLOBAsgnmnt>;

inline constexpr FieldSpec kStorageBLOBCompleteFields[] = {
    {.name = "PRstr_TransactionId", .bits = 8, .summary = "That of the StorageBLOBAssignment."},
};
// It holds its MessageID, unlike the other messages that are only received.
inline constexpr MessageSpec kStorageBLOBComplete{
    .name = "SB_App_MsgStorageBLOBComplete",
    .summary = "The access terminal has taken the BLOB.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .direction = Direction::Parsed,
    .id = "00010011",
    .fields = kStorageBLOBCompleteFields,
    .not_set = "StorageBLOBComplete Message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_App_MsgStorageBLOBComplete = MessageOf<kStorageBLOBComplete>;

}  // namespace vorlan
