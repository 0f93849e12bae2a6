// What is remembered outlives the process that remembered it.
#include <sys/wait.h>
#include <unistd.h>

#include "security/security.hpp"
#include "security/security_fixture.hpp"
#include "support/temporary_folder.hpp"

namespace vorlan::test {
namespace {

TEST(SecurityPersistence, AnotherProcessRemembers) {
  const TemporaryFolder folder;
  const auto file = folder.path() / "settings.ini";
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    int status = 1;
    try {
      SecurityFixture f;
      f.system.platform.settings = make_file_settings(file);
      f.select(1, 1, 1, 0);
      f.parameters->let("PRlng_AuthKeyLength", 40000);
      const auto security = make<SB_Security>(f.system.platform);
      security->call("Initialise", Ref<Object>(f.sector));
      for (const char* family : {"Security", "KeyXChange", "Authentication", "Encryption"}) {
        security->call("Configure" + std::string(family));
      }
      security->get("PRobj_PROT_DHKeyXChange").to_object()->call("NegotiateSKeyLength", 1024);
      status = 0;
    } catch (const Error&) {  // NOLINT(bugprone-empty-catch): the status tells
    }
    ::_exit(status);
  }
  int status = -1;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_EQ(status, 0);
  FakePlatform system;
  system.platform.settings = make_file_settings(file);
  const auto security = make<SB_Security>(system.platform);
  EXPECT_EQ(security->get("PRint_MRUSecurityType"), integer(1));
  EXPECT_EQ(security->get("PRint_MRUKeyXChangeType"), integer(1));
  EXPECT_EQ(security->get("PRint_MRUSKeyLength"), integer(1024));
  EXPECT_EQ(security->get("PRint_MRUAuthenticationType"), integer(1));
  EXPECT_EQ(security->get("PRlng_MRUAuthKeyLength"), Value(40000));
  EXPECT_NE(text_of(file).find("[1x-EVDOKetra\\SectorFields]"), std::string::npos);
}

TEST(SecurityPersistence, AStoreThatCannotBeUsedIsAnError) {
  const TemporaryFolder folder;
  SecurityFixture f;
  f.system.platform.settings = make_file_settings(folder.write("settings.ini", "junk"));
  const auto security = make<SB_Security>(f.system.platform);
  EXPECT_EQ(error_number([&] { security->get("PRint_MRUSecurityType"); }), 75);
  security->call("Initialise", Ref<Object>(f.sector));
  EXPECT_EQ(error_number([&] { security->call("ConfigureSecurity"); }), 75);
  EXPECT_EQ(text_of(folder.path() / "settings.ini"), "junk");
}

}  // namespace
}  // namespace vorlan::test
