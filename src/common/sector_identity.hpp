// The identity of the sector that was configured last, remembered between runs.
#pragma once

#include <string>

#include "platform/platform.hpp"

namespace vorlan {

/// As bit strings.
struct SectorIdentity {
  std::string sector_id;         ///< 128 bits
  std::string subnet_mask;       ///< 8 bits
  std::string sector_signature;  ///< 16 bits
};

/// Whether the sector is another one than that remembered; true if none is remembered.
bool is_new_sector(const SettingsStore& settings, const SectorIdentity& sector);
void remember_sector(SettingsStore& settings, const SectorIdentity& sector);

}  // namespace vorlan
