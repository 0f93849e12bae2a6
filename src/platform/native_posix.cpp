// Linux and its relatives.
#include <fcntl.h>
#include <langinfo.h>
#include <locale.h>
#include <time.h>
#include <unistd.h>

#include <cstdlib>

#include "automation/error.hpp"
#include "platform/native.hpp"

namespace vorlan {

namespace {

std::string environment(const char* name) {
  const char* const text = std::getenv(name);
  return text != nullptr ? text : "";
}

class PosixClock final : public SteadyClock {
 public:
  [[nodiscard]] LocalTime local_time() const override {
    const time_t now = ::time(nullptr);
    tm parts{};
    ::localtime_r(&now, &parts);
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec};
  }

  [[nodiscard]] std::string month_name(int month) const override {
    if (month < 1 || month > 12) throw Error(ErrorNumber::InvalidCall);
    // A locale of its own: the host program's stays as it is.
    locale_t user = ::newlocale(LC_TIME_MASK | LC_CTYPE_MASK, "", nullptr);
    if (user == nullptr) user = ::newlocale(LC_TIME_MASK | LC_CTYPE_MASK, "C", nullptr);
    std::string name = ::nl_langinfo_l(ABMON_1 + (month - 1), user);
    ::freelocale(user);
    return name;
  }
};

/// Silent unless the variable VORLAN_DEBUG says where to: "1" is standard error, anything else a file to append to.
class EnvironmentDebugOutput final : public DebugOutput {
 public:
  EnvironmentDebugOutput() {
    const std::string target = environment("VORLAN_DEBUG");
    if (target == "1") {
      file_ = STDERR_FILENO;
    } else if (!target.empty()) {
      file_ = ::open(target.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
      if (file_ < 0) file_ = STDERR_FILENO;
    }
  }
  EnvironmentDebugOutput(const EnvironmentDebugOutput&) = delete;
  EnvironmentDebugOutput& operator=(const EnvironmentDebugOutput&) = delete;
  ~EnvironmentDebugOutput() override {
    if (file_ > STDERR_FILENO) ::close(file_);
  }

  void write_line(std::string_view line) override {
    if (file_ < 0) return;
    // One call, so that the lines of several processes do not mix. A trace that cannot be written stops nothing.
    const std::string whole = std::string(line) + "\n";
    [[maybe_unused]] const ssize_t written = ::write(file_, whole.data(), whole.size());
  }

 private:
  int file_ = -1;
};

}  // namespace

Platform native_platform() {
  return {.clock = std::make_shared<PosixClock>(),
          .settings = make_file_settings(settings_file()),
          .registry = make_registry_export(environment("VORLAN_REGISTRY")),
          .debug = std::make_shared<EnvironmentDebugOutput>(),
          .create_foreign_object = {}};
}

}  // namespace vorlan
