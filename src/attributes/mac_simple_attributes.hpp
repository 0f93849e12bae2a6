// Simple attributes of the MAC layer: control channel (C.S0024-A 10.3), enhanced forward traffic channel (10.7) and
// reverse traffic channel of subtype 3 (10.11). NN is the MAC flow, the low octet of the AttributeID. The names mix
// Mac and MAC, and two sources are another class's; scripts know them so.
#pragma once

#include "attributes/attribute_of.hpp"

namespace vorlan {

inline constexpr SimpleAttributeSpec kAttrCCShortPacketsMACIndex{
    .name = "SB_Mac_AttrCCShortPacketsMACIndex",
    .summary = "MACIndex of short packets on the control channel.",
    .clause = "10.3",
    .id = 0x00,
    .id_bits = 8,
    .length = 2,
    .record_bits = 24,
};
using SB_Mac_AttrCCShortPacketsMACIndex = AttributeOf<kAttrCCShortPacketsMACIndex>;

inline constexpr SimpleAttributeSpec kAttrDRCGating{
    .name = "SB_Mac_AttrDRCGating",
    .summary = "Whether the DRC channel is sent without pause or gated.",
    .clause = "10.7",
    .unit = "0 continuous, 1 gated",
    .id = 0xFF,
    .id_bits = 8,
    .value_bits = 16,
    .initial = "0000000000000000",
    .record_bits = 0,
    .texts = AttributeTexts::Early,
};
using SB_Mac_AttrDRCGating = AttributeOf<kAttrDRCGating>;

inline constexpr SimpleAttributeSpec kAttrMultiUserPacketsEnabled{
    .name = "SB_MAC_AttrMultiUserPacketsEnabled",
    .summary = "Whether packets may carry data of several terminals.",
    .clause = "10.7",
    .id = 0xFD,
    .id_bits = 8,
    .record_bits = 0,
    .disagrees_on_purpose = true,
    .texts = AttributeTexts::Early,
    .source = "SB_Mac_AttrMultiUserPacketsEnabled",
};
using SB_MAC_AttrMultiUserPacketsEnabled = AttributeOf<kAttrMultiUserPacketsEnabled>;

// Starts with two octets of value, and builds them.
inline constexpr SimpleAttributeSpec kAttrSingUsrMultplxPcktsEnbd{
    .name = "SB_Mac_AttrSingUsrMultplxPcktsEnbd",
    .summary = "Whether single-user multiplex packets may be sent (SingleUserMultiplexPacketsEnabled).",
    .clause = "10.7",
    .id = 0xF9,
    .id_bits = 8,
    .initial = "0000000000000000",
    .record_bits = 0,
    .disagrees_on_purpose = true,
    .texts = AttributeTexts::Early,
};
using SB_Mac_AttrSingUsrMultplxPcktsEnbd = AttributeOf<kAttrSingUsrMultplxPcktsEnbd>;

inline constexpr SimpleAttributeSpec kAttrDRCSupervisionTimer{
    .name = "SB_MAC_AttrDRCSupervisionTimer",
    .summary = "How long the terminal waits for a usable DRC before it stops sending.",
    .clause = "10.7",
    .id = 0xF8,
    .id_bits = 8,
    .record_bits = 0,
    .disagrees_on_purpose = true,
    .texts = AttributeTexts::Early,
};
using SB_MAC_AttrDRCSupervisionTimer = AttributeOf<kAttrDRCSupervisionTimer>;

inline constexpr SimpleAttributeSpec kAttrShrtPcktsEnbldThresh{
    .name = "SB_Mac_AttrShrtPcktsEnbldThresh",
    .summary = "From which rate on short packets are sent (ShortPacketsEnabledThresh).",
    .clause = "10.7",
    .id = 0xFA,
    .id_bits = 8,
    .initial = "00000001",
    .record_bits = 0,
    .disagrees_on_purpose = true,
    .texts = AttributeTexts::Early,
    .source = "SB_Mac_AttrMultiUserPacketsEnabled",
};
using SB_Mac_AttrShrtPcktsEnbldThresh = AttributeOf<kAttrShrtPcktsEnbldThresh>;

inline constexpr SimpleAttributeSpec kAttrDSCLength{
    .name = "SB_Mac_AttrDSCLength",
    .summary = "How long one value of the data source control channel is sent.",
    .clause = "10.7",
    .id = 0xFC,
    .id_bits = 8,
    .initial = "00001000",
    .length = 2,
    .record_bits = 0,
    .texts = AttributeTexts::Early,
    .source = "SB_Mac_AttrDRCGating",
};
using SB_Mac_AttrDSCLength = AttributeOf<kAttrDSCLength>;

inline constexpr SimpleAttributeSpec kAttrARQMode{
    .name = "SB_Mac_AttrARQMode",
    .summary = "How the reverse link's packets are acknowledged.",
    .clause = "10.11.7",
    .id = 0xFFFF,
};
using SB_Mac_AttrARQMode = AttributeOf<kAttrARQMode>;

inline constexpr SimpleAttributeSpec kAttrFRABFilterTC{
    .name = "SB_Mac_AttrFRABFilterTC",
    .summary = "Time constant of the filter of the reverse activity bit that gives FRAB.",
    .clause = "10.11.7",
    .id = 0xFFFE,
    .initial = "00000010",
};
using SB_Mac_AttrFRABFilterTC = AttributeOf<kAttrFRABFilterTC>;

inline constexpr SimpleAttributeSpec kAttrFRABlow{
    .name = "SB_Mac_AttrFRABlow",
    .summary = "FRAB below which the sector counts as lightly loaded.",
    .clause = "10.11.7",
    .id = 0xFFFD,
    .initial = "00000011",
};
using SB_Mac_AttrFRABlow = AttributeOf<kAttrFRABlow>;

inline constexpr SimpleAttributeSpec kAttrMergeThreshold{
    .name = "SB_Mac_AttrMergeThreshold",
    .summary = "Below how much data low-latency flows take others into their packets.",
    .clause = "10.11.7",
    .id = 0xFFFC,
    .initial = "00000010",
};
using SB_Mac_AttrMergeThreshold = AttributeOf<kAttrMergeThreshold>;

inline constexpr SimpleAttributeSpec kAttrPayloadThresh{
    .name = "SB_Mac_AttrPayloadThresh",
    .summary = "Threshold of the payload when the packet size is chosen.",
    .clause = "10.11.7",
    .id = 0xFFFB,
    .initial = "00000001",
};
using SB_Mac_AttrPayloadThresh = AttributeOf<kAttrPayloadThresh>;

inline constexpr SimpleAttributeSpec kAttrPilotStrengthFilterTC{
    .name = "SB_Mac_AttrPilotStrengthFilterTC",
    .summary = "Time constant of the filter of the pilot strength.",
    .clause = "10.11.7",
    .id = 0xFFFA,
    .initial = "00000010",
};
using SB_Mac_AttrPilotStrengthFilterTC = AttributeOf<kAttrPilotStrengthFilterTC>;

inline constexpr SimpleAttributeSpec kAttrQRABFilterTC{
    .name = "SB_Mac_AttrQRABFilterTC",
    .summary = "Time constant of the filter of the reverse activity bit that gives QRAB.",
    .clause = "10.11.7",
    .id = 0xFFF9,
};
using SB_Mac_AttrQRABFilterTC = AttributeOf<kAttrQRABFilterTC>;

inline constexpr SimpleAttributeSpec kAttrT2PNoTxFilterTC{
    .name = "SB_Mac_AttrT2PNoTxFilterTC",
    .summary = "Time constant of the filter of the T2P inflow while the flow is silent.",
    .clause = "10.11.7",
    .id = 0xFFF7,
    .initial = "00000001",
};
using SB_Mac_AttrT2PNoTxFilterTC = AttributeOf<kAttrT2PNoTxFilterTC>;

inline constexpr SimpleAttributeSpec kAttrPilotQRABThreshDRCLock{
    .name = "SB_Mac_AttrPilotQRABThreshDRCLock",
    .summary = "Pilot strength from which a sector's QRAB counts, with its DRC lock bit set.",
    .clause = "10.11.7",
    .id = 0xFFF6,
    .initial = "00000001",
};
using SB_Mac_AttrPilotQRABThreshDRCLock = AttributeOf<kAttrPilotQRABThreshDRCLock>;

inline constexpr SimpleAttributeSpec kAttrPilotQRABThreshDRCUnlock{
    .name = "SB_Mac_AttrPilotQRABThreshDRCUnlock",
    .summary = "Pilot strength from which a sector's QRAB counts, with its DRC lock bit clear.",
    .clause = "10.11.7",
    .id = 0xFFF5,
    .initial = "00001100",
};
using SB_Mac_AttrPilotQRABThreshDRCUnlock = AttributeOf<kAttrPilotQRABThreshDRCUnlock>;

inline constexpr SimpleAttributeSpec kAttrRate1M8Supported{
    .name = "SB_Mac_AttrRate1M8Supported",
    .summary = "Whether the terminal sends at 1.8 Mbit/s.",
    .clause = "10.11.7",
    .id = 0xFFF3,
};
using SB_Mac_AttrRate1M8Supported = AttributeOf<kAttrRate1M8Supported>;

inline constexpr SimpleAttributeSpec kAttrBucketLevelMaxNN{
    .name = "SB_MAC_AttrBucketLevelMaxNN",
    .summary = "How much T2P the MAC flow may save up.",
    .clause = "10.11.7",
    .unit = "0.25 dB",
    .id = 0xFE00,
    .id_settable = true,
    .initial = "01010000",
    .wrong_high_octet = "Invalid Attribute ID.",
    .source = "SB_MAC_AttrBucketLevelMax",
};
using SB_MAC_AttrBucketLevelMaxNN = AttributeOf<kAttrBucketLevelMaxNN>;

inline constexpr SimpleAttributeSpec kAttrMergeThresholdNN{
    .name = "SB_MAC_AttrMergeThresholdNN",
    .summary = "Up to how much data the MAC flow is taken into low-latency packets of others.",
    .clause = "10.11.7",
    .id = 0xFD00,
    .id_settable = true,
    .wrong_high_octet = "Invalid attribute Id for Attribute MergeThresholdNN.",
};
using SB_MAC_AttrMergeThresholdNN = AttributeOf<kAttrMergeThresholdNN>;

inline constexpr SimpleAttributeSpec kAttrTransmissionModeNN{
    .name = "SB_MAC_AttrTransmissionModeNN",
    .summary = "Transmission mode of the MAC flow.",
    .clause = "10.11.7",
    .unit = "0 high capacity, 1 low latency",
    .id = 0xFC00,
    .id_settable = true,
    .wrong_high_octet = "Invalid Attribute Id for Attribute TransmissionModeNN.",
};
using SB_MAC_AttrTransmissionModeNN = AttributeOf<kAttrTransmissionModeNN>;

inline constexpr SimpleAttributeSpec kAttrQRABSelectNN{
    .name = "SB_MAC_AttrQRABSelectNN",
    .summary = "Which filtered reverse activity bit the MAC flow follows.",
    .clause = "10.11.7",
    .unit = "0 QRAB, 1 QRABps",
    .id = 0xFB00,
    .id_settable = true,
    .wrong_high_octet = "Invalid Attribute Id.",
};
using SB_MAC_AttrQRABSelectNN = AttributeOf<kAttrQRABSelectNN>;

inline constexpr SimpleAttributeSpec kAttrBurstDurationFactorNN{
    .name = "SB_MAC_AttrBurstDurationFactorNN",
    .summary = "Factor of the duration for which the MAC flow may burst.",
    .clause = "10.11.7",
    .id = 0xFA00,
    .id_settable = true,
    .wrong_high_octet = "Invalid Attribute Id for Attribute BurstDurationFactorNN.",
    .source = "SB_Mac_AttrBurstDurationFactorNN",
};
using SB_MAC_AttrBurstDurationFactorNN = AttributeOf<kAttrBurstDurationFactorNN>;

inline constexpr SimpleAttributeSpec kAttrT2PFilterTCNN{
    .name = "SB_MAC_AttrT2PFilterTCNN",
    .summary = "Time constant of the filter of the MAC flow's T2P inflow.",
    .clause = "10.11.7",
    .unit = "index of a table of time constants",
    .id = 0xF900,
    .id_settable = true,
    .initial = "00000001",
    .wrong_high_octet = "Invalid Attribute Id for Attribute T2PFilterTCNN.",
};
using SB_MAC_AttrT2PFilterTCNN = AttributeOf<kAttrT2PFilterTCNN>;

}  // namespace vorlan
