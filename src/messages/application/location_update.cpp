#include "messages/application/location_update.hpp"

#include "automation/error.hpp"
#include "common/conversions.hpp"

namespace vorlan::location_update {

namespace {

constexpr std::size_t kSidBits = 15;
constexpr std::size_t kNidBits = 16;
constexpr std::size_t kValueBits = 40;

}  // namespace

std::string location_text(std::string_view bits) {
  if (bits.size() != kValueBits) return {};
  return "SID " + std::to_string(small_value(bits.substr(0, kSidBits))) + ", NID " +
         std::to_string(small_value(bits.substr(kSidBits + 1, kNidBits))) + ", PACKET_ZONE_ID " +
         std::to_string(small_value(bits.substr(kSidBits + 1 + kNidBits)));
}

std::string location_value(const Message& message, std::size_t) {
  const Configuration configuration = message.configuration();
  std::string value = configuration.text("PRstr_SID");
  value += '0';
  value += configuration.text("PRstr_NID");
  return value.append(message.stored("PRstr_PACKET_ZONE_ID"));
}

void join_location(const BuildContext& context, BitBuffer& bits) {
  const std::string type = context.message.configuration().text("PRstr_LocationType");
  bits += type;
  if (bin_to_dec(type) != 1) {
    bits += long_to_bin(0, 8);
    return;
  }
  const std::string value = location_value(context.message, 0);
  if (value.size() != kValueBits) raise(kWrongLocationValue);
  bits += long_to_bin(static_cast<std::int32_t>(value.size() / 8), 8);
  bits += value;
}

void already_joined(const BuildContext&, BitBuffer&) {}

void check_packet_zone_id(const Message& message, std::size_t, std::string_view) {
  if (message.configuration().text("PRstr_LocationType") == "00000001") return;
  raise(kNoPacketZone);
}

}  // namespace vorlan::location_update
