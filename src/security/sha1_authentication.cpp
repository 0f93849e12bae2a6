#include "security/sha1_authentication.hpp"

#include "attributes/security_simple_attributes.hpp"
#include "common/conversions.hpp"

namespace vorlan {

namespace {

using P = SB_PROT_SHA1Authentication;

constexpr int kKeyLengthBits = 16;
constexpr std::string_view kInitialize = "SB_PROT_SHA1Authentication.Initialize";
constexpr std::string_view kNegotiate = "SB_PROT_SHA1Authentication.NegotiateAuthKeyLength";
constexpr ErrorRow kWrongLength{kInitialize, "Invalid value of Auth Key Length specified.",
                                "a key length that is not 0 to 65535"};

ProposalTexts texts_about(std::string_view length) {
  return key_length_texts("AuthKeyLength", "Auth Key Length", length);
}

constexpr std::array kMembers{
    method<&P::Initialize>("Initialize", "signalling, keyLength, messages, configuration",
                           "Takes the test set's signalling object, a key length in bits and the message collection"),
    method<&P::NegotiateProtocolSubtype>("NegotiateProtocolSubtype", "subtype", kProposesSubtype),
    method<&P::NegotiateAuthKeyLength>("NegotiateAuthKeyLength", "keyLength",
                                       "Proposes a key length in bits; True if accepted"),
};

}  // namespace

ClassInfo::Texts SB_PROT_SHA1Authentication::texts() noexcept {
  return {kSHA1Authentication.name, kSHA1Authentication.summary, kSHA1Authentication.clause};
}
std::span<const BoundMember> SB_PROT_SHA1Authentication::members() noexcept { return kMembers; }
std::vector<ErrorInfo> SB_PROT_SHA1Authentication::errors() {
  std::vector<ErrorInfo> own;
  list_errors(own, kSHA1Authentication.name, std::array{kWrongLength, kWrongLength.from(kNegotiate)});
  ProtocolNegotiation::list_uninitialized(own, kSHA1Authentication, kNegotiate);
  list_errors(own, kNegotiate, texts_about("<length>"));
  return ProtocolNegotiation::errors(kSHA1Authentication, own);
}

bool SB_PROT_SHA1Authentication::Initialize(const Value& signalling, const Value& key_length, const Value& messages,
                                            const std::optional<Ref<Object>>& configuration) {
  auto link = new_link(signalling, messages, configuration, kInitialize);
  const auto bits = number_argument(key_length, kInitialize);
  if (!bits || !is_key_length(*bits)) raise(kWrongLength);
  initialize(std::move(link), *bits);
  return true;
}

void SB_PROT_SHA1Authentication::initialize(std::shared_ptr<SecurityLink> link, std::int32_t key_length) noexcept {
  negotiation_.initialize(std::move(link));
  key_length_ = key_length;
}

bool SB_PROT_SHA1Authentication::NegotiateAuthKeyLength(std::optional<std::int32_t> key_length) {
  const auto link = negotiation_.link(kNegotiate);
  const std::int32_t bits = key_length.value_or(key_length_);
  if (!is_key_length(bits)) raise(kWrongLength.from(kNegotiate));
  SB_Sec_AttrACAuthKeyLength attribute;
  attribute.let<"PRstr_AttrValue">(long_to_bin(bits, kKeyLengthBits));
  negotiate(*link, {.source = kNegotiate,
                    .protocol_type = protocol_types::kAuthentication,
                    .attribute = attribute,
                    .texts = texts_about(std::to_string(bits))});
  remember_negotiated_auth_key_length(*platform_->settings, bits);
  return true;
}

}  // namespace vorlan
