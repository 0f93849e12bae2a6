#include "sector/reverse_traffic_channel.hpp"

#include "attributes/complex/mac_attributes.hpp"
#include "automation/error.hpp"
#include "common/conversions.hpp"
#include "sector/attribute_proposal.hpp"

namespace vorlan {

namespace {

constexpr std::string_view kProposedValue = "00000001";
constexpr int kProbabilityBits = 8;
constexpr int kOffsetBits = 4;
constexpr int kStepBits = 2;

/// Two's complement of a negative number; a number that does not fit is refused by the field.
std::string signed_bits(std::int32_t value, int width) {
  const std::int32_t lowest = -(1 << (width - 1));
  return long_to_bin(value < 0 && value >= lowest ? value + (1 << width) : value, width);
}

using P = SB_PROT_RevTrafficChannel;

constexpr std::array kMembers{
    method<&P::Initialize>("Initialize", "configuration, signalling, messages",
                           "Takes the configuration, the signalling object and its message collection"),
    method<&P::NegotiateRateParametersAttribute>("NegotiateRateParametersAttribute", "",
                                                 "Proposes the configuration's rate transition probabilities"),
    method<&P::NegotiatePowerParametersAttribute>("NegotiatePowerParametersAttribute", "",
                                                  "Proposes the configuration's data channel offsets and RPC step"),
};

constexpr ErrorRow kWrongArgument{"SB_PROT_RevTrafficChannel.Initialize",
                                  "Invalid argument type or value not of expected type.",
                                  "an argument is Nothing or no object"};

constexpr std::string_view kRateSource = "SB_PROT_RevTrafficChannel.NegotiateRateParametersAttribute";
constexpr std::string_view kPowerSource = "SB_PROT_RevTrafficChannel.NegotiatePowerParametersAttribute";

// Both attributes share these three texts, two of which name the first. The 1 in "Protoco1" is a digit on purpose.
constexpr ErrorRow kNotInitialized{
    kRateSource, "SB_PROT_RevTrafficChannel object not initialized. Please call <Initialize> method first.",
    "call before Initialize"};
constexpr ErrorRow kNoAnswer{kRateSource,
                             "ConfigurationResponse not received from the AT for ConfigurationRequest on Default "
                             "Reverse Traffic Channel MAC Protoco1 proposing Rate Parameters Attribute",
                             kWithoutAnswer};
// The blank at the source's end is on purpose.
constexpr ErrorRow kOtherTransaction{"SB_PROT_RevTrafficChannel.NegotiateRateParametersAttribute ",
                                     "TransactionID field of ConfigurationResponse message is not same as that of "
                                     "ConfigurationRequest message , sent with Rate Parameters Attribute",
                                     kWithOtherTransaction};
constexpr ErrorRow kRateRejected{kRateSource, "AT rejected the use of new RateParameter Attribute sentfrom AN",
                                 kWithRefusal};
constexpr ErrorRow kPowerRejected{kPowerSource, "AT rejected the use of new PowerParameter Attribute sentfrom AN",
                                  kWithRefusal};

constexpr ErrorRow kErrors[] = {kWrongArgument,
                                kNotInitialized,
                                kNoAnswer,
                                kOtherTransaction,
                                kRateRejected,
                                kNotInitialized.from(kPowerSource),
                                kNoAnswer.from(kPowerSource),
                                kOtherTransaction.from(kPowerSource),
                                kPowerRejected};

}  // namespace

struct SB_PROT_RevTrafficChannel::Proposal {
  std::string_view request_label;
  std::string_view response_label;
  std::string attribute_id;
  std::string attribute;
  ErrorRow unanswered;
  ErrorRow other_transaction;
  ErrorRow rejected;
};

ClassInfo::Texts SB_PROT_RevTrafficChannel::texts() noexcept {
  return {"SB_PROT_RevTrafficChannel", "Proposes attributes of the default reverse traffic channel MAC protocol",
          "10.8"};
}
std::span<const BoundMember> SB_PROT_RevTrafficChannel::members() noexcept { return kMembers; }
std::vector<ErrorInfo> SB_PROT_RevTrafficChannel::errors() {
  std::vector<ErrorInfo> list;
  list_errors(list, texts().name, kErrors);
  TestSetAccess::list_errors(list, texts().name);
  return list;
}

void SB_PROT_RevTrafficChannel::Initialize(const Value& configuration, const Value& signalling, const Value& messages) {
  for (const Value* argument : {&configuration, &signalling, &messages}) {
    const auto* object = argument->as<Ref<Object>>();
    if (object == nullptr || !*object) raise(kWrongArgument);
  }
  access_ = TestSetAccess::named_by(*configuration.to_object());
  configuration_ = configuration.to_object();
  signalling_ = signalling.to_object();
  messages_ = messages.to_object();
  initialized_ = true;
}

void SB_PROT_RevTrafficChannel::check_initialized(std::string_view source) const {
  if (!initialized_) raise(kNotInitialized.from(source));
}

std::int32_t SB_PROT_RevTrafficChannel::setting(std::string_view property) const {
  return configuration_->get(property, "").to_long();
}

std::string SB_PROT_RevTrafficChannel::rate_parameters() const {
  const auto probability = [this](std::string_view property) {
    return long_to_bin(setting(property), kProbabilityBits);
  };
  SB_Mac_ValRateParameters value;
  value.let<"PRstr_Transition009k6_019k2">(probability("PRint_Transition009k6_019k2"));
  value.let<"PRstr_Transition019k2_038k4">(probability("PRint_Transition019k2_038k4"));
  value.let<"PRstr_Transition038k4_076k8">(probability("PRint_Transition038k4_076k8"));
  value.let<"PRstr_Transition076k8_153k6">(probability("PRint_Transition076k8_153k6"));
  value.let<"PRstr_Transition019k2_009k6">(probability("PRint_Transition019k2_009k6"));
  value.let<"PRstr_Transition038k4_019k2">(probability("PRint_Transition038k4_019k2"));
  value.let<"PRstr_Transition076k8_038k4">(probability("PRint_Transition076k8_038k4"));
  value.let<"PRstr_Transition153k6_076k8">(probability("PRint_Transition153k6_076k8"));
  value.let<"PRstr_ValueId">(kProposedValue);
  return value.build();
}

std::string SB_PROT_RevTrafficChannel::power_parameters() const {
  const auto offset = [this](std::string_view property) { return signed_bits(setting(property), kOffsetBits); };
  SB_Mac_ValRTCPowerParameters value;
  value.let<"PRstr_ValueId">(kProposedValue);
  value.let<"PRstr_DataOffsetNom">(offset("PRint_DataOffsetNom"));
  value.let<"PRstr_DataOffset9k6">(offset("PRint_DataOffset9k6"));
  value.let<"PRstr_DataOffset19k2">(offset("PRint_DataOffset19k2"));
  value.let<"PRstr_DataOffset38k4">(offset("PRint_DataOffset38k4"));
  value.let<"PRstr_DataOffset76k8">(offset("PRint_DataOffset76k8"));
  value.let<"PRstr_DataOffset153k6">(offset("PRint_DataOffset153k6"));
  value.let<"PRstr_RPCStep">(long_to_bin(setting("PRint_RPCStep"), kStepBits));
  value.let<"PRstr_Reserved">("000000");
  return value.build();
}

bool SB_PROT_RevTrafficChannel::NegotiateRateParametersAttribute() {
  check_initialized(kRateSource);
  const SB_Mac_AttrRateParameters attribute;
  return negotiate({.request_label = "RPConfigRequestMessage",
                    .response_label = "RPConfigResponseMessage",
                    .attribute_id = std::string(attribute.id()),
                    .attribute = attribute.build(rate_parameters()),
                    .unanswered = kNoAnswer,
                    .other_transaction = kOtherTransaction,
                    .rejected = kRateRejected});
}

bool SB_PROT_RevTrafficChannel::NegotiatePowerParametersAttribute() {
  check_initialized(kPowerSource);
  const SB_Mac_AttrRTCPowerParameters attribute;
  return negotiate({.request_label = "PPConfigRequestMessage",
                    .response_label = "PPConfigResponseMessage",
                    .attribute_id = std::string(attribute.id()),
                    .attribute = attribute.build(power_parameters()),
                    .unanswered = kNoAnswer.from(kPowerSource),
                    .other_transaction = kOtherTransaction.from(kPowerSource),
                    .rejected = kPowerRejected});
}

bool SB_PROT_RevTrafficChannel::negotiate(const Proposal& proposal) {
  using Answer = ProposalOutcome::Answer;
  Signalling signalling(access_, signalling_, messages_);
  const auto outcome = propose(signalling, {.request_label = proposal.request_label,
                                            .response_label = proposal.response_label,
                                            .protocol_type = protocol_types::kReverseTrafficMac,
                                            .transaction_id = transaction_id_++,
                                            .attribute_id = proposal.attribute_id,
                                            .record = proposal.attribute,
                                            .keeps = AttributeProposal::Keeps::RefusedAnswer});
  switch (outcome.answer) {
    case Answer::None: raise(proposal.unanswered);
    case Answer::OtherTransaction: raise(proposal.other_transaction);
    case Answer::Refused: raise(proposal.rejected);
    case Answer::Accepted: break;
  }
  return true;
}

}  // namespace vorlan
