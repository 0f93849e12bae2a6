// The rows from which the messages that carry attribute records are made.
#pragma once

#include <algorithm>
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

/// The first fault of a message's row as text; the empty text if there is none. Checked when the rows are compiled.
constexpr std::string_view fault(const NegotiationSpec& message) {
  const auto is_bits = [](std::string_view text, std::size_t width) {
    return text.size() == width && text.find_first_not_of("01") == std::string_view::npos;
  };
  if (!message.name.starts_with("SB_Msg")) return "a class name begins with SB_Msg";
  if (message.summary.empty() || message.clause.empty()) return "no summary or no clause";
  if (!is_bits(message.id, 8)) return "a MessageID has 8 bits";
  if (!message.transaction_id.empty() && !is_bits(message.transaction_id, 8)) return "a TransactionID has 8 bits";
  if (message.message.empty()) return "no name for texts";

  const auto listed_twice = [](const auto& rows) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        if (rows[i].name == rows[j].name) return true;
      }
    }
    return false;
  };
  if (listed_twice(message.members)) return "a member is listed twice";
  if (listed_twice(message.getters)) return "a getter is listed twice";

  const auto members = [&](NegotiationAction action) {
    return std::count_if(message.members.begin(), message.members.end(),
                         [&](const NegotiationMember& member) { return member.action == action; });
  };
  const auto all_getters = members(NegotiationAction::Getters);
  if (all_getters != (message.getters.empty() ? 0 : 1)) return "every getter has a place in the listing";
  if (message.counted.empty() != (all_getters + members(NegotiationAction::AttributeCount) == 0)) {
    return "a name for the texts of getters and counts";
  }
  if (members(NegotiationAction::Record) != (message.lists_at_once ? 1 : members(NegotiationAction::Decode))) {
    return "a list of records is made, and read";
  }
  for (const NegotiationMember& member : message.members) {
    const bool is_known = std::any_of(message.getters.begin(), message.getters.end(),
                                      [&](const AttributeGetter& getter) { return getter.name == member.name; });
    if (member.action == NegotiationAction::Getter && !is_known) return "a getter that the message does not have";
    const bool is_number = member.name.starts_with("PRint_") || member.name.starts_with("PRlng_");
    if (member.action == NegotiationAction::Setting && !is_number) return "an Integer or a Long is kept for scripts";
  }
  for (const AttributeGetter& getter : message.getters) {
    if (!getter.name.starts_with("PRobj_")) return "a getter's name begins with PRobj_";
    if (!getter.name.starts_with("PRobj_Attr") && getter.attribute.empty()) return "no name for a getter's texts";
    if (!getter.searched.empty() && !is_bits(getter.searched, 8) && !is_bits(getter.searched, 16)) {
      return "an AttributeID has 8 or 16 bits";
    }
  }
  return {};
}

}  // namespace vorlan
