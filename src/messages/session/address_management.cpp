#include "messages/session/address_management.hpp"

#include "automation/error.hpp"

namespace vorlan::address_management {

namespace {

constexpr PreparedName kSectorIdParts[] = {"PRstr_SectorID127_96", "PRstr_SectorID95_64", "PRstr_SectorID63_32",
                                           "PRstr_SectorID"};
constexpr PreparedName kUATI = "PRstr_UATI";
constexpr std::size_t kUpperBits = 104;
constexpr std::size_t kLowBits = 24;

}  // namespace

void upper_sector_id(const BuildContext& context, BitBuffer& bits) {
  const Configuration configuration = context.message.configuration();
  const std::size_t start = bits.size();
  for (const PreparedName& part : kSectorIdParts) configuration.append(part, bits);
  bits.keep_first(kUpperBits, start);
}

void colour_code(const BuildContext& context, BitBuffer& bits) {
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

void low_uati(const BuildContext& context, BitBuffer& bits) {
  const std::size_t start = bits.size();
  context.message.configuration().append(kUATI, bits);
  bits.keep_last(kLowBits, start);
}

void check_hardware_id_value(const Message& message, std::string_view value) {
  if (value.size() != 8 * small_value(message.get_field(message.row("PRstr_HardwareIdLength")))) {
    raise(kWrongHardwareIdValue);
  }
}

}  // namespace vorlan::address_management
