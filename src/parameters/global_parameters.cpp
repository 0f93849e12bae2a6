#include "parameters/global_parameters.hpp"

#include <algorithm>

#include "automation/error.hpp"
#include "common/conversions.hpp"
#include "common/script_log.hpp"
#include "parameters/parameter_functions.hpp"
#include "parameters/sector_name.hpp"
#include "parameters/subtype_check.hpp"

namespace vorlan {

namespace {

constexpr std::string_view kReaderName = "ReadINI.ParameterFunctions";
constexpr std::string_view kAutomatic = "AUTOMODE";
constexpr std::string_view kManual = "MANUALMODE";

/// The value that a property has before anything is loaded.
Value initial_value(ValueType type) { return type == ValueType::String ? Value("") : Value().converted_to(type); }

std::size_t row_of(std::string_view property) {
  // The parameters are the first members.
  return static_cast<std::size_t>(SB_GlobalParameters::info().find(property));
}

}  // namespace

SB_GlobalParameters::SB_GlobalParameters(Platform& platform) : ClassObject(info()), platform_(&platform) {
  values_.reserve(all_parameters().size());
  for (const ParameterSpec* spec : all_parameters()) values_.push_back(initial_value(spec->type()));
  trace("==========SB_GlobalParameters constructor ===============");
}

const std::string* SB_GlobalParameters::held_text(const PreparedName& property) const noexcept {
  const auto row = static_cast<std::size_t>(class_info()->find_as_spelt(property));
  return row < values_.size() ? values_[row].as<std::string>() : nullptr;
}

void SB_GlobalParameters::Initialize(const std::string& sector_name) {
  if (initialized_) return;
  const int sector = sector_index(sector_name);
  Loaded loaded = load(sector);
  values_ = std::move(loaded.values);
  personalities_ = std::move(loaded.personalities);
  loaded_personality_count_ = loaded.personality_count;
  own_sector_ = current_sector_ = sector;
  initialized_ = true;
  for (const std::string& warning : loaded.warnings) log(warning);
}

SB_GlobalParameters::Loaded SB_GlobalParameters::load(int sector) {
  Loaded loaded{{}, personalities_, 0, {}};
  for (const ParameterSpec* spec : all_parameters()) loaded.values.push_back(load_parameter(*spec, sector));
  loaded.personality_count = loaded.values[row_of("PRint_PersonalityCount")].to_integer();

  const std::int16_t count = personality_count_.value_or(loaded.personality_count);
  for (int p = 0; p <= std::max<int>(count, kEnhancedPersonality); ++p) {
    load_personality(loaded, static_cast<std::int16_t>(p), sector);
  }

  const std::int16_t personality = loaded.values[row_of("PRint_ScriptPersonality")].to_integer();
  if (personality < 0 || personality > count) {
    loaded.warnings.push_back("Script Personality " + std::to_string(personality) + " is currently not supported");
  }
  Value& connection = loaded.values[row_of("PRstr_UEConnectionType")];
  const std::string type = connection.to_text();
  if (type != kAutomatic && type != kManual) {
    loaded.warnings.push_back("Warning: UEConnectionType " + type + " is not supported. Taking it as Manual Mode");
    connection = kManual;
  }
  return loaded;
}

template <class F>
auto SB_GlobalParameters::reporting_invalid(const std::string& label, F&& read) {
  try {
    return std::forward<F>(read)();
  } catch (const Error& error) {
    // A file that is missing or malformed is no fault of this key.
    if (concerns_file(error)) throw;
    log("SB_GlobalParameters::InvalidParameter - Exception raised. Parameter " + label + "has an invalid value");
    trace("SB_GlobalParameters::InvalidParameter - " + error.description());
    raise("SB_GlobalParameters.InvalidParameter", label + " script parameter has an invalid value");
  }
}

Value SB_GlobalParameters::load_parameter(const ParameterSpec& spec, int sector) {
  const std::string label = invalid_label(spec, sector);
  const Value read =
      reporting_invalid(label, [&] { return read_key(*ini_reader(), spec, loaded_place(spec, sector), file_name_); });
  if (spec.range != nullptr) check_range(spec, read, "SB_GlobalParameters.Initialize", spec.range->loading_text);
  return reporting_invalid(label, [&] {
    Value value = converted(spec, read);
    if (spec.valid != nullptr && !spec.valid(value)) throw Error(ErrorNumber::InvalidCall, {}, read.to_text());
    return value;
  });
}

void SB_GlobalParameters::load_personality(Loaded& loaded, std::int16_t personality, int sector) {
  SubtypeSet subtypes;
  bool from_file = personality != 0;
  for (std::size_t i = 0; i < kPersonalityParameters; ++i) {
    subtypes[i] = loaded.personalities.reach(i, personality);
    if (subtypes[i] != kNotSet) continue;
    from_file = true;
    subtypes[i] =
        reporting_invalid(std::string(kPersonalitySpecs[i].key), [&] { return read_element(i, personality, sector); });
  }
  // The default protocols of personality 0 are as they are.
  if (!from_file) return;
  for (std::string& warning : correct_subtypes(subtypes)) loaded.warnings.push_back(std::move(warning));
  for (std::size_t i = 0; i < kPersonalityParameters; ++i) loaded.personalities.reach(i, personality) = subtypes[i];
}

Value SB_GlobalParameters::read_live(const ParameterSpec& spec, const std::string& sector_name) {
  return trapped(spec.name, [&] {
    current_sector_ = sector_index(sector_name);
    const Value read = read_key(*ini_reader(), spec, live_place(spec, current_sector_), file_name_);
    if (spec.range != nullptr) {
      check_range(spec, read, "SB_GlobalParameters." + std::string(spec.name), spec.range->text);
    }
    return converted(spec, read);
  });
}

void SB_GlobalParameters::write_back(const ParameterSpec& spec, const Value& value, const std::string& sector_name) {
  const int sector = sector_name.empty() ? own_sector_ : sector_index(sector_name);
  if (file_name_.empty()) return;
  // The file holds numbers, scripts let bit strings.
  std::string text = value.to_text();
  if (text.size() == static_cast<std::size_t>(spec.bits)) text = std::to_string(bin_to_long(text));
  const KeyPlace place = loaded_place(spec, sector);
  ini_reader()->call("SetParameterValue", place.section, place.key, std::move(text), file_name_);
}

std::int16_t SB_GlobalParameters::read_element(std::size_t parameter, std::int16_t personality, int sector) {
  std::string expression(kPersonalitySpecs[parameter].key);
  expression.append("(ScriptPersonality ").append(std::to_string(personality));
  expression.append(",").append(sector_label(sector)).append(")");
  return ini_reader()->call("GetParamValue", std::move(expression), file_name_).to_integer();
}

std::int16_t SB_GlobalParameters::get_element(std::size_t parameter, const std::string& sector_name,
                                              std::int16_t personality) {
  if (sector_name.empty()) return personalities_.at(parameter, personality);
  current_sector_ = sector_index(sector_name);
  return read_element(parameter, personality, current_sector_);
}

void SB_GlobalParameters::set_element(std::size_t parameter, const std::string& sector_name, std::int16_t personality,
                                      std::int16_t value) {
  const PersonalitySpec& spec = kPersonalitySpecs[parameter];
  check_personality(personality);
  if (!spec.not_subtype2.empty()) {
    const std::int16_t physical = sector_name.empty() ? personalities_.at_or_not_set(kPhyLaySubType, personality)
                                                      : get_element(kPhyLaySubType, sector_name, personality);
    if (physical != 2) raise("SB_GlobalParameters." + std::string(spec.setter), spec.not_subtype2);
  }
  if (!spec.setter_text.empty() && value > 0 && personality != kEnhancedPersonality) {
    raise(spec.setter_source, spec.setter_text);
  }
  personalities_.reach(parameter, personality) = value;
}

void SB_GlobalParameters::check_personality(std::int16_t personality) const {
  if (personality <= personality_count()) return;
  raise("SB_GlobalParameters.InitialiseArrayForPersonalityCount",
        "Personality Count index is greater than the Maximum number of personalities to be negotiated");
}

void SB_GlobalParameters::InitialiseArrayForPersonalityCount(Value& array, std::int16_t personality) {
  check_personality(personality);
  if (array.is_empty()) array = Value::Array();
  auto* const elements = array.as<Value::Array>();
  if (elements == nullptr) throw Error(ErrorNumber::TypeMismatch);
  const auto wanted = static_cast<std::size_t>(std::max<std::int16_t>(personality, -1) + 1);
  if (elements->size() < wanted) elements->resize(wanted, kNotSet);
}

std::int16_t SB_GlobalParameters::GetParamIntegerValue(const std::string& section, const std::string& key) {
  return ini_reader()->call("GetInteger", section, key, file_name_).to_integer();
}

std::string SB_GlobalParameters::GetParamStringValue(const std::string& section, const std::string& key) {
  return ini_reader()->call("GetString", section, key, file_name_).to_text();
}

bool SB_GlobalParameters::GetParamBooleanValue(const std::string& section, const std::string& key) {
  return ini_reader()->call("GetBool", section, key, file_name_).to_boolean();
}

Ref<Object> SB_GlobalParameters::ini_reader() {
  if (ini_reader_) return ini_reader_;
  Ref<Object> reader;
  if (platform_->create_foreign_object) reader = platform_->create_foreign_object(kReaderName);
  if (!reader) reader = make<ParameterFunctions>(*platform_);
  ini_reader_ = reader;
  return reader;
}

std::int16_t SB_GlobalParameters::personality_count() const {
  return personality_count_.value_or(loaded_personality_count_);
}

void SB_GlobalParameters::log(const std::string& line) {
  // Held while it writes: a script's report may take itself out.
  if (const Ref<Object> report = test_report_) {
    try {
      report->call(kAddReportLine, line);
      return;
    } catch (const Error& error) {
      // A report that cannot take a line must not hide what the line is about.
      trace("SB_GlobalParameters - test report: " + error.description());
    }
  }
  trace(line);
}

void SB_GlobalParameters::trace(std::string_view line) {
  if (platform_->debug) platform_->debug->write_line(line);
}

}  // namespace vorlan
