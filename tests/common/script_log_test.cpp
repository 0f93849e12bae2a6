// What a script writes to the test report.
#include <gtest/gtest.h>

#include "common/general_functions.hpp"
#include "support/fake_platform.hpp"
#include "support/raised.hpp"
#include "support/recording_object.hpp"

namespace vorlan {
namespace {

using Calls = std::vector<std::string>;

class ScriptLogging : public ::testing::Test {
 protected:
  /// The lines that a call adds, without the rules above and below them.
  template <class... Arguments>
  Calls lines(const char* member, Arguments... arguments) {
    report_->calls.clear();
    functions_->call(member, report_, arguments...);
    Calls lines = report_->calls;
    std::erase(lines, "AddText(" + std::string(70, '-') + ")");
    return lines;
  }
  template <class... Arguments>
  test::Raised refused(const char* member, Arguments... arguments) {
    report_->calls.clear();
    const auto raised = test::raised_by([&] { functions_->call(member, report_, arguments...); });
    EXPECT_TRUE(report_->calls.empty()) << "bad input leaves the report alone";
    return raised;
  }

  test::FakePlatform fake_;
  Ref<test::RecordingObject> report_ = make<test::RecordingObject>();
  Ref<SB_GeneralFunctions> functions_ = make<SB_GeneralFunctions>(fake_.platform);
};

TEST_F(ScriptLogging, HeaderAndResult) {
  EXPECT_EQ(
      lines("LogScriptHeader", "TC_5_2", "Session set-up"),
      (Calls{"AddText(Script: TC_5_2)", "AddText(Description: Session set-up)", "AddText(Started: 5-Nov-2026 9.7.3)"}));
  EXPECT_EQ(lines("LogScriptHeader", "TC", "", "ESN 12", "SECTOR 0").back(), "AddText(Sector: SECTOR 0)");
  EXPECT_EQ(lines("LogScriptResult", "TC_5_2", "pass", 65),
            (Calls{"AddText(Script: TC_5_2)", "AddText(Result: PASS)",
                   "AddText(Duration: 0 Hours, 1 Minutes and 5 Seconds.)", "AddText(Finished: 5-Nov-2026 9.7.3)"}));
  EXPECT_EQ(lines("LogScriptResult", "TC", false)[1], "AddText(Result: FAIL)");
  EXPECT_EQ(lines("LogScriptResult", "TC", "Inconclusive").size(), 3U);
  EXPECT_EQ(refused("LogScriptResult", "TC", "passed").description, "The result should be PASS, FAIL or INCONCLUSIVE.");
}

TEST_F(ScriptLogging, ParametersAndInformation) {
  EXPECT_EQ(lines("LogScriptSpecificParameters", "Ior", -75.5), Calls{"AddText(    Ior = -75.5)"});
  EXPECT_EQ(lines("LogScriptSpecificParameters", Value::Array{"A", "B"}, Value::Array{1, true}),
            (Calls{"AddText(    A = 1)", "AddText(    B = True)"}));
  EXPECT_EQ(refused("LogScriptSpecificParameters", Value::Array{"A", "B"}, Value::Array{1}).number, 9);
  EXPECT_EQ(refused("LogScriptSpecificParameters", Value::Array{"A", "B"}, Value::Array{1, Null{}}).number, 94);
  EXPECT_EQ(refused("LogScriptSpecificParameters", "A", Value::Array{1}).number, 13);
  EXPECT_EQ(lines("LogInformation", "one\r\n\ntwo\n"), (Calls{"AddText(one)", "AddText()", "AddText(two)"}));
  EXPECT_EQ(lines("LogInformation", ""), Calls{"AddText()"});
  EXPECT_EQ(test::error_number([&] { functions_->call("LogInformation", Ref<Object>(), "x"); }), 91);
}

}  // namespace
}  // namespace vorlan
