#include "messages/connection/channel.hpp"

#include "messages/configuration.hpp"

namespace vorlan {

std::string channel_of_sector(Configuration& configuration) {
  constexpr int kBandClassBits = 5;
  constexpr int kChannelNumberBits = 11;
  std::string record = configuration.text("PRstr_SystemType");
  record += configuration.bits("PRint_BandClass", kBandClassBits);
  record += configuration.bits("PRint_ChannelNumber", kChannelNumberBits);
  return record;
}

}  // namespace vorlan
