#include "parameters/sector_name.hpp"

#include <algorithm>
#include <array>
#include <string>

#include "automation/error.hpp"

namespace vorlan {

namespace {

struct Sector {
  std::string_view name;
  std::string_view label;
};

constexpr std::array<Sector, kSectorCount> kSectors{{
    {"SECTOR 0", "BaseStation 1,Sector 1"},
    {"SECTOR 1", "BaseStation 1,Sector 2"},
    {"SECTOR 2", "BaseStation 1,Sector 3"},
    {"SECTOR 3", "BaseStation 2,Sector 1"},
    {"SECTOR 4", "BaseStation 2,Sector 2"},
    {"SECTOR 5", "BaseStation 2,Sector 3"},
}};

}  // namespace

std::string_view sector_name(int index) noexcept { return kSectors[static_cast<std::size_t>(index)].name; }

std::string_view sector_label(int index) noexcept { return kSectors[static_cast<std::size_t>(index)].label; }

int sector_index(std::string_view name) {
  const auto found = std::find_if(kSectors.begin(), kSectors.end(), [name](const Sector& s) { return s.name == name; });
  if (found == kSectors.end()) raise("SB_GlobalParameters", "Sector Name: " + std::string(name) + " is invalid");
  return static_cast<int>(found - kSectors.begin());
}

}  // namespace vorlan
