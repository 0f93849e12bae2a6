// The attribute classes with fields of their own as scripts know them: kept apart from the rows that make them, so that
// each checks the other.
#pragma once

#include <cstdint>
#include <string_view>

namespace vorlan::test {

struct FieldAttributeCase {
  std::string_view name;
  std::uint16_t id;
  std::string_view record_bits;
  std::string_view fields;  // with their widths
};

inline constexpr FieldAttributeCase kFieldAttributeCases[] = {
    {"SB_TAS_AttrDRCValueFixedMode", 0x00, "24", "DRCValue 8"},
    {"SB_TAS_AttrDRCCoverFixedMode", 0x01, "24", "DRCCover 8"},
    {"SB_TAS_AttrACKChannelBitFixedMode", 0x02, "24", "ACKChannelBit 8"},
    {"SB_TAS_AttrLoopBackMode", 0x03, "24", "LoopBackPersistence 8"},
    {"SB_TAS_AttrIdleASPStats", 0x04, "56",
     "IdleASPChangeOverflow 1, IdleASPChange 15, IdleTimeOverflow 1, IdleTime 23"},
    {"SB_TAS_AttrConnectedSSStats", 0x05, "56",
     "ConnectedSSChangeOverflow 1, ConnectedSSChange 15, ConnectedTimeOverflow 1, ConnectedTime 23"},
    {"SB_TAS_AttrFirstSyncCCPktStats", 0x06, "48",
     "FirstSyncCCPktOverflow 1, FirstSyncCCPkt 15, CCTimeOverflow 1, CCTime 15"},
    {"SB_TAS_AttrPacketRateMode", 0x01, "32", "MinRate 8, MaxRate 8"},
    {"SB_TAS_AttrRTAPTestPktEnable", 0x00, "24", "RTAPTestPktPersistence 8"},
};

}  // namespace vorlan::test
