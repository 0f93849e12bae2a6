// Complex attributes of the MAC layer (C.S0024-A 10.4 to 10.11).
#pragma once

#include "attributes/complex/complex_attribute_of.hpp"
#include "attributes/values/mac_values.hpp"
#include "attributes/values/power_parameters.hpp"

namespace vorlan {

inline constexpr ComplexAttributeSpec kAttrInitialConfiguration{
    .name = "SB_Mac_AttrInitialConfiguration",
    .summary = "InitialConfiguration of the access channel",
    .clause = "10.4",
    .id = 0x00,
    .values = &ValueOf<kValInitialConfiguration>::shared_class,
    .wrong_record = kWrongRecord,
    .not_received = kNotReceivedProperty,
    .wrong_length = kWrongOldLength};
using SB_Mac_AttrInitialConfiguration = ComplexAttributeOf<kAttrInitialConfiguration>;

inline constexpr ComplexAttributeSpec kAttrPowerParameters{
    .name = "SB_Mac_AttrPowerParameters",
    .summary = "PowerParameters of the access channel",
    .clause = "10.4",
    .id = 0x01,
    .values = &ValueOf<kValPowerParameters>::shared_class,
    .wrong_record = "PowerParameter Attribute string length is incorrect.",
    .not_received = kNotReceivedProperty,
    .wrong_length = kWrongOldLength};
using SB_Mac_AttrPowerParameters = ComplexAttributeOf<kAttrPowerParameters>;

inline constexpr ComplexAttributeSpec kAttrHandoffDelays{
    .name = "SB_Mac_AttrHandoffDelays",
    .summary = "HandoffDelays",
    .clause = "10.6",
    .id = 0x00,
    .values = &ValueOf<kValHandoffDelays>::shared_class,
    .wrong_record = "Handoffdelays Attribute string length is incorrect. ",
    .not_received = kNotReceivedProperty,
    .wrong_length = kWrongOldLength};
using SB_Mac_AttrHandoffDelays = ComplexAttributeOf<kAttrHandoffDelays>;

inline constexpr ComplexAttributeSpec kAttrDRCLock{.name = "SB_Mac_AttrDRCLock",
                                                   .summary = "DRCLock",
                                                   .clause = "10.6",
                                                   .id = 0x01,
                                                   .values = &ValueOf<kValDRCLock>::shared_class,
                                                   .wrong_record = "Error:Attribute string length is incorrect. ",
                                                   .not_received = kNotReceivedProperty,
                                                   .wrong_length = kWrongOldLength};
using SB_Mac_AttrDRCLock = ComplexAttributeOf<kAttrDRCLock>;

inline constexpr ComplexAttributeSpec kAttrRTCPowerParameters{
    .name = "SB_Mac_AttrRTCPowerParameters",
    .summary = "PowerParameters of the reverse traffic channel",
    .clause = "10.8",
    .id = 0x00,
    .values = &ValueOf<kValRTCPowerParameters>::shared_class,
    .wrong_record = "PowerParameter Attribute string length is incorrect.",
    .not_received = kNotReceivedProperty,
    .wrong_length = kWrongOldLength};
using SB_Mac_AttrRTCPowerParameters = ComplexAttributeOf<kAttrRTCPowerParameters>;

inline constexpr ComplexAttributeSpec kAttrRateParameters{
    .name = "SB_Mac_AttrRateParameters",
    .summary = "RateParameters of the reverse traffic channel",
    .clause = "10.8",
    .id = 0x01,
    .values = &ValueOf<kValRateParameters>::shared_class,
    .wrong_record = "RateParameter Attribute string length incorrect.",
    .not_received = kNotReceivedProperty,
    .wrong_length = kWrongOldLength};
using SB_Mac_AttrRateParameters = ComplexAttributeOf<kAttrRateParameters>;

inline constexpr ComplexAttributeSpec kAttrMaxMACFlows{.name = "SB_Mac_AttrMaxMACFlows",
                                                       .summary = "MaxMACFlows",
                                                       .clause = "10.11.7",
                                                       .id = 0x0014,
                                                       .id_bits = 16,
                                                       .values = &ValueOf<kValMaxMACFlows>::shared_class,
                                                       .wrong_record = kWrongRecord};
using SB_Mac_AttrMaxMACFlows = ComplexAttributeOf<kAttrMaxMACFlows>;

inline constexpr ComplexAttributeSpec kAttrAssociatedFlowsNN{.name = "SB_MAC_AttrAssociatedFlowsNN",
                                                             .summary = "AssociatedFlowsNN",
                                                             .clause = "10.11.7",
                                                             .id = 0x0101,
                                                             .id_bits = 16,
                                                             .id_settable = true,
                                                             .values = &ValueOf<kValAssociatedFlowsNN>::shared_class,
                                                             .wrong_record = kWrongRecord};
using SB_MAC_AttrAssociatedFlowsNN = ComplexAttributeOf<kAttrAssociatedFlowsNN>;

inline constexpr ComplexAttributeSpec kAttrAuxiliaryPilotChnlParams{
    .name = "SB_Mac_AttrAuxiliaryPilotChnlParams",
    .summary = "AuxiliaryPilotChannelParameters",
    .clause = "10.11.7",
    .form = AttributeForm::Builder,
    .id = 0x0000,
    .id_bits = 16,
    .values = &ValueOf<kValAuxiliaryPilotChnlParams>::shared_class};
using SB_Mac_AttrAuxiliaryPilotChnlParams = ComplexAttributeOf<kAttrAuxiliaryPilotChnlParams>;

inline constexpr ComplexAttributeSpec kAttrCommonPowerParameters{
    .name = "SB_Mac_AttrCommonPowerParameters",
    .summary = "CommonPowerParameters",
    .clause = "10.11.7",
    .form = AttributeForm::Builder,
    .id = 0x0001,
    .id_bits = 16,
    .values = &ValueOf<kValCommonPowerParameters>::shared_class};
using SB_Mac_AttrCommonPowerParameters = ComplexAttributeOf<kAttrCommonPowerParameters>;

inline constexpr ComplexAttributeSpec kAttrPermittedPayload{.name = "SB_Mac_AttrPermittedPayload",
                                                            .summary = "PermittedPayload",
                                                            .clause = "10.11.7",
                                                            .form = AttributeForm::Builder,
                                                            .id = 0x0003,
                                                            .id_bits = 16,
                                                            .values = &ValueOf<kValPermittedPayload>::shared_class};
using SB_Mac_AttrPermittedPayload = ComplexAttributeOf<kAttrPermittedPayload>;

inline constexpr ComplexAttributeSpec kAttrPilotStrength{.name = "SB_Mac_AttrPilotStrength",
                                                         .summary = "PilotStrength",
                                                         .clause = "10.11.7",
                                                         .form = AttributeForm::Builder,
                                                         .id = 0x0004,
                                                         .id_bits = 16,
                                                         .values = &ValueOf<kValPilotStrength>::shared_class};
using SB_Mac_AttrPilotStrength = ComplexAttributeOf<kAttrPilotStrength>;

inline constexpr ComplexAttributeSpec kAttrRequestParameters{.name = "SB_Mac_AttrRequestParameters",
                                                             .summary = "RequestParameters",
                                                             .clause = "10.11.7",
                                                             .form = AttributeForm::Builder,
                                                             .id = 0x0011,
                                                             .id_bits = 16,
                                                             .values = &ValueOf<kValRequestParameters>::shared_class};
using SB_Mac_AttrRequestParameters = ComplexAttributeOf<kAttrRequestParameters>;

inline constexpr ComplexAttributeSpec kAttrRRIChannelPwrParam{.name = "SB_Mac_AttrRRIChannelPwrParam",
                                                              .summary = "RRIChannelPowerParameters",
                                                              .clause = "10.11.7",
                                                              .form = AttributeForm::Builder,
                                                              .id = 0x0012,
                                                              .id_bits = 16,
                                                              .values = &ValueOf<kValRRIChannelPwrParam>::shared_class};
using SB_Mac_AttrRRIChannelPwrParam = ComplexAttributeOf<kAttrRRIChannelPwrParam>;

inline constexpr ComplexAttributeSpec kAttrTxT2Pmax{.name = "SB_Mac_AttrTxT2Pmax",
                                                    .summary = "TxT2Pmax",
                                                    .clause = "10.11.7",
                                                    .form = AttributeForm::Builder,
                                                    .id = 0x0013,
                                                    .id_bits = 16,
                                                    .values = &ValueOf<kValTxT2Pmax>::shared_class};
using SB_Mac_AttrTxT2Pmax = ComplexAttributeOf<kAttrTxT2Pmax>;

inline constexpr ComplexAttributeSpec kAttrBucketFactorNN{.name = "SB_Mac_AttrBucketFactorNN",
                                                          .summary = "BucketFactorNN",
                                                          .clause = "10.11.7",
                                                          .form = AttributeForm::Builder,
                                                          .id = 0x0300,
                                                          .id_bits = 16,
                                                          .id_settable = true,
                                                          .values = &ValueOf<kValBucketFactorNN>::shared_class};
using SB_Mac_AttrBucketFactorNN = ComplexAttributeOf<kAttrBucketFactorNN>;

inline constexpr ComplexAttributeSpec kAttrT2PInflowRangeNN{.name = "SB_Mac_AttrT2PInflowRangeNN",
                                                            .summary = "T2PInflowRangeNN",
                                                            .clause = "10.11.7",
                                                            .form = AttributeForm::Builder,
                                                            .id = 0x1500,
                                                            .id_bits = 16,
                                                            .id_settable = true,
                                                            .values = &ValueOf<kValT2PInflowRangeNN>::shared_class};
using SB_Mac_AttrT2PInflowRangeNN = ComplexAttributeOf<kAttrT2PInflowRangeNN>;

inline constexpr ComplexAttributeSpec kAttrT2PTransitionFunctionNN{
    .name = "SB_Mac_AttrT2PTransitionFunctionNN",
    .summary = "T2PTransitionFunctionNN",
    .clause = "10.11.7",
    .form = AttributeForm::Builder,
    .id = 0x1600,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValT2PTransitionFunctionNN>::shared_class};
using SB_Mac_AttrT2PTransitionFunctionNN = ComplexAttributeOf<kAttrT2PTransitionFunctionNN>;

inline constexpr ComplexAttributeSpec kAttrDRCTranslationOffset{
    .name = "SB_Mac_AttrDRCTranslationOffset",
    .summary = "DRCTranslationOffset",
    .clause = "10.7",
    .form = AttributeForm::Builder,
    .id = 0x01,
    .values = &ValueOf<kValDRCTranslationOffset>::shared_class,
    .wrong_length = kWrongOldLength};
using SB_Mac_AttrDRCTranslationOffset = ComplexAttributeOf<kAttrDRCTranslationOffset>;

/// The twelve PowerParameters attributes: one for each payload size, their AttributeIDs in that order.
template <const PowerParametersRow& Row>
inline constexpr ComplexAttributeSpec kAttrPowerParametersOf{
    .name = sized<"SB_Mac_AttrPowerParameters", Row>(),
    .summary = "PowerParameters of a payload size",
    .clause = "10.11.7",
    .form = AttributeForm::Builder,
    .id = static_cast<std::uint16_t>(0x0004 + small_value(Row.value_id)),
    .id_bits = 16,
    .values = &ValueOf<kValPowerParametersOf<Row>>::shared_class};
using SB_Mac_AttrPowerParameters128 = ComplexAttributeOf<kAttrPowerParametersOf<kPowerParameters128>>;
using SB_Mac_AttrPowerParameters256 = ComplexAttributeOf<kAttrPowerParametersOf<kPowerParameters256>>;
using SB_Mac_AttrPowerParameters512 = ComplexAttributeOf<kAttrPowerParametersOf<kPowerParameters512>>;
using SB_Mac_AttrPowerParameters768 = ComplexAttributeOf<kAttrPowerParametersOf<kPowerParameters768>>;
using SB_Mac_AttrPowerParameters1024 = ComplexAttributeOf<kAttrPowerParametersOf<kPowerParameters1024>>;
using SB_Mac_AttrPowerParameters1536 = ComplexAttributeOf<kAttrPowerParametersOf<kPowerParameters1536>>;
using SB_Mac_AttrPowerParameters2048 = ComplexAttributeOf<kAttrPowerParametersOf<kPowerParameters2048>>;
using SB_Mac_AttrPowerParameters3072 = ComplexAttributeOf<kAttrPowerParametersOf<kPowerParameters3072>>;
using SB_Mac_AttrPowerParameters4096 = ComplexAttributeOf<kAttrPowerParametersOf<kPowerParameters4096>>;
using SB_Mac_AttrPowerParameters6144 = ComplexAttributeOf<kAttrPowerParametersOf<kPowerParameters6144>>;
using SB_Mac_AttrPowerParameters8192 = ComplexAttributeOf<kAttrPowerParametersOf<kPowerParameters8192>>;
using SB_Mac_AttrPowerParameters12288 = ComplexAttributeOf<kAttrPowerParametersOf<kPowerParameters12288>>;

}  // namespace vorlan
