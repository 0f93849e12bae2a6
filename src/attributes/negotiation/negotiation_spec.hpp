// The rows from which the messages that carry attribute records are made.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "attributes/negotiation/attribute_getter.hpp"

namespace vorlan {

enum class NegotiationAction : std::uint8_t {
  MessageString,
  MessageId,
  TransactionId,
  MessageObject,
  Initialize,
  CreateMessage,
  AttributeCount,
  Getter,   ///< by its name
  Getters,  ///< all that no row before names
  FlowNumber,
  Decode,
  RecordCount,
  Record,
  RecordOfAttribute,
  ValueId,
  AttributeValue,
  EnhancedIdleState,
  Setting,  ///< a number that the object keeps for scripts
};

/// A member, where it stands in the class's listing.
struct NegotiationMember {
  NegotiationAction action;
  std::string_view name;
  std::string_view summary = {};
};

/// One class. A message is MessageID, TransactionID (8 bits each) and attribute records up to its end.
struct NegotiationSpec {
  std::string_view name;                 ///< "SB_MsgConfigurationRequest"
  std::string_view summary;              ///< one line
  std::string_view clause;               ///< of C.S0024
  std::string_view id;                   ///< MessageID
  std::string_view transaction_id = {};  ///< of a new object; none: nothing is sent until the script sets it
  std::span<const NegotiationMember> members;
  std::span<const AttributeGetter> getters = {};
  std::string_view message;  ///< what texts call it: "ConfigurationRequest"
  std::string_view counted;  ///< and that of PRint_AttributeCount: "Configuration Request"
  /// A getter that finds no record raises its own text, not that of the attribute's class.
  bool refuses_missing = false;
  /// The record list is there as soon as a message is received, not only once the message is decoded by name.
  bool lists_at_once = false;
  bool lets_message_string = false;
  bool names_accepted = false;  ///< records hold what is accepted: a ValueID, or a value
};

}  // namespace vorlan
