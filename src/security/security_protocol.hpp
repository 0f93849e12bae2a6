// The protocols of the security layer (C.S0024-400-C 2) that a session can use: a row each, and a row for each family
// from which one is chosen.
#pragma once

#include <cstdint>
#include <string_view>

#include "common/remembered_values.hpp"
#include "sector/signalling.hpp"

namespace vorlan {

/// In the order of kSecurityFamilies.
enum class SecurityFamilyId : std::uint8_t { Security, KeyXChange, Authentication, Encryption };

/// One protocol layer: how SB_Security chooses its protocol.
struct SecurityFamily {
  SecurityFamilyId id;
  std::int16_t protocol_type;
  std::string_view operation;  ///< of SB_Security
  std::string_view selector;   ///< property of the configuration: the subtype wanted
  Remembered remembered;
  std::string_view not_chosen;  ///< logged for a selector that names no protocol
};

inline constexpr SecurityFamily kSecurityFamilies[] = {
    {SecurityFamilyId::Security, protocol_types::kSecurity, "ConfigureSecurity", "PRint_SecurityType",
     Remembered::SecurityType, "Warning: Security Protocol not initialized. Invalid SECURITY_TYPE selected."},
    {SecurityFamilyId::KeyXChange, protocol_types::kKeyExchange, "ConfigureKeyXChange", "PRint_KeyXChangeType",
     Remembered::KeyXChangeType, "Warning: Key Exchange Protocol not initialized. Invalid KEY_XCHANGE_TYPE selected."},
    {SecurityFamilyId::Authentication, protocol_types::kAuthentication, "ConfigureAuthentication",
     "PRint_AuthenticationType", Remembered::AuthenticationType,
     "Warning: Authentication Protocol not initialized. Invalid AUTH_TYPE selected."},
    {SecurityFamilyId::Encryption, protocol_types::kEncryption, "ConfigureEncryption", "PRint_EncryptionType",
     Remembered::EncryptionType, "Warning: Encryption Protocol not initialized. Invalid ENCRYPTION_TYPE selected."},
};

constexpr const SecurityFamily& security_family(SecurityFamilyId id) noexcept {
  return kSecurityFamilies[static_cast<std::size_t>(id)];
}

/// One protocol object. Capitals differ from text to text; scripts compare them.
struct SecurityProtocol {
  std::string_view name;  ///< of the class
  std::string_view summary;
  std::string_view clause;
  SecurityFamilyId family;
  std::int16_t subtype;
  std::string_view initialized;  ///< logged by SB_Security; a key length follows where there is one
  std::string_view label;        ///< in SB_Security's own negotiations
  std::string_view proposed;     ///< the protocol in the text about a missing answer,
  std::string_view mismatched;   ///< in the one about another TransactionID
  std::string_view rejected;     ///< and in the one about a refusal
  std::string_view separator;    ///< of that text, before the subtype
  /// The class in the text, and in the source, of a negotiation before Initialize; none: the name.
  std::string_view uninitialized = {};
};

inline constexpr SecurityProtocol kDefaultSecurity{.name = "SB_PROT_DefaultSecurity",
                                                   .summary = "The default security protocol: no security header",
                                                   .clause = "400-C 2.3",
                                                   .family = SecurityFamilyId::Security,
                                                   .subtype = 0,
                                                   .initialized = "Default Security Protocol Initialized.",
                                                   .label = "Default Security",
                                                   .proposed = "Default Security protocol",
                                                   .mismatched = "Default Security protocol",
                                                   .rejected = "Default Security protocol",
                                                   .separator = ", subtype "};
inline constexpr SecurityProtocol kGenericSecurity{.name = "SB_PROT_GenericSecurity",
                                                   .summary = "The generic security protocol: CryptoSync by time",
                                                   .clause = "400-C 2.4",
                                                   .family = SecurityFamilyId::Security,
                                                   .subtype = 1,
                                                   .initialized = "Generic Security Protocol Initialized.",
                                                   .label = "Generic Security",
                                                   .proposed = "Generic Security protocol",
                                                   .mismatched = "use of Generic Security protocol",
                                                   .rejected = "Generic Security protocol",
                                                   .separator = ", subtype "};
inline constexpr SecurityProtocol kDefaultKeyXChange{.name = "SB_PROT_DefaultKeyXChange",
                                                     .summary = "The default key exchange protocol: no key at all",
                                                     .clause = "400-C 2.5",
                                                     .family = SecurityFamilyId::KeyXChange,
                                                     .subtype = 0,
                                                     .initialized = "Default Key Exchange Protocol Initialized.",
                                                     .label = "Default KeyExchange",
                                                     .proposed = "Default KeyXChange protocol",
                                                     .mismatched = "Default KeyXChange protocol",
                                                     .rejected = "Default KeyXChange protocol",
                                                     .separator = ", subtype "};
inline constexpr SecurityProtocol kDHKeyXChange{
    .name = "SB_PROT_DHKeyXChange",
    .summary = "The Diffie-Hellman key exchange protocol: agrees upon a session key",
    .clause = "400-C 2.6",
    .family = SecurityFamilyId::KeyXChange,
    .subtype = 1,
    .initialized = "DH-Key Exchange Protocol initialized with Session Key Length ",
    .label = "DHKeyExchange",
    .proposed = "DHKeyXChange protocol",
    .mismatched = "DHKeyXChange protocol",
    .rejected = "DHKeyXChange protocol",
    .separator = ", subtype ",
    .uninitialized = "SB_PROT_DHXChange"};
inline constexpr SecurityProtocol kDefaultAuthentication{
    .name = "SB_PROT_DefaultAuthentication",
    .summary = "The default authentication protocol: packets pass as they are",
    .clause = "400-C 2.7",
    .family = SecurityFamilyId::Authentication,
    .subtype = 0,
    .initialized = "Default Authentication Exchange Protocol Initialized.",
    .label = "Default Authentication",
    .proposed = "Default Authentication protocol",
    .mismatched = "Default Authentication Protocol",
    .rejected = "Default Authentication protocol",
    .separator = ", Subtype "};
inline constexpr SecurityProtocol kSHA1Authentication{
    .name = "SB_PROT_SHA1Authentication",
    .summary = "The SHA-1 authentication protocol: signs access channel packets",
    .clause = "400-C 2.8",
    .family = SecurityFamilyId::Authentication,
    .subtype = 1,
    .initialized = "SHA-1 Authentication Protocol initialized with Authentication Key Length ",
    .label = "SHA-1 Authentication",
    .proposed = "SHA-1 Authentication protocol",
    .mismatched = "SHA-1 Authentication Protocol",
    .rejected = "SHA-1 Authentication Protocol",
    .separator = ", Subtype "};
inline constexpr SecurityProtocol kDefaultEncryption{.name = "SB_PROT_DefaultEncryption",
                                                     .summary = "The default encryption protocol: no encryption",
                                                     .clause = "400-C 2.9",
                                                     .family = SecurityFamilyId::Encryption,
                                                     .subtype = 0,
                                                     .initialized = "Default Encryption Protocol Initialized.",
                                                     .label = "Default Encryption",
                                                     .proposed = "Default Encryption protocol",
                                                     .mismatched = "Default Encryption protocol",
                                                     .rejected = "Default Encryption protocol",
                                                     .separator = ", subtype "};

}  // namespace vorlan
