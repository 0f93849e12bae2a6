#include "automation/registry.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/raised.hpp"

namespace vorlan {
namespace {

const ClassInfo& no_info() {
  static const ClassInfo kInfo({"SB_A", "", ""}, {});
  return kInfo;
}
constexpr ClassEntry entry(std::string_view name) { return {name, &no_info, nullptr}; }
constexpr std::array kFirst{entry("SB_Str_B"), entry("SB_app_A")};
constexpr std::array kSecond{entry("TestSet")};

TEST(Registry, FindsClassesUnderTheirServer) {
  const std::array tables{ClassTable{"Vorlan", kFirst}, ClassTable{"VorlanSim", kSecond}};
  const Registry registry(tables);
  ASSERT_EQ(registry.classes().size(), 3U);
  EXPECT_EQ(registry.classes()[0].prog_id(), "Vorlan.SB_app_A");
  for (const char* name : {"SB_APP_A", "sb_app_a", "vorlan.SB_App_A"}) EXPECT_NE(registry.find(name), nullptr) << name;
  for (const char* name : {"", ".", "Vorlan.", "SB_App", "VorlanSim.SB_App_A", "Vorlan.TestSet", "a.b.TestSet"}) {
    EXPECT_EQ(registry.find(name), nullptr) << name;
  }
  EXPECT_EQ(test::error_number([&] { (void)registry.at("SB_None"); }), 429);
}

TEST(Registry, RefusesAClassListedTwice) {
  const std::array tables{ClassTable{"Vorlan", kFirst}, ClassTable{"VorlanSim", kFirst}};
  EXPECT_THROW(Registry{tables}, std::logic_error);
}

}  // namespace
}  // namespace vorlan
