// SB_Sector: the radio channel emulator.
#include "sector/sector_channels.hpp"
#include "sector/sector_errors.hpp"

namespace vorlan {

namespace {

constexpr std::int16_t kMostPaths = 8;

bool is_path_count(std::int16_t count) noexcept { return count >= 1 && count <= kMostPaths; }
bool is_given(const Value& value) noexcept { return !value.is_empty() && !value.is(ValueType::Null); }

}  // namespace

void SB_Sector::EnableFading() {
  const TestSetAccess access = test_set();
  const Ref<Object> emulator = held(Held::RadioChannelEmulator);
  or_raise(sector_errors::kNoFadingObjects, [&] {
    Ref<Object> velocity = access.object(Role::FadingVelocity, emulator);
    held(Held::RadioChannelPaths) = access.object(Role::FadingPaths, emulator);
    held(Held::RadioChannelVelocity) = std::move(velocity);
  });
  access.let(Role::ReferenceVelocity, held(Held::RadioChannelVelocity), reference_velocity_);
  if (is_path_count(path_count_)) {
    const Ref<Object> forward = existing(channels_of(current_subtype()).forward);
    paths_.clear();
    for (int i = 1; i <= path_count_; ++i) {
      paths_.push_back(access.object(Role::FadingPathItem, held(Held::RadioChannelPaths), "Path" + std::to_string(i)));
      access.call(Role::ConnectPath, paths_.back(), forward);
    }
  }
  log("Configured: " + std::to_string(path_count_) + " path/s for Sector: " + sector_name_);
  log("The Velocity set at the BaseStation is: " + std::to_string(reference_velocity_) + "Km/hr ");
  access.let(Role::FadingOn, emulator, true);
  log("Fading has been enabled ");
}

void SB_Sector::SetGainAndDelay(std::int16_t path, const Value& gain, const Value& delay) {
  if (!setting("PRbln_FadingEnabled").to_boolean()) raise(sector_errors::kFadingDisabled);
  if (path < 1 || static_cast<std::size_t>(path) > paths_.size()) raise(sector_errors::kNoPath);
  const TestSetAccess access = test_set();
  const Ref<Object> object = paths_[static_cast<std::size_t>(path) - 1];
  // Both are converted first: one that is no number leaves the path as it is.
  const Value gain_db = is_given(gain) ? Value(gain.to_single()) : Value();
  const Value delay_us = is_given(delay) ? Value(delay.to_single()) : Value();
  if (is_given(gain_db)) access.let(Role::PathGain, object, gain_db);
  if (is_given(delay_us)) access.let(Role::PathDelay, object, delay_us);
}

void SB_Sector::DestoyFadingObjects() {
  if (!held(Held::RadioChannelEmulator)) raise(sector_errors::kNoEmulator);
  if (is_path_count(path_count_)) paths_.clear();
  log("Destroyed: " + std::to_string(path_count_) + " Path/s configured for Sector: " + sector_name_);
  test_set().call(Role::ResetFading, held(Held::RadioChannelEmulator));
}

}  // namespace vorlan
