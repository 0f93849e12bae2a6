#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "platform/platform.hpp"
#include "support/raised.hpp"
#include "support/temporary_folder.hpp"

namespace vorlan {
namespace {

using namespace std::chrono_literals;

/// Sets a variable of the environment for as long as it lives.
class Variable {
 public:
  Variable(const char* name, const std::string& value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    ::setenv(name, value.c_str(), 1);
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { before_ ? ::setenv(name_, before_->c_str(), 1) : ::unsetenv(name_); }

 private:
  const char* name_;
  std::optional<std::string> before_;
};

TEST(NativePlatform, KeepsTime) {
  const Platform platform = native_platform();
  const auto before = platform.clock->ticks();
  platform.clock->sleep(5ms);
  EXPECT_GE(platform.clock->ticks() - before, 5ms);
  const std::time_t now = std::time(nullptr);
  const LocalTime local = platform.clock->local_time();
  EXPECT_LE(std::abs(local.year - (std::localtime(&now)->tm_year + 1900)), 1);

  const Variable locale("LC_ALL", "C");
  EXPECT_EQ(platform.clock->month_name(1), "Jan");
  EXPECT_EQ(platform.clock->month_name(12), "Dec");
  EXPECT_EQ(test::error_number([&] { (void)platform.clock->month_name(13); }), 5);
}

TEST(NativePlatform, TracesOnlyWhereItIsToldTo) {
  const test::TemporaryFolder folder;
  const auto file = folder.path() / "trace";
  {
    const Variable debug("VORLAN_DEBUG", file.string());
    native_platform().debug->write_line("one");
    native_platform().debug->write_line("two");
  }
  EXPECT_EQ(test::text_of(file), "one\ntwo\n");
  ::testing::internal::CaptureStderr();
  {
    const Variable debug("VORLAN_DEBUG", "");
    native_platform().debug->write_line("silent");
  }
  const Variable debug("VORLAN_DEBUG", "1");
  native_platform().debug->write_line("three");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "three\n");
}

TEST(NativePlatform, FindsTheUsersFolder) {
  const Variable home("HOME", "/home/somebody");
  {
    const Variable folder("XDG_CONFIG_HOME", "/etc/xdg");
    EXPECT_EQ(settings_file(), "/etc/xdg/vorlan/settings.ini");
  }
  const Variable relative("XDG_CONFIG_HOME", "relative");
  EXPECT_EQ(settings_file(), "/home/somebody/.config/vorlan/settings.ini");
}

}  // namespace
}  // namespace vorlan
