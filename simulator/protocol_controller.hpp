// The protocol controller of the simulated test set.
#pragma once

#include "automation/bind.hpp"

namespace vorlan::simulator {

class ProtocolController final : public BoundObject<ProtocolController> {
 public:
  [[nodiscard]] bool automatic() const noexcept { return automatic_; }
  void set_automatic(bool automatic) noexcept { automatic_ = automatic; }
  [[nodiscard]] bool started() const noexcept { return started_; }
  void set_started(bool started) noexcept { started_ = started; }

  static constexpr ClassInfo::Texts texts() {
    return {"ProtocolController", "The protocol controller of a simulated test set: forward test packets.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  bool automatic_ = false;
  bool started_ = false;
};

}  // namespace vorlan::simulator
