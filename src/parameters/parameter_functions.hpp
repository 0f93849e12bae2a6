// The parameter-file object that is used where the system has none of its own.
#pragma once

#include <string>

#include "automation/bind.hpp"
#include "parameters/ini_cache.hpp"
#include "platform/platform.hpp"

namespace vorlan {

/// Reads keys of parameter files (IniFile says what they look like); a changed file is noticed at the next read.
/// Errors of every member: 53 if there is no such file, 75 if it cannot be read, a line is malformed, or the key or
/// section stands there twice (file and lines are named), 5 if there is no such key.
/// Of the numbers: 13 for what is none, 6 for what is too large.
class ParameterFunctions final : public BoundObject<ParameterFunctions> {
 public:
  explicit ParameterFunctions(Platform&) noexcept {}

  static ClassInfo::Texts texts() noexcept;
  static std::span<const BoundMember> members() noexcept;

  std::int16_t GetInteger(const std::string& section, const std::string& key, const std::string& file);
  std::int32_t GetLong(const std::string& section, const std::string& key, const std::string& file);
  double GetFloat(const std::string& section, const std::string& key, const std::string& file);
  bool GetBool(const std::string& section, const std::string& key, const std::string& file);
  std::string GetString(const std::string& section, const std::string& key, const std::string& file);

  /// "PhyLaySubType(ScriptPersonality 1,BaseStation 2,Sector 1)" is key "PhyLaySubType(ScriptPersonality 1)" of section
  /// "SECTOR 3" or, where that is missing, its key "PhyLaySubType". A number if it is one, else a text. Error 5 for an
  /// expression that does not name a base station (1 or 2) and a sector (1 to 3).
  Value GetParamValue(const std::string& expression, const std::string& file);

  /// Rewrites the value of one key and nothing else in the file; adds the key if it is missing. Error 75 leaves the
  /// file as it was.
  void SetParameterValue(const std::string& section, const std::string& key, const Value& value,
                         const std::string& file);

  /// An array of "Key=Value" texts.
  Value GetSectionStrings(const std::string& section, const std::string& file);

 private:
  IniCache cache_;
};

}  // namespace vorlan
