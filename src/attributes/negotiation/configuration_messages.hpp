// ConfigurationRequest and ConfigurationResponse (C.S0024-A 13.7, the generic configuration protocol), and
// AttributeUpdateRequest (13.8, the generic attribute update protocol).
#pragma once

#include "attributes/negotiation/negotiation_of.hpp"
#include "attributes/negotiation/request_getters.hpp"
#include "attributes/negotiation/update_getters.hpp"

namespace vorlan {

inline constexpr NegotiationMember kConfigurationRequestMembers[] = {
    {NegotiationAction::MessageString, "PRstr_MessageString", "The received message as one bit string."},
    {NegotiationAction::MessageId, "PRstr_MessageID", "MessageID, from the received message once there is one."},
    {NegotiationAction::TransactionId, "PRstr_TransactionId",
     "TransactionID, from the received message once there is one."},
    {NegotiationAction::AttributeCount, "PRint_AttributeCount", "The number of received records with an AttributeID."},
    {NegotiationAction::MessageObject, "PRobj_MessageObject", "Takes a received message object and decodes it."},
    {NegotiationAction::Initialize, "Initialize",
     "Makes the object ready to build. A non-empty encoder string is sent unchanged."},
    {NegotiationAction::CreateMessage, "CreateMessage",
     "Fills a message object with the encoded message and its length; returns True."},
    {NegotiationAction::Getters, {}},
    {NegotiationAction::FlowNumber, "GetFlowNumber", "The flow of the last received record of a flow; returns True."},
    {NegotiationAction::Decode, "DecodeConfigurationRequestMsg",
     "Counts the received records, and makes the list that ReturnAttributeRecord reads."},
    {NegotiationAction::RecordCount, "PR_intNumAttribRecords", "The number of records that were counted."},
    {NegotiationAction::Record, "ReturnAttributeRecord", "The record of this number from 0, Length included."},
    {NegotiationAction::Setting, "PRlng_Stream_Config", "Kept for the script."},
    {NegotiationAction::Setting, "PRint_MAC_FTC_SubType", "Kept for the script."},
    {NegotiationAction::Setting, "PRint_MAC_RTC_SubType", "Kept for the script."},
    {NegotiationAction::Setting, "PRint_MAC_ACH_SubType", "Kept for the script."},
    {NegotiationAction::Setting, "PRint_MAC_CCH_SubType", "Kept for the script."},
    {NegotiationAction::Setting, "PRint_PhyLay_SubType", "Kept for the script."},
    {NegotiationAction::Setting, "PRint_IdleState_SubType", "Kept for the script."},
    {NegotiationAction::Setting, "PRint_ScriptType", "Kept for the script."},
    {NegotiationAction::Setting, "PRint_ValueIDLength", "Kept for the script."},
    {NegotiationAction::EnhancedIdleState, "PRstr_EnhancedIdleStateAttrValue",
     "The subtypes that the received message proposes for the Idle State protocol."},
};
inline constexpr NegotiationSpec kConfigurationRequest{.name = "SB_MsgConfigurationRequest",
                                                       .summary = "Proposes values of attributes",
                                                       .clause = "13.7",
                                                       .id = "01010000",
                                                       .members = kConfigurationRequestMembers,
                                                       .getters = kRequestGetters,
                                                       .message = "ConfigurationRequest",
                                                       .counted = "Configuration Request"};
using SB_MsgConfigurationRequest = NegotiationOf<kConfigurationRequest>;

inline constexpr NegotiationMember kConfigurationResponseMembers[] = {
    {NegotiationAction::MessageString, "PRstr_MessageString",
     "The received message as one bit string; setting it receives a message without a message object."},
    {NegotiationAction::MessageId, "PRstr_MessageID", "MessageID, from the received message once there is one."},
    {NegotiationAction::TransactionId, "PRstr_TransactionId",
     "TransactionID, from the received message once there is one."},
    {NegotiationAction::ValueId, "PRstr_ValId", "The accepted ValueID of a complex attribute; empty: not accepted."},
    {NegotiationAction::MessageObject, "PRobj_MessageObject", "Takes a received message object and decodes it."},
    {NegotiationAction::CreateMessage, "CreateMessage",
     "Fills a message object with the encoded message and its length; returns True."},
    {NegotiationAction::Initialize, "Initialize",
     "Makes the object ready to build. A non-empty encoder string is sent unchanged."},
    {NegotiationAction::AttributeValue, "PRstr_AttrVal",
     "The accepted value of a simple attribute; empty: not accepted."},
};
inline constexpr NegotiationSpec kConfigurationResponse{.name = "SB_MsgConfigurationResponse",
                                                        .summary = "Names the values of attributes that are accepted",
                                                        .clause = "13.7",
                                                        .id = "01010001",
                                                        .transaction_id = "00000000",
                                                        .members = kConfigurationResponseMembers,
                                                        .message = "ConfigurationResponse",
                                                        .lets_message_string = true,
                                                        .names_accepted = true};
using SB_MsgConfigurationResponse = NegotiationOf<kConfigurationResponse>;

inline constexpr NegotiationMember kAttributeUpdateRequestMembers[] = {
    {NegotiationAction::MessageString, "PRstr_MessageString", "The received message as one bit string."},
    {NegotiationAction::MessageId, "PRstr_MessageID", "MessageID, from the received message once there is one."},
    {NegotiationAction::TransactionId, "PRstr_TransactionId",
     "TransactionID, from the received message once there is one."},
    {NegotiationAction::Getter, "PRobj_AttrReservationKKQoSRequestFwd"},
    {NegotiationAction::Getter, "PRobj_AttrReservationKKQoSRequestRev"},
    {NegotiationAction::Getter, "PRobj_AttrReservationKKQoSResponseFwd"},
    {NegotiationAction::Getter, "PRobj_AttrReservationKKQoSResponseRev"},
    {NegotiationAction::Getter, "PRobj_AttrMaxMACFlows"},
    {NegotiationAction::Getter, "PRobj_AttrAssociatedFlowsNN"},
    {NegotiationAction::Getter, "PRobj_AttrBucketLevelMaxNN"},
    {NegotiationAction::AttributeCount, "PRint_AttributeCount", "The number of received records with an AttributeID."},
    {NegotiationAction::MessageObject, "PRobj_MessageObject", "Takes a received message object and decodes it."},
    {NegotiationAction::Initialize, "Initialize",
     "Makes the object ready to build. A non-empty encoder string is sent unchanged."},
    {NegotiationAction::CreateMessage, "CreateMessage",
     "Fills a message object with the encoded message and its length; returns True."},
    {NegotiationAction::Getters, {}},
    {NegotiationAction::RecordOfAttribute, "GetAttributeID", "A record by its number from 0 and its AttributeID."},
    {NegotiationAction::Record, "ReturnAttributeRecord", "The record of this number from 0, Length included."},
};
inline constexpr NegotiationSpec kAttributeUpdateRequest{.name = "SB_MsgAttributeUpdateRequest",
                                                         .summary = "Changes values of attributes within a session",
                                                         .clause = "13.8",
                                                         .id = "01010010",
                                                         .transaction_id = "00000000",
                                                         .members = kAttributeUpdateRequestMembers,
                                                         .getters = kUpdateGetters,
                                                         .message = "AttributeUpdateRequest",
                                                         .counted = "AttributeUpdateRequest",
                                                         .refuses_missing = true,
                                                         .lists_at_once = true};
using SB_MsgAttributeUpdateRequest = NegotiationOf<kAttributeUpdateRequest>;

}  // namespace vorlan
