// The access network proposes attributes of the default reverse traffic channel MAC protocol (C.S0024-A 10.8).
#pragma once

#include "automation/bind.hpp"
#include "platform/platform.hpp"
#include "sector/signalling.hpp"

namespace vorlan {

/// Proposes the configuration's rate transition probabilities or data channel offsets. Nothing is stored when the
/// access terminal does not accept.
class SB_PROT_RevTrafficChannel final : public BoundObject<SB_PROT_RevTrafficChannel> {
 public:
  explicit SB_PROT_RevTrafficChannel(Platform&) noexcept {}

  static ClassInfo::Texts texts() noexcept;
  static std::span<const BoundMember> members() noexcept;
  static std::vector<ErrorInfo> errors();

  /// Three objects: SB_GlobalParameters, the test set's signalling object, its message collection. Error 1 for anything
  /// else, Nothing included.
  void Initialize(const Value& configuration, const Value& signalling, const Value& messages);
  /// True; error 1 if the access terminal does not answer or does not accept, if the configuration holds a number that
  /// its field does not, and before Initialize.
  bool NegotiateRateParametersAttribute();
  bool NegotiatePowerParametersAttribute();

 private:
  struct Proposal;
  bool negotiate(const Proposal& proposal);
  void check_initialized(std::string_view source) const;
  [[nodiscard]] std::string rate_parameters() const;
  [[nodiscard]] std::string power_parameters() const;
  [[nodiscard]] std::int32_t setting(std::string_view property) const;

  bool initialized_ = false;
  Ref<Object> configuration_;
  Ref<Object> signalling_;
  Ref<Object> messages_;
  TestSetAccess access_;
  std::uint8_t transaction_id_ = 0;
};

}  // namespace vorlan
