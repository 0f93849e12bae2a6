// SB_Security as scripts see it.
#include "security/security.hpp"

namespace vorlan {

ClassInfo::Texts SB_Security::texts() noexcept {
  return {"SB_Security", "Chooses, negotiates and remembers the protocols of the security layer", "400-C 2"};
}

namespace {

using S = SB_Security;
using F = SecurityFamilyId;

constexpr std::string_view name_of(Remembered value) noexcept { return remembered_value(value).property; }

constexpr std::array kMembers{
    method<&S::Initialise>("Initialise", "sector", "Takes the sector's configuration and its test set's objects"),
    method<&S::configure_family<F::Security>>(security_family(F::Security).operation, "",
                                              "Makes the security protocol's object that the configuration asks for"),
    method<&S::configure_family<F::KeyXChange>>(security_family(F::KeyXChange).operation, "",
                                                "The same for the key exchange protocol"),
    method<&S::configure_family<F::Authentication>>(security_family(F::Authentication).operation, "",
                                                    "The same for the authentication protocol"),
    method<&S::configure_family<F::Encryption>>(security_family(F::Encryption).operation, "",
                                                "The same for the encryption protocol"),
    method<&S::ClearSessionStateInfo>("ClearSessionStateInfo", "", "Forgets what is remembered of earlier sessions"),

    property<&S::protocol<kDefaultSecurity>>("PRobj_PROT_DefaultSecurity", "Default security, once configured"),
    property<&S::protocol<kGenericSecurity>>("PRobj_PROT_GenericSecurity", "Generic security, once configured"),
    property<&S::protocol<kDefaultKeyXChange>>("PRobj_PROT_DefaultKeyXChange", "Default key exchange, once configured"),
    property<&S::protocol<kDHKeyXChange>>("PRobj_PROT_DHKeyXChange", "Diffie-Hellman key exchange, once configured"),
    property<&S::protocol<kDefaultAuthentication>>("PRobj_PROT_DefaultAuthentication",
                                                   "Default authentication, once configured"),
    property<&S::protocol<kSHA1Authentication>>("PRobj_PROT_SHA1Authentication",
                                                "SHA-1 authentication, once configured"),
    property<&S::protocol<kDefaultEncryption>>("PRobj_PROT_DefaultEncryption", "Default encryption, once configured"),

    property<&S::remembered<Remembered::SecurityType>>(name_of(Remembered::SecurityType),
                                                       "Security protocol configured last; 0 if none is remembered"),
    property<&S::remembered<Remembered::KeyXChangeType>>(
        name_of(Remembered::KeyXChangeType), "Key exchange protocol configured last; 0 if none is remembered"),
    property<&S::remembered<Remembered::SKeyLength>>(
        name_of(Remembered::SKeyLength), "Session key length last agreed upon in bits; 0 if none is remembered"),
    property<&S::remembered<Remembered::AuthenticationType>>(
        name_of(Remembered::AuthenticationType), "Authentication protocol configured last; 0 if none is remembered"),
    property<&S::remembered_auth_key_length>(
        name_of(Remembered::AuthKeyLength),
        "Authentication key length configured last in bits; 160 if none is remembered"),
    property<&S::remembered<Remembered::EncryptionType>>(
        name_of(Remembered::EncryptionType), "Encryption protocol configured last; 0 if none is remembered"),

    method<&S::Initialize>("Initialize", "sector", "Retired: Initialise"),
    method<&S::Configure>("Configure", "", "Retired: all four Configure operations"),
    method<&S::SecurityNegotiations>("SecurityNegotiations", "",
                                     "Retired: negotiates what is configured and runs the key exchange"),
    method<&S::NegotiateProtocolSubtype>("NegotiateProtocolSubtype", "protocolType, subtype, label",
                                         "Retired: proposes a subtype, under a label in texts; True if accepted"),
    method<&S::RunDiffie_HellManKeyXChange>("RunDiffie_HellManKeyXChange", "", "Retired: runs the key exchange"),
};

}  // namespace

std::span<const BoundMember> SB_Security::members() noexcept { return kMembers; }

}  // namespace vorlan
