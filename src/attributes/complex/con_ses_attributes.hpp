// Complex attributes of the connection, session and stream layers (C.S0024-A 8.5, 8.7, 5.4, 6).
#pragma once

#include "attributes/complex/complex_attribute_of.hpp"
#include "attributes/values/con_values.hpp"
#include "attributes/values/ses_str_values.hpp"

namespace vorlan {

/// The ValueID of the first received value record that offers a band class, and in it a subclass unless that is empty;
/// the empty text if none does. Error 1 before a record is received.
std::string supported_channels_value_id(ComplexAttribute& attribute, std::span<const Value> arguments);

inline constexpr std::string_view kSupportedChannelsArguments[] = {"BandClass", "BandSubClass"};
inline constexpr AttributeSearch kSupportedChannelsSearch{
    "ReturnValIDSupp", kSupportedChannelsArguments, supported_channels_value_id,
    "The ValueID of the first received value record that offers a band class, and in it a subclass."};

/// An attribute of the connection layer: lists of value records, an 8-bit AttributeID.
constexpr ComplexAttributeSpec con_attribute(std::string_view clause, std::string_view name, std::uint16_t id,
                                             ValueClassGetter values, std::string_view summary) {
  return {.name = name,
          .summary = summary,
          .clause = clause,
          .id = id,
          .values = values,
          .wrong_record = kWrongConnectionRecord,
          .wrong_length = kWrongOldLength};
}

inline constexpr ComplexAttributeSpec kConSesAttributes[] = {
    con_attribute("8.5", "SB_Con_AttrPrefCtrlChannelCycle", 0x00, kRecordsOf<kValPrefCtrlChannelCycle>,
                  "The control channel cycle in which the terminal wakes (PreferredControlChannelCycle)"),
    con_attribute("8.5", "SB_Con_AttrSlottedMode", 0x01, kRecordsOf<kValSlottedMode>,
                  "Sleep periods of the idle terminal, and how long it keeps each"),
    con_attribute("8.5", "SB_Con_AttrPagingMask", 0x02, kRecordsOf<kValPagingMask>,
                  "Times in which the terminal does not listen for pages"),
    con_attribute("8.7", "SB_Con_AttrSearchParameters", 0x00, kRecordsOf<kValSearchParameters>,
                  "Search windows, and the step of pilot PN offsets"),
    con_attribute("8.7", "SB_Con_AttrSetMgmSameChnlParameter", 0x01, kRecordsOf<kValSetMgmSameChnlParameter>,
                  "When pilots on the same channel join and leave (SetManagementSameChannelParameters)"),
    {.name = "SB_Con_AttrSetMgmDiffChnlParameter",
     .summary = "When pilots on other channels join and leave (SetManagementDifferentChannelParameters)",
     .clause = "8.7",
     .id = 0x02,
     .values = kRecordsOf<kValSetMgmDiffChnlParameters>,
     .wrong_record = kWrongConnectionRecord,
     .wrong_length = kWrongOldLength,
     .source = "SB_Con_AttrSetMgmtDiffChnlParameters"},
    {.name = "SB_Con_AttrSuppCDMAChannels",
     .summary = "Band classes that the terminal supports (SupportedCDMAChannels)",
     .clause = "8.7",
     .id = 0x04,
     .values = kRecordsOf<kValSuppCDMAChannels>,
     .search = &kSupportedChannelsSearch,
     .wrong_record = kWrongConnectionRecord},
    {.name = "SB_Ses_AttrPriorSession",
     .summary = "Asks for a prior session to be restored",
     .clause = "5.4.7",
     .id = 0x1000,
     .id_bits = 16,
     .values = kRecordsOf<kValPriorSession>,
     .wrong_record = kWrongRecord},
    {.name = "SB_Str_AttrStreamConfig",
     .summary = "The applications of the four streams (StreamConfiguration)",
     .clause = "6",
     .id = 0x00,
     .values = kRecordsOf<kValStreamConfig>,
     .wrong_record = kWrongRecord,
     .wrong_length = kWrongOldLength},
};

template <MemberName Name>
using ConSesAttribute = ComplexAttributeOf<kConSesAttributes, row_of<kConSesAttributes>(Name.view())>;

using SB_Con_AttrPrefCtrlChannelCycle = ConSesAttribute<"SB_Con_AttrPrefCtrlChannelCycle">;
using SB_Con_AttrSlottedMode = ConSesAttribute<"SB_Con_AttrSlottedMode">;
using SB_Con_AttrPagingMask = ConSesAttribute<"SB_Con_AttrPagingMask">;
using SB_Con_AttrSearchParameters = ConSesAttribute<"SB_Con_AttrSearchParameters">;
using SB_Con_AttrSetMgmSameChnlParameter = ConSesAttribute<"SB_Con_AttrSetMgmSameChnlParameter">;
using SB_Con_AttrSetMgmDiffChnlParameter = ConSesAttribute<"SB_Con_AttrSetMgmDiffChnlParameter">;
using SB_Con_AttrSuppCDMAChannels = ConSesAttribute<"SB_Con_AttrSuppCDMAChannels">;
using SB_Ses_AttrPriorSession = ConSesAttribute<"SB_Ses_AttrPriorSession">;
using SB_Str_AttrStreamConfig = ConSesAttribute<"SB_Str_AttrStreamConfig">;

}  // namespace vorlan
