// The protocol objects that negotiate their subtype and nothing else: a class for each row.
#pragma once

#include "automation/bind.hpp"
#include "platform/platform.hpp"
#include "security/security_negotiation.hpp"

namespace vorlan {

/// Error 1 if the access terminal does not answer or does not accept, and before Initialize.
template <const SecurityProtocol& Protocol>
class PlainProtocol final : public BoundObject<PlainProtocol<Protocol>> {
 public:
  explicit PlainProtocol(Platform&) noexcept {}

  static ClassInfo::Texts texts() noexcept { return {Protocol.name, Protocol.summary, Protocol.clause}; }
  /// In classes.cpp, for the protocols below: MinGW's linker takes a table that two files have for two tables.
  static std::span<const BoundMember> members() noexcept;
  static std::vector<ErrorInfo> errors() { return ProtocolNegotiation::errors(Protocol); }

  /// Two objects; a configuration is asked for other names of the test set's members.
  bool Initialize(const Value& signalling, const Value& messages, const std::optional<Ref<Object>>& configuration) {
    initialize(new_link(signalling, messages, configuration, negotiation_.source("Initialize")));
    return true;
  }
  void initialize(std::shared_ptr<SecurityLink> link) noexcept { negotiation_.initialize(std::move(link)); }
  bool NegotiateProtocolSubtype(std::optional<std::int32_t> subtype) { return negotiation_.negotiate_subtype(subtype); }

 private:
  ProtocolNegotiation negotiation_{Protocol};
};

using SB_PROT_DefaultSecurity = PlainProtocol<kDefaultSecurity>;
using SB_PROT_GenericSecurity = PlainProtocol<kGenericSecurity>;
using SB_PROT_DefaultKeyXChange = PlainProtocol<kDefaultKeyXChange>;
using SB_PROT_DefaultAuthentication = PlainProtocol<kDefaultAuthentication>;
using SB_PROT_DefaultEncryption = PlainProtocol<kDefaultEncryption>;

}  // namespace vorlan
