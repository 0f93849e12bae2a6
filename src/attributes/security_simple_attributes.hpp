// Simple attributes of the security layer (C.S0024-400-C 2.6 and 2.8).
#pragma once

#include "attributes/attribute_of.hpp"

namespace vorlan {

inline constexpr Code kSessionKeyLengths[] = {{0, "768 bits"}, {1, "1024 bits"}};
inline constexpr Meaning kSessionKeyLength{.codes = kSessionKeyLengths, .summary = "0 = 768 bits, 1 = 1024 bits"};
inline constexpr Meaning kLengthInBits{.unit = "bits"};

inline constexpr SimpleAttributeSpec kSecuritySimpleAttributes[] = {
    // Blanks at odd places belong to the texts.
    {.name = "SB_Sec_AttrSessionKeyLength",
     .summary = "Length of the session key that a Diffie-Hellman key exchange agrees upon (SessionKeyLength).",
     .clause = "400-C 2.6",
     .meaning = &kSessionKeyLength,
     .id = 0x00,
     .id_bits = 8,
     .length = 2,
     .record_bits = 24,
     .wrong_record = "SessionKeyLength Attribute string should be 24 bits long.",
     .wrong_length = " Attribute Length string should be 8 bits long. ",
     .wrong_value = "Attribute Value string should be 8 bits long."},
    {.name = "SB_Sec_AttrACAuthKeyLength",
     .summary = "Length of the key that authenticates access channel packets (ACAuthKeyLength).",
     .clause = "400-C 2.8",
     .meaning = &kLengthInBits,
     .id = 0x00,
     .id_bits = 8,
     .value_bits = 16,
     .initial = "0000000010100000",
     .wrong_record = "Length of attribute string should be 32 bits.",
     .wrong_length = "Length of attribute should be 8 bits .",
     .wrong_value = "Length of attribute value  should be 16 bits ."},
};

template <MemberName Name>
using SecuritySimpleAttribute = AttributeOf<kSecuritySimpleAttributes, row_of<kSecuritySimpleAttributes>(Name.view())>;

using SB_Sec_AttrSessionKeyLength = SecuritySimpleAttribute<"SB_Sec_AttrSessionKeyLength">;
using SB_Sec_AttrACAuthKeyLength = SecuritySimpleAttribute<"SB_Sec_AttrACAuthKeyLength">;

}  // namespace vorlan
