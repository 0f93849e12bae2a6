#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/platform.hpp"
#include "support/raised.hpp"
#include "support/temporary_folder.hpp"

namespace vorlan {
namespace {

namespace fs = std::filesystem;
using test::raised_by;
using test::text_of;

TEST(FileSettings, StoresWholeFilesAndKeepsTheRest) {
  const test::TemporaryFolder folder;
  const fs::path file = folder.path() / "new" / "settings.ini";
  const auto settings = make_file_settings(file);
  EXPECT_EQ(settings->read("app", "s", "k"), std::nullopt);
  EXPECT_FALSE(fs::exists(file.parent_path())) << "reading must not make anything";
  settings->write("app", "s", "k", "1");
  settings->write("app", "s", "l", "2");
  EXPECT_EQ(make_file_settings(file)->read("APP", "S", "K"), "1");
  EXPECT_EQ(text_of(file), "[app\\s]\nk=1\nl=2\n");
  EXPECT_FALSE(fs::exists(file.string() + ".new"));

  const fs::path link = folder.path() / "link.ini";
  fs::create_symlink(file, link);
  make_file_settings(link)->write("app", "s", "k", "3");
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(settings->read("app", "s", "k"), "3");
}

TEST(FileSettings, NeverOverwritesWhatItCannotUse) {
  const test::TemporaryFolder folder;
  const std::string damaged("\0\0\0\0", 4);
  const fs::path file = folder.write("settings.ini", damaged);
  const auto settings = make_file_settings(file);
  const auto read = raised_by([&] { (void)settings->read("app", "s", "k"); });
  EXPECT_EQ(read.number, 75);
  EXPECT_NE(read.description.find(file.string()), std::string::npos) << read.description;
  EXPECT_EQ(raised_by([&] { settings->write("app", "s", "k", "1"); }), read);
  EXPECT_EQ(text_of(file), damaged);

  const fs::path fixed = folder.write("fixed.ini", "[app\\s]\nk=1\n");
  fs::permissions(fixed, fs::perms::owner_read);
  EXPECT_EQ(raised_by([&] { make_file_settings(fixed)->write("app", "s", "k", "2"); }).number, 75);
  EXPECT_EQ(make_file_settings(fixed)->read("app", "s", "k"), "1");

  EXPECT_EQ(raised_by([&] { (void)make_file_settings(folder.path())->read("app", "s", "k"); }).number, 75);
  EXPECT_EQ(raised_by([&] { make_file_settings(fixed / "below.ini")->write("app", "s", "k", "2"); }).number, 75);
}

TEST(FileSettings, ProcessesLoseNoneOfTheirChanges) {
  const test::TemporaryFolder folder;
  const fs::path file = folder.path() / "settings.ini";
  constexpr int kProcesses = 4;
  constexpr int kChanges = 10;
  for (int process = 0; process < kProcesses; ++process) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child != 0) continue;
    int status = 0;
    try {
      for (int i = 0; i < kChanges; ++i) {
        make_file_settings(file)->write("app", std::to_string(process), std::to_string(i), std::to_string(i));
      }
    } catch (const Error&) {
      status = 1;
    }
    ::_exit(status);
  }
  for (int process = 0; process < kProcesses; ++process) {
    int status = -1;
    ::wait(&status);
    EXPECT_EQ(status, 0);
  }
  for (int i = 0; i < kProcesses * kChanges; ++i) {
    const std::string key = std::to_string(i % kChanges);
    EXPECT_EQ(make_file_settings(file)->read("app", std::to_string(i / kChanges), key), key);
  }
}

/// A process that writes 0, 1, 2, ... until it is killed.
pid_t start_writer(const fs::path& file) {
  const pid_t child = ::fork();
  if (child != 0) return child;
  try {
    for (int i = 0;; ++i) make_file_settings(file)->write("app", "s", "count", std::to_string(i));
  } catch (const Error&) {
    ::_exit(1);
  }
}

/// VORLAN_KILLS asks for more than the few of an everyday run.
TEST(FileSettings, SurviveAKillAtAnyTime) {
  const test::TemporaryFolder folder;
  const fs::path file = folder.path() / "settings.ini";
  const auto settings = make_file_settings(file);
  const std::string kept(2000, 'x');
  settings->write("app", "s", "kept", kept);
  const char* const wanted = std::getenv("VORLAN_KILLS");
  const int kills = wanted != nullptr ? std::atoi(wanted) : 25;
  int written = 0;
  for (int i = 0; i < kills; ++i) {
    const pid_t child = start_writer(file);
    ASSERT_GT(child, 0);
    const auto has_written = [&] { return settings->read("app", "s", "count").value_or("0") != "0"; };
    // Every second one is in the middle of it; a minute is only for the slowest of machines.
    for (int waited = 0; i % 2 == 1 && !has_written() && waited < 60'000; ++waited) ::usleep(1000);
    ::usleep(static_cast<useconds_t>(500 + i * 7919 % 6000));
    ::kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the writer found the store unusable";
    EXPECT_EQ(settings->read("app", "s", "kept"), kept);
    const std::string count = settings->read("app", "s", "count").value_or("0");
    EXPECT_EQ(count.find_first_not_of("0123456789"), std::string::npos);
    written += count != "0";
    settings->write("app", "s", "count", "0");  // no lock is left behind
  }
  EXPECT_GT(written, 0) << "no writer came far enough to write twice";
}

TEST(FileSettings, AFullDiskLeavesTheStoreAsItWas) {
  const test::TemporaryFolder folder;
  const fs::path file = folder.write("settings.ini", "[app\\s]\nk=1\n");
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    const rlimit limit{64, 64};  // bytes in a file
    ::signal(SIGXFSZ, SIG_IGN);
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) ::_exit(99);
    ::_exit(raised_by([&] { make_file_settings(file)->write("app", "s", "k", std::string(100, 'x')); }).number);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(WEXITSTATUS(status), 75);
  EXPECT_EQ(text_of(file), "[app\\s]\nk=1\n");
  EXPECT_FALSE(fs::exists(file.string() + ".new"));
  make_file_settings(file)->write("app", "s", "k", "2");
  EXPECT_EQ(make_file_settings(file)->read("app", "s", "k"), "2");
}

}  // namespace
}  // namespace vorlan
