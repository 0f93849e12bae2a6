// Value records of the MAC layer: access channel, forward and reverse traffic channel up to subtype 1 (C.S0024-A 10.4
// to 10.10), and the two of subtype 3 that come in lists.
#pragma once

#include "attributes/values/common_fields.hpp"

namespace vorlan {

// --- Access channel

inline constexpr RecordField kValInitialConfigurationFields[] = {
    kValueIdField,
    fixed("PRstr_ProbeSequenceMax", 4, "0011", nullptr, "Probe sequences of one attempt."),
    fixed("PRstr_ProbeBackoff", 4, "0100", nullptr, "Backoff between probes, in access channel cycles."),
    fixed("PRstr_ProbeSequenceBackoff", 4, "1000", nullptr, "Backoff between sequences, in access channel cycles."),
    kReservedField,
};
inline constexpr ValueSpec kValInitialConfiguration{.name = "SB_Mac_ValInitialConfiguration",
                                                    .summary = "A value of the access channel's InitialConfiguration",
                                                    .clause = "10.4",
                                                    .fields = kValInitialConfigurationFields};
using SB_Mac_ValInitialConfiguration = ValueOf<kValInitialConfiguration>;

inline constexpr RecordField kValPowerParametersFields[] = {
    kValueIdField,
    fixed("PRstr_DataOffsetNom", 4, {}, &kSignedHalfDb, "Offset of the data channel from the pilot."),
    fixed("PRstr_DataOffset9k6", 4, {}, &kSignedQuarterDb, "Further offset at 9.6 kbit/s."),
    fixed("PRstr_DataOffset19k2", 4, {}, &kSignedQuarterDb, "Further offset at 19.2 kbit/s."),
    fixed("PRstr_DataOffset38k4", 4, {}, &kSignedQuarterDb, "Further offset at 38.4 kbit/s."),
    fixed("PRstr_DataOffset76k8", 4, {}, &kSignedQuarterDb, "Further offset at 76.8 kbit/s."),
    fixed("PRstr_DataOffset153k6", 4, {}, &kSignedQuarterDb, "Further offset at 153.6 kbit/s."),
    fixed("PRstr_RPCStep", 2, "01", &kRPCStep, "Step of the reverse power control."),
};
// Terminals send the access channel's record with two rates, or four in the enhanced protocol.
inline constexpr std::size_t kShorterPowerParameters[] = {24, 16};
inline constexpr ValueSpec kValPowerParameters{.name = "SB_Mac_ValPowerParameters",
                                               .summary = "A value of the access channel's PowerParameters",
                                               .clause = "10.4",
                                               .fields = kValPowerParametersFields,
                                               .has_flag = true,
                                               .has_initialize = true,
                                               .shorter_records = kShorterPowerParameters};
using SB_Mac_ValPowerParameters = ValueOf<kValPowerParameters>;

// --- Reverse traffic channel

inline constexpr RecordField kValRTCPowerParametersFields[] = {
    kValueIdField,
    fixed("PRstr_DataOffsetNom", 4, {}, &kSignedHalfDb, "Offset of the data channel from the pilot."),
    fixed("PRstr_DataOffset9k6", 4, {}, &kSignedQuarterDb, "Further offset at 9.6 kbit/s."),
    fixed("PRstr_DataOffset19k2", 4, {}, &kSignedQuarterDb, "Further offset at 19.2 kbit/s."),
    fixed("PRstr_DataOffset38k4", 4, {}, &kSignedQuarterDb, "Further offset at 38.4 kbit/s."),
    fixed("PRstr_DataOffset76k8", 4, {}, &kSignedQuarterDb, "Further offset at 76.8 kbit/s."),
    fixed("PRstr_DataOffset153k6", 4, {}, &kSignedQuarterDb, "Further offset at 153.6 kbit/s."),
    fixed("PRstr_RPCStep", 2, "01", &kRPCStep, "Step of the reverse power control."),
    // Unlike the other records' reserved bits these can be set: a test may want to see what a terminal makes of them.
    fixed("PRstr_Reserved", 6, {}, nullptr, "The bits that fill the last octet up."),
};
inline constexpr ValueSpec kValRTCPowerParameters{.name = "SB_Mac_ValRTCPowerParameters",
                                                  .summary = "A value of the reverse traffic channel's PowerParameters",
                                                  .clause = "10.8",
                                                  .fields = kValRTCPowerParametersFields};
using SB_Mac_ValRTCPowerParameters = ValueOf<kValRTCPowerParameters>;

inline constexpr Meaning kProbability{.unit = "/ 255", .summary = "1/255"};

inline constexpr RecordField kValRateParametersFields[] = {
    kValueIdField,
    fixed("PRstr_Transition009k6_019k2", 8, "00110000", &kProbability, "Probability of going up from 9.6 kbit/s."),
    fixed("PRstr_Transition019k2_038k4", 8, "00010000", &kProbability, "Probability of going up from 19.2 kbit/s."),
    fixed("PRstr_Transition038k4_076k8", 8, "00001000", &kProbability, "Probability of going up from 38.4 kbit/s."),
    fixed("PRstr_Transition076k8_153k6", 8, "00001000", &kProbability, "Probability of going up from 76.8 kbit/s."),
    fixed("PRstr_Transition019k2_009k6", 8, "00010000", &kProbability, "Probability of going down from 19.2 kbit/s."),
    fixed("PRstr_Transition038k4_019k2", 8, "00010000", &kProbability, "Probability of going down from 38.4 kbit/s."),
    fixed("PRstr_Transition076k8_038k4", 8, "00100000", &kProbability, "Probability of going down from 76.8 kbit/s."),
    fixed("PRstr_Transition153k6_076k8", 8, "11111111", &kProbability, "Probability of going down from 153.6 kbit/s."),
};
inline constexpr ValueSpec kValRateParameters{.name = "SB_Mac_ValRateParameters",
                                              .summary = "A value of the reverse traffic channel's RateParameters",
                                              .clause = "10.8",
                                              .fields = kValRateParametersFields,
                                              .has_flag = true};
using SB_Mac_ValRateParameters = ValueOf<kValRateParameters>;

// --- Forward traffic channel

inline constexpr Meaning kEightSlots{.unit = "slots", .scale = 8, .summary = "8 slots"};

inline constexpr RecordField kValHandoffDelaysFields[] = {
    kValueIdField,
    fixed("PRstr_SofterHandoffDelay", 8, "00000001", &kEightSlots, "Between sectors that transmit the same queue."),
    fixed("PRstr_SoftHandoffDelay", 8, "00001000", &kEightSlots, "Between other sectors."),
};
inline constexpr ValueSpec kValHandoffDelays{.name = "SB_Mac_ValHandoffDelays",
                                             .summary = "A value of HandoffDelays",
                                             .clause = "10.6",
                                             .fields = kValHandoffDelaysFields};
using SB_Mac_ValHandoffDelays = ValueOf<kValHandoffDelays>;

inline constexpr Code kDRCLockPeriods[] = {{0, "8 slots"}, {1, "16 slots"}};
inline constexpr Meaning kDRCLockPeriod{.codes = kDRCLockPeriods, .summary = "8 or 16 slots"};
inline constexpr Code kDRCLockLengths[] = {{0, "4 times"}, {1, "8 times"}, {2, "16 times"}, {3, "32 times"}};
inline constexpr Meaning kDRCLockLength{.codes = kDRCLockLengths, .summary = "4, 8, 16 or 32 times"};

inline constexpr RecordField kValDRCLockFields[] = {
    kValueIdField,
    fixed("PRstr_DRCLockPeriod", 1, "1", &kDRCLockPeriod, "Time between DRCLock bits."),
    fixed("PRstr_DRCLockLength", 2, "01", &kDRCLockLength, "How often a DRCLock bit is repeated."),
    kReservedField,
};
inline constexpr ValueSpec kValDRCLock{.name = "SB_Mac_ValDRCLock",
                                       .summary = "A value of DRCLock",
                                       .clause = "10.6",
                                       .fields = kValDRCLockFields,
                                       .texts = RecordTexts::OfArgument};
using SB_Mac_ValDRCLock = ValueOf<kValDRCLock>;

inline constexpr RecordField kValDRCTranslationOffsetFields[] = {
    kValueIdField,
    fixed("PRstr_DRCOffset1", 4, {}, nullptr, "Subtracted from a DRC index of 1."),
    fixed("PRstr_DRCOffset2", 4, {}, nullptr, "Subtracted from a DRC index of 2."),
    fixed("PRstr_DRCOffset3", 4, {}, nullptr, "Subtracted from a DRC index of 3."),
    fixed("PRstr_DRCOffset4", 4, {}, nullptr, "Subtracted from a DRC index of 4."),
    fixed("PRstr_DRCOffset5", 4, {}, nullptr, "Subtracted from a DRC index of 5."),
    fixed("PRstr_DRCOffset6", 4, {}, nullptr, "Subtracted from a DRC index of 6."),
    fixed("PRstr_DRCOffset7", 4, {}, nullptr, "Subtracted from a DRC index of 7."),
    fixed("PRstr_DRCOffset8", 4, {}, nullptr, "Subtracted from a DRC index of 8."),
    fixed("PRstr_DRCOffset9", 4, {}, nullptr, "Subtracted from a DRC index of 9."),
    fixed("PRstr_DRCOffsetA", 4, {}, nullptr, "Subtracted from a DRC index of 10."),
    fixed("PRstr_DRCOffsetB", 4, {}, nullptr, "Subtracted from a DRC index of 11."),
    fixed("PRstr_DRCOffsetC", 4, {}, nullptr, "Subtracted from a DRC index of 12."),
    fixed("PRstr_DRCOffsetD", 4, {}, nullptr, "Subtracted from a DRC index of 13."),
    fixed("PRstr_DRCOffsetE", 4, {}, nullptr, "Subtracted from a DRC index of 14."),
};
inline constexpr ValueSpec kValDRCTranslationOffset{.name = "SB_Mac_ValDRCTranslationOffset",
                                                    .summary = "A value of DRCTranslationOffset",
                                                    .clause = "10.7",
                                                    .fields = kValDRCTranslationOffsetFields,
                                                    .set_operation = "SetDRCTranslationOffset",
                                                    .builds_id_alone = true,
                                                    .has_flag = true,
                                                    .has_initialize = true};
using SB_Mac_ValDRCTranslationOffset = ValueOf<kValDRCTranslationOffset>;

// --- Reverse traffic channel, subtype 3

inline constexpr RecordField kValMaxMACFlowsFields[] = {
    kValueIdField,
    fixed("PRstr_MaxNumMACFlows", 8, {}, nullptr, "MAC flows that the terminal supports."),
    fixed("PRstr_MaxNumActiveMACFlows", 8, {}, nullptr, "MAC flows that can be active at a time."),
};
inline constexpr ValueSpec kValMaxMACFlows{.name = "SB_Mac_ValMaxMACFlows",
                                           .summary = "A value of MaxMACFlows",
                                           .clause = "10.11.7",
                                           .fields = kValMaxMACFlowsFields,
                                           .tells_length = true};
using SB_Mac_ValMaxMACFlows = ValueOf<kValMaxMACFlows>;

inline constexpr RecordField kValAssociatedFlowsNNFields[] = {
    kValueIdField,
    fixed("PRstr_FlowCnt", 8, {}, nullptr, "The number of streams that the MAC flow carries."),
    {.name = "PRstr_Stream", .bits = 9, .repeat = list_by("PRstr_FlowCnt", 1), .summary = "A stream."},
    {.name = "PRstr_SubStream", .bits = 8, .repeat = list_by("PRstr_FlowCnt", 1), .summary = "Its substream."},
    // Taken over from the identification record; scripts set them, the air interface has no place for them here.
    {.name = "PRstr_Active", .bits = 8, .sent = false, .summary = "Kept; not sent."},
    {.name = "PRstr_SequenceLength", .bits = 8, .sent = false, .summary = "Kept; not sent."},
    {.name = "PRstr_RLPIDLength", .bits = 8, .sent = false, .meaning = nullptr, .summary = "Kept; not sent."},
    {.name = "PRstr_RLPID", .width = as_many_bits_as("PRstr_RLPIDLength"), .sent = false, .summary = "Kept; not sent."},
};
inline constexpr ValueSpec kValAssociatedFlowsNN{.name = "SB_MAC_ValAssociatedFlowsNN",
                                                 .summary = "A value of AssociatedFlowsNN",
                                                 .clause = "10.11.7",
                                                 .fields = kValAssociatedFlowsNNFields,
                                                 .tells_length = true,
                                                 .has_flag = true};
using SB_MAC_ValAssociatedFlowsNN = ValueOf<kValAssociatedFlowsNN>;

}  // namespace vorlan
