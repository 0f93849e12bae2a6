// Value records of the reverse traffic channel MAC protocol, subtype 3 (C.S0024-A 10.11.7). What the standard leaves to
// negotiation starts as zeros, axis counts as 1.
#pragma once

#include "attributes/values/common_fields.hpp"

namespace vorlan {

inline constexpr Meaning kSixteenths{.scale = 0.0625, .summary = "1/16"};
inline constexpr Meaning kEighths{.scale = 0.125, .is_signed = true, .summary = "1/8, two's complement"};

inline constexpr Code kPayloadSizes[] = {{0, "0 bits"},     {1, "128 bits"},  {2, "256 bits"},   {3, "512 bits"},
                                         {4, "768 bits"},   {5, "1024 bits"}, {6, "1536 bits"},  {7, "2048 bits"},
                                         {8, "3072 bits"},  {9, "4096 bits"}, {10, "6144 bits"}, {11, "8192 bits"},
                                         {12, "12288 bits"}};
inline constexpr Meaning kPayloadSize{.codes = kPayloadSizes, .summary = "payload size index"};

/// A class of this protocol: its record can be asked for the ValueID alone, its fields set at once.
constexpr ValueSpec rtc_mac_value(std::string_view name, std::string_view summary, std::span<const RecordField> fields,
                                  std::string_view set_operation = {}, std::string_view source = {}) {
  return {.name = name,
          .summary = summary,
          .clause = "10.11.7",
          .fields = fields,
          .source = source,
          .set_operation = set_operation,
          .builds_id_alone = true};
}

inline constexpr RecordField kValAuxiliaryPilotChnlParamsFields[] = {
    kValueIdField,
    fixed("PRstr_AuxiliaryPilotChannelGain", 4, {}, nullptr, "Below the data channel, dB."),
    fixed("PRstr_AuxiliaryPilotChannelMinPayload", 4, {}, &kPayloadSize, "The smallest payload that it goes with."),
};
inline constexpr ValueSpec kValAuxiliaryPilotChnlParams =
    rtc_mac_value("SB_Mac_ValAuxiliaryPilotChnlParams", "A value of AuxiliaryPilotChannelParameters",
                  kValAuxiliaryPilotChnlParamsFields, "SetAuxiliaryPilotChnlParams");
using SB_Mac_ValAuxiliaryPilotChnlParams = ValueOf<kValAuxiliaryPilotChnlParams>;

inline constexpr RecordField kValCommonPowerParametersFields[] = {
    kValueIdField,
    fixed("PRstr_AllocationStagger", 4, {}, &kSixteenths, "Stagger of the allocations."),
    fixed("PRstr_TxT2Pmin", 8, {}, &kQuarterDb, "The smallest traffic to pilot ratio."),
    fixed("PRstr_RPCStep", 2, "01", &kRPCStep, "Step of the reverse power control."),
};
inline constexpr ValueSpec kValCommonPowerParameters =
    rtc_mac_value("SB_Mac_ValCommonPowerParameters", "A value of CommonPowerParameters",
                  kValCommonPowerParametersFields, "SetCommonPowerParameters", "SB_Mac_VallCommonPowerParameters");
using SB_Mac_ValCommonPowerParameters = ValueOf<kValCommonPowerParameters>;

inline constexpr RecordField kValRequestParametersFields[] = {
    kValueIdField,
    fixed("PRstr_ReqRatio", 4, {}, nullptr, "Requests sent at most, as a ratio of data packets."),
    fixed("PRstr_MaxReqInterval", 4, {}, nullptr, "Longest time between requests."),
};
inline constexpr ValueSpec kValRequestParameters = rtc_mac_value(
    "SB_Mac_ValRequestParameters", "A value of RequestParameters", kValRequestParametersFields, "SetRequestParameters");
using SB_Mac_ValRequestParameters = ValueOf<kValRequestParameters>;

inline constexpr RecordField kValRRIChannelPwrParamFields[] = {
    kValueIdField,
    fixed("PRstr_RRIChannelGainPreTransition0", 4, {}, nullptr, "Gain code."),
    fixed("PRstr_RRIChannelGainPostTransition0", 4, {}, nullptr, "Gain code."),
    fixed("PRstr_RRIChannelGainPreTransition1", 4, {}, nullptr, "Gain code."),
    fixed("PRstr_RRIChannelGainPostTransition1", 4, {}, nullptr, "Gain code."),
    fixed("PRstr_RRIChannelGainPreTransition2", 4, {}, nullptr, "Gain code."),
    fixed("PRstr_RRIChannelGainPostTransition2", 4, {}, nullptr, "Gain code."),
    fixed("PRstr_RRIChannelGainPreTransition3", 4, {}, nullptr, "Gain code."),
};
inline constexpr ValueSpec kValRRIChannelPwrParam =
    rtc_mac_value("SB_Mac_ValRRIChannelPwrParam", "A value of RRIChannelPowerParameters", kValRRIChannelPwrParamFields,
                  "SetRRIChannelPwrParam");
using SB_Mac_ValRRIChannelPwrParam = ValueOf<kValRRIChannelPwrParam>;

/// Every per-flow record names its flow beside it: the flow is the low octet of the AttributeID.
inline constexpr RecordField kFlowNN{
    .name = "PRstr_FlowNN", .bits = 8, .sent = false, .summary = "The flow, as in the AttributeID; not sent."};

inline constexpr RecordField kValT2PInflowRangeNNFields[] = {
    kFlowNN,
    kValueIdField,
    fixed("PRstr_T2PInflowmin", 8, {}, &kQuarterDb, "The smallest inflow."),
    fixed("PRstr_T2PInflowmax", 8, {}, &kQuarterDb, "The largest inflow."),
};
inline constexpr ValueSpec kValT2PInflowRangeNN{.name = "SB_Mac_ValT2PInflowRangeNN",
                                                .summary = "A value of T2PInflowRangeNN",
                                                .clause = "10.11.7",
                                                .fields = kValT2PInflowRangeNNFields,
                                                .set_operation = "SetT2PInflowRangeNN",
                                                .builds_id_alone = true,
                                                .has_flow_number = true};
using SB_Mac_ValT2PInflowRangeNN = ValueOf<kValT2PInflowRangeNN>;

// --- Records with axes

inline constexpr RecordField kNumPilotStrengthAxisValues3 =
    fixed("PRstr_NumPilotStrengthAxisValues", 3, "001", nullptr, "The number of axis values, 1 to 3.");

/// The standard's text was not at hand for this width; everything else follows from it.
inline constexpr std::uint16_t kTxT2PmaxBits = 8;

inline constexpr RecordField kValTxT2PmaxFields[] = {
    kValueIdField,
    kNumPilotStrengthAxisValues3,
    {.name = "PilotStrengthAxis",
     .bits = 6,
     .repeat = {.count = "PRstr_NumPilotStrengthAxisValues", .places = 3, .elements = "PRstr_PilotStrengthAxis#"},
     .meaning = &kMinusHalfDb,
     .summary = "A pilot strength on the axis."},
    {.name = "TxT2PmaxPilotStrengthAxis",
     .bits = kTxT2PmaxBits,
     .repeat = {.count = "PRstr_NumPilotStrengthAxisValues",
                .places = 3,
                .elements = "PRstr_TxT2PmaxPilotStrengthAxis#"},
     .meaning = &kQuarterDb,
     .summary = "The largest traffic to pilot ratio at a pilot strength of the axis."},
};
inline constexpr ValueSpec kValTxT2Pmax =
    rtc_mac_value("SB_Mac_ValTxT2Pmax", "A value of TxT2Pmax", kValTxT2PmaxFields, "TxT2Pmax");
using SB_Mac_ValTxT2Pmax = ValueOf<kValTxT2Pmax>;

inline constexpr RecordField kValPilotStrengthFields[] = {
    kValueIdField,
    fixed("PRstr_NumPilotStrengthAxisValues", 4, "0001", nullptr, "The number of axis values, 1 or 2."),
    {.name = "PilotStrengthAxis",
     .bits = 6,
     .repeat = {.count = "PRstr_NumPilotStrengthAxisValues", .places = 2, .elements = "PRstr_PilotStrengthAxis#"},
     .meaning = &kMinusHalfDb,
     .summary = "A pilot strength on the axis."},
    {.name = "PilotStrengthPilotStrengthAxis",
     .bits = 4,
     .repeat = {.count = "PRstr_NumPilotStrengthAxisValues",
                .places = 2,
                .elements = "PRstr_PilotStrengthPilotStrengthAxis#"},
     .summary = "The weight at a pilot strength of the axis."},
};
inline constexpr ValueSpec kValPilotStrength =
    rtc_mac_value("SB_Mac_ValPilotStrength", "A value of PilotStrength", kValPilotStrengthFields, "SetPilotStrength",
                  "SB_Mac_VallCommonPilotStrength");
using SB_Mac_ValPilotStrength = ValueOf<kValPilotStrength>;

inline constexpr RecordField kNumT2PAxisValues =
    fixed("PRstr_NumT2PAxisValues", 4, "0001", nullptr, "The number of T2P axis values, 1 to 4.");
inline constexpr RecordField kNumFRABAxisValues =
    fixed("PRstr_NumFRABAxisValues", 3, "001", nullptr, "The number of FRAB axis values, 1 to 4.");
inline constexpr std::uint8_t kAxisPlaces = 4;

inline constexpr RecordField kValT2PTransitionFunctionNNFields[] = {
    kFlowNN,
    kValueIdField,
    kNumT2PAxisValues,
    kNumFRABAxisValues,
    {.name = "T2PAxis",
     .bits = 8,
     .repeat = {.count = "PRstr_NumT2PAxisValues",
                .places = kAxisPlaces,
                .elements = "PRstr_T2PAxis##",
                .accessors = "T2PAxis"},
     .meaning = &kQuarterDb,
     .summary = "A traffic to pilot ratio on the T2P axis."},
    {.name = "FRABAxis",
     .bits = 4,
     .repeat = {.count = "PRstr_NumFRABAxisValues",
                .places = kAxisPlaces,
                .elements = "PRstr_FRABAxis#",
                .accessors = "FRABAxis"},
     .meaning = &kEighths,
     .summary = "A filtered reverse activity bit on the FRAB axis."},
    {.name = "T2PUpT2PAxisFRABAxis",
     .bits = 8,
     .repeat = {.count = "PRstr_NumT2PAxisValues",
                .inner = "PRstr_NumFRABAxisValues",
                .places = kAxisPlaces,
                .inner_places = kAxisPlaces,
                .elements = "PRstr_T2PUpT2PAxis##FRABAxis#",
                .accessors = "T2PUpT2PAxisFRABAxis"},
     .meaning = &kSignedQuarterDb,
     .summary = "The step up at a T2P and a FRAB value."},
    {.name = "T2PDnT2PAxisFRABAxis",
     .bits = 8,
     .repeat = {.count = "PRstr_NumT2PAxisValues",
                .inner = "PRstr_NumFRABAxisValues",
                .places = kAxisPlaces,
                .inner_places = kAxisPlaces,
                .elements = "PRstr_T2PDnT2PAxis##FRABAxis#",
                .accessors = "T2PDnT2PAxisFRABAxis"},
     .meaning = &kSignedQuarterDb,
     .summary = "The step down at a T2P and a FRAB value."},
};
inline constexpr ValueSpec kValT2PTransitionFunctionNN{.name = "SB_Mac_ValT2PTransitionFunctionNN",
                                                       .summary = "A value of T2PTransitionFunctionNN",
                                                       .clause = "10.11.7",
                                                       .fields = kValT2PTransitionFunctionNNFields,
                                                       .set_operation = "SetT2PTransitionFunctionNN",
                                                       .builds_id_alone = true,
                                                       .has_flow_number = true};
using SB_Mac_ValT2PTransitionFunctionNN = ValueOf<kValT2PTransitionFunctionNN>;

inline constexpr RecordField kValBucketFactorNNFields[] = {
    kValueIdField,
    kFlowNN,
    kNumT2PAxisValues,
    kNumFRABAxisValues,
    {.name = "T2PAxis",
     .bits = 8,
     .repeat = {.count = "PRstr_NumT2PAxisValues", .places = kAxisPlaces, .accessors = "T2PAxis"},
     .meaning = &kQuarterDb,
     .summary = "A traffic to pilot ratio on the T2P axis."},
    {.name = "FRABAxis",
     .bits = 4,
     .repeat = {.count = "PRstr_NumFRABAxisValues", .places = kAxisPlaces, .accessors = "FRABAxis"},
     .meaning = &kEighths,
     .summary = "A filtered reverse activity bit on the FRAB axis."},
    {.name = "BucketFactorT2PAxisFRABAxis",
     .bits = 8,
     .repeat = {.count = "PRstr_NumT2PAxisValues",
                .inner = "PRstr_NumFRABAxisValues",
                .places = kAxisPlaces,
                .inner_places = kAxisPlaces,
                .accessors = "BucketFactorT2PAxisFRABAxis"},
     .meaning = &kQuarterDb,
     .summary = "The bucket factor at a T2P and a FRAB value."},
};
inline constexpr ValueSpec kValBucketFactorNN{.name = "SB_Mac_ValBucketFactorNN",
                                              .summary = "A value of BucketFactorNN",
                                              .clause = "10.11.7",
                                              .fields = kValBucketFactorNNFields,
                                              .builds_id_alone = true,
                                              .has_flow_number = true};
using SB_Mac_ValBucketFactorNN = ValueOf<kValBucketFactorNN>;

// --- Permitted payloads

/// "PRstr_PermittedPayload128_1" is the largest payload allowed in a subframe when 128 bits were sent one before.
constexpr RecordField permitted(std::string_view name) {
  return fixed(name, 4, {}, &kPayloadSize, "The largest payload, by what was sent so many subframes before.");
}
inline constexpr RecordField kValPermittedPayloadFields[] = {
    kValueIdField,
    permitted("PRstr_PermittedPayload0_1"),
    permitted("PRstr_PermittedPayload0_2"),
    permitted("PRstr_PermittedPayload0_3"),
    permitted("PRstr_PermittedPayload128_1"),
    permitted("PRstr_PermittedPayload128_2"),
    permitted("PRstr_PermittedPayload128_3"),
    permitted("PRstr_PermittedPayload256_1"),
    permitted("PRstr_PermittedPayload256_2"),
    permitted("PRstr_PermittedPayload256_3"),
    permitted("PRstr_PermittedPayload512_1"),
    permitted("PRstr_PermittedPayload512_2"),
    permitted("PRstr_PermittedPayload512_3"),
    permitted("PRstr_PermittedPayload768_1"),
    permitted("PRstr_PermittedPayload768_2"),
    permitted("PRstr_PermittedPayload768_3"),
    permitted("PRstr_PermittedPayload1024_1"),
    permitted("PRstr_PermittedPayload1024_2"),
    permitted("PRstr_PermittedPayload1024_3"),
    permitted("PRstr_PermittedPayload1536_1"),
    permitted("PRstr_PermittedPayload1536_2"),
    permitted("PRstr_PermittedPayload1536_3"),
    permitted("PRstr_PermittedPayload2048_1"),
    permitted("PRstr_PermittedPayload2048_2"),
    permitted("PRstr_PermittedPayload2048_3"),
    permitted("PRstr_PermittedPayload3072_1"),
    permitted("PRstr_PermittedPayload3072_2"),
    permitted("PRstr_PermittedPayload3072_3"),
    permitted("PRstr_PermittedPayload4096_1"),
    permitted("PRstr_PermittedPayload4096_2"),
    permitted("PRstr_PermittedPayload4096_3"),
    permitted("PRstr_PermittedPayload6144_1"),
    permitted("PRstr_PermittedPayload6144_2"),
    permitted("PRstr_PermittedPayload6144_3"),
    permitted("PRstr_PermittedPayload8192_1"),
    permitted("PRstr_PermittedPayload8192_2"),
    permitted("PRstr_PermittedPayload8192_3"),
    permitted("PRstr_PermittedPayload12288_1"),
    permitted("PRstr_PermittedPayload12288_2"),
    permitted("PRstr_PermittedPayload12288_3"),
};
inline constexpr ValueSpec kValPermittedPayload =
    rtc_mac_value("SB_Mac_ValPermittedPayload", "A value of PermittedPayload", kValPermittedPayloadFields,
                  "SetPermittedPayload", "SB_Mac_ValPowerParameters4096");
using SB_Mac_ValPermittedPayload = ValueOf<kValPermittedPayload>;

}  // namespace vorlan
