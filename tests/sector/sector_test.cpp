// What SB_Sector does when the test set fails it: every call going wrong in turn, every object missing, names changed.
#include "sector/simulated_sector.hpp"
#include "support/temporary_folder.hpp"

namespace vorlan::test {
namespace {

const std::vector<std::string> kUnconfigured{"Forward Channel could not be configured.",
                                             "Access Channel could not be configured."};
const std::vector<std::string> kUnreconfigured{"Forward Channel could not be reconfigured.",
                                               "Access Channel could not be reconfigured."};

struct Operation {
  std::string name;
  std::vector<Value> arguments = {};
  /// What is raised whatever goes wrong; none: what the test set raised.
  std::vector<std::string> texts = {};
  int subtype = 0;  ///< of the channels

  void run(SimulatedSector& s) const {
    if (subtype != 0) s.test_subtype(subtype);
    std::vector<Value> passed = arguments;
    s.sector->invoke(name, Access::Call, passed);
  }
};
const Operation kOperations[] = {
    {"ConfigureFwdAndAccChannel", {true, "as it is"}, kUnconfigured},
    {"ReConfigureFwdAndAccChannel", {true, Value()}, kUnreconfigured, 1},
    {"ReConfigureFwdAndAccChannel", {true, Value()}, kUnreconfigured, 2},
    {"AcquireReverseTrafficChannel", {}, {"Reverse Traffic acquisition failed."}},
    {"LowerLevel", {1.0F, i16(1)}},
    {"StartSessionNegotiationFromAN",
     {},
     {"Configuration Response Message could not be created.",
      "ConfigurationComplete Message not received from the Access Terminal."}},
    {"EndSessionNegotiationFromAN", {i16(0)}},
    {"EnableFading", {}, {"Could not create objects for RadioChannelVelocity and RadioChannelPaths."}},
    {"SetGainAndDelay", {i16(1), 1.0, 2.25}},
    {"DestoyFadingObjects", {}, {"Could not create objects for RadioChannelEmulator"}},
    {"NegotiateFTAP", {true, false, true, false}},
    {"SendFTAPClearStats"},
    {"EnableFTAPTestPktFlow"},
};

/// A sector on which every operation can run.
struct ReadySector : SimulatedSector {
  ReadySector() {
    sector->call("ConfigureFwdAndAccChannel", false, Value());
    sector->call("EnableFading");
    part("ProtocolController")->let("FTAPTestPktTxAutoOn", true);
    wire.take_calls();
  }
};

bool is_expected(const Raised& raised, const Operation& operation) {
  if (raised.number != 1) return raised.number != 0 && raised.number != 999;
  return std::count(operation.texts.begin(), operation.texts.end(), raised.description) > 0;
}

/// Whether the library looks at what the call returned.
bool is_looked_at(const TestSetMember* member) {
  return member != nullptr && member->type != ValueType::Empty && member->type != ValueType::Any;
}

TEST(Sector, AnyFailingCallIsRaisedAndNothingIsUndone) {
  for (const Operation& operation : kOperations) {
    ReadySector good;
    operation.run(good);
    const Calls calls = good.wire.calls;
    for (const Trouble trouble : {Trouble::Raises, Trouble::LacksMember, Trouble::WrongType, Trouble::ReturnsNothing}) {
      for (std::size_t i = 0; i < calls.size(); ++i) {
        const bool fails_itself = trouble == Trouble::Raises || trouble == Trouble::LacksMember;
        if (!fails_itself && !is_looked_at(good.wire.members[i])) continue;
        SCOPED_TRACE(std::string(operation.name) + ": " + calls[i]);
        ReadySector s;
        s.wire.at_call = i;
        s.wire.trouble = trouble;
        const Raised raised = listed(*s.sector, raised_by([&] { operation.run(s); }));
        EXPECT_TRUE(is_expected(raised, operation)) << testing::PrintToString(raised);
        EXPECT_EQ(s.wire.take_calls(), Calls(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(i) + 1));
        s.wire.trouble = Trouble::None;
        s.test_set->call("Sleep", 10.0);  // until what is on its way has come to nothing
        EXPECT_EQ(raised_by([&] { operation.run(s); }), Raised{});
      }
    }
  }
}

TEST(Sector, AMissingObjectIsAnError) {
  for (const char* property : SimulatedSector::kObjects) {
    int failed = 0;
    for (const Operation& operation : kOperations) {
      SCOPED_TRACE(std::string(operation.name) + " without " + property);
      ReadySector s;
      s.sector->set(property, Ref<Object>());
      const Raised raised = raised_by([&] { operation.run(s); });
      if (raised == Raised{}) continue;
      ++failed;
      EXPECT_TRUE(is_expected(raised, operation)) << testing::PrintToString(raised);
    }
    EXPECT_GT(failed, 0) << property;
  }
  SimulatedSector s;
  s.sector->set("PRobj_EvSignalling", Ref<Object>());
  EXPECT_EQ(s.raised("SendFTAPClearStats"),
            (Raised{91, "SB_Sector.SendFTAPClearStats",
                    "Object variable or With block variable not set: PRobj_EvSignalling"}));
  const Raised expected{1, "SB_Sector.PRobj_GlobalParameters",
                        "Global Parameters object not set to the Sector. Please set <PRobj_GlobalParameters> property "
                        "first."};
  s.sector->set("PRobj_GlobalParameters", Ref<Object>());
  EXPECT_EQ(raised_by([&] { s.sector->get("PRobj_GlobalParameters"); }), expected);
  EXPECT_EQ(s.raised("ConfigureFwdAndAccChannel", true, Value()), expected);
  EXPECT_EQ(s.raised("LowerLevel", 1.0F, i16(1)), expected);
  EXPECT_EQ(s.wire.calls, Calls{});
}

TEST(Sector, TellsIdentifiersAndCorrectsLengths) {
  struct Case {
    const char* bits;
    std::int32_t width;
    std::int32_t maximum;
    bool valid;
    const char* corrected;
  };
  SimulatedSector s;
  s.parameters->let("PRstr_UATI", std::string(96, '1') + "00000000000000000000000100000001");
  EXPECT_EQ(s.sector->get("PRint_GetATI").to_long(), 257);
  EXPECT_EQ(s.fake.debug->lines.back(), "Sector_1x::lngATI ---------------------------- index = 257");
  for (const Case& c : {Case{"101", 8, 5, true, "00000101"}, Case{"00000101", 3, 5, true, "101"},
                        Case{"110", 8, 5, false, "110"}, Case{"", 2, 0, true, "00"}}) {
    std::array<Value, 3> arguments{c.bits, c.width, c.maximum};
    EXPECT_EQ(s.sector->invoke("ValidateAndCorrectLength", Access::Call, arguments).to_boolean(), c.valid);
    EXPECT_EQ(arguments[0].to_text(), c.corrected);
  }
  EXPECT_EQ(error_number([&] { s.sector->call("ValidateAndCorrectLength", "101", 2, 7); }), 1);
}

TEST(Sector, CallsMembersByTheLaboratorysNames) {
  struct Case {
    const char* section;
    Raised raised;
  };
  const auto about = [](const std::string& role, const char* fault) {
    return Raised{1, "TestSetMembers", "\"" + role + "\" in section TestSetMembers " + fault};
  };
  const Case cases[] = {
      // The table of members does not know the new name: it arrives at the test set and is refused there.
      {"[TestSetMembers]\napply = DoApply\n",
       {438, "TestSet", "Object doesn't support this property or method: DoApply"}},
      {"[TestSetMembers]\nAply = X\n", about("Aply", "is no role of a test set's member.")},
      {"[TestSetMembers]\nChannelItem = X\n", about("ChannelItem", "has a name that cannot be changed.")},
      {"[TestSetMembers]\nApply =\n", about("Apply", "has no name.")},
      {"[SECTOR 0]\n", {}},
  };
  SimulatedSector s;
  const auto enable_with = [&](const char* section) {
    const TemporaryFolder folder;
    s.parameters->let("PRstr_FileName", folder.write("sector.ini", section).string());
    s.sector->set("PRobj_GlobalParameters", s.parameters);
    return s.raised("Enable");
  };
  for (const Case& c : cases) EXPECT_EQ(enable_with(c.section), c.raised);
  EXPECT_EQ(enable_with("[TestSetMembers]\nno line of a section\n").number, 75);
  EXPECT_EQ(s.wire.calls, Calls{"ApplyChanges(0|Nothing|0)"});
}

}  // namespace
}  // namespace vorlan::test
