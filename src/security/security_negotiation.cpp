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

}  // namespace

void refuse_argument(std::string_view source) { raise(source, "Invalid argument type or value not of expected type."); }

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
  if (outcome.answer == Answer::None) {
    raise(proposal.source, "ConfigurationResponse not received from the AT for " + proposal.proposed);
  }
  if (outcome.answer == Answer::OtherTransaction) {
    raise(proposal.source, "TransactionID field of ConfigurationResponse message " + proposal.mismatched);
  }
  // A terminal that names another value than the only one proposed has not accepted it.
  if (outcome.record != record) raise(proposal.source, proposal.rejected);
}

void negotiate_subtype(SecurityLink& link, std::string_view source, std::int16_t protocol_type, std::int32_t subtype,
                       const SubtypeTexts& texts) {
  if (subtype < 0 || subtype > kHighestSubtype) {
    throw Error(ErrorNumber::InvalidCall, source, "a subtype is 0 to 65535");
  }
  SB_Ses_AttrProtocolType attribute;
  attribute.let<"PRstr_AttribId">(long_to_bin(protocol_type, kIdBits));
  attribute.let<"PRstr_AttrValue">(long_to_bin(subtype, kSubtypeBits));
  const std::string number = std::to_string(subtype);
  const auto text = [&](std::string_view front, std::string_view name, std::string_view separator) {
    return std::string(front).append(name).append(separator).append(number);
  };
  // Blanks before commas belong to the texts.
  negotiate(link, {.source = source,
                   .protocol_type = protocol_types::kSessionConfiguration,
                   .attribute = attribute,
                   .proposed = text("ConfigurationRequest on Session configuration Protocol proposing use of ",
                                    texts.proposed, ", subtype "),
                   .mismatched = text("is not same as that of ConfigurationRequest message , sent to propose ",
                                      texts.mismatched, ", subtype "),
                   .rejected = text("AT rejected the use of ", std::string(texts.rejected) + " ", texts.separator)});
}

std::string ProtocolNegotiation::source(std::string_view member) const {
  return std::string(protocol_->name).append(".").append(member);
}

std::string_view ProtocolNegotiation::uninitialized() const noexcept {
  return protocol_->uninitialized.empty() ? protocol_->name : protocol_->uninitialized;
}

std::shared_ptr<SecurityLink> ProtocolNegotiation::link(std::string_view source) const {
  if (!link_) {
    raise(source,
          std::string(uninitialized()).append(" object not initialized. Please call <Initialize> method first."));
  }
  return link_;
}

bool ProtocolNegotiation::negotiate_subtype(std::optional<std::int32_t> subtype) const {
  constexpr std::string_view kMember = ".NegotiateProtocolSubtype";
  const auto link = this->link(std::string(uninitialized()).append(kMember));
  vorlan::negotiate_subtype(*link, std::string(protocol_->name).append(kMember),
                            security_family(protocol_->family).protocol_type, subtype.value_or(protocol_->subtype),
                            {protocol_->proposed, protocol_->mismatched, protocol_->rejected, protocol_->separator});
  return true;
}

}  // namespace vorlan
