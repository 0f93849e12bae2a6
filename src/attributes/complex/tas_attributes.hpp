// Attributes of the test application protocols, whose fields are their own (C.S0029).
#pragma once

#include "attributes/complex/complex_attribute_of.hpp"
#include "attributes/values/common_fields.hpp"

namespace vorlan {

inline constexpr RecordField kAttrDRCValueFixedModeFields[] = {
    fixed("PRstr_DRCValue", 8, {}, nullptr, "0 to 12."),
};
inline constexpr ComplexAttributeSpec kAttrDRCValueFixedMode{
    .name = "SB_TAS_AttrDRCValueFixedMode",
    .summary = "The DRC value that the terminal is to send",
    .clause = "C.S0029",
    .form = AttributeForm::Fields,
    .id = 0x00,
    .fields = kAttrDRCValueFixedModeFields,
    .wrong_record = "Error: Length of Attribute String should be 24."};
using SB_TAS_AttrDRCValueFixedMode = ComplexAttributeOf<kAttrDRCValueFixedMode>;

inline constexpr RecordField kAttrDRCCoverFixedModeFields[] = {
    fixed("PRstr_DRCCover", 8, {}, nullptr, "0 to 7."),
};
inline constexpr ComplexAttributeSpec kAttrDRCCoverFixedMode{
    .name = "SB_TAS_AttrDRCCoverFixedMode",
    .summary = "The DRC cover that the terminal is to use",
    .clause = "C.S0029",
    .form = AttributeForm::Fields,
    .id = 0x01,
    .fields = kAttrDRCCoverFixedModeFields,
    .wrong_record = "Error: Length of Attribute String should be 24."};
using SB_TAS_AttrDRCCoverFixedMode = ComplexAttributeOf<kAttrDRCCoverFixedMode>;

inline constexpr RecordField kAttrACKChannelBitFixedModeFields[] = {
    fixed("PRstr_ACKChannelBit", 8, {}, nullptr, "0: stop after the first slot, 1: receive every slot."),
};
inline constexpr ComplexAttributeSpec kAttrACKChannelBitFixedMode{
    .name = "SB_TAS_AttrACKChannelBitFixedMode",
    .summary = "The ACK channel bit that the terminal is to send",
    .clause = "C.S0029",
    .form = AttributeForm::Fields,
    .id = 0x02,
    .fields = kAttrACKChannelBitFixedModeFields,
    .wrong_record = "Error: Length of Attribute String should be 24."};
using SB_TAS_AttrACKChannelBitFixedMode = ComplexAttributeOf<kAttrACKChannelBitFixedMode>;

inline constexpr RecordField kAttrLoopBackModeFields[] = {
    fixed("PRstr_LoopBackPersistence", 8, {}, nullptr, "1 if loop back outlives the connection."),
};
inline constexpr ComplexAttributeSpec kAttrLoopBackMode{
    .name = "SB_TAS_AttrLoopBackMode",
    .summary = "Whether the terminal loops test packets back",
    .clause = "C.S0029",
    .form = AttributeForm::Fields,
    .id = 0x03,
    .fields = kAttrLoopBackModeFields,
    .wrong_record = "Error: Length of Attribute String should be 24."};
using SB_TAS_AttrLoopBackMode = ComplexAttributeOf<kAttrLoopBackMode>;

inline constexpr RecordField kAttrIdleASPStatsFields[] = {
    fixed("PRstr_IdleASPChangeOverflow", 1, {}, nullptr, "\"1\" if the count overflowed."),
    fixed("PRstr_IdleASPChange", 15, {}, nullptr, "Changes of the serving sector."),
    fixed("PRstr_IdleTimeOverflow", 1, {}, nullptr, "\"1\" if the time overflowed."),
    fixed("PRstr_IdleTime", 23, {}, nullptr, "Time in the idle state."),
};
inline constexpr ComplexAttributeSpec kAttrIdleASPStats{
    .name = "SB_TAS_AttrIdleASPStats",
    .summary = "Changes of the active set pilot while idle",
    .clause = "C.S0029",
    .form = AttributeForm::Fields,
    .id = 0x04,
    .fields = kAttrIdleASPStatsFields,
    .wrong_record = "Error: Length of Attribute String should be 56."};
using SB_TAS_AttrIdleASPStats = ComplexAttributeOf<kAttrIdleASPStats>;

inline constexpr RecordField kAttrConnectedSSStatsFields[] = {
    fixed("PRstr_ConnectedSSChangeOverflow", 1, {}, nullptr, "\"1\" if the count overflowed."),
    fixed("PRstr_ConnectedSSChange", 15, {}, nullptr, "Changes of the serving sector."),
    fixed("PRstr_ConnectedTimeOverflow", 1, {}, nullptr, "\"1\" if the time overflowed."),
    fixed("PRstr_ConnectedTime", 23, {}, nullptr, "Time in the connected state."),
};
inline constexpr ComplexAttributeSpec kAttrConnectedSSStats{
    .name = "SB_TAS_AttrConnectedSSStats",
    .summary = "Changes of the serving sector while connected",
    .clause = "C.S0029",
    .form = AttributeForm::Fields,
    .id = 0x05,
    .fields = kAttrConnectedSSStatsFields,
    .wrong_record = "Error: Length of Attribute String should be 56."};
using SB_TAS_AttrConnectedSSStats = ComplexAttributeOf<kAttrConnectedSSStats>;

inline constexpr RecordField kAttrFirstSyncCCPktStatsFields[] = {
    fixed("PRstr_FirstSyncCCPktOverflow", 1, {}, nullptr, "\"1\" if the count overflowed."),
    fixed("PRstr_FirstSyncCCPkt", 15, {}, nullptr, "Packets received."),
    fixed("PRstr_CCTimeOverflow", 1, {}, nullptr, "\"1\" if the time overflowed."),
    fixed("PRstr_CCTime", 15, {}, nullptr, "Control channel cycles."),
};
inline constexpr ComplexAttributeSpec kAttrFirstSyncCCPktStats{
    .name = "SB_TAS_AttrFirstSyncCCPktStats",
    .summary = "First packets of synchronous control channel capsules received",
    .clause = "C.S0029",
    .form = AttributeForm::Fields,
    .id = 0x06,
    .fields = kAttrFirstSyncCCPktStatsFields,
    .wrong_record = "Error: Length of Attribute String should be 48."};
using SB_TAS_AttrFirstSyncCCPktStats = ComplexAttributeOf<kAttrFirstSyncCCPktStats>;

inline constexpr RecordField kAttrPacketRateModeFields[] = {
    fixed("PRstr_MinRate", 8, {}, nullptr, "0 to 5, none to 153.6 kbit/s."),
    fixed("PRstr_MaxRate", 8, {}, nullptr, "0 to 5, none to 153.6 kbit/s."),
};
inline constexpr ComplexAttributeSpec kAttrPacketRateMode{
    .name = "SB_TAS_AttrPacketRateMode",
    .summary = "Rates of reverse test packets",
    .clause = "C.S0029",
    .form = AttributeForm::Fields,
    .id = 0x01,
    .fields = kAttrPacketRateModeFields,
    .wrong_record = "Error: Length of Attribute String should be 32."};
using SB_TAS_AttrPacketRateMode = ComplexAttributeOf<kAttrPacketRateMode>;

inline constexpr RecordField kAttrRTAPTestPktEnableFields[] = {
    fixed("PRstr_RTAPTestPktPersistence", 8, {}, nullptr, "1 if the mode outlives the connection."),
};
inline constexpr ComplexAttributeSpec kAttrRTAPTestPktEnable{
    .name = "SB_TAS_AttrRTAPTestPktEnable",
    .summary = "Whether the terminal sends reverse test packets",
    .clause = "C.S0029",
    .form = AttributeForm::Fields,
    .id = 0x00,
    .fields = kAttrRTAPTestPktEnableFields,
    .wrong_record = "Error: Length of Attribute String should be 24."};
using SB_TAS_AttrRTAPTestPktEnable = ComplexAttributeOf<kAttrRTAPTestPktEnable>;

}  // namespace vorlan
