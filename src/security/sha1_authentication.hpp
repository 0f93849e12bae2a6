// The SHA-1 authentication protocol (C.S0024-400-C 2.8), as far as it is negotiated.
#pragma once

#include "automation/bind.hpp"
#include "platform/platform.hpp"
#include "security/security_negotiation.hpp"

namespace vorlan {

/// Error 1 if the access terminal does not answer or does not accept, for a key length out of range, and before
/// Initialize.
class SB_PROT_SHA1Authentication final : public BoundObject<SB_PROT_SHA1Authentication> {
 public:
  /// From 0 to 65535 bits.
  static constexpr bool is_key_length(std::int32_t bits) noexcept { return bits >= 0 && bits <= 0xFFFF; }

  explicit SB_PROT_SHA1Authentication(Platform& platform) noexcept : platform_(&platform) {}

  static ClassInfo::Texts texts() noexcept;
  static std::span<const BoundMember> members() noexcept;
  static std::vector<ErrorInfo> errors();

  /// Two objects and a key length in bits; a configuration is asked for other names of the test set's members.
  bool Initialize(const Value& signalling, const Value& key_length, const Value& messages,
                  const std::optional<Ref<Object>>& configuration);
  void initialize(std::shared_ptr<SecurityLink> link, std::int32_t key_length) noexcept;
  bool NegotiateProtocolSubtype(std::optional<std::int32_t> subtype) { return negotiation_.negotiate_subtype(subtype); }
  /// The length that Initialize was given, if none is given here. What is accepted is remembered.
  bool NegotiateAuthKeyLength(std::optional<std::int32_t> key_length);

 private:
  Platform* platform_;
  ProtocolNegotiation negotiation_{kSHA1Authentication};
  std::int32_t key_length_ = 0;
};

}  // namespace vorlan
