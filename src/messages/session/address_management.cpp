#include "messages/session/address_management.hpp"

#include "automation/error.hpp"

namespace vorlan::address_management {

namespace {

constexpr std::size_t kUpperBits = 104;
constexpr std::size_t kLowBits = 24;

}  // namespace

void upper_sector_id(const BuildContext& context, std::string& bits) {
  const Configuration configuration = context.message.configuration();
  const std::size_t start = bits.size();
  configuration.append("PRstr_SectorID127_96", bits);
  configuration.append("PRstr_SectorID95_64", bits);
  configuration.append("PRstr_SectorID63_32", bits);
  configuration.append("PRstr_SectorID", bits);
  if (bits.size() > start + kUpperBits) bits.resize(start + kUpperBits);
}

void colour_code(const BuildContext& context, std::string& bits) {
  if (std::string given = context.argument(0); !given.empty()) {
    bits += given;
    return;
  }
  // Sectors 0 to 2 share the colour code of their base station's first sector on purpose, and so do 3 to 5.
  const Configuration configuration = context.message.configuration();
  const std::string name = configuration.sector_name();
  const std::int16_t number = Value(name.empty() ? name : name.substr(name.size() - 1)).to_integer();
  bits += configuration.text("PRstr_ColorCode", number < 3 ? "SECTOR 0" : "SECTOR 3");
}

void low_uati(const BuildContext& context, std::string& bits) {
  const std::size_t start = bits.size();
  context.message.configuration().append("PRstr_UATI", bits);
  if (bits.size() > start + kLowBits) bits.erase(start, bits.size() - start - kLowBits);
}

void check_hardware_id_value(const Message& message, std::string_view value) {
  if (value.size() == 8 * small_value(message.get_field(message.row("PRstr_HardwareIdLength")))) return;
  raise("SB_Ses_HardwareIDResponse.PRstr_HardwareIdValue",
        "PRobj_MessageObject not set properly Length of <HardwareIdValue> field is not 8 * HardwareIdLength ");
}

}  // namespace vorlan::address_management
