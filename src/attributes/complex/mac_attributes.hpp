// Complex attributes of the MAC layer (C.S0024-A 10.4 to 10.11).
#pragma once

#include "attributes/complex/complex_attribute_of.hpp"
#include "attributes/values/mac_values.hpp"
#include "attributes/values/power_parameters.hpp"

namespace vorlan {

/// The first MAC protocols: lists of value records, an 8-bit AttributeID, and each its own text for a malformed record.
constexpr ComplexAttributeSpec mac_attribute(std::string_view clause, std::string_view name, std::uint16_t id,
                                             ValueClassGetter values, std::string_view summary,
                                             std::string_view wrong_record) {
  return {.name = name,
          .summary = summary,
          .clause = clause,
          .id = id,
          .values = values,
          .wrong_record = wrong_record,
          .not_received = kNotReceivedProperty,
          .wrong_length = kWrongOldLength};
}

/// The reverse traffic channel, subtype 3: a 16-bit AttributeID. Most are never received.
constexpr ComplexAttributeSpec rtc_mac_attribute(std::string_view name, std::uint16_t id, ValueClassGetter values,
                                                 std::string_view summary) {
  return {.name = name,
          .summary = summary,
          .clause = "10.11.7",
          .form = AttributeForm::Builder,
          .id = id,
          .id_bits = 16,
          .values = values};
}
/// The same with a flow in the low octet of the AttributeID.
constexpr ComplexAttributeSpec rtc_mac_flow_attribute(std::string_view name, std::uint16_t id, ValueClassGetter values,
                                                      std::string_view summary) {
  ComplexAttributeSpec row = rtc_mac_attribute(name, id, values, summary);
  row.id_settable = true;
  return row;
}
/// The PowerParameters of a payload size: their AttributeIDs follow each other in that order.
template <const PowerParametersRow& Row>
constexpr ComplexAttributeSpec power_parameters_attribute() {
  return rtc_mac_attribute(sized<"SB_Mac_AttrPowerParameters", Row>(),
                           static_cast<std::uint16_t>(0x0004 + small_value(Row.value_id)),
                           kRecordsOf<kValPowerParametersOf<Row>>,
                           sized<"Traffic to pilot ratios and termination targets of payload size ", Row>());
}

inline constexpr ComplexAttributeSpec kMacAttributes[] = {
    mac_attribute("10.4", "SB_Mac_AttrInitialConfiguration", 0x00, kRecordsOf<kValInitialConfiguration>,
                  "Probe sequences and backoffs of the access channel", kWrongRecord),
    mac_attribute("10.4", "SB_Mac_AttrPowerParameters", 0x01, kRecordsOf<kValPowerParameters>,
                  "Power of the access channel's data, and the power control step",
                  "PowerParameter Attribute string length is incorrect."),
    mac_attribute("10.6", "SB_Mac_AttrHandoffDelays", 0x00, kRecordsOf<kValHandoffDelays>,
                  "How long a change of the serving sector takes",
                  "Handoffdelays Attribute string length is incorrect. "),
    mac_attribute("10.6", "SB_Mac_AttrDRCLock", 0x01, kRecordsOf<kValDRCLock>,
                  "How far apart DRCLock bits are, and how often each is repeated",
                  "Error:Attribute string length is incorrect. "),
    mac_attribute("10.8", "SB_Mac_AttrRTCPowerParameters", 0x00, kRecordsOf<kValRTCPowerParameters>,
                  "Power of the reverse traffic channel's data, and the power control step (PowerParameters)",
                  "PowerParameter Attribute string length is incorrect."),
    mac_attribute("10.8", "SB_Mac_AttrRateParameters", 0x01, kRecordsOf<kValRateParameters>,
                  "Probabilities of a change to the next reverse rate",
                  "RateParameter Attribute string length incorrect."),

    {.name = "SB_Mac_AttrMaxMACFlows",
     .summary = "How many MAC flows the terminal supports",
     .clause = "10.11.7",
     .id = 0x0014,
     .id_bits = 16,
     .values = kRecordsOf<kValMaxMACFlows>,
     .wrong_record = kWrongRecord},
    {.name = "SB_MAC_AttrAssociatedFlowsNN",
     .summary = "The streams that a MAC flow carries",
     .clause = "10.11.7",
     .id = 0x0101,
     .id_bits = 16,
     .id_settable = true,
     .values = kRecordsOf<kValAssociatedFlowsNN>,
     .wrong_record = kWrongRecord},

    rtc_mac_attribute("SB_Mac_AttrAuxiliaryPilotChnlParams", 0x0000, kRecordsOf<kValAuxiliaryPilotChnlParams>,
                      "Gain of the auxiliary pilot, and its smallest payload (AuxiliaryPilotChannelParameters)"),
    rtc_mac_attribute("SB_Mac_AttrCommonPowerParameters", 0x0001, kRecordsOf<kValCommonPowerParameters>,
                      "Allocation stagger, smallest traffic to pilot ratio and power control step"),
    rtc_mac_attribute("SB_Mac_AttrPermittedPayload", 0x0003, kRecordsOf<kValPermittedPayload>,
                      "The largest payloads, by what was sent in the subframes before"),
    rtc_mac_attribute("SB_Mac_AttrPilotStrength", 0x0004, kRecordsOf<kValPilotStrength>, "Weights of pilot strengths"),
    rtc_mac_attribute("SB_Mac_AttrRequestParameters", 0x0011, kRecordsOf<kValRequestParameters>,
                      "How many requests the terminal sends, and how far apart"),
    rtc_mac_attribute("SB_Mac_AttrRRIChannelPwrParam", 0x0012, kRecordsOf<kValRRIChannelPwrParam>,
                      "Gains of the reverse rate indicator channel (RRIChannelPowerParameters)"),
    rtc_mac_attribute("SB_Mac_AttrTxT2Pmax", 0x0013, kRecordsOf<kValTxT2Pmax>,
                      "The largest traffic to pilot ratios, by pilot strength"),
    rtc_mac_flow_attribute("SB_Mac_AttrBucketFactorNN", 0x0300, kRecordsOf<kValBucketFactorNN>,
                           "Bucket factors of a MAC flow, by T2P and FRAB"),
    rtc_mac_flow_attribute("SB_Mac_AttrT2PInflowRangeNN", 0x1500, kRecordsOf<kValT2PInflowRangeNN>,
                           "The smallest and the largest T2P inflow of a MAC flow"),
    rtc_mac_flow_attribute("SB_Mac_AttrT2PTransitionFunctionNN", 0x1600, kRecordsOf<kValT2PTransitionFunctionNN>,
                           "Steps of a MAC flow's T2P, up and down, by T2P and FRAB"),
    // Of the enhanced forward traffic channel, and the one builder with an 8-bit AttributeID.
    {.name = "SB_Mac_AttrDRCTranslationOffset",
     .summary = "What is subtracted from each DRC index",
     .clause = "10.7",
     .form = AttributeForm::Builder,
     .id = 0x01,
     .values = kRecordsOf<kValDRCTranslationOffset>,
     .wrong_length = kWrongOldLength},

    power_parameters_attribute<kPowerParameters128>(),
    power_parameters_attribute<kPowerParameters256>(),
    power_parameters_attribute<kPowerParameters512>(),
    power_parameters_attribute<kPowerParameters768>(),
    power_parameters_attribute<kPowerParameters1024>(),
    power_parameters_attribute<kPowerParameters1536>(),
    power_parameters_attribute<kPowerParameters2048>(),
    power_parameters_attribute<kPowerParameters3072>(),
    power_parameters_attribute<kPowerParameters4096>(),
    power_parameters_attribute<kPowerParameters6144>(),
    power_parameters_attribute<kPowerParameters8192>(),
    power_parameters_attribute<kPowerParameters12288>(),
};

template <MemberName Name>
using MacAttribute = ComplexAttributeOf<kMacAttributes, row_of<kMacAttributes>(Name.view())>;

using SB_Mac_AttrInitialConfiguration = MacAttribute<"SB_Mac_AttrInitialConfiguration">;
using SB_Mac_AttrPowerParameters = MacAttribute<"SB_Mac_AttrPowerParameters">;
using SB_Mac_AttrHandoffDelays = MacAttribute<"SB_Mac_AttrHandoffDelays">;
using SB_Mac_AttrDRCLock = MacAttribute<"SB_Mac_AttrDRCLock">;
using SB_Mac_AttrRTCPowerParameters = MacAttribute<"SB_Mac_AttrRTCPowerParameters">;
using SB_Mac_AttrRateParameters = MacAttribute<"SB_Mac_AttrRateParameters">;
using SB_Mac_AttrMaxMACFlows = MacAttribute<"SB_Mac_AttrMaxMACFlows">;
using SB_MAC_AttrAssociatedFlowsNN = MacAttribute<"SB_MAC_AttrAssociatedFlowsNN">;
using SB_Mac_AttrAuxiliaryPilotChnlParams = MacAttribute<"SB_Mac_AttrAuxiliaryPilotChnlParams">;
using SB_Mac_AttrCommonPowerParameters = MacAttribute<"SB_Mac_AttrCommonPowerParameters">;
using SB_Mac_AttrPermittedPayload = MacAttribute<"SB_Mac_AttrPermittedPayload">;
using SB_Mac_AttrPilotStrength = MacAttribute<"SB_Mac_AttrPilotStrength">;
using SB_Mac_AttrRequestParameters = MacAttribute<"SB_Mac_AttrRequestParameters">;
using SB_Mac_AttrRRIChannelPwrParam = MacAttribute<"SB_Mac_AttrRRIChannelPwrParam">;
using SB_Mac_AttrTxT2Pmax = MacAttribute<"SB_Mac_AttrTxT2Pmax">;
using SB_Mac_AttrBucketFactorNN = MacAttribute<"SB_Mac_AttrBucketFactorNN">;
using SB_Mac_AttrT2PInflowRangeNN = MacAttribute<"SB_Mac_AttrT2PInflowRangeNN">;
using SB_Mac_AttrT2PTransitionFunctionNN = MacAttribute<"SB_Mac_AttrT2PTransitionFunctionNN">;
using SB_Mac_AttrDRCTranslationOffset = MacAttribute<"SB_Mac_AttrDRCTranslationOffset">;
using SB_Mac_AttrPowerParameters128 = MacAttribute<"SB_Mac_AttrPowerParameters128">;
using SB_Mac_AttrPowerParameters256 = MacAttribute<"SB_Mac_AttrPowerParameters256">;
using SB_Mac_AttrPowerParameters512 = MacAttribute<"SB_Mac_AttrPowerParameters512">;
using SB_Mac_AttrPowerParameters768 = MacAttribute<"SB_Mac_AttrPowerParameters768">;
using SB_Mac_AttrPowerParameters1024 = MacAttribute<"SB_Mac_AttrPowerParameters1024">;
using SB_Mac_AttrPowerParameters1536 = MacAttribute<"SB_Mac_AttrPowerParameters1536">;
using SB_Mac_AttrPowerParameters2048 = MacAttribute<"SB_Mac_AttrPowerParameters2048">;
using SB_Mac_AttrPowerParameters3072 = MacAttribute<"SB_Mac_AttrPowerParameters3072">;
using SB_Mac_AttrPowerParameters4096 = MacAttribute<"SB_Mac_AttrPowerParameters4096">;
using SB_Mac_AttrPowerParameters6144 = MacAttribute<"SB_Mac_AttrPowerParameters6144">;
using SB_Mac_AttrPowerParameters8192 = MacAttribute<"SB_Mac_AttrPowerParameters8192">;
using SB_Mac_AttrPowerParameters12288 = MacAttribute<"SB_Mac_AttrPowerParameters12288">;

}  // namespace vorlan
