#include "messages/connection/sector_parameters.hpp"

namespace vorlan::sector_parameters {

std::string sector_id(Configuration& configuration) {
  constexpr std::size_t kWholeBits = 128;
  std::string low = configuration.text("PRstr_SectorID");
  if (low.size() >= kWholeBits) return low;
  std::string whole = configuration.text("PRstr_SectorID127_96");
  whole += configuration.text("PRstr_SectorID95_64");
  whole += configuration.text("PRstr_SectorID63_32");
  return whole + low;
}

std::string neighbour_channel(Configuration& configuration) {
  constexpr int kBandClassBits = 5;
  constexpr int kChannelNumberBits = 11;
  const std::string band = "00000000" + configuration.bits("PRint_BandClass", kBandClassBits);
  return band + configuration.bits("PRint_ChannelNumber", kChannelNumberBits);
}

}  // namespace vorlan::sector_parameters
