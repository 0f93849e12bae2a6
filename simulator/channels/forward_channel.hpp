// A forward channel of the simulated test set.
#pragma once

#include "automation/bind.hpp"

namespace vorlan::simulator {

/// Holds what it is configured with, so that a script can look at it afterwards.
class ForwardChannel final : public BoundObject<ForwardChannel> {
 public:
  struct Settings {
    std::int16_t pilot_pn = 0;
    std::int16_t propagation_delay = 0;
    std::int16_t mac_index = 0;
    std::int16_t drc_cover = 0;
    std::int16_t handoff_delay = 0;
    float cc_data_rate = 0;
    std::int16_t cc_offset = 0;
    std::int16_t rab_length = 0;
    std::int16_t rab_offset = 0;
    std::int16_t drc_lock_period = 0;
    std::int16_t drc_lock_length = 0;
    Value argument;

    bool slot_contents_state = false;
    bool arq_mode = false;
    float level = -60;  ///< dB
    double rpc_drc_lock_ec_ior = 0;
    double ec_ior = 0;
    double arq_ec_ior = 0;

    bool configured = false;
    bool fails_configuration = false;
  };

  /// Keys "FC_SECTOR 0", "ST1_FC_SECTOR 0" and "ST2_FC_SECTOR 0" tell the subtype.
  explicit ForwardChannel(std::string key);

  [[nodiscard]] const std::string& key() const noexcept { return key_; }
  [[nodiscard]] std::int16_t subtype() const noexcept { return subtype_; }

  /// Error 5 for a setting out of its range, and when it has been told to fail.
  void configure(std::int16_t pilot_pn, std::int16_t propagation_delay, std::int16_t mac_index, std::int16_t drc_cover,
                 std::int16_t handoff_delay, float cc_data_rate, std::int16_t cc_offset, std::int16_t rab_length,
                 std::int16_t rab_offset, std::int16_t drc_lock_period, std::int16_t drc_lock_length,
                 const Value& argument);

  template <auto Field>
  auto read() const {
    return settings_.*Field;
  }
  template <auto Field>
  void write(std::remove_cvref_t<decltype(std::declval<Settings>().*Field)> value) {
    settings_.*Field = std::move(value);
  }

  static constexpr ClassInfo::Texts texts() {
    return {"ForwardChannel", "A forward channel of a simulated test set; it remembers its settings.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  std::string key_;
  std::int16_t subtype_;
  Settings settings_;
};

/// 1 for keys that begin with "ST1_", 2 for "ST2_", else 0.
std::int16_t subtype_of_key(std::string_view key) noexcept;

}  // namespace vorlan::simulator
