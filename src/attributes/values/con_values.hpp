// Value records of the connection layer: Idle State and Route Update protocols (C.S0024-A 8.5, 8.7).
#pragma once

#include "attributes/values/common_fields.hpp"

namespace vorlan {

// --- Idle State

inline constexpr std::string_view kNoReceivedCycle = "ValStr has not yet been set.";

inline constexpr RecordField kValPrefCtrlChannelCycleFields[] = {
    kValueIdField,
    fixed("PRstr_PrefCtrlChannelCycleEnabled", 1, {}, nullptr, "\"1\" if the record carries a cycle."),
    {.name = "PRstr_PrefCtrlChannelCycle",
     .bits = 15,
     .only = if_one("PRstr_PrefCtrlChannelCycleEnabled"),
     .absent = "<PrefCtrlChannelCycle> field is not available in this ValStr.",
     .summary = "The control channel cycle in which the terminal wakes, modulo its period."},
    kReservedField,
};
inline constexpr ValueSpec kValPrefCtrlChannelCycle{.name = "SB_Con_ValPrefCtrlChannelCycle",
                                                    .summary = "A value of PreferredControlChannelCycle",
                                                    .clause = "8.5",
                                                    .fields = kValPrefCtrlChannelCycleFields,
                                                    .not_received = kNoReceivedCycle,
                                                    .tells_length = true};
using SB_Con_ValPrefCtrlChannelCycle = ValueOf<kValPrefCtrlChannelCycle>;
// Born as a copy of the one above, and never given a record of its own.
inline constexpr ValueSpec kValProtocolType{.name = "SB_Ses_ValProtocolType",
                                            .summary = "The same record as SB_Con_ValPrefCtrlChannelCycle",
                                            .clause = "8.5",
                                            .fields = kValPrefCtrlChannelCycleFields,
                                            .source = "SB_Con_ValPrefCtrlChannelCycle",
                                            .not_received = kNoReceivedCycle,
                                            .tells_length = true};
using SB_Ses_ValProtocolType = ValueOf<kValProtocolType>;

inline constexpr RecordField kValSlottedModeFields[] = {
    kValueIdField,
    fixed("PRstr_SlotCycle1", 5, "01001", nullptr, "The first sleep period, by table."),
    fixed("PRstr_SlotCycle2", 5, "01001", nullptr, "The second sleep period, by table."),
    fixed("PRstr_SlotCycle3", 5, "01001", nullptr, "The third sleep period, by table."),
    fixed("PRstr_WakeCount1", 4, {}, nullptr, "Wakings with the first period."),
    fixed("PRstr_WakeCount2", 4, {}, nullptr, "Wakings with the second period."),
    kReservedField,
};
inline constexpr ValueSpec kValSlottedMode{.name = "SB_Con_ValSlottedMode",
                                           .summary = "A value of SlottedMode",
                                           .clause = "8.5",
                                           .fields = kValSlottedModeFields};
using SB_Con_ValSlottedMode = ValueOf<kValSlottedMode>;

inline constexpr RecordField kValPagingMaskFields[] = {
    kValueIdField,
    fixed("PRstr_MaskCount", 8, {}, nullptr, "The number of masks."),
    {.name = "PRstr_MaskPurpose", .bits = 8, .repeat = list_by("PRstr_MaskCount", 1), .summary = "What a mask is for."},
    {.name = "PRstr_PreMaskDuration",
     .bits = 16,
     .repeat = list_by("PRstr_MaskCount", 1),
     .meaning = &kSlots,
     .summary = "Time before a mask."},
    {.name = "PRstr_MaskDuration",
     .bits = 16,
     .repeat = list_by("PRstr_MaskCount", 1),
     .meaning = &kSlots,
     .summary = "Time of a mask."},
    {.name = "PRstr_PostMaskDuration",
     .bits = 16,
     .repeat = list_by("PRstr_MaskCount", 1),
     .meaning = &kSlots,
     .summary = "Time after a mask."},
};
inline constexpr ValueSpec kValPagingMask{.name = "SB_Con_ValPagingMask",
                                          .summary = "A value of PagingMask",
                                          .clause = "8.5",
                                          .fields = kValPagingMaskFields,
                                          .tells_length = true};
using SB_Con_ValPagingMask = ValueOf<kValPagingMask>;

// --- Route Update

inline constexpr RecordField kValSearchParametersFields[] = {
    kValueIdField,
    fixed("PRstr_PilotIncrement", 4, "0100", &kPilotPN, "Pilot PN offsets are multiples of it."),
    fixed("PRstr_SearchWindowActive", 4, "1000", &kSearchWindowSize),
    fixed("PRstr_SearchWindowNeighbor", 4, "1010", &kSearchWindowSize),
    fixed("PRstr_SearchWindowRemaining", 4, "1010", &kSearchWindowSize),
};
inline constexpr ValueSpec kValSearchParameters{.name = "SB_Con_ValSearchParameters",
                                                .summary = "A value of SearchParameters",
                                                .clause = "8.7",
                                                .fields = kValSearchParametersFields};
using SB_Con_ValSearchParameters = ValueOf<kValSearchParameters>;

inline constexpr Meaning kHalfDbAbove{.unit = "dB", .scale = 0.5, .summary = "0.5 dB"};
inline constexpr Meaning kSlopeEighths{.scale = 0.125, .summary = "1/8"};
inline constexpr Code kPilotDropTimes[] = {{0, "below 1 s"}, {1, "1 s"},    {2, "2 s"},    {3, "4 s"},
                                           {4, "6 s"},       {5, "9 s"},    {6, "13 s"},   {7, "19 s"},
                                           {8, "27 s"},      {9, "39 s"},   {10, "55 s"},  {11, "79 s"},
                                           {12, "112 s"},    {13, "159 s"}, {14, "225 s"}, {15, "319 s"}};
inline constexpr Meaning kPilotDropTimer{.codes = kPilotDropTimes, .summary = "seconds, by table"};

/// What the texts of the two set management classes call their attribute, and the texts themselves.
struct SetManagementTexts {
  std::string_view flag;
  std::string_view soft_slope;
  std::string_view add_intercept;
  std::string_view drop_intercept;
};

template <const SetManagementTexts& Texts>
inline constexpr RecordField kSetManagementFields[] = {
    kValueIdField,
    fixed("PRstr_PilotAdd", 6, "001110", &kMinusHalfDb, "A pilot at least as strong joins the candidates."),
    fixed("PRstr_PilotCompare", 6, "000101", &kHalfDbAbove, "How far a candidate must be above the active pilots."),
    fixed("PRstr_PilotDrop", 6, "010010", &kMinusHalfDb, "A pilot that is weaker starts its drop timer."),
    fixed("PRstr_PilotDropTimer", 4, "0011", &kPilotDropTimer, "Time after which a weak pilot leaves."),
    {.name = "PRstr_DynamicThresholds",
     .bits = 1,
     .wrong_length = Texts.flag,
     .summary = "\"1\" if the record carries slope and intercepts."},
    {.name = "PRstr_SoftSlope",
     .bits = 6,
     .only = if_one("PRstr_DynamicThresholds"),
     .absent = Texts.soft_slope,
     .not_settable = Texts.soft_slope,
     .meaning = &kSlopeEighths,
     .summary = "Slope of the dynamic thresholds."},
    {.name = "PRstr_AddIntercept",
     .bits = 6,
     .only = if_one("PRstr_DynamicThresholds"),
     .absent = Texts.add_intercept,
     .not_settable = Texts.add_intercept,
     .meaning = &kSignedHalfDb,
     .summary = "Intercept for adding."},
    {.name = "PRstr_DropIntercept",
     .bits = 6,
     .only = if_one("PRstr_DynamicThresholds"),
     .absent = Texts.drop_intercept,
     .not_settable = Texts.drop_intercept,
     .meaning = &kSignedHalfDb,
     .summary = "Intercept for dropping."},
    fixed("PRstr_NeighborMaxAge", 4, {}, nullptr, "Age at which a neighbour is forgotten."),
    kReservedField,
};

inline constexpr SetManagementTexts kSameChannelTexts{
    "SetMgmSameChnlParameter <DynamicThresholds> field should be 1 bit long. ",
    "SetMessageSameChannelParameter attribute <DynamicThresholds> field set to 0. <SoftSlope> field exists for "
    "<DynamicThresholds> value 1.",
    "SetMessageSameChannelParameter attribute <DynamicThresholds> field set to 0. <AddIntercept> field exists for "
    "<DynamicThresholds> value 1.",
    "SetMessageSameChannelParameter attribute <DynamicThresholds> field set to 0. <DropIntercept> field exists for "
    "<DynamicThresholds> value 1."};
inline constexpr SetManagementTexts kDifferentChannelTexts{
    "SetMgmDiffChnlParameters <DynamicThresholds> field should be 1 bit long. ",
    "SetMessageDifferentChannelParameter attribute <DynamicThresholds> field set to 0. <SoftSlope> field exists for "
    "<DynamicThresholds> value 1.",
    "SetMessageDifferentChannelParameter attribute <DynamicThresholds> field set to 0. <AddIntercept> field exists for "
    "<DynamicThresholds> value 1.",
    "SetMessageDifferentChannelParameter attribute <DynamicThresholds> field set to 0. <DropIntercept> field exists "
    "for <DynamicThresholds> value 1."};

// The bits that fill its last octet up are no property of the same-channel record.
inline constexpr ValueSpec kValSetMgmSameChnlParameter{
    .name = "SB_Con_ValSetMgmSameChnlParameter",
    .summary = "A value of SetManagementSameChannelParameters",
    .clause = "8.7",
    .fields = std::span(kSetManagementFields<kSameChannelTexts>)
                  .first(std::size(kSetManagementFields<kSameChannelTexts>) - 1),
    .tells_length = true,
    .has_flag = true};
using SB_Con_ValSetMgmSameChnlParameter = ValueOf<kValSetMgmSameChnlParameter>;
inline constexpr ValueSpec kValSetMgmDiffChnlParameters{.name = "SB_Con_ValSetMgmDiffChnlParameters",
                                                        .summary = "A value of SetManagementDifferentChannelParameters",
                                                        .clause = "8.7",
                                                        .fields = kSetManagementFields<kDifferentChannelTexts>,
                                                        .tells_length = true};
using SB_Con_ValSetMgmDiffChnlParameters = ValueOf<kValSetMgmDiffChnlParameters>;

inline constexpr RecordField kValSuppCDMAChannelsFields[] = {
    kValueIdField,
    fixed("PRstr_BandClassCount", 8, {}, nullptr, "The number of band classes."),
    {.name = "PRstr_BandClass", .bits = 5, .repeat = list_by("PRstr_BandClassCount", 1), .summary = "A band class."},
    {.name = "PRstr_BandSubClassCount",
     .bits = 8,
     .repeat = list_by("PRstr_BandClassCount", 1),
     .summary = "The number of subclasses of a band class."},
    {.name = "PRstr_BandSubClass",
     .bits = 8,
     .repeat = table_by("PRstr_BandClassCount", "PRstr_BandSubClassCount", 1),
     .summary = "A subclass of a band class."},
};
inline constexpr ValueSpec kValSuppCDMAChannels{.name = "SB_Con_ValSuppCDMAChannels",
                                                .summary = "A value of SupportedCDMAChannels",
                                                .clause = "8.7",
                                                .fields = kValSuppCDMAChannelsFields,
                                                .tells_length = true};
using SB_Con_ValSuppCDMAChannels = ValueOf<kValSuppCDMAChannels>;

}  // namespace vorlan
