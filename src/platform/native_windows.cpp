// Windows.
#include <array>

#include "automation/error.hpp"
#include "platform/native.hpp"
#include "platform/registry_windows.hpp"
#include "platform/windows_text.hpp"

namespace vorlan {

namespace {

class WindowsClock final : public SteadyClock {
 public:
  [[nodiscard]] LocalTime local_time() const override {
    SYSTEMTIME now;
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
  }

  [[nodiscard]] std::string month_name(int month) const override {
    if (month < 1 || month > 12) throw Error(ErrorNumber::InvalidCall);
    std::array<wchar_t, 80> name;  // the longest that the system gives
    const auto which = static_cast<LCTYPE>(LOCALE_SABBREVMONTHNAME1 + month - 1);
    const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, which, name.data(), static_cast<int>(name.size()));
    if (length <= 0) throw Error(ErrorNumber::InvalidCall);
    return narrow_text({name.data(), static_cast<std::size_t>(length - 1)});
  }
};

class DebuggerOutput final : public DebugOutput {
 public:
  void write_line(std::string_view line) override { OutputDebugStringA((ansi_text(line) + "\n").c_str()); }
};

}  // namespace

Platform native_platform() {
  return {.clock = std::make_shared<WindowsClock>(),
          .settings = make_registry_settings(),
          .registry = make_registry_text(),
          .debug = std::make_shared<DebuggerOutput>(),
          .create_foreign_object = {}};
}

}  // namespace vorlan
