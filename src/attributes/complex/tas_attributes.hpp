// Attributes of the test application protocols, whose fields are their own (C.S0029).
#pragma once

#include "attributes/complex/complex_attribute_of.hpp"
#include "attributes/values/common_fields.hpp"

namespace vorlan {

constexpr RecordField tas_field(std::string_view name, std::uint16_t bits, std::string_view summary) {
  return fixed(name, bits, {}, nullptr, summary);
}

inline constexpr RecordField kDRCValueFields[] = {tas_field("PRstr_DRCValue", 8, "0 to 12.")};
inline constexpr RecordField kDRCCoverFields[] = {tas_field("PRstr_DRCCover", 8, "0 to 7.")};
inline constexpr RecordField kACKChannelBitFields[] = {
    tas_field("PRstr_ACKChannelBit", 8, "0: stop after the first slot, 1: receive every slot."),
};
inline constexpr RecordField kLoopBackFields[] = {
    tas_field("PRstr_LoopBackPersistence", 8, "1 if loop back outlives the connection."),
};
inline constexpr RecordField kIdleASPFields[] = {
    tas_field("PRstr_IdleASPChangeOverflow", 1, "\"1\" if the count overflowed."),
    tas_field("PRstr_IdleASPChange", 15, "Changes of the serving sector."),
    tas_field("PRstr_IdleTimeOverflow", 1, "\"1\" if the time overflowed."),
    tas_field("PRstr_IdleTime", 23, "Time in the idle state."),
};
inline constexpr RecordField kConnectedSSFields[] = {
    tas_field("PRstr_ConnectedSSChangeOverflow", 1, "\"1\" if the count overflowed."),
    tas_field("PRstr_ConnectedSSChange", 15, "Changes of the serving sector."),
    tas_field("PRstr_ConnectedTimeOverflow", 1, "\"1\" if the time overflowed."),
    tas_field("PRstr_ConnectedTime", 23, "Time in the connected state."),
};
inline constexpr RecordField kFirstSyncCCPktFields[] = {
    tas_field("PRstr_FirstSyncCCPktOverflow", 1, "\"1\" if the count overflowed."),
    tas_field("PRstr_FirstSyncCCPkt", 15, "Packets received."),
    tas_field("PRstr_CCTimeOverflow", 1, "\"1\" if the time overflowed."),
    tas_field("PRstr_CCTime", 15, "Control channel cycles."),
};
inline constexpr RecordField kPacketRateFields[] = {
    tas_field("PRstr_MinRate", 8, "0 to 5, none to 153.6 kbit/s."),
    tas_field("PRstr_MaxRate", 8, "0 to 5, none to 153.6 kbit/s."),
};
inline constexpr RecordField kTestPktFields[] = {
    tas_field("PRstr_RTAPTestPktPersistence", 8, "1 if the mode outlives the connection."),
};

constexpr ComplexAttributeSpec tas_attribute(std::string_view name, std::uint16_t id,
                                             std::span<const RecordField> fields, std::string_view summary,
                                             std::string_view wrong_record) {
  return {.name = name,
          .summary = summary,
          .clause = "C.S0029",
          .form = AttributeForm::Fields,
          .id = id,
          .fields = fields,
          .wrong_record = wrong_record};
}

inline constexpr std::string_view kNot24 = "Error: Length of Attribute String should be 24.";
inline constexpr std::string_view kNot32 = "Error: Length of Attribute String should be 32.";
inline constexpr std::string_view kNot48 = "Error: Length of Attribute String should be 48.";
inline constexpr std::string_view kNot56 = "Error: Length of Attribute String should be 56.";

inline constexpr ComplexAttributeSpec kTasAttributes[] = {
    // Forward.
    tas_attribute("SB_TAS_AttrDRCValueFixedMode", 0x00, kDRCValueFields, "The DRC value that the terminal is to send",
                  kNot24),
    tas_attribute("SB_TAS_AttrDRCCoverFixedMode", 0x01, kDRCCoverFields, "The DRC cover that the terminal is to use",
                  kNot24),
    tas_attribute("SB_TAS_AttrACKChannelBitFixedMode", 0x02, kACKChannelBitFields,
                  "The ACK channel bit that the terminal is to send", kNot24),
    tas_attribute("SB_TAS_AttrLoopBackMode", 0x03, kLoopBackFields, "Whether the terminal loops test packets back",
                  kNot24),
    tas_attribute("SB_TAS_AttrIdleASPStats", 0x04, kIdleASPFields, "Changes of the active set pilot while idle",
                  kNot56),
    tas_attribute("SB_TAS_AttrConnectedSSStats", 0x05, kConnectedSSFields,
                  "Changes of the serving sector while connected", kNot56),
    tas_attribute("SB_TAS_AttrFirstSyncCCPktStats", 0x06, kFirstSyncCCPktFields,
                  "First packets of synchronous control channel capsules received", kNot48),
    // Reverse.
    tas_attribute("SB_TAS_AttrPacketRateMode", 0x01, kPacketRateFields, "Rates of reverse test packets", kNot32),
    tas_attribute("SB_TAS_AttrRTAPTestPktEnable", 0x00, kTestPktFields,
                  "Whether the terminal sends reverse test packets", kNot24),
};

template <MemberName Name>
using TasAttribute = ComplexAttributeOf<kTasAttributes, row_of<kTasAttributes>(Name.view())>;

using SB_TAS_AttrDRCValueFixedMode = TasAttribute<"SB_TAS_AttrDRCValueFixedMode">;
using SB_TAS_AttrDRCCoverFixedMode = TasAttribute<"SB_TAS_AttrDRCCoverFixedMode">;
using SB_TAS_AttrACKChannelBitFixedMode = TasAttribute<"SB_TAS_AttrACKChannelBitFixedMode">;
using SB_TAS_AttrLoopBackMode = TasAttribute<"SB_TAS_AttrLoopBackMode">;
using SB_TAS_AttrIdleASPStats = TasAttribute<"SB_TAS_AttrIdleASPStats">;
using SB_TAS_AttrConnectedSSStats = TasAttribute<"SB_TAS_AttrConnectedSSStats">;
using SB_TAS_AttrFirstSyncCCPktStats = TasAttribute<"SB_TAS_AttrFirstSyncCCPktStats">;
using SB_TAS_AttrPacketRateMode = TasAttribute<"SB_TAS_AttrPacketRateMode">;
using SB_TAS_AttrRTAPTestPktEnable = TasAttribute<"SB_TAS_AttrRTAPTestPktEnable">;

}  // namespace vorlan
