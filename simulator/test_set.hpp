// The simulated test set: the root of all its objects.
#pragma once

#include "automation/bind.hpp"
#include "simulator/channels/channel_collection.hpp"
#include "simulator/simulation.hpp"

namespace vorlan::simulator {

/// Its objects go on working when a script keeps them and lets go of the test set.
class TestSet final : public BoundObject<TestSet> {
 public:
  explicit TestSet(const Platform& platform);

  [[nodiscard]] Ref<Object> forward_channels() const { return forward_channels_; }
  [[nodiscard]] Ref<Object> reverse_traffic_channels() const { return reverse_traffic_channels_; }
  [[nodiscard]] Ref<Object> access_channels() const { return access_channels_; }
  [[nodiscard]] Ref<Object> subtype1_access_channels() const { return subtype1_access_channels_; }
  [[nodiscard]] Ref<Object> subtype2_access_channels() const { return subtype2_access_channels_; }
  [[nodiscard]] Ref<Object> signalling() const { return signalling_; }
  [[nodiscard]] Ref<Object> protocol_controller() const { return protocol_controller_; }
  [[nodiscard]] Ref<Object> test_report() const { return test_report_; }
  [[nodiscard]] Ref<Object> radio_channel_emulator() const { return radio_channel_emulator_; }
  [[nodiscard]] Ref<Object> security() const { return security_; }
  [[nodiscard]] Ref<Object> access_terminal() const { return access_terminal_; }
  [[nodiscard]] Ref<Object> trace() const { return trace_; }

  void apply_changes(std::int16_t when, const Value& event, std::int16_t parts);
  [[nodiscard]] std::int32_t changes_applied() const noexcept { return changes_applied_; }
  [[nodiscard]] bool real_time() const { return simulation_->real_time(); }
  void set_real_time(bool real_time) { simulation_->set_real_time(real_time); }
  [[nodiscard]] double time() const;
  void sleep(double seconds);

  static constexpr ClassInfo::Texts texts() {
    return {"TestSet", "A simulated test set with an access terminal on the other side; its waits pass at once.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  std::shared_ptr<Simulation> simulation_;
  Ref<ChannelCollection> forward_channels_;
  Ref<ChannelCollection> reverse_traffic_channels_;
  Ref<ChannelCollection> access_channels_;
  Ref<ChannelCollection> subtype1_access_channels_;
  Ref<ChannelCollection> subtype2_access_channels_;
  Ref<Object> signalling_;
  Ref<Object> protocol_controller_;
  Ref<Object> test_report_;
  Ref<Object> radio_channel_emulator_;
  Ref<Object> security_;
  Ref<Object> access_terminal_;
  Ref<Object> trace_;
  std::int32_t changes_applied_ = 0;
};

}  // namespace vorlan::simulator
