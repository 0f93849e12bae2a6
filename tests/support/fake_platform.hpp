// A platform without a system: time that a test sets, settings and trace lines in memory.
#pragma once

#include <map>
#include <tuple>
#include <vector>

#include "platform/platform.hpp"

namespace vorlan::test {

class FakeClock final : public Clock {
 public:
  [[nodiscard]] LocalTime local_time() const override { return now; }
  [[nodiscard]] std::chrono::milliseconds ticks() const override { return passed; }
  void sleep(std::chrono::milliseconds time) override { passed += time; }
  [[nodiscard]] std::string month_name(int month) const override { return month == 11 ? "Nov" : "Jan"; }

  LocalTime now{2026, 11, 5, 9, 7, 3};
  std::chrono::milliseconds passed{0};
};

class MemorySettings final : public SettingsStore {
 public:
  using Key = std::tuple<std::string, std::string, std::string>;

  [[nodiscard]] std::optional<std::string> read(std::string_view application, std::string_view section,
                                                std::string_view key) const override {
    const auto found = values.find(Key(application, section, key));
    return found == values.end() ? std::nullopt : std::optional(found->second);
  }
  void write(std::string_view application, std::string_view section, std::string_view key,
             std::string_view value) override {
    values[Key(application, section, key)] = value;
  }

  std::map<Key, std::string> values;
};

/// One key, "Software\\Laboratory" of the root 5, with one value "Name".
class FakeRegistry final : public RegistryText {
 public:
  [[nodiscard]] std::optional<std::string> read(std::int32_t root, const std::string& key_path,
                                                const std::string& value_name) const override {
    if (root != 5 || key_path != "Software\\Laboratory") return std::nullopt;
    return value_name == "Name" ? std::string("a text") : std::string(1, '\0');
  }
};

class RecordingDebug final : public DebugOutput {
 public:
  void write_line(std::string_view line) override { lines.emplace_back(line); }
  std::vector<std::string> lines;
};

/// A platform and its parts, to be looked at after a call.
struct FakePlatform {
  std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
  std::shared_ptr<MemorySettings> settings = std::make_shared<MemorySettings>();
  std::shared_ptr<FakeRegistry> registry = std::make_shared<FakeRegistry>();
  std::shared_ptr<RecordingDebug> debug = std::make_shared<RecordingDebug>();
  Platform platform{clock, settings, registry, debug, {}};
};

}  // namespace vorlan::test
