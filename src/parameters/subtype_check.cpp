#include "parameters/subtype_check.hpp"

#include <algorithm>
#include <string_view>

namespace vorlan {

namespace {

constexpr std::int16_t kSubtype2 = 2;

/// The value that a subtype out of range takes: what goes with the physical layer subtype.
std::int16_t default_subtype(const SubtypeSet&) { return 0; }
std::int16_t forward_subtype(const SubtypeSet& subtypes) { return subtypes[kPhyLaySubType] == kSubtype2 ? 1 : 0; }
std::int16_t reverse_subtype(const SubtypeSet& subtypes) {
  const std::int16_t physical = subtypes[kPhyLaySubType];
  return physical == kSubtype2 ? std::int16_t{3} : std::max<std::int16_t>(physical, 0);
}

struct Range {
  std::size_t parameter;
  std::int16_t last;
  std::string_view sentence;
  std::string_view reset;  // all but the first with a doubled blank
  std::int16_t (*fallback)(const SubtypeSet&);
};

constexpr std::array kRanges{
    Range{kPhyLaySubType, 2,
          " for Physical Layer SubType[PhyLaySubType]. The valid range for Physical Layer SubType is between [-1,2]",
          "Initialising the value of Physical Layer SubType to ", default_subtype},
    Range{kMacFtcSubType, 1,
          " for MAC Layer FTC SubType[MACLayFTCSubType]. The valid range for MAC Layer FTC SubType is between [-1,1]",
          "Initialising the value of  MAC Layer FTC SubType to ", forward_subtype},
    Range{kMacRtcSubType, 3,
          " for MAC Layer RTC SubType[MACLayRTCSubType]. The valid range for MAC Layer RTC SubType is between [-1,3]",
          "Initialising the value of  MAC Layer RTC SubType to ", reverse_subtype},
    Range{kIdleStateSubType, 1,
          " for Idle State SubType[IdleStateSubType]. The valid range for Idle State SubType is between [-1,1]",
          "Initialising the value of  Idle State SubType to ", default_subtype},
    Range{kMacCcSubType, 1,
          " for MAC Layer CC SubType[MACLayCCSubType]. The valid range for MAC Layer CC SubType is between [-1,1]",
          "Initialising the value of  MAC Layer CC SubType to ", default_subtype},
    Range{kMacAchSubType, 1,
          " for MAC Layer ACH SubType[MACLayACHSubType]. The valid range for MAC Layer ACH SubType is between [-1,1]",
          "Initialising the value of  MAC Layer ACH SubType to ", default_subtype},
};

/// What the enhanced protocols of other layers need.
struct Need {
  std::size_t parameter;
  std::int16_t value;
  std::string_view reset;
};

constexpr std::array kNeeds{
    Need{kPhyLaySubType, kSubtype2, "Initialising the value of Physical Layer SubType to 2"},
    Need{kMacFtcSubType, 1, "Initialising the value of MAC FTC Layer SubType to 1"},
    Need{kMacRtcSubType, 3, "Initialising the value of MAC RTC Layer SubType to 3"},
};

struct EnhancedProtocol {
  std::size_t parameter;
  std::string_view warning;
};

// The broken word of the second one is known to those who search reports for it.
constexpr std::array kEnhancedProtocols{
    EnhancedProtocol{kPacketAppType,
                     "Warning: Multi-Flow Packet Application is supported only with Physical Layer SubType 2, MAC FTC "
                     "Layer SubType 1 and MAC RTC Layer SubType 3"},
    EnhancedProtocol{kIdleStateSubType,
                     "W arning: Enhanced Idle State Protocol is supported only with Physical Layer SubType 2, MAC FTC "
                     "Layer SubType 1 and MAC RTC Layer SubType 3"},
    EnhancedProtocol{kMacCcSubType,
                     "Warning: Enhanced Control Channel MAC Protocol is supported only with Physical Layer SubType 2, "
                     "MAC FTC Layer SubType 1 and MAC RTC Layer SubType 3"},
    EnhancedProtocol{kMacAchSubType,
                     "Warning: Enhanced Access Channel MAC Protocol is supported only with Physical Layer SubType 2, "
                     "MAC FTC Layer SubType 1 and MAC RTC Layer SubType 3"},
};

constexpr std::int16_t kLowestAsyncRate = 4;
constexpr std::int16_t kHighestAsyncRate = 5;

}  // namespace

std::vector<std::string> correct_subtypes(SubtypeSet& subtypes) {
  std::vector<std::string> warnings;
  for (const Range& range : kRanges) {
    std::int16_t& value = subtypes[range.parameter];
    if (value >= kNotSet && value <= range.last) continue;
    warnings.push_back("Warning: Invalid value " + std::to_string(value) + std::string(range.sentence));
    value = range.fallback(subtypes);
    warnings.push_back(std::string(range.reset) + std::to_string(value));
  }
  const auto is_met = [&](const Need& need) { return subtypes[need.parameter] == need.value; };
  for (const EnhancedProtocol& protocol : kEnhancedProtocols) {
    if (subtypes[protocol.parameter] <= 0 || std::all_of(kNeeds.begin(), kNeeds.end(), is_met)) continue;
    warnings.emplace_back(protocol.warning);
    for (const Need& need : kNeeds) {
      if (is_met(need)) continue;
      subtypes[need.parameter] = need.value;
      warnings.emplace_back(need.reset);
    }
  }
  if (subtypes[kMacRtcSubType] == 3 && subtypes[kPhyLaySubType] != kSubtype2) {
    subtypes[kMacRtcSubType] = subtypes[kPhyLaySubType] == 1 ? 1 : 0;
    warnings.push_back("Warning: MAC RTC Layer SubType 3 is not supported with Physical Layer SubType " +
                       std::to_string(subtypes[kMacRtcSubType]));
  }
  std::int16_t& rate = subtypes[kAsyncRate];
  if (subtypes[kMacCcSubType] == 0 && (rate < kLowestAsyncRate || rate > kHighestAsyncRate)) {
    warnings.emplace_back(
        "Warning: Valid Value of Async rate are in the range 4..5 for Default Control Channel (CCMAC Subtype 0)");
    warnings.emplace_back("Initialising the value of Async Rate (for CCMAC Subtype 0) to 4");
    rate = kLowestAsyncRate;
  }
  return warnings;
}

}  // namespace vorlan
