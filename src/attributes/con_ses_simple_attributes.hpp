// Simple attributes of the connection layer (C.S0024-A 8) and of the session layer.
#pragma once

#include "attributes/attribute_of.hpp"

namespace vorlan {

inline constexpr Meaning kUnsignedMinutes{.unit = "minutes"};

/// An attribute of the connection layer: an 8-bit AttributeID, up to an octet of value, and errors that name no source.
constexpr SimpleAttributeSpec con_simple(std::string_view clause, std::string_view name, std::uint16_t id,
                                         std::string_view summary, std::string_view initial = "00000000") {
  return {.name = name,
          .summary = summary,
          .clause = clause,
          .id = id,
          .id_bits = 8,
          .id_settable = true,
          .up_to = true,
          .initial = initial,
          .length = 2,
          .record_bits = 24,
          .texts = AttributeTexts::Variable,
          .empty_source = true};
}

inline constexpr SimpleAttributeSpec kConSesSimpleAttributes[] = {
    con_simple("8.5", "SB_Con_AttrSmallSlotCycleAllowed", 0xFF,
               "Whether the terminal may wake more often than once in a control-channel cycle."),
    // Starts with two octets of value, and builds them.
    {.name = "SB_Con_AttrRouteUpdateRadiusAdd",
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
     .empty_source = true},
    con_simple("8.7", "SB_Con_AttrRUpdateRadiusMultiply", 0xFF,
               "Factor of the radius of a distance-based RouteUpdate (RouteUpdateRadiusMultiply).", "00001010"),
    con_simple("8.7", "SB_Con_AttrSupportRUpdateEnhance", 0xFD,
               "Whether the enhancements of RouteUpdate are supported (SupportRouteUpdateEnhancements)."),
    // The one of its family with a value of one width.
    {.name = "SB_Con_AttrAccessHashingClassMask",
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
     .empty_source = true},
    // Starts without a value, so that it builds no record before the script sets one.
    {.name = "SB_Ses_AttrProtocolType",
     .summary = "Subtype of a protocol; the AttributeID is the protocol's type number.",
     .clause = "5.4.7",
     .id = 0x0000,
     .id_settable = true,
     .value_bits = 16,
     .up_to = true,
     .initial = "",
     .length = 4,
     .record_bits = 40,
     .texts = AttributeTexts::Variable},
    {.name = "SB_Ses_AttrTSMPClose",
     .summary = "After so long without traffic the session ends; 0 keeps it for ever.",
     .clause = "5.2.7",
     .meaning = &kUnsignedMinutes,
     .id = 0xFF,
     .id_bits = 8,
     .value_bits = 16,
     .initial = "0000110010101000",
     .record_bits = 0,
     .texts = AttributeTexts::EarlySession},
    {.name = "SB_Ses_AttrSupGAUPSesConfigToken",
     .summary = "Whether attribute updates may change the token (SupportGAUPSessionConfigurationToken).",
     .clause = "5.4.7",
     .id = 0x0101,
     .value_bits = 16,
     .initial = "0000000000000000",
     .length = 4,
     .record_bits = 40,
     .source = "SB_Ses_AttrSupportGAUPSessionConfigToken"},
    {.name = "SB_Ses_AttrSessionConfigToken",
     .summary = "The access network's mark of a session's configuration (SessionConfigurationToken).",
     .clause = "5.4.7",
     .id = 0x0100,
     .value_bits = 16,
     .initial = "0000000000000000",
     .length = 4,
     .record_bits = 40},
};

template <MemberName Name>
using ConSesSimpleAttribute = AttributeOf<kConSesSimpleAttributes, row_of<kConSesSimpleAttributes>(Name.view())>;

using SB_Con_AttrSmallSlotCycleAllowed = ConSesSimpleAttribute<"SB_Con_AttrSmallSlotCycleAllowed">;
using SB_Con_AttrRouteUpdateRadiusAdd = ConSesSimpleAttribute<"SB_Con_AttrRouteUpdateRadiusAdd">;
using SB_Con_AttrRUpdateRadiusMultiply = ConSesSimpleAttribute<"SB_Con_AttrRUpdateRadiusMultiply">;
using SB_Con_AttrSupportRUpdateEnhance = ConSesSimpleAttribute<"SB_Con_AttrSupportRUpdateEnhance">;
using SB_Con_AttrAccessHashingClassMask = ConSesSimpleAttribute<"SB_Con_AttrAccessHashingClassMask">;
using SB_Ses_AttrProtocolType = ConSesSimpleAttribute<"SB_Ses_AttrProtocolType">;
using SB_Ses_AttrTSMPClose = ConSesSimpleAttribute<"SB_Ses_AttrTSMPClose">;
using SB_Ses_AttrSupGAUPSesConfigToken = ConSesSimpleAttribute<"SB_Ses_AttrSupGAUPSesConfigToken">;
using SB_Ses_AttrSessionConfigToken = ConSesSimpleAttribute<"SB_Ses_AttrSessionConfigToken">;

}  // namespace vorlan
