#include "messages/connection/traffic_channel_assignment.hpp"

#include "automation/error.hpp"

namespace vorlan::traffic_channel_assignment {

namespace {

constexpr std::size_t kLowBits = 6;

std::string_view mac_index_of(const Message& message, std::size_t pilot) {
  return message.stored("PRstr_MACIndex", pilot);
}

}  // namespace

std::string channel(Configuration& configuration) {
  const std::string band_class = configuration.bits("PRint_BandClass", 5);
  const std::string number = configuration.bits("PRint_ChannelNumber", 11);
  return configuration.text("PRstr_SystemType") + band_class + number;
}

std::string mac_index(Configuration& configuration) {
  constexpr std::int16_t kSubtype2 = 2;
  return configuration.value("PRint_PhyLaySubType").to_integer() == kSubtype2
             ? configuration.bits("PRint_MACIndex_SubType2", kLowBits + 1)
             : configuration.bits("PRint_MACIndex", kLowBits);
}

std::string mac_index_lsbs(const Message& message, std::size_t pilot) {
  const std::string_view index = mac_index_of(message, pilot);
  return std::string(index.size() > kLowBits ? index.substr(index.size() - kLowBits) : index);
}

std::string mac_index_msb(const Message& message, std::size_t pilot) {
  return std::string(mac_index_of(message, pilot).substr(0, 1));
}

void check_mac_index_lsbs(const Message& message, std::size_t pilot, std::string_view value) {
  if (value != mac_index_lsbs(message, pilot)) raise(kWrongLSBs);
}

void check_mac_index_msb(const Message& message, std::size_t pilot, std::string_view value) {
  if (value != mac_index_msb(message, pilot)) raise(kWrongMSB);
}

}  // namespace vorlan::traffic_channel_assignment
