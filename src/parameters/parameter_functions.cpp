#include "parameters/parameter_functions.hpp"

#include <array>
#include <charconv>
#include <cmath>

#include "parameters/ini_number.hpp"
#include "parameters/sector_name.hpp"

namespace vorlan {

namespace {

using F = ParameterFunctions;

constexpr std::string_view kKeyArguments = "section, key, file";

constexpr std::array kMembers{
    method<&F::GetInteger>("GetInteger", kKeyArguments, "A whole number of 16 bits"),
    method<&F::GetLong>("GetLong", kKeyArguments, "A whole number of 32 bits"),
    method<&F::GetFloat>("GetFloat", kKeyArguments, "A number"),
    method<&F::GetBool>("GetBool", kKeyArguments, "A switch: True or False, Yes or No, On or Off, a number"),
    method<&F::GetString>("GetString", kKeyArguments, "A text"),
    method<&F::GetParamValue>("GetParamValue", "expression, file",
                              "The value of a parameter of a script personality, base station and sector"),
    method<&F::SetParameterValue>("SetParameterValue", "section, key, value, file", "Changes the value of a key"),
    method<&F::GetSectionStrings>("GetSectionStrings", "section, file", "All keys of a section, as Key=Value"),
};

[[noreturn]] void refuse(ErrorNumber number, const IniFile& file, const IniFile::Entry& entry,
                         std::string_view expected) {
  throw Error(number, {},
              file.path() + ", line " + std::to_string(entry.line) + ": " + entry.key + " = " + entry.value + " is " +
                  std::string(expected));
}

double number_at(const IniFile& file, std::string_view section, std::string_view key) {
  const IniFile::Entry& entry = file.at(section, key);
  const auto number = parse_ini_number(entry.value);
  if (!number) refuse(ErrorNumber::TypeMismatch, file, entry, "no number");
  return *number;
}

template <class T>
T whole_number_at(const IniFile& file, std::string_view section, std::string_view key) {
  const double number = number_at(file, section, key);
  if (number != std::trunc(number)) refuse(ErrorNumber::TypeMismatch, file, file.at(section, key), "no whole number");
  if (number < std::numeric_limits<T>::min() || number > std::numeric_limits<T>::max()) {
    refuse(ErrorNumber::Overflow, file, file.at(section, key), "too large");
  }
  return static_cast<T>(number);
}

/// "Name(Qualifier 1,Qualifier 2)" taken apart.
struct Expression {
  std::string name;
  std::string key;  ///< the name with those qualifiers that the section does not express
  int sector = 0;   ///< index
};

/// The number behind a qualifier's word, from 1 to `last`; 0 if it is another qualifier.
int qualifier(std::string_view text, std::string_view word, int last) noexcept {
  if (!equals_ignoring_case(text.substr(0, word.size()), word)) return 0;
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, fault] = std::from_chars(text.data() + word.size(), end, number);
  return fault == std::errc{} && stop == end && number >= 1 && number <= last ? number : 0;
}

Expression parse_expression(std::string_view text) {
  const auto fail = [text] { throw Error(ErrorNumber::InvalidCall, {}, "parameter expression " + std::string(text)); };
  const auto open = text.find('(');
  if (open == std::string_view::npos || open == 0 || !text.ends_with(')')) fail();
  Expression result{.name = std::string(text.substr(0, open)), .key = {}};
  std::string rest;
  int base_station = 0;
  int sector = 0;
  for (std::string_view list = text.substr(open + 1, text.size() - open - 2); !list.empty();) {
    const std::string_view item = list.substr(0, list.find(','));
    list.remove_prefix(std::min(item.size() + 1, list.size()));
    if (const int number = qualifier(item, "BaseStation ", kBaseStations)) {
      base_station = number;
    } else if (const int index = qualifier(item, "Sector ", kSectorsOfBaseStation)) {
      sector = index;
    } else {
      rest.append(rest.empty() ? "" : ",").append(item);
    }
  }
  if (base_station == 0 || sector == 0) fail();
  result.key = rest.empty() ? result.name : result.name + "(" + rest + ")";
  result.sector = (base_station - 1) * kSectorsOfBaseStation + sector - 1;
  return result;
}

}  // namespace

ClassInfo::Texts F::texts() noexcept {
  return {.name = "ParameterFunctions", .summary = "Reads and changes keys of parameter files"};
}

std::span<const BoundMember> F::members() noexcept { return kMembers; }

std::int16_t F::GetInteger(const std::string& section, const std::string& key, const std::string& file) {
  return whole_number_at<std::int16_t>(cache_.open(file), section, key);
}

std::int32_t F::GetLong(const std::string& section, const std::string& key, const std::string& file) {
  return whole_number_at<std::int32_t>(cache_.open(file), section, key);
}

double F::GetFloat(const std::string& section, const std::string& key, const std::string& file) {
  return number_at(cache_.open(file), section, key);
}

bool F::GetBool(const std::string& section, const std::string& key, const std::string& file) {
  const IniFile& ini = cache_.open(file);
  const IniFile::Entry& entry = ini.at(section, key);
  const auto value = parse_ini_switch(entry.value);
  if (!value) refuse(ErrorNumber::TypeMismatch, ini, entry, "no switch");
  return *value;
}

std::string F::GetString(const std::string& section, const std::string& key, const std::string& file) {
  return cache_.open(file).at(section, key).value;
}

Value F::GetParamValue(const std::string& expression, const std::string& file) {
  const Expression wanted = parse_expression(expression);
  const std::string_view section = sector_name(wanted.sector);
  const IniFile& ini = cache_.open(file);
  const IniFile::Entry* const own = ini.find(section, wanted.key);
  const IniFile::Entry& entry = own != nullptr ? *own : ini.at(section, wanted.name);
  if (const auto number = parse_ini_number(entry.value)) return *number;
  return entry.value;
}

void F::SetParameterValue(const std::string& section, const std::string& key, const Value& value,
                          const std::string& file) {
  cache_.replace(file, cache_.open(file).with_value(section, key, value.to_text()));
}

Value F::GetSectionStrings(const std::string& section, const std::string& file) {
  Value::Array strings;
  for (std::string& text : cache_.open(file).section_strings(section)) strings.emplace_back(std::move(text));
  return strings;
}

}  // namespace vorlan
