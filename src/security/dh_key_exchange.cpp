#include "security/dh_key_exchange.hpp"

#include <algorithm>

#include "attributes/security_simple_attributes.hpp"
#include "automation/error.hpp"
#include "common/conversions.hpp"
#include "messages/message_object.hpp"
#include "messages/security/key_exchange.hpp"

namespace vorlan {

namespace {

using P = SB_PROT_DHKeyXChange;

constexpr int kOctet = 8;
constexpr std::int16_t kDefaultTimeOut = 7;
constexpr std::int32_t kShortestWait = 10;
constexpr std::int16_t kKeyResponseTimeOut = 5 * test_set::kTimeOutsPerSecond;
constexpr std::int16_t kKeyResponseCode = 1;
constexpr std::int16_t kKeyCompleteCode = 3;
constexpr std::string_view kResponseLabel = "KeyResponseMsg";
constexpr std::string_view kCompleteLabel = "ATKeyComplete";

constexpr std::string_view kInitialize = "SB_PROT_DHKeyXChange.Initialize";
constexpr std::string_view kExecute = "SB_PROT_DHKeyXChange.ExecuteDHKeyXChange";
constexpr std::string_view kNegotiate = "SB_PROT_DHKeyXChange.NegotiateSKeyLength";

constexpr ErrorRow kNotInitialized{
    kExecute, "SB_PROT_DHKeyXChange Object is not initialized. Please call <Initialize> method of this object first.",
    "call before Initialize"};

// Of the exchange: up to KeyResponse, and behind it.
constexpr ErrorRow kNoRequest{{}, "KeyRequest message could not be created.", "whatever fails in building it"};
constexpr ErrorRow kNoResponse{
    {}, "KeyResponse message could not be received.", "the terminal does not answer KeyRequest within 5 s"};
constexpr ErrorRow kOtherResponse{
    {},
    "TransactionId field of KeyResponse message received is not same as the TransactionId field of KeyRequest message "
    "sent.",
    "the terminal's KeyResponse has another TransactionID"};
constexpr ErrorRow kNoComplete{
    {},
    "ATKeyComplete message could not be received from the AT in response to the ANKeyComplete message.",
    "the terminal does not answer ANKeyComplete in the time that it asked for, 10 s at least"};
constexpr ErrorRow kOtherComplete{
    {},
    "TransactionID field of ATKeyComplete message is not same as that of ANKeyComplete message.",
    "the terminal's ATKeyComplete has another TransactionID"};
constexpr ErrorRow kNotVerified{
    {}, "The Result field of ATKeyComplete message is not 1.", "the terminal has found the keys different"};

ProposalTexts texts_about(std::string_view length) { return key_length_texts("SKeyLength", "SKey Length", length); }

constexpr std::array kMembers{
    method<&P::Initialize>("Initialize", "signalling, security, keyLength, messages, configuration",
                           "Takes the test set's signalling and security objects, 768 or 1024, and the message "
                           "collection"),
    property<&P::key_request_time_out, &P::set_key_request_time_out>(
        "PRint_KeyRequestTimeOut", "Timeout of KeyRequest in seconds; -1 becomes 7 in Initialize"),
    property<&P::signature_time>("PRlng_TKEPSigCompAT",
                                 "Seconds that the access terminal took to answer ANKeyComplete"),
    method<&P::NegotiateProtocolSubtype>("NegotiateProtocolSubtype", "subtype", kProposesSubtype),
    method<&P::NegotiateSKeyLength>("NegotiateSKeyLength", "keyLength",
                                    "Proposes a session key of 768 or 1024 bits; True if accepted"),
    method<&P::ExecuteDHKeyXChange>("ExecuteDHKeyXChange", "",
                                    "Runs the key exchange; True once the access terminal has found the keys the same"),
    method<&P::ClearSessionStateInfo>("ClearSessionStateInfo", "", "Forgets the session key length last agreed upon"),
};

}  // namespace

ClassInfo::Texts SB_PROT_DHKeyXChange::texts() noexcept {
  return {kDHKeyXChange.name, kDHKeyXChange.summary, kDHKeyXChange.clause};
}
std::span<const BoundMember> SB_PROT_DHKeyXChange::members() noexcept { return kMembers; }

void SB_PROT_DHKeyXChange::list_exchange_errors(std::vector<ErrorInfo>& list, const Sources& sources) {
  for (const ErrorRow& row : {kNoRequest, kNoResponse, kOtherResponse}) {
    list_errors(list, kDHKeyXChange.name, std::array{row.from(sources.request)});
  }
  for (const ErrorRow& row : {kNoComplete, kOtherComplete, kNotVerified}) {
    list_errors(list, kDHKeyXChange.name, std::array{row.from(sources.complete)});
  }
}

std::vector<ErrorInfo> SB_PROT_DHKeyXChange::errors() {
  std::vector<ErrorInfo> own;
  list_errors(own, kDHKeyXChange.name, std::array{kWrongArgument.from(kNegotiate)});
  ProtocolNegotiation::list_uninitialized(own, kDHKeyXChange, kNegotiate);
  list_errors(own, kNegotiate, texts_about("<length>"));
  list_errors(own, kDHKeyXChange.name, std::array{kNotInitialized});
  list_exchange_errors(own, {kExecute, kExecute});
  return ProtocolNegotiation::errors(kDHKeyXChange, own);
}

bool SB_PROT_DHKeyXChange::Initialize(const Value& signalling, const Value& security, const Value& key_length,
                                      const Value& messages, const std::optional<Ref<Object>>& configuration) {
  auto link = new_link(signalling, messages, configuration, kInitialize);
  Ref<Object> security_object = object_argument(security, kInitialize);
  const auto bits = number_argument(key_length, kInitialize);
  if (!bits || !key_exchange::is_key_length(*bits)) refuse_argument(kInitialize);
  initialize(std::move(link), std::move(security_object), static_cast<std::int16_t>(*bits));
  return true;
}

void SB_PROT_DHKeyXChange::initialize(std::shared_ptr<SecurityLink> link, Ref<Object> security,
                                      std::int16_t key_length) noexcept {
  negotiation_.initialize(std::move(link));
  security_ = std::move(security);
  key_length_ = key_length;
  if (key_request_time_out_ == -1) key_request_time_out_ = kDefaultTimeOut;
}

bool SB_PROT_DHKeyXChange::NegotiateSKeyLength(std::optional<std::int32_t> key_length) {
  const auto link = negotiation_.link(kNegotiate);
  const std::int32_t bits = key_length.value_or(key_length_);
  if (!key_exchange::is_key_length(bits)) refuse_argument(kNegotiate);
  SB_Sec_AttrSessionKeyLength attribute;
  attribute.let<"PRstr_AttrValue">(bits == 768 ? "00000000" : "00000001");
  negotiate(*link, {.source = kNegotiate,
                    .protocol_type = protocol_types::kKeyExchange,
                    .attribute = attribute,
                    .texts = texts_about(std::to_string(bits))});
  key_length_ = static_cast<std::int16_t>(bits);
  remember(*platform_->settings, Remembered::SKeyLength, bits);
  return true;
}

void SB_PROT_DHKeyXChange::ClearSessionStateInfo() {
  remember(*platform_->settings, Remembered::SKeyLength, remembered_value(Remembered::SKeyLength).initial);
}

bool SB_PROT_DHKeyXChange::ExecuteDHKeyXChange() {
  if (!negotiation_.is_initialized()) raise(kNotInitialized);
  return run_exchange({kExecute, kExecute});
}

/// One exchange under way. It keeps what it works with, even if a script's own test set initialises anew meanwhile.
struct SB_PROT_DHKeyXChange::Exchange {
  const Sources& sources;
  std::shared_ptr<SecurityLink> link;
  Ref<Object> security;
  Signalling signalling;
  std::uint8_t number;
  std::string transaction_id;
};

Ref<Object> SB_PROT_DHKeyXChange::key_request(Exchange& exchange) const {
  std::string public_key;
  read_whole_octets(*exchange.link->access.object(Role::ANPublicKey, exchange.security, key_length_), public_key);
  Ref<Object> message = exchange.signalling.new_message_object();
  std::string failure;
  if (public_key.size() != static_cast<std::size_t>(key_length_)) {
    failure = "the access network's public key is not as long as the session key";
  } else {
    try {
      SB_Sec_MsgKeyRequest request;
      request.initialize();
      request.let<"PRstr_TransactionId">(exchange.transaction_id);
      request.let<"PRstr_Timeout">(long_to_bin(key_request_time_out_, kOctet));
      request.let<"PRstr_ANPubKey">(public_key);
      request.create_message(message);
      return message;
    } catch (const Error& error) {
      failure = error.source() + ": " + error.description();
    }
  }
  platform_->debug->write_line(std::string(exchange.sources.request) + " --- " + failure);
  raise(kNoRequest.from(exchange.sources.request));
}

std::int32_t SB_PROT_DHKeyXChange::take_key_response(Exchange& exchange) {
  SB_Sec_MsgKeyResponse response;
  response.receive(exchange.signalling.message(kResponseLabel));
  exchange.signalling.remove_message(kResponseLabel);
  if (response.get<"PRstr_TransactionId">() != exchange.transaction_id) {
    raise(kOtherResponse.from(exchange.sources.request));
  }
  const std::int32_t time_out = bin_to_long(response.get<"PRstr_Timeout">());
  const Ref<Object> public_key = exchange.signalling.new_message_object();
  fill_message(response.get<"PRstr_ATPubKey">(), *public_key);
  exchange.link->access.call(Role::ATPublicKey, exchange.security, public_key);
  return time_out;
}

Ref<Object> SB_PROT_DHKeyXChange::an_key_complete(Exchange& exchange) {
  const auto text = [&](Role role, const auto&... arguments) {
    return exchange.link->access.call(role, exchange.security, arguments...).to_text();
  };
  SB_Sec_MsgANKeyComplete complete;
  complete.initialize();
  complete.let<"PRstr_TransactionId">(exchange.transaction_id);
  // The Nonce comes first: the others belong to it.
  complete.let<"PRstr_Nonce">(text(Role::Nonce));
  complete.let<"PRstr_TimeStampShort">(text(Role::TimeStampShort));
  complete.let<"PRstr_KeySignature">(text(Role::KeySignature, std::int16_t{exchange.number}));
  Ref<Object> message = exchange.signalling.new_message_object();
  complete.create_message(message);
  return message;
}

void SB_PROT_DHKeyXChange::take_key_complete(Exchange& exchange) {
  SB_Sec_MsgATKeyComplete answer;
  answer.receive(exchange.signalling.message(kCompleteLabel));
  if (answer.get<"PRstr_TransactionId">() != exchange.transaction_id) {
    raise(kOtherComplete.from(exchange.sources.complete));
  }
  if (answer.get<"PRstr_Result">() != "1") raise(kNotVerified.from(exchange.sources.complete));
}

bool SB_PROT_DHKeyXChange::run_exchange(const Sources& sources) {
  const auto link = negotiation_.link(sources.request);
  const std::uint8_t number = link->next_transaction_id++;
  Exchange exchange{sources, link, security_, link->open(), number, long_to_bin(number, kOctet)};
  Signalling& signalling = exchange.signalling;
  if (!signalling.exchange({.label = "KeyRequestMsg",
                            .message = key_request(exchange),
                            .protocol_type = protocol_types::kKeyExchange,
                            .when_sent = test_set::kWhenSent,
                            .answer_label = kResponseLabel,
                            .answer_code = kKeyResponseCode,
                            .time_out = kKeyResponseTimeOut})) {
    raise(kNoResponse.from(sources.request));
  }
  const std::int32_t wait = std::max(take_key_response(exchange), kShortestWait);
  const Ref<Object> complete = an_key_complete(exchange);
  const auto sent = platform_->clock->ticks();
  if (!signalling.exchange({.label = "ANKeyComplete",
                            .message = complete,
                            .protocol_type = protocol_types::kKeyExchange,
                            .when_sent = test_set::kWhenSent,
                            .answer_label = kCompleteLabel,
                            .answer_code = kKeyCompleteCode,
                            .time_out = static_cast<std::int16_t>(wait * test_set::kTimeOutsPerSecond)})) {
    raise(kNoComplete.from(sources.complete));
  }
  const auto took = platform_->clock->ticks() - sent;
  take_key_complete(exchange);
  signature_time_ = static_cast<std::int32_t>(std::chrono::duration_cast<std::chrono::seconds>(took).count());
  signalling.remove_message(kCompleteLabel);
  return true;
}

}  // namespace vorlan
