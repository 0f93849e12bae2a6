// ConfigurationRequest and ConfigurationResponse (C.S0024-A 13.7, the generic configuration protocol), and
// AttributeUpdateRequest (13.8, the generic attribute update protocol).
#pragma once

#include "attributes/negotiation/negotiation_of.hpp"
#include "attributes/negotiation/request_getters.hpp"
#include "attributes/negotiation/update_getters.hpp"

namespace vorlan {

// Members that several messages have.
inline constexpr NegotiationMember kMessageString{NegotiationAction::MessageString, "PRstr_MessageString",
                                                  "The received message as one bit string."};
inline constexpr NegotiationMember kMessageId{NegotiationAction::MessageId, "PRstr_MessageID",
                                              "MessageID, from the received message once there is one."};
inline constexpr NegotiationMember kTransactionId{NegotiationAction::TransactionId, "PRstr_TransactionId",
                                                  "TransactionID, from the received message once there is one."};
inline constexpr NegotiationMember kAttributeCount{NegotiationAction::AttributeCount, "PRint_AttributeCount",
                                                   "The number of received records with an AttributeID."};
inline constexpr NegotiationMember kMessageObject{NegotiationAction::MessageObject, "PRobj_MessageObject",
                                                  "Takes a received message object and decodes it."};
inline constexpr NegotiationMember kInitialize{
    NegotiationAction::Initialize, "Initialize",
    "Makes the object ready to build. A non-empty encoder string is sent unchanged."};
inline constexpr NegotiationMember kCreateMessage{
    NegotiationAction::CreateMessage, "CreateMessage",
    "Fills a message object with the encoded message and its length; returns True."};
inline constexpr NegotiationMember kOtherGetters{NegotiationAction::Getters, {}};
inline constexpr NegotiationMember kRecord{NegotiationAction::Record, "ReturnAttributeRecord",
                                           "The record of this number from 0, Length included."};
/// A number that the object keeps for the script.
constexpr NegotiationMember kept(std::string_view name) {
  return {NegotiationAction::Setting, name, "Kept for the script."};
}
constexpr NegotiationMember getter(std::string_view name) { return {NegotiationAction::Getter, name}; }

inline constexpr NegotiationMember kConfigurationRequestMembers[] = {
    kMessageString,
    kMessageId,
    kTransactionId,
    kAttributeCount,
    kMessageObject,
    kInitialize,
    kCreateMessage,
    kOtherGetters,
    {NegotiationAction::FlowNumber, "GetFlowNumber", "The flow of the last received record of a flow; returns True."},
    {NegotiationAction::Decode, "DecodeConfigurationRequestMsg",
     "Counts the received records, and makes the list that ReturnAttributeRecord reads."},
    {NegotiationAction::RecordCount, "PR_intNumAttribRecords", "The number of records that were counted."},
    kRecord,
    kept("PRlng_Stream_Config"),
    kept("PRint_MAC_FTC_SubType"),
    kept("PRint_MAC_RTC_SubType"),
    kept("PRint_MAC_ACH_SubType"),
    kept("PRint_MAC_CCH_SubType"),
    kept("PRint_PhyLay_SubType"),
    kept("PRint_IdleState_SubType"),
    kept("PRint_ScriptType"),
    kept("PRint_ValueIDLength"),
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
    kMessageId,
    kTransactionId,
    {NegotiationAction::ValueId, "PRstr_ValId", "The accepted ValueID of a complex attribute; empty: not accepted."},
    kMessageObject,
    kCreateMessage,
    kInitialize,
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
    kMessageString,
    kMessageId,
    kTransactionId,
    getter("PRobj_AttrReservationKKQoSRequestFwd"),
    getter("PRobj_AttrReservationKKQoSRequestRev"),
    getter("PRobj_AttrReservationKKQoSResponseFwd"),
    getter("PRobj_AttrReservationKKQoSResponseRev"),
    getter("PRobj_AttrMaxMACFlows"),
    getter("PRobj_AttrAssociatedFlowsNN"),
    getter("PRobj_AttrBucketLevelMaxNN"),
    kAttributeCount,
    kMessageObject,
    kInitialize,
    kCreateMessage,
    kOtherGetters,
    {NegotiationAction::RecordOfAttribute, "GetAttributeID", "A record by its number from 0 and its AttributeID."},
    kRecord,
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
