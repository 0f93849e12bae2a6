// The operating system behind small interfaces. Everything that tests must replace is reached through them.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "automation/object.hpp"

namespace vorlan {

/// A local date and time, taken apart.
struct LocalTime {
  int year;
  int month;  ///< 1 to 12
  int day;    ///< 1 to 31
  int hour;
  int minute;
  int second;
};

/// The only source of time, and the only way to let it pass.
class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual LocalTime local_time() const = 0;
  /// Time that never runs backwards.
  [[nodiscard]] virtual std::chrono::milliseconds ticks() const = 0;
  virtual void sleep(std::chrono::milliseconds time) = 0;
  /// Abbreviated name of a month (1 to 12) in the system's locale.
  [[nodiscard]] virtual std::string month_name(int month) const = 0;
};

/// The current user's application settings: texts by application, section and key.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  /// Nothing if there is no such setting. A damaged or unreadable store is error 75 and is left as it is.
  [[nodiscard]] virtual std::optional<std::string> read(std::string_view application, std::string_view section,
                                                        std::string_view key) const = 0;
  /// Either the whole value is stored, or error 75 is raised and the store is what it was.
  virtual void write(std::string_view application, std::string_view section, std::string_view key,
                     std::string_view value) = 0;
};

/// Texts in the system's registry, read only.
class RegistryText {
 public:
  virtual ~RegistryText() = default;
  /// Nothing if the key does not open; a text of one NUL character if the value cannot be read; else the value up to
  /// its first NUL, at most 255 characters. `root` is the number of a root key, such as HKEY_CURRENT_USER.
  [[nodiscard]] virtual std::optional<std::string> read(std::int32_t root, const std::string& key_path,
                                                        const std::string& value_name) const = 0;
};

/// The system debugger's output, a line per call.
class DebugOutput {
 public:
  virtual ~DebugOutput() = default;
  virtual void write_line(std::string_view line) = 0;
};

/// What `main` hands to every object that needs the system. Tests replace a part by assigning another.
struct Platform {
  std::shared_ptr<Clock> clock;
  std::shared_ptr<SettingsStore> settings;
  std::shared_ptr<RegistryText> registry;
  std::shared_ptr<DebugOutput> debug;
  /// Creates an object of another automation server by programmatic identifier; Nothing if there is none.
  std::function<Ref<Object>(std::string_view prog_id)> create_foreign_object;
};

/// The parts of the system that this program runs on.
Platform native_platform();

// Elsewhere than on Windows:

/// Settings in a text file: written whole and renamed into place, locked against other processes meanwhile.
std::shared_ptr<SettingsStore> make_file_settings(std::filesystem::path file);
/// The user's: $XDG_CONFIG_HOME/vorlan/settings.ini, or ~/.config/vorlan/settings.ini.
std::filesystem::path settings_file();
/// A registry exported as text (REGEDIT4): [HKEY_CURRENT_USER\Path], "name"="text". No key opens if there is no file.
std::shared_ptr<RegistryText> make_registry_export(std::filesystem::path file);

}  // namespace vorlan
