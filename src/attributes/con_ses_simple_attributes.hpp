// Simple attributes of the connection layer (C.S0024-A 8) and of the session layer.
#pragma once

#include "attributes/attribute_of.hpp"

namespace vorlan {

// Errors of the connection layer's attributes name no source.
inline constexpr SimpleAttributeSpec kAttrSmallSlotCycleAllowed{
    .name = "SB_Con_AttrSmallSlotCycleAllowed",
    .summary = "Whether the terminal may wake more often than once in a control-channel cycle.",
    .clause = "8.5",
    .id = 0xFF,
    .id_bits = 8,
    .id_settable = true,
    .up_to = true,
    .length = 2,
    .record_bits = 24,
    .texts = AttributeTexts::Variable,
    .empty_source = true,
};
using SB_Con_AttrSmallSlotCycleAllowed = AttributeOf<kAttrSmallSlotCycleAllowed>;

// Starts with two octets of value, and builds them.
inline constexpr SimpleAttributeSpec kAttrRouteUpdateRadiusAdd{
    .name = "SB_Con_AttrRouteUpdateRadiusAdd",
    .summary = "Added to the radius of a distance-based RouteUpdate.",
    .clause = "8.7",
    .id = 0xFE,
    .id_bits = 8,
    .id_settable = true,
    .up_to = true,
    .initial = "0000000000000000",
    .length = 2,
    .record_bits = 24,
    .disagrees_on_purpose = true,
    .texts = AttributeTexts::Variable,
    .empty_source = true,
};
using SB_Con_AttrRouteUpdateRadiusAdd = AttributeOf<kAttrRouteUpdateRadiusAdd>;

inline constexpr SimpleAttributeSpec kAttrRUpdateRadiusMultiply{
    .name = "SB_Con_AttrRUpdateRadiusMultiply",
    .summary = "Factor of the radius of a distance-based RouteUpdate (RouteUpdateRadiusMultiply).",
    .clause = "8.7",
    .id = 0xFF,
    .id_bits = 8,
    .id_settable = true,
    .up_to = true,
    .initial = "00001010",
    .length = 2,
    .record_bits = 24,
    .texts = AttributeTexts::Variable,
    .empty_source = true,
};
using SB_Con_AttrRUpdateRadiusMultiply = AttributeOf<kAttrRUpdateRadiusMultiply>;

inline constexpr SimpleAttributeSpec kAttrSupportRUpdateEnhance{
    .name = "SB_Con_AttrSupportRUpdateEnhance",
    .summary = "Whether the enhancements of RouteUpdate are supported (SupportRouteUpdateEnhancements).",
    .clause = "8.7",
    .id = 0xFD,
    .id_bits = 8,
    .id_settable = true,
    .up_to = true,
    .length = 2,
    .record_bits = 24,
    .texts = AttributeTexts::Variable,
    .empty_source = true,
};
using SB_Con_AttrSupportRUpdateEnhance = AttributeOf<kAttrSupportRUpdateEnhance>;

// The one of its family with a value of one width.
inline constexpr SimpleAttributeSpec kAttrAccessHashingClassMask{
    .name = "SB_Con_AttrAccessHashingClassMask",
    .summary = "Class mask that goes into the terminal's choice of an access channel.",
    .clause = "8.5",
    .id = 0xFE,
    .id_bits = 8,
    .id_settable = true,
    .value_bits = 16,
    .initial = "0000000000000000",
    .length = 2,
    .disagrees_on_purpose = true,
    .texts = AttributeTexts::Variable,
    .wrong_value = "Length of Attribute Value should be 16 bits .",
    .empty_source = true,
};
using SB_Con_AttrAccessHashingClassMask = AttributeOf<kAttrAccessHashingClassMask>;

// Starts without a value, so that it builds no record before the script sets one.
inline constexpr SimpleAttributeSpec kAttrProtocolType{
    .name = "SB_Ses_AttrProtocolType",
    .summary = "Subtype of a protocol; the AttributeID is the protocol's type number.",
    .clause = "5.4.7",
    .id = 0x0000,
    .id_settable = true,
    .value_bits = 16,
    .up_to = true,
    .initial = "",
    .length = 4,
    .record_bits = 40,
    .texts = AttributeTexts::Variable,
};
using SB_Ses_AttrProtocolType = AttributeOf<kAttrProtocolType>;

inline constexpr SimpleAttributeSpec kAttrTSMPClose{
    .name = "SB_Ses_AttrTSMPClose",
    .summary = "After so long without traffic the session ends; 0 keeps it for ever.",
    .clause = "5.2.7",
    .unit = "minutes",
    .id = 0xFF,
    .id_bits = 8,
    .value_bits = 16,
    .initial = "0000110010101000",
    .record_bits = 0,
    .texts = AttributeTexts::EarlySession,
};
using SB_Ses_AttrTSMPClose = AttributeOf<kAttrTSMPClose>;

inline constexpr SimpleAttributeSpec kAttrSupGAUPSesConfigToken{
    .name = "SB_Ses_AttrSupGAUPSesConfigToken",
    .summary = "Whether attribute updates may change the token (SupportGAUPSessionConfigurationToken).",
    .clause = "5.4.7",
    .id = 0x0101,
    .value_bits = 16,
    .initial = "0000000000000000",
    .length = 4,
    .record_bits = 40,
    .source = "SB_Ses_AttrSupportGAUPSessionConfigToken",
};
using SB_Ses_AttrSupGAUPSesConfigToken = AttributeOf<kAttrSupGAUPSesConfigToken>;

inline constexpr SimpleAttributeSpec kAttrSessionConfigToken{
    .name = "SB_Ses_AttrSessionConfigToken",
    .summary = "The access network's mark of a session's configuration (SessionConfigurationToken).",
    .clause = "5.4.7",
    .id = 0x0100,
    .value_bits = 16,
    .initial = "0000000000000000",
    .length = 4,
    .record_bits = 40,
};
using SB_Ses_AttrSessionConfigToken = AttributeOf<kAttrSessionConfigToken>;

}  // namespace vorlan
