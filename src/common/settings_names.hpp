// Under which names the per-user settings store keeps what is remembered between runs.
#pragma once

#include <string_view>

namespace vorlan {

inline constexpr std::string_view kSettingsApplication = "1x-EVDOKetra";
inline constexpr std::string_view kSectorSection = "SectorFields";
inline constexpr std::string_view kMruSectorId = "MRUSectorID";
inline constexpr std::string_view kMruSubnetMask = "MRUSubnetMask";
inline constexpr std::string_view kMruSectorSignature = "MRUSectorSignature";

}  // namespace vorlan
