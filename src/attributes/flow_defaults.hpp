// The values that per-flow attributes take when their AttributeID is set: one table, keyed by attribute and flow.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace vorlan {

struct FlowDefault {
  static constexpr std::int16_t kOtherFlows = -1;

  std::string_view attribute;  ///< the class; its rows stand together
  std::int16_t flow;           ///< NN, the low octet of the AttributeID; kOtherFlows comes last
  std::string_view value;
};

/// Setting the AttributeID of any other class leaves its value alone.
inline constexpr FlowDefault kFlowDefaults[] = {
    // As the standard has them: the first two packet flows start activated.
    {"SB_App_AttrFlowNNActivatedFwd", 0, "00000001"},
    {"SB_App_AttrFlowNNActivatedFwd", 1, "00000001"},
    {"SB_App_AttrFlowNNActivatedFwd", FlowDefault::kOtherFlows, "00000000"},
    {"SB_App_AttrFlowNNActivatedRev", 0, "00000001"},
    {"SB_App_AttrFlowNNActivatedRev", 1, "00000001"},
    {"SB_App_AttrFlowNNActivatedRev", FlowDefault::kOtherFlows, "00000000"},
    {"SB_MAC_AttrMergeThresholdNN", 0, "00000000"},
    {"SB_MAC_AttrMergeThresholdNN", FlowDefault::kOtherFlows, "00000010"},
    // The packet-data flow, 1, has the larger bucket, 27 dB; the others have 20 dB.
    {"SB_MAC_AttrBucketLevelMaxNN", 0, "01010000"},
    {"SB_MAC_AttrBucketLevelMaxNN", 1, "01101100"},
    {"SB_MAC_AttrBucketLevelMaxNN", 2, "01010000"},
    {"SB_MAC_AttrBucketLevelMaxNN", FlowDefault::kOtherFlows, "01010000"},
    // Every flow as flow 0.
    {"SB_MAC_AttrBurstDurationFactorNN", FlowDefault::kOtherFlows, "00000000"},
    {"SB_MAC_AttrTransmissionModeNN", FlowDefault::kOtherFlows, "00000000"},
    {"SB_MAC_AttrQRABSelectNN", FlowDefault::kOtherFlows, "00000000"},
    {"SB_MAC_AttrT2PFilterTCNN", FlowDefault::kOtherFlows, "00000001"},
};

/// The rows of one class; none for a class whose value does not follow its AttributeID.
constexpr std::span<const FlowDefault> flow_defaults(std::string_view attribute) noexcept {
  const std::span<const FlowDefault> table = kFlowDefaults;
  std::size_t first = 0;
  while (first < table.size() && table[first].attribute != attribute) ++first;
  std::size_t end = first;
  while (end < table.size() && table[end].attribute == attribute) ++end;
  return table.subspan(first, end - first);
}

}  // namespace vorlan
