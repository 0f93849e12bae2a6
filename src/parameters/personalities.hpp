// Protocol subtypes and rates of the personalities of a session.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vorlan {

inline constexpr std::size_t kPersonalityParameters = 9;

// Which of the nine; their order is that of kPersonalitySpecs.
inline constexpr std::size_t kPhyLaySubType = 0;
inline constexpr std::size_t kMacRtcSubType = 1;
inline constexpr std::size_t kMacFtcSubType = 2;
inline constexpr std::size_t kIdleStateSubType = 3;
inline constexpr std::size_t kMacCcSubType = 4;
inline constexpr std::size_t kMacAchSubType = 5;
inline constexpr std::size_t kPacketAppType = 6;
inline constexpr std::size_t kAsyncRate = 7;
inline constexpr std::size_t kSubSyncRate = 8;

/// One of them for one personality is an element; this value says that it is not set and comes from the file.
inline constexpr std::int16_t kNotSet = -1;

/// The personality that enhanced protocols are negotiated in; 0 has the default ones.
inline constexpr std::int16_t kEnhancedPersonality = 1;

struct PersonalitySpec {
  std::string_view key;
  std::string_view getter;
  std::string_view setter;
  std::string_view property;  ///< of the active personality
  std::string_view summary;
  std::string_view not_subtype2;   ///< raised unless the physical layer subtype is 2; empty: any subtype
  std::string_view setter_source;  ///< of the next text: an enhanced protocol in another personality than 1
  std::string_view setter_text;
  std::string_view property_text;  ///< the same, let through the property
};

inline constexpr std::string_view kOnlyIdleState =
    "Only Script Personality 1 is supported with Enhanced Idle State Protocol";

// The setters of the control and access channels and of the packet application name the idle state protocol, the last
// one the access channel's setter: scripts know these texts.
inline constexpr std::array<PersonalitySpec, kPersonalityParameters> kPersonalitySpecs{{
    {.key = "PhyLaySubType",
     .getter = "Get_PhyLaySubType",
     .setter = "Set_PhyLaySubType",
     .property = "PRint_PhyLaySubType",
     .summary = "Physical layer subtype; -1 to 2"},
    {.key = "MACLayRTCSubType",
     .getter = "Get_MACLayRTCSubType",
     .setter = "Set_MACLayRTCSubType",
     .property = "PRint_MACLayRTCSubType",
     .summary = "Reverse traffic channel MAC subtype; -1 to 3"},
    {.key = "MACLayFTCSubType",
     .getter = "Get_MACLayFTCSubType",
     .setter = "Set_MACLayFTCSubType",
     .property = "PRint_MACLayFTCSubType",
     .summary = "Forward traffic channel MAC subtype; -1 to 1"},
    {.key = "IdleStateSubType",
     .getter = "Get_IdleStateSubType",
     .setter = "Set_IdleStateSubType",
     .property = "PRint_IdleStateSubType",
     .summary = "Idle state subtype; -1 to 1 (enhanced)",
     .setter_source = "SB_GlobalParameters.Set_IdleStateSubType",
     .setter_text = kOnlyIdleState,
     .property_text = kOnlyIdleState},
    {.key = "MACLayCCSubType",
     .getter = "Get_MACLayCCSubType",
     .setter = "Set_MACLayCCSubType",
     .property = "PRint_MACLayCCSubType",
     .summary = "Control channel MAC subtype; -1 to 1 (enhanced)",
     .setter_source = "SB_GlobalParameters.Set_MACLayCCSubType",
     .setter_text = kOnlyIdleState,
     .property_text = "Only Script Personality 1 is supported with Enhanced Control Channel MAC Protocol"},
    {.key = "MACLayACHSubType",
     .getter = "Get_MACLayACHSubType",
     .setter = "Set_MACLayACHSubType",
     .property = "PRint_MACLayACHSubType",
     .summary = "Access channel MAC subtype; -1 to 1 (enhanced)",
     .setter_source = "SB_GlobalParameters.Set_MACLayACHSubType",
     .setter_text = kOnlyIdleState,
     .property_text = "Only Script Personality 1 is supported with Enhanced Access Channel MAC Protocol"},
    {.key = "PacketAppType",
     .getter = "Get_PacketAppType",
     .setter = "Set_PacketAppType",
     .property = "PRint_PacketAppType",
     .summary = "Packet application; 0 = default, 1 = multi-flow, 2 = enhanced multi-flow",
     .setter_source = "SB_GlobalParameters.Set_MACLayACHSubType",
     .setter_text = kOnlyIdleState,
     .property_text = "Only Script Personality 1 is supported with Multi-Flow Packet Application"},
    {.key = "AsyncRate",
     .getter = "Get_AsyncRate",
     .setter = "Set_AsyncRate",
     .property = "PRint_AsyncRate",
     .summary = "Rate of asynchronous control channel capsules, an index; 4 or 5 with control channel MAC subtype 0",
     .not_subtype2 = "Only Physical layer Sub type 2 supports AsyncRate"},
    {.key = "SubSyncRate",
     .getter = "Get_SubSyncRate",
     .setter = "Set_SubSyncRate",
     .property = "PRint_SubSyncRate",
     .summary = "Rate of sub-synchronous control channel capsules, an index",
     .not_subtype2 = "Only Physical layer Sub type 2 supports SubSyncRate"},
}};
static_assert(kPersonalitySpecs[kMacFtcSubType].key == "MACLayFTCSubType");
static_assert(kPersonalitySpecs[kSubSyncRate].key == "SubSyncRate");

/// All nine, for the personalities from 0 up.
class Personalities {
 public:
  /// Error 9 for a personality that has no element.
  [[nodiscard]] std::int16_t at(std::size_t parameter, std::int16_t personality) const;
  /// The same, but kNotSet above the elements there are.
  [[nodiscard]] std::int16_t at_or_not_set(std::size_t parameter, std::int16_t personality) const;
  /// The element; missing ones up to it are added, not set. Error 9 for a negative personality.
  std::int16_t& reach(std::size_t parameter, std::int16_t personality);

 private:
  // Personality 0 has the default protocols, personality 1 comes from the file.
  std::array<std::vector<std::int16_t>, kPersonalityParameters> elements_ = [] {
    std::array<std::vector<std::int16_t>, kPersonalityParameters> elements;
    elements.fill({0, kNotSet});
    return elements;
  }();
};

}  // namespace vorlan
