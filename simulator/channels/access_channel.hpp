// An access channel of the simulated test set.
#pragma once

#include "automation/bind.hpp"

namespace vorlan::simulator {

class AccessChannel final : public BoundObject<AccessChannel> {
 public:
  AccessChannel(std::string key, std::int32_t sector_id24, std::int16_t color_code)
      : key_(std::move(key)), sector_id24_(sector_id24), color_code_(color_code) {}

  [[nodiscard]] const std::string& key() const noexcept { return key_; }
  [[nodiscard]] std::int32_t sector_id24() const noexcept { return sector_id24_; }
  [[nodiscard]] std::int16_t color_code() const noexcept { return color_code_; }
  /// Nothing before it has been attached.
  [[nodiscard]] Ref<Object> forward_channel() const { return forward_channel_; }
  /// Error 91 for Nothing.
  void attach(Ref<Object> forward_channel);

  static constexpr ClassInfo::Texts texts() {
    return {"AccessChannel", "An access channel of a simulated test set.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  std::string key_;
  std::int32_t sector_id24_;
  std::int16_t color_code_;
  Ref<Object> forward_channel_;
};

}  // namespace vorlan::simulator
