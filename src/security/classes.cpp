#include "security/classes.hpp"

#include <array>

#include "security/plain_protocol.hpp"
#include "security/security.hpp"
#include "security/sha1_authentication.hpp"

namespace vorlan {

template <const SecurityProtocol& Protocol>
std::span<const BoundMember> PlainProtocol<Protocol>::members() noexcept {
  static constexpr std::array kMembers{
      method<&PlainProtocol::Initialize>("Initialize", "signalling, messages, configuration",
                                         "Takes the test set's signalling object and its message collection"),
      method<&PlainProtocol::NegotiateProtocolSubtype>("NegotiateProtocolSubtype", "subtype", kProposesSubtype),
  };
  return kMembers;
}
template class PlainProtocol<kDefaultSecurity>;
template class PlainProtocol<kGenericSecurity>;
template class PlainProtocol<kDefaultKeyXChange>;
template class PlainProtocol<kDefaultAuthentication>;
template class PlainProtocol<kDefaultEncryption>;

namespace {

template <class T>
constexpr ClassEntry entry(std::string_view name) {
  return {name, &T::info, [](Platform& platform) -> Ref<Object> { return make<T>(platform); }};
}

constexpr std::array kClasses{
    entry<SB_PROT_DHKeyXChange>(kDHKeyXChange.name),
    entry<SB_PROT_DefaultAuthentication>(kDefaultAuthentication.name),
    entry<SB_PROT_DefaultEncryption>(kDefaultEncryption.name),
    entry<SB_PROT_DefaultKeyXChange>(kDefaultKeyXChange.name),
    entry<SB_PROT_DefaultSecurity>(kDefaultSecurity.name),
    entry<SB_PROT_GenericSecurity>(kGenericSecurity.name),
    entry<SB_PROT_SHA1Authentication>(kSHA1Authentication.name),
    entry<SB_Security>("SB_Security"),
};

}  // namespace

std::span<const ClassEntry> security_classes() noexcept { return kClasses; }

}  // namespace vorlan
