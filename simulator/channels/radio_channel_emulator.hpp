// The fading emulator of the simulated test set: its velocity, and eight paths.
#pragma once

#include "simulator/channels/keyed_objects.hpp"

namespace vorlan::simulator {

class FadingVelocity final : public BoundObject<FadingVelocity> {
 public:
  [[nodiscard]] std::int16_t reference_velocity() const noexcept { return reference_velocity_; }
  void set_reference_velocity(std::int16_t km_per_hour);

  static constexpr ClassInfo::Texts texts() {
    return {"FadingVelocity", "The velocity of a simulated test set's fading emulator.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  std::int16_t reference_velocity_ = 0;
};

class FadingPath final : public BoundObject<FadingPath> {
 public:
  [[nodiscard]] Ref<Object> forward_channel() const { return forward_channel_; }
  /// Error 91 for Nothing.
  void connect(Ref<Object> forward_channel);
  void disconnect() noexcept { forward_channel_ = nullptr; }
  [[nodiscard]] float gain() const noexcept { return gain_; }
  void set_gain(float db) noexcept { gain_ = db; }
  [[nodiscard]] float delay() const noexcept { return delay_; }
  void set_delay(float microseconds);

  static constexpr ClassInfo::Texts texts() {
    return {"FadingPath", "One of the eight paths of a simulated test set's fading emulator.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  Ref<Object> forward_channel_;
  float gain_ = 0;
  float delay_ = 0;
};

class RadioChannelEmulator final : public BoundObject<RadioChannelEmulator> {
 public:
  RadioChannelEmulator();

  [[nodiscard]] Ref<Object> velocity() const { return velocity_; }
  [[nodiscard]] Ref<Object> paths() const { return paths_; }
  [[nodiscard]] bool enabled() const noexcept { return enabled_; }
  void set_enabled(bool enabled) noexcept { enabled_ = enabled; }
  /// Switches it off and disconnects the paths; gains and delays go back to 0.
  void reset();

  static constexpr ClassInfo::Texts texts() {
    return {"RadioChannelEmulator", "The fading emulator of a simulated test set.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  Ref<FadingVelocity> velocity_ = make<FadingVelocity>();
  std::vector<Ref<FadingPath>> all_paths_;
  Ref<KeyedCollection> paths_ = make<KeyedCollection>();
  bool enabled_ = false;
};

}  // namespace vorlan::simulator
