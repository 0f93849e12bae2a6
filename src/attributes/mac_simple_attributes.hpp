// Simple attributes of the MAC layer: control channel (C.S0024-A 10.3), enhanced forward traffic channel (10.7) and
// reverse traffic channel of subtype 3 (10.11). NN is the MAC flow, the low octet of the AttributeID. The names mix
// Mac and MAC, and two sources are another class's; scripts know them so.
#pragma once

#include "attributes/attribute_of.hpp"
#include "codec/meanings.hpp"

namespace vorlan {

inline constexpr Code kGatings[] = {{0, "continuous"}, {1, "gated"}};
inline constexpr Meaning kGating{.codes = kGatings, .summary = "0 continuous, 1 gated"};
inline constexpr Code kTransmissionModes[] = {{0, "high capacity"}, {1, "low latency"}};
inline constexpr Meaning kTransmissionMode{.codes = kTransmissionModes, .summary = "0 high capacity, 1 low latency"};
inline constexpr Code kQRABs[] = {{0, "QRAB"}, {1, "QRABps"}};
inline constexpr Meaning kQRABSelect{.codes = kQRABs, .summary = "0 QRAB, 1 QRABps"};
inline constexpr Meaning kTimeConstant{.summary = "index of a table of time constants"};

/// An attribute of the reverse traffic channel, subtype 3: a 16-bit AttributeID and an octet of value.
constexpr SimpleAttributeSpec rtc_mac_simple(std::string_view name, std::uint16_t id, std::string_view summary,
                                             std::string_view initial = "00000000") {
  return {.name = name, .summary = summary, .clause = "10.11.7", .id = id, .initial = initial};
}

inline constexpr SimpleAttributeSpec kMacSimpleAttributes[] = {
    {.name = "SB_Mac_AttrCCShortPacketsMACIndex",
     .summary = "MACIndex of short packets on the control channel.",
     .clause = "10.3",
     .id = 0x00,
     .id_bits = 8,
     .length = 2,
     .record_bits = 24},
    {.name = "SB_Mac_AttrDRCGating",
     .summary = "Whether the DRC channel is sent without pause or gated.",
     .clause = "10.7",
     .meaning = &kGating,
     .id = 0xFF,
     .id_bits = 8,
     .value_bits = 16,
     .initial = "0000000000000000",
     .record_bits = 0,
     .texts = AttributeTexts::Early},
    {.name = "SB_MAC_AttrMultiUserPacketsEnabled",
     .summary = "Whether packets may carry data of several terminals.",
     .clause = "10.7",
     .id = 0xFD,
     .id_bits = 8,
     .record_bits = 0,
     .disagrees_on_purpose = true,
     .texts = AttributeTexts::Early,
     .source = "SB_Mac_AttrMultiUserPacketsEnabled"},
    // Starts with two octets of value, and builds them.
    {.name = "SB_Mac_AttrSingUsrMultplxPcktsEnbd",
     .summary = "Whether single-user multiplex packets may be sent (SingleUserMultiplexPacketsEnabled).",
     .clause = "10.7",
     .id = 0xF9,
     .id_bits = 8,
     .initial = "0000000000000000",
     .record_bits = 0,
     .disagrees_on_purpose = true,
     .texts = AttributeTexts::Early},
    {.name = "SB_MAC_AttrDRCSupervisionTimer",
     .summary = "How long the terminal waits for a usable DRC before it stops sending.",
     .clause = "10.7",
     .id = 0xF8,
     .id_bits = 8,
     .record_bits = 0,
     .disagrees_on_purpose = true,
     .texts = AttributeTexts::Early},
    {.name = "SB_Mac_AttrShrtPcktsEnbldThresh",
     .summary = "From which rate on short packets are sent (ShortPacketsEnabledThresh).",
     .clause = "10.7",
     .id = 0xFA,
     .id_bits = 8,
     .initial = "00000001",
     .record_bits = 0,
     .disagrees_on_purpose = true,
     .texts = AttributeTexts::Early,
     .source = "SB_Mac_AttrMultiUserPacketsEnabled"},
    {.name = "SB_Mac_AttrDSCLength",
     .summary = "How long one value of the data source control channel is sent.",
     .clause = "10.7",
     .id = 0xFC,
     .id_bits = 8,
     .initial = "00001000",
     .length = 2,
     .record_bits = 0,
     .texts = AttributeTexts::Early,
     .source = "SB_Mac_AttrDRCGating"},
    rtc_mac_simple("SB_Mac_AttrARQMode", 0xFFFF, "How the reverse link's packets are acknowledged."),
    rtc_mac_simple("SB_Mac_AttrFRABFilterTC", 0xFFFE,
                   "Time constant of the filter of the reverse activity bit that gives FRAB.", "00000010"),
    rtc_mac_simple("SB_Mac_AttrFRABlow", 0xFFFD, "FRAB below which the sector counts as lightly loaded.", "00000011"),
    rtc_mac_simple("SB_Mac_AttrMergeThreshold", 0xFFFC,
                   "Below how much data low-latency flows take others into their packets.", "00000010"),
    rtc_mac_simple("SB_Mac_AttrPayloadThresh", 0xFFFB, "Threshold of the payload when the packet size is chosen.",
                   "00000001"),
    rtc_mac_simple("SB_Mac_AttrPilotStrengthFilterTC", 0xFFFA, "Time constant of the filter of the pilot strength.",
                   "00000010"),
    rtc_mac_simple("SB_Mac_AttrQRABFilterTC", 0xFFF9,
                   "Time constant of the filter of the reverse activity bit that gives QRAB."),
    rtc_mac_simple("SB_Mac_AttrT2PNoTxFilterTC", 0xFFF7,
                   "Time constant of the filter of the T2P inflow while the flow is silent.", "00000001"),
    rtc_mac_simple("SB_Mac_AttrPilotQRABThreshDRCLock", 0xFFF6,
                   "Pilot strength from which a sector's QRAB counts, with its DRC lock bit set.", "00000001"),
    rtc_mac_simple("SB_Mac_AttrPilotQRABThreshDRCUnlock", 0xFFF5,
                   "Pilot strength from which a sector's QRAB counts, with its DRC lock bit clear.", "00001100"),
    rtc_mac_simple("SB_Mac_AttrRate1M8Supported", 0xFFF3, "Whether the terminal sends at 1.8 Mbit/s."),
    {.name = "SB_MAC_AttrBucketLevelMaxNN",
     .summary = "How much T2P the MAC flow may save up.",
     .clause = "10.11.7",
     .meaning = &kQuarterDb,
     .id = 0xFE00,
     .id_settable = true,
     .initial = "01010000",
     .wrong_high_octet = "Invalid Attribute ID.",
     .source = "SB_MAC_AttrBucketLevelMax"},
    {.name = "SB_MAC_AttrMergeThresholdNN",
     .summary = "Up to how much data the MAC flow is taken into low-latency packets of others.",
     .clause = "10.11.7",
     .id = 0xFD00,
     .id_settable = true,
     .wrong_high_octet = "Invalid attribute Id for Attribute MergeThresholdNN."},
    {.name = "SB_MAC_AttrTransmissionModeNN",
     .summary = "Transmission mode of the MAC flow.",
     .clause = "10.11.7",
     .meaning = &kTransmissionMode,
     .id = 0xFC00,
     .id_settable = true,
     .wrong_high_octet = "Invalid Attribute Id for Attribute TransmissionModeNN."},
    {.name = "SB_MAC_AttrQRABSelectNN",
     .summary = "Which filtered reverse activity bit the MAC flow follows.",
     .clause = "10.11.7",
     .meaning = &kQRABSelect,
     .id = 0xFB00,
     .id_settable = true,
     .wrong_high_octet = "Invalid Attribute Id."},
    {.name = "SB_MAC_AttrBurstDurationFactorNN",
     .summary = "Factor of the duration for which the MAC flow may burst.",
     .clause = "10.11.7",
     .id = 0xFA00,
     .id_settable = true,
     .wrong_high_octet = "Invalid Attribute Id for Attribute BurstDurationFactorNN.",
     .source = "SB_Mac_AttrBurstDurationFactorNN"},
    {.name = "SB_MAC_AttrT2PFilterTCNN",
     .summary = "Time constant of the filter of the MAC flow's T2P inflow.",
     .clause = "10.11.7",
     .meaning = &kTimeConstant,
     .id = 0xF900,
     .id_settable = true,
     .initial = "00000001",
     .wrong_high_octet = "Invalid Attribute Id for Attribute T2PFilterTCNN."},
};

template <MemberName Name>
using MacSimpleAttribute = AttributeOf<kMacSimpleAttributes, row_of<kMacSimpleAttributes>(Name.view())>;

using SB_Mac_AttrCCShortPacketsMACIndex = MacSimpleAttribute<"SB_Mac_AttrCCShortPacketsMACIndex">;
using SB_Mac_AttrDRCGating = MacSimpleAttribute<"SB_Mac_AttrDRCGating">;
using SB_MAC_AttrMultiUserPacketsEnabled = MacSimpleAttribute<"SB_MAC_AttrMultiUserPacketsEnabled">;
using SB_Mac_AttrSingUsrMultplxPcktsEnbd = MacSimpleAttribute<"SB_Mac_AttrSingUsrMultplxPcktsEnbd">;
using SB_MAC_AttrDRCSupervisionTimer = MacSimpleAttribute<"SB_MAC_AttrDRCSupervisionTimer">;
using SB_Mac_AttrShrtPcktsEnbldThresh = MacSimpleAttribute<"SB_Mac_AttrShrtPcktsEnbldThresh">;
using SB_Mac_AttrDSCLength = MacSimpleAttribute<"SB_Mac_AttrDSCLength">;
using SB_Mac_AttrARQMode = MacSimpleAttribute<"SB_Mac_AttrARQMode">;
using SB_Mac_AttrFRABFilterTC = MacSimpleAttribute<"SB_Mac_AttrFRABFilterTC">;
using SB_Mac_AttrFRABlow = MacSimpleAttribute<"SB_Mac_AttrFRABlow">;
using SB_Mac_AttrMergeThreshold = MacSimpleAttribute<"SB_Mac_AttrMergeThreshold">;
using SB_Mac_AttrPayloadThresh = MacSimpleAttribute<"SB_Mac_AttrPayloadThresh">;
using SB_Mac_AttrPilotStrengthFilterTC = MacSimpleAttribute<"SB_Mac_AttrPilotStrengthFilterTC">;
using SB_Mac_AttrQRABFilterTC = MacSimpleAttribute<"SB_Mac_AttrQRABFilterTC">;
using SB_Mac_AttrT2PNoTxFilterTC = MacSimpleAttribute<"SB_Mac_AttrT2PNoTxFilterTC">;
using SB_Mac_AttrPilotQRABThreshDRCLock = MacSimpleAttribute<"SB_Mac_AttrPilotQRABThreshDRCLock">;
using SB_Mac_AttrPilotQRABThreshDRCUnlock = MacSimpleAttribute<"SB_Mac_AttrPilotQRABThreshDRCUnlock">;
using SB_Mac_AttrRate1M8Supported = MacSimpleAttribute<"SB_Mac_AttrRate1M8Supported">;
using SB_MAC_AttrBucketLevelMaxNN = MacSimpleAttribute<"SB_MAC_AttrBucketLevelMaxNN">;
using SB_MAC_AttrMergeThresholdNN = MacSimpleAttribute<"SB_MAC_AttrMergeThresholdNN">;
using SB_MAC_AttrTransmissionModeNN = MacSimpleAttribute<"SB_MAC_AttrTransmissionModeNN">;
using SB_MAC_AttrQRABSelectNN = MacSimpleAttribute<"SB_MAC_AttrQRABSelectNN">;
using SB_MAC_AttrBurstDurationFactorNN = MacSimpleAttribute<"SB_MAC_AttrBurstDurationFactorNN">;
using SB_MAC_AttrT2PFilterTCNN = MacSimpleAttribute<"SB_MAC_AttrT2PFilterTCNN">;

}  // namespace vorlan
