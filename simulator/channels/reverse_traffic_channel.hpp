// A reverse traffic channel of the simulated test set.
#pragma once

#include "automation/bind.hpp"
#include "simulator/simulation.hpp"

namespace vorlan::simulator {

/// Whether the terminal's signal comes is up to the simulated terminal.
class ReverseTrafficChannel final : public BoundObject<ReverseTrafficChannel> {
 public:
  ReverseTrafficChannel(std::shared_ptr<Simulation> simulation, std::string key)
      : simulation_(std::move(simulation)), key_(std::move(key)) {}

  [[nodiscard]] const std::string& key() const noexcept { return key_; }
  [[nodiscard]] std::int16_t propagation_delay() const noexcept { return propagation_delay_; }
  void set_propagation_delay(std::int16_t chips) noexcept { propagation_delay_ = chips; }
  [[nodiscard]] std::int16_t frame_offset() const noexcept { return frame_offset_; }
  /// 0 to 15 slots; error 5 outside.
  void set_frame_offset(std::int16_t slots);
  /// Waits so many units of 20 ms for the terminal.
  bool acquire(std::int16_t time_out);
  [[nodiscard]] bool acquired() const noexcept { return simulation_->terminal.on_reverse_channel(); }

  static constexpr ClassInfo::Texts texts() {
    return {"ReverseTrafficChannel", "A reverse traffic channel of a simulated test set.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  std::shared_ptr<Simulation> simulation_;
  std::string key_;
  std::int16_t propagation_delay_ = 0;
  std::int16_t frame_offset_ = 0;
};

}  // namespace vorlan::simulator
