// The access network's side of the Diffie-Hellman key exchange protocol (C.S0024-400-C 2.6). The test set computes.
#pragma once

#include "automation/bind.hpp"
#include "platform/platform.hpp"
#include "security/security_negotiation.hpp"

namespace vorlan {

/// Negotiates the protocol and the length of the session key, and runs the exchange. Error 1 if the access terminal
/// does not answer, answers wrongly or does not accept, and before Initialize; what the test set's objects raise passes
/// through. A failed exchange changes no property.
class SB_PROT_DHKeyXChange final : public BoundObject<SB_PROT_DHKeyXChange> {
 public:
  explicit SB_PROT_DHKeyXChange(Platform& platform) noexcept : platform_(&platform) {}

  static ClassInfo::Texts texts() noexcept;
  static std::span<const BoundMember> members() noexcept;
  static std::vector<ErrorInfo> errors();

  /// Three objects and a key length of 768 or 1024 bits; a configuration is asked for other names of the test set's
  /// members.
  bool Initialize(const Value& signalling, const Value& security, const Value& key_length, const Value& messages,
                  const std::optional<Ref<Object>>& configuration);
  void initialize(std::shared_ptr<SecurityLink> link, Ref<Object> security, std::int16_t key_length) noexcept;

  /// Timeout of KeyRequest in seconds, 0 to 255; -1 becomes 7 in Initialize.
  [[nodiscard]] std::int16_t key_request_time_out() const noexcept { return key_request_time_out_; }
  void set_key_request_time_out(std::int16_t seconds) { key_request_time_out_ = seconds; }
  /// Whole seconds between ANKeyComplete and ATKeyComplete in the latest exchange that succeeded.
  [[nodiscard]] std::int32_t signature_time() const noexcept { return signature_time_; }

  bool NegotiateProtocolSubtype(std::optional<std::int32_t> subtype) { return negotiation_.negotiate_subtype(subtype); }
  /// The length that Initialize was given, if none is given here. What is accepted is remembered, and is the length of
  /// the exchanges that follow.
  bool NegotiateSKeyLength(std::optional<std::int32_t> key_length);
  bool ExecuteDHKeyXChange();
  /// Forgets the key length that was remembered.
  void ClearSessionStateInfo();

  /// The exchange under other sources: of errors up to KeyResponse, and of those behind it.
  struct Sources {
    std::string_view request;
    std::string_view complete;
  };
  bool run_exchange(const Sources& sources);
  static void list_exchange_errors(std::vector<ErrorInfo>& list, const Sources& sources);

 private:
  struct Exchange;
  [[nodiscard]] Ref<Object> key_request(Exchange& exchange) const;
  /// Hands the terminal's key to the test set; the time in seconds that the terminal asks for.
  static std::int32_t take_key_response(Exchange& exchange);
  [[nodiscard]] static Ref<Object> an_key_complete(Exchange& exchange);
  static void take_key_complete(Exchange& exchange);

  Platform* platform_;
  ProtocolNegotiation negotiation_{kDHKeyXChange};
  Ref<Object> security_;
  std::int16_t key_length_ = 0;
  std::int16_t key_request_time_out_ = -1;
  std::int32_t signature_time_ = 0;
};

}  // namespace vorlan
