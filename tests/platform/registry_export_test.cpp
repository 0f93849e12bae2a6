#include <gtest/gtest.h>

#include "platform/platform.hpp"
#include "support/temporary_folder.hpp"

namespace vorlan {
namespace {

constexpr auto kCurrentUser = static_cast<std::int32_t>(0x80000001);
constexpr auto kLocalMachine = static_cast<std::int32_t>(0x80000002);

TEST(RegistryExport, AnswersAsTheRegistryDoes) {
  const test::TemporaryFolder folder;
  const auto file = folder.write("lab.reg",
                                 "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Lab]\r\n"
                                 "\"Path\"=\"C:\\\\lab\\\\\\\"x\\\"\"\r\n\"Count\"=dword:00000001\r\n@=\"default\"\r\n"
                                 "\"Long\"=\"" +
                                     std::string(255, 'x') +
                                     "\"\r\n"
                                     "\"Fits\"=\"" +
                                     std::string(254, 'x') +
                                     "\"\r\n"
                                     "[HKEY_CURRENT_USER\\Software\\Other]\r\n\"Only\"=\"other\"\r\n");
  const auto registry = make_registry_export(file);
  const std::string unreadable(1, '\0');
  struct Case {
    std::int32_t root;
    const char* path;
    const char* name;
    std::optional<std::string> expected;
  };
  const Case cases[] = {
      {kCurrentUser, "software\\LAB", "path", "C:\\lab\\\"x\""},
      {kCurrentUser, "Software\\Lab", "", "default"},
      {kCurrentUser, "Software\\Lab", "Fits", std::string(254, 'x')},
      {kCurrentUser, "Software\\Lab", "Long", unreadable},
      {kCurrentUser, "Software\\Lab", "Count", unreadable},
      {kCurrentUser, "Software\\Lab", "Only", unreadable},
      {kCurrentUser, "Software", "Path", unreadable},
      {kCurrentUser, "Software\\La", "Path", std::nullopt},
      {kLocalMachine, "Software\\Lab", "Path", std::nullopt},
      {0, "Software\\Lab", "Path", std::nullopt},
  };
  for (const Case& c : cases) EXPECT_EQ(registry->read(c.root, c.path, c.name), c.expected) << c.path << " " << c.name;
  EXPECT_EQ(make_registry_export(folder.path() / "none.reg")->read(kCurrentUser, "Software", ""), std::nullopt);
}

}  // namespace
}  // namespace vorlan
