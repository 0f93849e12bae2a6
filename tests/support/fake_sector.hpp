// A sector that a script wrote itself: a name and a configuration, both foreign objects.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "automation/class_info.hpp"
#include "automation/error.hpp"

namespace vorlan::test {

/// Properties by name. Reads are recorded, a name argument in brackets: "PRstr_ColorCode(SECTOR 0)".
class PropertyBag : public Object {
 public:
  struct Less {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const noexcept { return a < b; }
  };

  explicit PropertyBag(std::map<std::string, Value, Less> initial) : values(std::move(initial)) {}

  Value invoke(std::string_view member, Access, std::span<Value> arguments) override {
    const auto found = values.find(member);
    if (found == values.end()) throw Error(ErrorNumber::MemberNotFound, "bag", member);
    const std::string name = arguments.empty() ? std::string() : arguments[0].to_text();
    reads.push_back(std::string(member) + (name.empty() ? "" : "(" + name + ")"));
    return found->second;
  }

  std::map<std::string, Value, Less> values;
  std::vector<std::string> reads;
};

/// A configuration that holds every value that messages take, all different.
inline Ref<PropertyBag> fake_configuration() {
  const auto integer = [](std::int16_t number) { return Value(number); };
  return make<PropertyBag>(std::map<std::string, Value, PropertyBag::Less>{
      {"PRstr_SubnetMask", "01101000"},
      {"PRstr_SectorID127_96", "10100000000000000000000000000001"},
      {"PRstr_SectorID95_64", "10110000000000000000000000000011"},
      {"PRstr_SectorID63_32", "11000000000000000000000000000111"},
      {"PRstr_SectorID", "11010000000000000000000000001111"},
      {"PRstr_UATI", std::string(104, '0') + "101010111100110111101111"},
      {"PRstr_ColorCode", "00010001"},
      {"PRstr_SystemType", "00000000"},
      {"PRstr_PilotPN", "000001100"},
      {"PRstr_CountryCode", "001100010000"},
      {"PRstr_SectorSignature", "0001001000110100"},
      {"PRstr_AccessSignature", "0101011001111000"},
      {"PRstr_Latitude", "0010100010110110110000"},
      {"PRstr_Longitude", "11010000000000001111000"},
      {"PRstr_RouteUpdateRadius", "00000000101"},
      {"PRstr_RevLinkSilenceDuration", "01"},
      {"PRstr_RevLinkSilencePeriod", "10"},
      {"PRstr_MaximumRevision", "00000001"},
      {"PRstr_MinimumRevision", "00000001"},
      {"PRstr_LocationType", "00000001"},
      {"PRstr_SID", "000000000010010"},
      {"PRstr_NID", "0000000000000111"},
      {"PRint_BandClass", integer(1)},
      {"PRint_ChannelNumber", integer(25)},
      {"PRint_PhyLaySubType", integer(0)},
      {"PRint_MACIndex", integer(5)},
      {"PRint_MACIndex_SubType2", integer(70)},
      {"PRint_DRCCover", integer(1)},
      {"PRint_RABLength", integer(2)},
      {"PRint_RABOffset", integer(3)},
      {"PRint_FrameOffset", integer(9)},
      {"PRint_DRCLength", integer(2)},
      {"PRint_AccessCycleDuration", integer(64)},
      {"PRsin_OpenLoopAdjust", 81.0F},
      {"PRsin_ProbeInitialAdjust", -3.0F},
      {"PRint_ProbeNumStep", integer(5)},
      {"PRint_PowerStep", integer(6)},
      {"PRint_PreambleLength", integer(2)},
      {"PRint_CapsuleLengthMax", integer(3)},
  });
}

inline Ref<PropertyBag> fake_sector(const Ref<PropertyBag>& configuration, std::string_view name = "SECTOR 0") {
  return make<PropertyBag>(std::map<std::string, Value, PropertyBag::Less>{
      {"PRobj_GlobalParameters", Ref<Object>(configuration)},
      {"PRstr_SectorName", name},
  });
}

}  // namespace vorlan::test
