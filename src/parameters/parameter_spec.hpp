// One parameter of the configuration: a property, and the key of the parameter file that it comes from.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "automation/value.hpp"

namespace vorlan {

/// The member of the parameter-file object that reads a key. Usual: the one for the property's type, GetInteger for a
/// bit string.
enum class ReadAs : std::uint8_t { Usual, Integer, Long, Float, Bool, String };

/// The section that holds a key.
enum class Where : std::uint8_t {
  Sector,       ///< the sector's own
  BaseStation,  ///< "SECTOR 0" for sectors 0 to 2, "SECTOR 3" for 3 to 5
  Sector0,      ///< "SECTOR 0", whatever the sector
  Sector0Only,  ///< "SECTOR 0"; a read for another sector is refused
  Automation,   ///< "Automation"
  Location,     ///< "Location"
};

/// A decimal text that must not exceed a limit, and what is raised if it does.
struct RangeSpec {
  std::string_view limit;
  std::string_view text;          ///< of a read from the file
  std::string_view loading_text;  ///< of Initialize
};

struct ParameterSpec {
  std::string_view name;  ///< its prefix tells the type
  std::string_view key;   ///< where it is not the name without prefix
  ReadAs read = ReadAs::Usual;
  int bits = 0;  ///< of a bit string; 0: the value is taken as it is read
  std::string (*to_bits)(const Value& value, int bits) = nullptr;  ///< null: DecToBin
  const RangeSpec* range = nullptr;
  bool (*valid)(const Value& value) = nullptr;  ///< checked by Initialize; null: every value
  Where where = Where::Sector;
  std::string_view live_key;  ///< of a read for a named sector, where it differs; then in the sector's own section
  std::string_view label;     ///< in the invalid-parameter error, where it is not the key
  std::string_view initial;   ///< for a key that may be missing from the file
  bool writes_back = false;   ///< to the file, when it is let
  std::string_view summary;   ///< one line: meaning, unit, range

  [[nodiscard]] constexpr std::string_view file_key() const noexcept {
    return key.empty() ? name.substr(name.find('_') + 1) : key;
  }
  [[nodiscard]] constexpr bool may_be_missing() const noexcept { return !initial.empty(); }

  [[nodiscard]] constexpr ValueType type() const noexcept {
    const std::string_view prefix = name.substr(0, 6);
    if (prefix == "PRint_") return ValueType::Integer;
    if (prefix == "PRlng_") return ValueType::Long;
    if (prefix == "PRsin_") return ValueType::Single;
    if (prefix == "PRdbl_") return ValueType::Double;
    if (prefix == "PRbln_") return ValueType::Boolean;
    return ValueType::String;
  }
  [[nodiscard]] constexpr ReadAs read_as() const noexcept {
    if (read != ReadAs::Usual) return read;
    switch (type()) {
      case ValueType::Integer: return ReadAs::Integer;
      case ValueType::Long: return ReadAs::Long;
      case ValueType::Single:
      case ValueType::Double: return ReadAs::Float;
      case ValueType::Boolean: return ReadAs::Bool;
      default: return bits > 0 ? ReadAs::Integer : ReadAs::String;
    }
  }
};

// All parameters, by topic, in the order in which Initialize reads them.
std::span<const ParameterSpec> air_interface_parameters() noexcept;
std::span<const ParameterSpec> channel_parameters() noexcept;
std::span<const ParameterSpec> traffic_parameters() noexcept;
std::span<const ParameterSpec> test_parameters() noexcept;
std::span<const ParameterSpec> location_parameters() noexcept;
std::span<const ParameterSpec> automation_parameters() noexcept;

/// Those six, joined.
std::span<const ParameterSpec* const> all_parameters();

}  // namespace vorlan
