// Which channels a sector has for each physical layer subtype, and under which keys the test set knows them.
#pragma once

#include "sector/sector.hpp"

namespace vorlan {

/// A key is a prefix and the sector's name.
struct SectorChannels {
  std::string_view forward_prefix;
  std::string_view access_prefix;
  SB_Sector::Held forward;
  SB_Sector::Held access;
  SB_Sector::Held access_collection;
  SB_Sector::Held reverse;
};

/// By subtype. Those of subtype 0 serve default protocols of every kind.
inline constexpr std::array kSectorChannels{
    SectorChannels{"FC_", "ACH_", SB_Sector::Held::ForwardChannel, SB_Sector::Held::AccessChannel,
                   SB_Sector::Held::AccChCollection, SB_Sector::Held::RevTrafficChannel},
    SectorChannels{"ST1_FC_", "ST1_ACH_", SB_Sector::Held::SubType1ForwardChannel,
                   SB_Sector::Held::SubType1AccessChannel, SB_Sector::Held::SubType1AccChCollection,
                   SB_Sector::Held::SubType1RevTrafficChannel},
    SectorChannels{"ST2_FC_", "ST2_ACH_", SB_Sector::Held::SubType2ForwardChannel,
                   SB_Sector::Held::SubType2AccessChannel, SB_Sector::Held::SubType2AccChCollection,
                   SB_Sector::Held::SubType2RevTrafficChannel},
};

/// Subtype 1 or 2; scripts may set any number.
constexpr bool is_later_subtype(std::int16_t subtype) noexcept { return subtype == 1 || subtype == 2; }

/// Those of subtype 0 for a number that is no later subtype.
constexpr const SectorChannels& channels_of(std::int16_t subtype) noexcept {
  return kSectorChannels[is_later_subtype(subtype) ? static_cast<std::size_t>(subtype) : 0];
}

}  // namespace vorlan
