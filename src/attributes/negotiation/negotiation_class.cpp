// What is made of a negotiation message's row: its members and the texts that it raises.
#include "attributes/negotiation/negotiation_message.hpp"
#include "automation/error.hpp"

namespace vorlan {

namespace {

constexpr std::string_view kPrefix = "PRobj_Attr";

ParameterInfo text(std::string_view name, bool optional = false) {
  return {.name = name, .type = ValueType::String, .optional = optional};
}
ParameterInfo number(std::string_view name, bool optional = false) {
  return {.name = name, .type = ValueType::Integer, .optional = optional};
}

/// How an action is called: all but name and description.
MemberInfo shape(NegotiationAction action) {
  using enum NegotiationAction;
  switch (action) {
    case MessageString:
    case MessageId:
    case EnhancedIdleState: return {.gets = true, .type = ValueType::String};
    case TransactionId: return {.gets = true, .lets = true, .type = ValueType::String};
    case MessageObject: return {.sets = true, .type = ValueType::Object};
    case Initialize:
      return {.calls = true,
              .type = ValueType::Empty,
              .parameters = {{.name = "MessageObject", .type = ValueType::Object}, text("EncoderString", true)}};
    case CreateMessage:
      return {.calls = true,
              .type = ValueType::Boolean,
              .parameters = {{.name = "MessageObject", .type = ValueType::Object, .by_reference = true},
                             text("AttributeRecords", true)}};
    case AttributeCount: return {.gets = true, .type = ValueType::Integer, .parameters = {text("AttributeID")}};
    case Getter:
    case Getters: return {.gets = true, .type = ValueType::Object, .parameters = {number("Index")}};
    case FlowNumber:
      return {.calls = true,
              .type = ValueType::Boolean,
              .parameters = {{.name = "FlowNumber", .type = ValueType::Integer, .by_reference = true}}};
    case Decode: return {.calls = true, .type = ValueType::Empty};
    case RecordCount: return {.gets = true, .type = ValueType::Integer};
    case Record: return {.calls = true, .type = ValueType::String, .parameters = {number("Index")}};
    case RecordOfAttribute:
      return {.calls = true, .type = ValueType::String, .parameters = {number("Index"), text("AttributeID")}};
    case ValueId:
    case AttributeValue:
      return {.gets = true, .type = ValueType::String, .parameters = {text("AttributeID"), number("Index", true)}};
    case Setting: return {.gets = true, .lets = true, .type = ValueType::Integer};
  }
  return {};
}

}  // namespace

NegotiationClass::NegotiationClass(const NegotiationSpec& spec)
    : spec_(spec), info_([&] {
        auto members = list_members();
        std::vector<FieldInfo> fields{
            {.name = "MessageID", .width = "8", .initial = std::string(spec.id), .origin = "constant"},
            {.name = "TransactionID", .width = "8", .initial = std::string(spec.transaction_id), .origin = "set"},
            {.name = "AttributeRecords", .width = "8 x (Length + 1) each", .origin = "argument"}};
        return ClassInfo({spec.name, spec.summary, spec.clause}, std::move(members), std::move(fields), list_errors());
      }()) {}

std::string NegotiationClass::source(std::string_view member) const {
  return std::string(spec_.name).append(".").append(member);
}

std::string NegotiationClass::source(const AttributeGetter& getter) const {
  return getter.source.empty() ? source(getter.name) : std::string(getter.source);
}

std::string NegotiationClass::not_set() const {
  return std::string(spec_.message).append(" message object not set. Please set <PRobj_MessageObject> property first.");
}

std::string NegotiationClass::not_initialized() const {
  return "Class not initialized. Please call <Initialize> of " + std::string(spec_.message) + " Message first.";
}

std::string NegotiationClass::not_counted(std::string_view attribute_id) const {
  return std::string("Message Object Not Set. GET count of attributes failed for ")
      .append(attribute_id)
      .append(" of ")
      .append(spec_.counted)
      .append(" Message");
}

std::string NegotiationClass::not_searched(std::string_view attribute_id) const {
  return std::string("<MessageObject> property not set for AttributeId: ")
      .append(attribute_id)
      .append(" from ")
      .append(spec_.message)
      .append(" Message");
}

std::string NegotiationClass::no_records() const {
  return std::string(spec_.message).append(" message has no attribute records.");
}

std::string NegotiationClass::no_flow() const {
  return std::string(spec_.message).append(" message has no attribute record with a flow number.");
}

std::string NegotiationClass::failed(const AttributeGetter& getter) const {
  const std::string_view attribute = getter.attribute.empty() ? getter.name.substr(kPrefix.size()) : getter.attribute;
  const std::string_view message = getter.message.empty() ? spec_.counted : getter.message;
  return std::string("GET failed for ").append(attribute).append(" Attribute from ").append(message).append(" Message");
}

std::string NegotiationClass::failed_without_message(const AttributeGetter& getter) const {
  return "Message Object Not Set. " + failed(getter);
}

std::vector<MemberInfo> NegotiationClass::list_members() {
  std::vector<MemberInfo> members;
  std::vector<bool> listed(spec_.getters.size(), false);
  const auto add = [&](NegotiationAction action, std::string_view name, std::string_view summary, std::size_t index) {
    MemberInfo member = shape(action);
    member.name = name;
    member.summary = summary;
    members.push_back(std::move(member));
    members_.push_back({action, static_cast<std::uint16_t>(index)});
  };
  const auto add_getter = [&](std::size_t i) {
    listed[i] = true;
    const AttributeGetter& getter = spec_.getters[i];
    add(NegotiationAction::Getter, getter.name, "The attribute, filled with the record of this number from 0.", i);
    if (getter.takes_id) members.back().parameters.push_back(text("AttributeID", true));
  };
  for (const NegotiationMember& row : spec_.members) {
    if (row.action == NegotiationAction::Getter || row.action == NegotiationAction::Getters) {
      for (std::size_t i = 0; i < spec_.getters.size(); ++i) {
        const bool wanted = row.action == NegotiationAction::Getters ? !listed[i] : spec_.getters[i].name == row.name;
        if (wanted) add_getter(i);
      }
    } else if (row.action == NegotiationAction::Setting) {
      add(row.action, row.name, row.summary, settings_.size());
      if (row.name.starts_with("PRlng")) {
        members.back().type = ValueType::Long;
        settings_.emplace_back(std::int32_t{0});
      } else {
        settings_.emplace_back(std::int16_t{0});
      }
    } else {
      add(row.action, row.name, row.summary, 0);
      if (row.action == NegotiationAction::MessageString) members.back().lets = spec_.lets_message_string;
    }
  }
  return members;
}

std::vector<ErrorInfo> NegotiationClass::list_errors() const {
  std::vector<ErrorInfo> errors{
      {source("CreateMessage"), not_initialized(), "call before Initialize"},
      {source("PRstr_TransactionID"), "Encoder and this property cannot be used simultaneously.",
       "let in encoder mode"},
      {source("PRstr_TransactionID"), "Length of <TransactionID> field should be 8 bits.", "let of another width"},
      {source("PRstr_MessageString"), not_set(), "get before a message is received"},
      error_info(Error(ErrorNumber::Overflow, source("CreateMessage")), "call with more than 32767 bits"),
      error_info(Error(ErrorNumber::ObjectNotSet, source("CreateMessage")), "call with Nothing"),
      error_info(Error(ErrorNumber::ObjectNotSet, source("PRobj_MessageObject")), "set to Nothing")};
  constexpr std::string_view kTooEarly = "get before a message is received";
  constexpr std::string_view kId = "<AttributeID>";  // stands for the one that is asked for
  for (const NegotiationMember& row : spec_.members) {
    const std::string member = source(row.name);
    switch (row.action) {
      case NegotiationAction::AttributeCount:
        errors.push_back({member, not_counted(kId), std::string(kTooEarly)});
        break;
      case NegotiationAction::ValueId:
      case NegotiationAction::AttributeValue:
        errors.push_back({member, std::string(kWrongId), "get of another width"});
        errors.push_back({member, not_searched(kId), std::string(kTooEarly)});
        break;
      case NegotiationAction::FlowNumber:
        errors.push_back({member, not_set(), "call before a message is received"});
        errors.push_back({member, no_records(), "call with 16 bits received"});
        errors.push_back({member, no_flow(), "call with no such record received"});
        break;
      case NegotiationAction::Record:
        errors.push_back({member, std::string(kNoEntry), "call with a number beyond the list, or before there is one"});
        break;
      case NegotiationAction::EnhancedIdleState:
        errors.push_back({source(kEnhancedIdleStateSource), not_set(), std::string(kTooEarly)});
        break;
      default: break;
    }
  }
  for (const AttributeGetter& getter : spec_.getters) {
    const auto add = [&](std::string text, std::string_view when) {
      errors.push_back({source(getter), std::move(text), when_of(getter.name, source(getter), when)});
    };
    add(failed_without_message(getter), kTooEarly);
    if (spec_.refuses_missing) add(failed(getter), "get of a record that is not there");
  }
  return errors;
}

}  // namespace vorlan
