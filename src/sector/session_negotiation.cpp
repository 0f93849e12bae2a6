// SB_Sector: the session configuration that the access network opens and closes.
#include "attributes/negotiation/configuration_messages.hpp"
#include "common/conversions.hpp"
#include "messages/session/session_configuration.hpp"
#include "sector/configuration_answer.hpp"
#include "sector/sector.hpp"
#include "sector/sector_errors.hpp"

namespace vorlan {

namespace {

constexpr std::int16_t kCompleteId = 0;
constexpr std::int16_t kRequestId = 80;
constexpr std::size_t kOctet = 8;

/// The protocols on which the access terminal may propose attributes, in the order in which a pass visits them.
struct Proposals {
  std::int16_t protocol_type;
  std::string_view request_label;
  std::string_view response_label;
  std::int16_t when_sent;
};
constexpr std::array kProposals{
    Proposals{protocol_types::kSessionConfiguration, "ConfigurationRequestMSG", "ConfigurationResponseMSG",
              test_set::kWhenQueued},
    Proposals{protocol_types::kStream, "ConfigurationRequestMSG_Stream", "ConfigurationResponseMSG_Stream",
              test_set::kWhenSent},
    Proposals{protocol_types::kReverseTrafficMac, "ConfigurationRequestMSG_RTCMAC", "ConfigurationResponseMSG_RTCMAC",
              test_set::kWhenSent},
    Proposals{protocol_types::kRouteUpdate, "ConfigurationRequestMSG_RouteUpdate",
              "ConfigurationResponseMSG_RouteUpdate", test_set::kWhenSent},
};

/// Of the reverse traffic channel MAC; its AttributeIDs are wider than those of the subtypes before it.
constexpr std::int16_t kLaterMacSubtype = 3;
constexpr std::string_view kReverseMacType = "0000000000000100";

/// What is proposed first is what is accepted.
bool proposes_later_mac(const SB_MsgConfigurationRequest& request, bool otherwise) {
  const std::string_view record = request.record(kReverseMacType);
  if (record.empty()) return otherwise;
  return bin_to_long(record.substr(kOctet + kReverseMacType.size(), 2 * kOctet)) == kLaterMacSubtype;
}

constexpr std::string_view kStart = "ConfigStartMessage";
constexpr std::string_view kComplete = "ConfigurationCompleteMSG";

void announce(Signalling& signalling, std::string_view label, std::string_view bits) {
  signalling.send({.label = label,
                   .bits = bits,
                   .protocol_type = protocol_types::kSessionConfiguration,
                   .announcement = test_set::kAnnouncement,
                   .when_sent = test_set::kWhenQueued});
  signalling.remove_message(label);
}

template <class Complete>
std::string complete_message(const Ref<Object>& test_set, std::int16_t transaction_id) {
  Complete message;
  message.initialize(test_set);
  message.template let<"PRstr_TransactionID">(long_to_bin(transaction_id, kOctet));
  return message.encode();
}

}  // namespace

bool SB_Sector::StartSessionNegotiationFromAN() {
  const std::string start = or_raise(sector_errors::kNoStart, [&] {
    SB_Ses_MsgConfigurationStart message;
    message.initialize(held(Held::TestSet));
    return message.encode();
  });
  Signalling signalling = this->signalling();
  const Value complete = signalling.add_filter(kCompleteId, protocol_types::kSessionConfiguration);
  std::array<Value, kProposals.size()> requests;
  for (std::size_t i = 0; i < kProposals.size(); ++i) {
    requests[i] = signalling.add_filter(kRequestId, kProposals[i].protocol_type);
  }
  announce(signalling, kStart, start);
  const bool answered = answer_configuration_requests(signalling, requests);
  for (const Value& filter : requests) signalling.remove_filter(filter);
  if (!answered) {
    signalling.remove_filter(complete);
    raise(sector_errors::kNoResponse);
  }
  await_configuration_complete(signalling, complete);
  return true;
}

bool SB_Sector::answer_configuration_requests(Signalling& signalling, std::span<const Value> filters) {
  bool later_mac = uses_later_mac();
  for (std::size_t i = 0;; i = (i + 1) % kProposals.size()) {
    const Proposals& proposals = kProposals[i];
    if (!signalling.wait(proposals.request_label, filters[i])) return true;
    const auto response = response_to(proposals.protocol_type, signalling.fetch(), later_mac);
    if (!response) return false;
    signalling.send({.label = proposals.response_label,
                     .bits = *response,
                     .protocol_type = proposals.protocol_type,
                     .announcement = test_set::kExchange,
                     .when_sent = proposals.when_sent});
    signalling.remove_message(proposals.request_label);
    signalling.remove_message(proposals.response_label);
  }
}

std::optional<std::string> SB_Sector::response_to(std::int16_t protocol_type, std::string_view request,
                                                  bool& later_mac) const {
  try {
    SB_MsgConfigurationRequest received;
    received.receive(request);
    SB_MsgConfigurationResponse response;
    response.initialize();
    response.let_transaction_id(received.transaction_id());
    const std::string records = accepted_records(received, attribute_numbering(protocol_type, later_mac));
    if (protocol_type == protocol_types::kSessionConfiguration) later_mac = proposes_later_mac(received, later_mac);
    return response.encode(records);
  } catch (const Error& error) {
    trace("SB_Sector.StartSessionNegotiationFromAN --- " + error.source() + ": " + error.description());
    return std::nullopt;
  }
}

bool SB_Sector::uses_later_mac() const {
  if (!held(Held::GlobalParameters)) return false;
  const std::int16_t personality = setting("PRint_ScriptPersonality").to_integer();
  if (personality <= 0) return false;
  return global_parameters()->call("Get_MACLayRTCSubType", "", personality).to_integer() == kLaterMacSubtype;
}

void SB_Sector::await_configuration_complete(Signalling& signalling, const Value& filter) {
  const bool received = signalling.wait(kComplete, filter);
  const std::string bits = received ? signalling.fetch() : std::string();
  signalling.remove_filter(filter);
  SB_Ses_MsgConfigurationComplete complete;
  complete.receive(bits);
  const std::string_view id = complete.get<"PRstr_TransactionID">();
  if (id.size() != kOctet) raise(sector_errors::kNoComplete);
  memory().remember_transaction_id(bin_to_dec(id));
}

bool SB_Sector::EndSessionNegotiationFromAN(std::int16_t& transaction_id) {
  transaction_id = memory().last_transaction_id(0);
  const bool soft = global_parameters()->get("PRint_PersonalityCountAN").to_integer() != 1 &&
                    setting("PRint_ScriptPersonality").to_integer() != 0;
  const Ref<Object>& test_set = held(Held::TestSet);
  Signalling signalling = this->signalling();
  if (soft) {
    const std::string bits = or_raise(sector_errors::kNoSoftComplete, [&] {
      return complete_message<SB_Ses_MsgSoftConfigurationComplete>(test_set, transaction_id);
    });
    announce(signalling, "SoftConfigCompleteMessageAN", bits);
  } else {
    const std::string bits = or_raise(sector_errors::kNoHardComplete, [&] {
      return complete_message<SB_Ses_MsgConfigurationComplete>(test_set, transaction_id);
    });
    announce(signalling, "ConfigCompleteMessageAN", bits);
  }
  return true;
}

}  // namespace vorlan
