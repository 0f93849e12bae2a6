#include "common/sector_identity.hpp"

#include <algorithm>
#include <array>

#include "common/settings_names.hpp"

namespace vorlan {

namespace {

struct StoredField {
  std::string_view key;
  std::string SectorIdentity::*field;
};
constexpr std::array kStored{StoredField{kMruSectorId, &SectorIdentity::sector_id},
                             StoredField{kMruSubnetMask, &SectorIdentity::subnet_mask},
                             StoredField{kMruSectorSignature, &SectorIdentity::sector_signature}};

}  // namespace

bool is_new_sector(const SettingsStore& settings, const SectorIdentity& sector) {
  return std::any_of(kStored.begin(), kStored.end(), [&](const StoredField& stored) {
    return settings.read(kSettingsApplication, kSectorSection, stored.key) != sector.*stored.field;
  });
}

void remember_sector(SettingsStore& settings, const SectorIdentity& sector) {
  for (const StoredField& stored : kStored) {
    settings.write(kSettingsApplication, kSectorSection, stored.key, sector.*stored.field);
  }
}

}  // namespace vorlan
