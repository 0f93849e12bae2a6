// The test set's collections of channels.
#pragma once

#include "simulator/channels/keyed_objects.hpp"
#include "simulator/simulation.hpp"

namespace vorlan::simulator {

enum class ChannelKind : std::uint8_t { Forward, Access, Reverse };

/// Forward and reverse channels are there as soon as they are asked for, under the keys "FC_SECTOR 0" and
/// "RTC_SECTOR 0" with any sector's name, and with "ST1_" or "ST2_" before them. Access channels have to be added.
class ChannelCollection final : public BoundObject<ChannelCollection> {
 public:
  ChannelCollection(std::shared_ptr<Simulation> simulation, ChannelKind kind)
      : simulation_(std::move(simulation)), kind_(kind) {}

  Ref<Object> item(const Value& key);
  void remove(const Value& key) { channels_.remove(key); }
  /// Replaces an access channel of that key. Error 5 in a collection of other channels.
  Ref<Object> add(const std::string& key, std::int32_t sector_id24, std::int16_t color_code);
  void apply() noexcept { ++applied_; }
  [[nodiscard]] std::int32_t applied() const noexcept { return applied_; }
  [[nodiscard]] std::int16_t count() const noexcept { return channels_.count(); }
  [[nodiscard]] Value keys() const { return channels_.keys(); }

  static constexpr ClassInfo::Texts texts() {
    return {"ChannelCollection", "Forward, access or reverse traffic channels of a simulated test set by key.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  std::shared_ptr<Simulation> simulation_;
  ChannelKind kind_;
  KeyedObjects channels_;
  std::int32_t applied_ = 0;
};

}  // namespace vorlan::simulator
