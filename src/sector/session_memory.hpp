// What the sector remembers of a session between runs, in the per-user settings store.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/platform.hpp"

namespace vorlan {

/// Every member may raise error 75 (settings store), a read also 13 or 6 for a remembered text that is no number.
class SessionMemory {
 public:
  explicit SessionMemory(SettingsStore& settings) noexcept : settings_(&settings) {}

  /// Of the last ConfigurationComplete from the access terminal, 0 to 255; `otherwise` if none is remembered.
  [[nodiscard]] std::int16_t last_transaction_id(std::int16_t otherwise) const;
  void remember_transaction_id(std::int16_t id);

  /// The preferred control channel cycle; -1 if none is remembered.
  [[nodiscard]] std::int32_t preferred_cycle() const;
  void remember_preferred_cycle(std::int32_t cycle);
  void forget_preferred_cycle();

 private:
  SettingsStore* settings_;
};

}  // namespace vorlan
