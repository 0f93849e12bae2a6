// The names of the six sectors of a test, and what hangs on them.
#pragma once

#include <cstddef>
#include <string_view>

namespace vorlan {

inline constexpr int kBaseStations = 2;
inline constexpr int kSectorsOfBaseStation = 3;
inline constexpr std::size_t kSectorCount = 6;

/// "SECTOR 0" to "SECTOR 5".
std::string_view sector_name(int index) noexcept;

/// 0 to 5. Error 1 for any other name; upper and lower case differ.
int sector_index(std::string_view name);

/// The sector whose section holds what the base station has once: 0 or 3.
constexpr int base_station_sector(int index) noexcept {
  return index < kSectorsOfBaseStation ? 0 : kSectorsOfBaseStation;
}

/// As in parameter expressions: "BaseStation 1,Sector 1" for index 0.
std::string_view sector_label(int index) noexcept;

}  // namespace vorlan
