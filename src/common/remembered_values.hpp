// The security values that are remembered between runs, in the per-user settings store.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "automation/value.hpp"
#include "common/settings_names.hpp"
#include "platform/platform.hpp"

namespace vorlan {

/// In the order of kRememberedValues.
enum class Remembered : std::uint8_t {
  SecurityType,
  KeyXChangeType,
  SKeyLength,
  AuthenticationType,
  AuthKeyLength,
  EncryptionType,
};

struct RememberedValue {
  std::string_view property;  ///< of SB_Security
  std::string_view section;
  std::string_view key;
  std::int32_t initial;  ///< where nothing is remembered, and after a reset
};

inline constexpr RememberedValue kRememberedValues[] = {
    {"PRint_MRUSecurityType", "SecurityFields", "MRUSecurity", 0},
    {"PRint_MRUKeyXChangeType", "KeyExchangeFields", "MRUKeyExchange", 0},
    {"PRint_MRUSKeyLength", "KeyExchangeFields", "MRUSKeyLength", 0},
    {"PRint_MRUAuthenticationType", "AuthFields", "MRUAuthType", 0},
    {"PRlng_MRUAuthKeyLength", "AuthFields", "MRUAuthKeyLength", 160},
    {"PRint_MRUEncryptionType", "EncryptionFields", "MRUEncryption", 0},
};

constexpr const RememberedValue& remembered_value(Remembered value) noexcept {
  return kRememberedValues[static_cast<std::size_t>(value)];
}

/// Error 75 (settings store), 13 or 6 for a remembered text that is no number.
inline std::int32_t recall(const SettingsStore& settings, Remembered value) {
  const RememberedValue& row = remembered_value(value);
  const auto text = settings.read(kSettingsApplication, row.section, row.key);
  return text ? Value(*text).to_long() : row.initial;
}

inline void remember(SettingsStore& settings, Remembered value, std::int32_t number) {
  const RememberedValue& row = remembered_value(value);
  settings.write(kSettingsApplication, row.section, row.key, std::to_string(number));
}

/// What SHA-1 authentication agreed upon: kept apart, on purpose, from what SB_Security reads and resets.
inline void remember_negotiated_auth_key_length(SettingsStore& settings, std::int32_t bits) {
  settings.write(kSettingsApplication, "AuthenticationFields", "MRUAuthKeyLength", std::to_string(bits));
}

/// Every value is as if nothing had been remembered.
inline void reset_remembered_values(SettingsStore& settings) {
  for (const RememberedValue& row : kRememberedValues) {
    settings.write(kSettingsApplication, row.section, row.key, std::to_string(row.initial));
  }
}

}  // namespace vorlan
