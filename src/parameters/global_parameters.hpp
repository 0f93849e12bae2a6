// The configuration of one sector for a test run.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "automation/bind.hpp"
#include "parameters/parameter_reader.hpp"
#include "parameters/personalities.hpp"
#include "platform/platform.hpp"

namespace vorlan {

/// Every row of all_parameters() is a property with one optional argument, a sector name. Without it (or empty) the
/// value is the one that Initialize loaded or a script let; with "SECTOR 0" to "SECTOR 5" it is read from the file at
/// that moment. Beside them stand the members of kPersonalitySpecs and those below.
///
/// Errors: 1 with the texts listed in info(); 53 and 75 for a file that is missing or cannot be read; what the
/// parameter-file object raises. A read that fails also writes a line to the log: the test report, or the debug output
/// where no report is set.
class SB_GlobalParameters final : public ClassObject {
 public:
  explicit SB_GlobalParameters(Platform& platform);

  static const ClassInfo& info();

  [[nodiscard]] const std::string* held_text(const PreparedName& property) const noexcept override;

  /// Loads every parameter of a sector, once; later calls do nothing. An error leaves the store as it was, and
  /// Initialize may be called again.
  void Initialize(const std::string& sector_name);

  /// The array reaches this personality: new elements are -1. Error 1 above PRint_PersonalityCountAN.
  void InitialiseArrayForPersonalityCount(Value& array, std::int16_t personality);

  std::int16_t GetParamIntegerValue(const std::string& section, const std::string& key);
  std::string GetParamStringValue(const std::string& section, const std::string& key);
  bool GetParamBooleanValue(const std::string& section, const std::string& key);

  /// Path of the parameter file.
  [[nodiscard]] std::string file_name() const { return file_name_; }
  void set_file_name(const std::string& path) { file_name_ = path; }
  /// The parameter-file object: the system's "ReadINI.ParameterFunctions", else one of this library; made when needed.
  Ref<Object> ini_reader();
  void set_ini_reader(const Ref<Object>& reader) { ini_reader_ = reader; }
  [[nodiscard]] Ref<Object> test_report() const { return test_report_; }
  void set_test_report(const Ref<Object>& report) { test_report_ = report; }
  [[nodiscard]] Ref<Object> test_system() const { return test_system_; }
  void set_test_system(const Ref<Object>& system) { test_system_ = system; }
  /// The personality that the properties of kPersonalitySpecs mean.
  [[nodiscard]] std::int16_t active_personality() const { return active_personality_; }
  void set_active_personality(std::int16_t personality) { active_personality_ = personality; }
  /// What a script let; else what Initialize loaded as PRint_PersonalityCount; else 1.
  [[nodiscard]] std::int16_t personality_count() const;
  void set_personality_count(std::int16_t count) { personality_count_ = count; }
  [[nodiscard]] std::int16_t script_type() const { return script_type_; }
  void set_script_type(std::int16_t type) { script_type_ = type; }
  [[nodiscard]] std::int16_t message_type() const { return message_type_; }
  void set_message_type(std::int16_t type) { message_type_ = type; }
  /// Of the sector named last, 0 to 5.
  [[nodiscard]] std::int16_t current_sector() const { return static_cast<std::int16_t>(current_sector_); }

 protected:
  Value invoke_member(int member, Access access, std::span<Value> arguments) override;

 private:
  struct Loaded {
    std::vector<Value> values;
    Personalities personalities;
    std::int16_t personality_count;
    std::vector<std::string> warnings;
  };
  [[nodiscard]] Loaded load(int sector);
  Value load_parameter(const ParameterSpec& spec, int sector);
  void load_personality(Loaded& loaded, std::int16_t personality, int sector);
  template <class F>
  auto reporting_invalid(const std::string& label, F&& read);

  Value invoke_parameter(std::size_t row, Access access, std::span<Value> arguments);
  Value read_live(const ParameterSpec& spec, const std::string& sector_name);
  void write_back(const ParameterSpec& spec, const Value& value, const std::string& sector_name);

  Value invoke_personality(std::size_t member, Access access, std::span<Value> arguments);
  std::int16_t get_element(std::size_t parameter, const std::string& sector_name, std::int16_t personality);
  void set_element(std::size_t parameter, const std::string& sector_name, std::int16_t personality, std::int16_t value);
  void check_personality(std::int16_t personality) const;
  std::int16_t read_element(std::size_t parameter, std::int16_t personality, int sector);

  /// Runs a read; if it fails, writes a line naming the property and passes the error on.
  template <class F>
  auto trapped(std::string_view property, F&& read) {
    try {
      return std::forward<F>(read)();
    } catch (const Error&) {
      log("SB_GlobalParameters::" + std::string(property) + " - Exception raised.");
      throw;
    }
  }
  void log(const std::string& line);
  void trace(std::string_view line);

  Platform* platform_;
  std::string file_name_;
  Ref<Object> ini_reader_;
  Ref<Object> test_report_;
  Ref<Object> test_system_;
  std::vector<Value> values_;  // by row of all_parameters()
  Personalities personalities_;
  bool initialized_ = false;
  int own_sector_ = 0;
  int current_sector_ = 0;
  std::int16_t active_personality_ = 1;
  std::optional<std::int16_t> personality_count_;
  std::int16_t loaded_personality_count_ = 1;
  std::int16_t script_type_ = 0;
  std::int16_t message_type_ = 0;
};

}  // namespace vorlan
