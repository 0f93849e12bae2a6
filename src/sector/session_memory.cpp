#include "sector/session_memory.hpp"

#include "automation/value.hpp"
#include "common/settings_names.hpp"

namespace vorlan {

namespace {

constexpr std::string_view kSession = "SessionFields";
constexpr std::string_view kLastId = "LastTIDFromAT";
constexpr std::string_view kIdleState = "IdleStateFields";
constexpr std::string_view kCycleEnabled = "MRUPrefCCHCycleEnabled";
constexpr std::string_view kCycle = "MRUPrefCCHCycle";
constexpr std::int32_t kNoCycle = -1;

std::int32_t number(const SettingsStore& settings, std::string_view section, std::string_view key,
                    std::int32_t otherwise) {
  const auto text = settings.read(kSettingsApplication, section, key);
  return text ? Value(*text).to_long() : otherwise;
}

}  // namespace

std::int16_t SessionMemory::last_transaction_id(std::int16_t otherwise) const {
  return Value(number(*settings_, kSession, kLastId, otherwise)).to_integer();
}

void SessionMemory::remember_transaction_id(std::int16_t id) {
  settings_->write(kSettingsApplication, kSession, kLastId, std::to_string(id));
}

std::int32_t SessionMemory::preferred_cycle() const {
  if (number(*settings_, kIdleState, kCycleEnabled, 0) == 0) return kNoCycle;
  return number(*settings_, kIdleState, kCycle, kNoCycle);
}

void SessionMemory::remember_preferred_cycle(std::int32_t cycle) {
  settings_->write(kSettingsApplication, kIdleState, kCycleEnabled, "1");
  settings_->write(kSettingsApplication, kIdleState, kCycle, std::to_string(cycle));
}

void SessionMemory::forget_preferred_cycle() {
  settings_->write(kSettingsApplication, kIdleState, kCycleEnabled, "0");
  settings_->write(kSettingsApplication, kIdleState, kCycle, std::to_string(kNoCycle));
}

}  // namespace vorlan
