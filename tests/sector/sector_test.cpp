// SB_Sector when things go wrong: every call on the test set in turn, every object missing, names changed.
#include "sector/sector_fixture.hpp"
#include "support/octets.hpp"
#include "support/temporary_folder.hpp"

namespace vorlan::test {
namespace {

struct Operation {
  const char* name;
  void (*run)(SectorFixture& fixture);
  /// What is raised whatever goes wrong; null: what the test set raised.
  const char* texts[2] = {};
};

constexpr const char* kForward = "Forward Channel could not be configured.";
constexpr const char* kAccess = "Access Channel could not be configured.";

const Operation kOperations[] = {
    {"ConfigureFwdAndAccChannel",
     [](SectorFixture& f) { f.sector->call("ConfigureFwdAndAccChannel", true, Value()); },
     {kForward, kAccess}},
    {"ReConfigureFwdAndAccChannel",
     [](SectorFixture& f) {
       f.test_subtype(2);
       f.sector->call("ReConfigureFwdAndAccChannel", true, Value());
     },
     {"Forward Channel could not be reconfigured.", "Access Channel could not be reconfigured."}},
    {"AcquireReverseTrafficChannel",
     [](SectorFixture& f) { f.sector->call("AcquireReverseTrafficChannel"); },
     {"Reverse Traffic acquisition failed."}},
    {"LowerLevel", [](SectorFixture& f) { f.sector->call("LowerLevel", 1.0F, std::int16_t{1}); }},
    {"StartSessionNegotiationFromAN",
     [](SectorFixture& f) {
       f.incoming["ConfigurationRequestMSG"] = {bits_of("50 01")};
       f.incoming["ConfigurationCompleteMSG"] = {bits_of("00 07")};
       f.sector->call("StartSessionNegotiationFromAN");
     },
     {"Configuration Response Message could not be created.",
      "ConfigurationComplete Message not received from the Access Terminal."}},
    {"EndSessionNegotiationFromAN",
     [](SectorFixture& f) { f.sector->call("EndSessionNegotiationFromAN", std::int16_t{0}); }},
    {"EnableFading",
     [](SectorFixture& f) { f.sector->call("EnableFading"); },
     {"Could not create objects for RadioChannelVelocity and RadioChannelPaths."}},
    {"SetGainAndDelay", [](SectorFixture& f) { f.sector->call("SetGainAndDelay", std::int16_t{1}, 1.0, 2.0); }},
    {"DestoyFadingObjects",
     [](SectorFixture& f) { f.sector->call("DestoyFadingObjects"); },
     {"Could not create objects for RadioChannelEmulator"}},
    {"NegotiateFTAP", [](SectorFixture& f) { f.sector->call("NegotiateFTAP", true, true, true, true); }},
    {"SendFTAPClearStats", [](SectorFixture& f) { f.sector->call("SendFTAPClearStats"); }},
    {"EnableFTAPTestPktFlow", [](SectorFixture& f) { f.sector->call("EnableFTAPTestPktFlow"); }},
};

/// A sector on which every operation can run.
struct ReadySector : SectorFixture {
  ReadySector() {
    sector->call("ConfigureFwdAndAccChannel", false, Value());
    dynamic_cast<Guest&>(*sector->get("PRobj_ForwardChannel").to_object()).answer("Level", -60.0F);
    sector->call("EnableFading");
    take_calls();
  }
};

bool is_expected(const Raised& raised, const Operation& operation) {
  for (const char* text : operation.texts) {
    if (text != nullptr && raised.number == 1 && raised.description == text) return true;
  }
  return raised.number != 0 && raised.number != 1 && raised.number != 999;
}

/// Whether the library looks at what the call returned.
bool is_looked_at(const TestSetMember* member) {
  return member != nullptr && member->type != ValueType::Empty && member->type != ValueType::Any;
}

class SectorTrouble : public testing::TestWithParam<Trouble> {};

TEST_P(SectorTrouble, AnyFailingCallIsRaisedAndNothingIsUndone) {
  for (const Operation& operation : kOperations) {
    ReadySector good;
    operation.run(good);
    const Calls calls = good.trace.calls;
    const auto members = good.trace.members;
    ASSERT_FALSE(calls.empty());
    for (std::size_t i = 0; i < calls.size(); ++i) {
      const bool fails_itself = GetParam() == Trouble::Raises || GetParam() == Trouble::LacksMember;
      if (!fails_itself && !is_looked_at(members[i])) continue;
      SCOPED_TRACE(std::string(operation.name) + ": " + calls[i]);
      ReadySector f;
      f.trace.at_call = i;
      f.trace.trouble = GetParam();
      const Raised raised = raised_by([&] { operation.run(f); });
      EXPECT_TRUE(is_expected(raised, operation)) << testing::PrintToString(raised);
      EXPECT_EQ(f.take_calls(), Calls(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(i) + 1));
      f.trace.trouble = Trouble::None;
      EXPECT_EQ(raised_by([&] { operation.run(f); }), Raised{});
    }
  }
}
INSTANTIATE_TEST_SUITE_P(Kinds, SectorTrouble,
                         testing::Values(Trouble::Raises, Trouble::LacksMember, Trouble::WrongType,
                                         Trouble::ReturnsNothing));

TEST(Sector, AMissingObjectIsAnError) {
  for (const auto& [property, object] : SectorFixture().objects()) {
    int failed = 0;
    for (const Operation& operation : kOperations) {
      SCOPED_TRACE(std::string(operation.name) + " without " + property);
      ReadySector f;
      f.sector->set(property, Ref<Object>());
      const Raised raised = raised_by([&] { operation.run(f); });
      if (raised == Raised{}) continue;
      ++failed;
      EXPECT_TRUE(is_expected(raised, operation)) << testing::PrintToString(raised);
    }
    // The collection of subtype 1 is used by none of these.
    EXPECT_EQ(failed == 0, property == "PRobj_SubType1AccChCollection") << property;
  }
  SectorFixture f;
  f.sector->set("PRobj_EvSignalling", Ref<Object>());
  EXPECT_EQ(raised_by([&] { f.sector->call("SendFTAPClearStats"); }),
            (Raised{91, "SB_Sector.SendFTAPClearStats",
                    "Object variable or With block variable not set: PRobj_EvSignalling"}));
}

TEST(Sector, NeedsAConfiguration) {
  const Raised expected{1, "SB_Sector.PRobj_GlobalParameters",
                        "Global Parameters object not set to the Sector. Please set <PRobj_GlobalParameters> property "
                        "first."};
  SectorFixture f;
  f.sector->set("PRobj_GlobalParameters", Ref<Object>());
  EXPECT_EQ(raised_by([&] { f.sector->get("PRobj_GlobalParameters"); }), expected);
  for (const char* operation : {"ConfigureFwdAndAccChannel", "ReConfigureFwdAndAccChannel"}) {
    EXPECT_EQ(raised_by([&] { f.sector->call(operation, true, Value()); }), expected);
  }
  for (const char* operation : {"AcquireReverseTrafficChannel", "SendFTAPClearStats"}) {
    EXPECT_EQ(raised_by([&] { f.sector->call(operation); }), expected);
  }
  EXPECT_EQ(f.take_calls(), Calls{});
}

TEST(Sector, TellsTheAccessTerminalIdentifier) {
  SectorFixture f;
  EXPECT_EQ(f.sector->get("PRint_GetATI").to_long(), 257);
  EXPECT_EQ(f.debug_lines().back(), "Sector_1x::lngATI ---------------------------- index = 257");
}

TEST(Sector, CorrectsTheLengthOfAValue) {
  struct Case {
    const char* bits;
    std::int32_t width;
    std::int32_t maximum;
    bool valid;
    const char* corrected;
  };
  SectorFixture f;
  for (const Case& c : {Case{"101", 8, 5, true, "00000101"}, Case{"00000101", 3, 5, true, "101"},
                        Case{"110", 8, 5, false, "110"}, Case{"", 2, 0, true, "00"}}) {
    std::array<Value, 3> arguments{c.bits, c.width, c.maximum};
    EXPECT_EQ(f.sector->invoke("ValidateAndCorrectLength", Access::Call, arguments).to_boolean(), c.valid);
    EXPECT_EQ(arguments[0].to_text(), c.corrected);
  }
  std::array<Value, 3> arguments{"101", 2, 7};
  EXPECT_EQ(error_number([&] { f.sector->invoke("ValidateAndCorrectLength", Access::Call, arguments); }), 1);
  EXPECT_EQ(arguments[0].to_text(), "101");
}

class RenamedMembers : public testing::Test {
 protected:
  Raised enable_with(const std::string& section) {
    const TemporaryFolder folder;
    f.parameters->let("PRstr_FileName", folder.write("sector.ini", section).string());
    f.sector->set("PRobj_GlobalParameters", Ref<Object>(f.parameters));
    const Raised raised = raised_by([&] { f.sector->call("Enable"); });
    if (raised == Raised{}) f.sector->call("Enable");
    return raised;
  }
  SectorFixture f;
};

TEST_F(RenamedMembers, AreCalledByTheLaboratorysNames) {
  // The table of members does not know the new name: it arrives at the test set and is refused there.
  EXPECT_EQ(enable_with("[TestSetMembers]\napply = DoApply\n"),
            (Raised{438, "TestSet", "Object doesn't support this property or method: DoApply"}));
  EXPECT_EQ(enable_with("[SECTOR 0]\n"), Raised{});
  EXPECT_EQ(f.take_calls().size(), 2U);
}

TEST_F(RenamedMembers, MistakesInTheSectionAreErrors) {
  EXPECT_EQ(enable_with("[TestSetMembers]\nAply = X\n"),
            (Raised{1, "TestSetMembers", "\"Aply\" in section TestSetMembers is no role of a test set's member."}));
  EXPECT_EQ(
      enable_with("[TestSetMembers]\nChannelItem = X\n"),
      (Raised{1, "TestSetMembers", "\"ChannelItem\" in section TestSetMembers has a name that cannot be changed."}));
  EXPECT_EQ(enable_with("[TestSetMembers]\nApply =\n"),
            (Raised{1, "TestSetMembers", "\"Apply\" in section TestSetMembers has no name."}));
  EXPECT_EQ(enable_with("[TestSetMembers]\nno line of a section\n").number, 75);
  EXPECT_EQ(f.take_calls(), Calls{});
}

}  // namespace
}  // namespace vorlan::test
