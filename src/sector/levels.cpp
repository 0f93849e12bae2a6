// SB_Sector: steps of the forward channel's output level.
#include <cmath>

#include "sector/sector_channels.hpp"
#include "sector/sector_errors.hpp"

namespace vorlan {

namespace {

// Levels are negative: these are their magnitudes.
constexpr float kHighestDb = 50;
constexpr float kLowestDb = 120;
constexpr int kMillisecondsPerSecond = 1000;

/// The product is a 16-bit number, and scripts know that 33 seconds overflow it.
std::chrono::milliseconds settle_time(std::int16_t seconds) {
  return std::chrono::milliseconds(round_to_integer(static_cast<double>(seconds) * kMillisecondsPerSecond));
}

}  // namespace

std::optional<std::int16_t> SB_Sector::tested_subtype() const {
  if (setting("PRint_ScriptPersonality").to_integer() != 1) return 0;
  const std::int16_t subtype = current_subtype();
  return is_later_subtype(subtype) ? std::optional(subtype) : std::nullopt;
}

bool SB_Sector::change_level(Step direction, float step_db, std::int16_t settle_seconds) {
  const TestSetAccess access = test_set();
  if (const auto subtype = tested_subtype()) {
    const Ref<Object>& channel = held(channels_of(*subtype).forward);
    const float level = access.call(Role::OutputLevel, channel).to_single();
    const float magnitude = std::fabs(level);
    if (direction == Step::Raise) {
      if (magnitude < kHighestDb) raise(sector_errors::kHighestLevel);
      access.let(Role::OutputLevel, channel, level + step_db);
    } else {
      if (magnitude > kLowestDb) raise(sector_errors::kLowestLevel);
      access.let(Role::OutputLevel, channel, level - step_db);
    }
  }
  apply();
  const std::chrono::milliseconds settle = settle_time(settle_seconds);
  if (settle.count() > 0) platform_->clock->sleep(settle);
  return true;
}

bool SB_Sector::RaiseLevel(float step_db, std::int16_t settle_seconds) {
  return change_level(Step::Raise, step_db, settle_seconds);
}

bool SB_Sector::LowerLevel(float step_db, std::int16_t settle_seconds) {
  return change_level(Step::Lower, step_db, settle_seconds);
}

}  // namespace vorlan
