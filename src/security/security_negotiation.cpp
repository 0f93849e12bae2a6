#include "security/security_negotiation.hpp"

#include "attributes/con_ses_simple_attributes.hpp"
#include "automation/error.hpp"
#include "common/conversions.hpp"
#include "sector/attribute_proposal.hpp"

namespace vorlan {

namespace {

constexpr int kIdBits = 16;
constexpr int kSubtypeBits = 16;
constexpr std::int32_t kHighestSubtype = 0xFFFF;
constexpr std::string_view kNegotiate = ".NegotiateProtocolSubtype";

/// The class in the text, and in the source, of a negotiation before Initialize.
std::string uninitialized(const SecurityProtocol& protocol) {
  return std::string(protocol.uninitialized.empty() ? protocol.name : protocol.uninitialized);
}
std::string uninitialized_text(const SecurityProtocol& protocol) {
  return uninitialized(protocol).append(" object not initialized. Please call <Initialize> method first.");
}

SubtypeNames names_of(const SecurityProtocol& protocol) {
  return {protocol.proposed, protocol.mismatched, protocol.rejected, protocol.separator};
}

ProposalTexts texts_about(std::string_view proposed, std::string_view mismatched, std::string rejected) {
  return {
      std::string("ConfigurationResponse not received from the AT for ConfigurationRequest on ").append(proposed),
      std::string("TransactionID field of ConfigurationResponse message is not same as that of ConfigurationRequest ")
          .append(mismatched),
      std::move(rejected)};
}

}  // namespace

void refuse_argument(std::string_view source) { raise(kWrongArgument.from(source)); }

Ref<Object> object_argument(const Value& argument, std::string_view source) {
  const auto* object = argument.as<Ref<Object>>();
  if (object == nullptr || !*object) refuse_argument(source);
  return *object;
}

std::optional<std::int32_t> number_argument(const Value& argument, std::string_view source) {
  try {
    return argument.to_long();
  } catch (const Error& error) {
    if (error.is(ErrorNumber::Overflow)) return std::nullopt;
    refuse_argument(source);
  }
}

std::shared_ptr<SecurityLink> new_link(const Value& signalling, const Value& messages,
                                       const std::optional<Ref<Object>>& configuration, std::string_view source) {
  auto link = std::make_shared<SecurityLink>();
  link->signalling = object_argument(signalling, source);
  link->messages = object_argument(messages, source);
  if (configuration && *configuration) link->access = TestSetAccess::named_by(**configuration);
  return link;
}

void negotiate(SecurityLink& link, const SecurityProposal& proposal) {
  using Answer = ProposalOutcome::Answer;
  Signalling signalling = link.open();
  const std::string record = proposal.attribute.build();
  const ProposalOutcome outcome = propose(signalling, {.request_label = "ConfigRequestMessage",
                                                       .response_label = "ConfigResponseMessage",
                                                       .protocol_type = proposal.protocol_type,
                                                       .transaction_id = link.next_transaction_id++,
                                                       .attribute_id = proposal.attribute.stored_id(),
                                                       .record = record,
                                                       .keeps = AttributeProposal::Keeps::Request});
  if (outcome.answer == Answer::None) raise(proposal.source, proposal.texts.unanswered);
  if (outcome.answer == Answer::OtherTransaction) raise(proposal.source, proposal.texts.other_transaction);
  // A terminal that names another value than the only one proposed has not accepted it.
  if (outcome.record != record) raise(proposal.source, proposal.texts.rejected);
}

void list_errors(std::vector<ErrorInfo>& list, std::string_view source, const ProposalTexts& texts) {
  const ErrorRow rows[] = {{source, texts.unanswered, kWithoutAnswer},
                           {source, texts.other_transaction, kWithOtherTransaction},
                           {source, texts.rejected, kWithRefusal}};
  list_errors(list, {}, std::span<const ErrorRow>(rows));
}

ProposalTexts subtype_texts(const SubtypeNames& names, std::string_view subtype) {
  const auto text = [&](std::string_view front, std::string_view name, std::string_view separator) {
    return std::string(front).append(name).append(separator).append(subtype);
  };
  // Blanks before commas belong to the texts.
  return texts_about(text("Session configuration Protocol proposing use of ", names.proposed, ", subtype "),
                     text("message , sent to propose ", names.mismatched, ", subtype "),
                     text("AT rejected the use of ", std::string(names.rejected) + " ", names.separator));
}

ProposalTexts key_length_texts(std::string_view name, std::string_view refused_name, std::string_view length) {
  const auto text = [&](std::string_view front, std::string_view key) {
    return std::string(front).append(key).append(" ").append(length);
  };
  // "Key Exchange" on purpose, whatever the protocol.
  return texts_about(text("Key Exchange Protocol proposing ", name), text("message, proposing ", name),
                     text("AT rejected ", refused_name));
}

void negotiate_subtype(SecurityLink& link, std::string_view source, std::int16_t protocol_type, std::int32_t subtype,
                       const SubtypeNames& names) {
  if (subtype < 0 || subtype > kHighestSubtype) raise(kWrongSubtype.from(source));
  SB_Ses_AttrProtocolType attribute;
  attribute.let<"PRstr_AttribId">(long_to_bin(protocol_type, kIdBits));
  attribute.let<"PRstr_AttrValue">(long_to_bin(subtype, kSubtypeBits));
  negotiate(link, {.source = source,
                   .protocol_type = protocol_types::kSessionConfiguration,
                   .attribute = attribute,
                   .texts = subtype_texts(names, std::to_string(subtype))});
}

std::string ProtocolNegotiation::source(std::string_view member) const {
  return std::string(protocol_->name).append(".").append(member);
}

std::shared_ptr<SecurityLink> ProtocolNegotiation::link(std::string_view source) const {
  if (!link_) raise(source, uninitialized_text(*protocol_));
  return link_;
}

bool ProtocolNegotiation::negotiate_subtype(std::optional<std::int32_t> subtype) const {
  const auto link = this->link(uninitialized(*protocol_).append(kNegotiate));
  vorlan::negotiate_subtype(*link, std::string(protocol_->name).append(kNegotiate),
                            security_family(protocol_->family).protocol_type, subtype.value_or(protocol_->subtype),
                            names_of(*protocol_));
  return true;
}

std::vector<ErrorInfo> ProtocolNegotiation::errors(const SecurityProtocol& protocol,
                                                   const std::vector<ErrorInfo>& own) {
  std::vector<ErrorInfo> list;
  const std::string initialize = std::string(protocol.name).append(".Initialize");
  const std::string negotiate = std::string(protocol.name).append(kNegotiate);
  const ErrorRow rows[] = {kWrongArgument.from(initialize), kWrongSubtype.from(negotiate)};
  list_errors(list, protocol.name, std::span<const ErrorRow>(rows));
  list_uninitialized(list, protocol, uninitialized(protocol).append(kNegotiate));
  list_errors(list, negotiate, subtype_texts(names_of(protocol), "<subtype>"));
  list.insert(list.end(), own.begin(), own.end());
  TestSetAccess::list_errors(list, protocol.name);
  return list;
}

void ProtocolNegotiation::list_uninitialized(std::vector<ErrorInfo>& list, const SecurityProtocol& protocol,
                                             std::string_view source) {
  list.push_back({std::string(source), uninitialized_text(protocol), "call before Initialize"});
}

}  // namespace vorlan
