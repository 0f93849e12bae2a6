#include "messages/connection/sector_parameters.hpp"

namespace vorlan::sector_parameters {

std::string sector_id(Configuration& configuration) {
  constexpr std::size_t kWholeBits = 128;
  std::string low = configuration.text("PRstr_SectorID");
  if (low.size() >= kWholeBits) return low;
  return configuration.text("PRstr_SectorID127_96") + configuration.text("PRstr_SectorID95_64") +
         configuration.text("PRstr_SectorID63_32") + low;
}

std::string neighbour_channel(Configuration& configuration) {
  constexpr int kBandClassBits = 5;
  constexpr int kChannelNumberBits = 11;
  return "00000000" + configuration.bits("PRint_BandClass", kBandClassBits) +
         configuration.bits("PRint_ChannelNumber", kChannelNumberBits);
}

}  // namespace vorlan::sector_parameters
