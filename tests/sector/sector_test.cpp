// SB_Sector against the test set that records: what each operation asks of it, every call failing in turn, every object
// missing, names changed.
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
  Calls calls{};  ///< empty: listed by a test of its own
};

const Operation kOperations[] = {
    {"ConfigureFwdAndAccChannel",
     [](SectorFixture& f) { f.sector->call("ConfigureFwdAndAccChannel", true, "as it is"); },
     {"Forward Channel could not be configured.", "Access Channel could not be configured."},
     {"FCH.Item(FC_SECTOR 0)", "FC_SECTOR 0.Configure(12|101|102|103|104|76.8|105|106|107|108|109|as it is)",
      "FC_SECTOR 0.SlotContentsState=True", "FC_SECTOR 0.Level=-55.5", "FC_SECTOR 0.RPCDRCLockEc_Ior=-7.25",
      "FC_SECTOR 0.Ec_Ior=-9.5", "Report.AddText(Forward Channel for Master Sector0 configured with Ior = -55.5)",
      "FCH.Apply()", "ACH.Add(ACH_SECTOR 0|5|17)", "ACH_SECTOR 0.AttachToForwardChannel(<FC_SECTOR 0>)",
      "RTC.PropagationDelay=120", "RTC.FrameOffset=9", "ACH.Apply()", "Report.AddText(Access Channel configured.)"}},
    {"ReConfigureFwdAndAccChannel",
     [](SectorFixture& f) {
       f.test_subtype(1);
       f.sector->call("ReConfigureFwdAndAccChannel", false, Value());
     },
     {"Forward Channel could not be reconfigured."},
     {"FCH.Item(ST1_FC_SECTOR 0)", "ST1_FC_SECTOR 0.Configure(12|101|102|103|104|76.8|105|106|107|108|109|Empty)",
      "ST1_FC_SECTOR 0.SlotContentsState=True", "ST1_FC_SECTOR 0.Level=-55.5", "ST1_FC_SECTOR 0.RPCDRCLockEc_Ior=-7.25",
      "ST1_FC_SECTOR 0.Ec_Ior=-9.5", "Report.AddText(Forward Channel for Master Sector0 configured with Ior = -55.5)",
      "FCH.Apply()"}},
    {"ReConfigureFwdAndAccChannel",
     [](SectorFixture& f) {
       f.parameters->let("PRint_ScriptPersonality", std::int16_t{1});
       f.parameters->call("Set_PhyLaySubType", "", std::int16_t{1}, std::int16_t{2});
       f.sector->call("ReConfigureFwdAndAccChannel", true, Value());
     },
     {"Forward Channel could not be reconfigured.", "Access Channel could not be reconfigured."},
     {"FCH.Item(ST2_FC_SECTOR 0)", "ST2_FC_SECTOR 0.Configure(12|101|110|103|104|76.8|105|106|107|108|109|Empty)",
      "ST2_FC_SECTOR 0.ARQMode=True", "ST2_FC_SECTOR 0.Level=-55.5", "ST2_FC_SECTOR 0.RPCDRCLockEc_Ior=-7.25",
      "ST2_FC_SECTOR 0.Ec_Ior=-9.5", "ST2_FC_SECTOR 0.ARQEc_Ior=-11.5",
      "Report.AddText(Forward Channel for Master Sector0 configured with Ior = -55.5)", "FCH.Apply()",
      "ACH2.Add(ST2_ACH_SECTOR 0|5|17)", "ST2_ACH_SECTOR 0.AttachToForwardChannel(<ST2_FC_SECTOR 0>)",
      "RTC2.PropagationDelay=120", "RTC2.FrameOffset=9", "ACH2.Apply()", "Report.AddText(Access Channel configured.)"}},
    {"AcquireReverseTrafficChannel",
     [](SectorFixture& f) { f.sector->call("AcquireReverseTrafficChannel"); },
     {"Reverse Traffic acquisition failed."},
     {"RTC.Acquire(750)", "RTC.Acquired", "Report.AddText(Reverse Traffic Channel acquired)"}},
    {"LowerLevel",
     [](SectorFixture& f) { f.sector->call("LowerLevel", 1.0F, std::int16_t{1}); },
     {},
     {"FC_SECTOR 0.Level", "FC_SECTOR 0.Level=-61", "TestSet.ApplyChanges(0|Nothing|0)"}},
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
     {"Could not create objects for RadioChannelVelocity and RadioChannelPaths."},
     {"Emulator.Velocity", "Emulator.Paths", "Velocity.ReferenceVelocity=30", "Paths.Item(Path1)",
      "Path1.ConnectToForwardChannel(<FC_SECTOR 0>)", "Paths.Item(Path2)",
      "Path2.ConnectToForwardChannel(<FC_SECTOR 0>)", "Report.AddText(Configured: 2 path/s for Sector: SECTOR 0)",
      "Report.AddText(The Velocity set at the BaseStation is: 30Km/hr )", "Emulator.Enabled=True",
      "Report.AddText(Fading has been enabled )"}},
    {"SetGainAndDelay",
     [](SectorFixture& f) { f.sector->call("SetGainAndDelay", std::int16_t{1}, 1.0, 2.25); },
     {},
     {"Path1.Gain=1", "Path1.Delay=2.25"}},
    {"DestoyFadingObjects",
     [](SectorFixture& f) { f.sector->call("DestoyFadingObjects"); },
     {"Could not create objects for RadioChannelEmulator"},
     {"Report.AddText(Destroyed: 2 Path/s configured for Sector: SECTOR 0)", "Emulator.Reset()"}},
    {"NegotiateFTAP",
     [](SectorFixture& f) {
       f.parameters->let("PRstr_TAS_DRCValue", "00001100");
       f.sector->call("NegotiateFTAP", true, false, true, false);
     },
     {},
     {"Sig.CreateMessageObject()", "Sig.CreateMessageObject()", "Controller.FTAPTestPktTxAutoOn=True",
      "Sig.SendAndWait(FTAPAssign|3|1|[00 01 02 00 0C 02 02 01]|21|0|2|40|0|FTAPComplete|1|150)",
      "Sig.SendAndWait(FTAPClearReq|3|1|[02 00 04 05 06]|21|0|2|40|0|FTAPClearRes|3|250)", "Sig.Messages",
      "Messages.Remove(FTAPClearRes)", "Messages.Remove(FTAPAssign)", "Messages.Remove(FTAPComplete)",
      "Messages.Remove(FTAPClearReq)"}},
    {"SendFTAPClearStats",
     [](SectorFixture& f) { f.sector->call("SendFTAPClearStats"); },
     {},
     {"Sig.CreateMessageObject()", "Sig.SendAndWait(FTAPClearReq|3|1|[02 00 04 05 06]|21|0|2|40|0|FTAPClearRes|3|250)",
      "Sig.Messages", "Messages.Remove(FTAPClearRes)", "Messages.Remove(FTAPClearReq)"}},
    {"EnableFTAPTestPktFlow",
     [](SectorFixture& f) { f.sector->call("EnableFTAPTestPktFlow"); },
     {},
     {"Controller.FTAPTestPktTxAutoOn", "Controller.StartFTAPTestPktTx=True"}},
    {"DisableFTAPTestPktFlow",
     [](SectorFixture& f) { f.sector->call("DisableFTAPTestPktFlow"); },
     {},
     {"Controller.FTAPTestPktTxAutoOn", "Controller.StartFTAPTestPktTx=False"}},
};

/// A sector on which every operation can run.
struct ReadySector : SectorFixture {
  ReadySector() {
    sector->set("PRobj_SubType2RevTrafficChannel", Ref<Object>(guest(TestSetObject::ReverseTrafficChannel, "RTC2")));
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

TEST(Sector, AnyFailingCallIsRaisedAndNothingIsUndone) {
  for (const Operation& operation : kOperations) {
    ReadySector good;
    operation.run(good);
    const Calls calls = good.trace.calls;
    const auto members = good.trace.members;
    EXPECT_EQ(calls, operation.calls.empty() ? calls : operation.calls);
    for (const Trouble trouble : {Trouble::Raises, Trouble::LacksMember, Trouble::WrongType, Trouble::ReturnsNothing}) {
      for (std::size_t i = 0; i < calls.size(); ++i) {
        const bool fails_itself = trouble == Trouble::Raises || trouble == Trouble::LacksMember;
        if (!fails_itself && !is_looked_at(members[i])) continue;
        SCOPED_TRACE(std::string(operation.name) + ": " + calls[i]);
        ReadySector f;
        f.trace.at_call = i;
        f.trace.trouble = trouble;
        const Raised raised = raised_by([&] { operation.run(f); });
        EXPECT_TRUE(is_expected(raised, operation)) << testing::PrintToString(raised);
        EXPECT_EQ(f.take_calls(), Calls(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(i) + 1));
        f.trace.trouble = Trouble::None;
        EXPECT_EQ(raised_by([&] { operation.run(f); }), Raised{});
      }
    }
  }
}

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
  const Raised expected{1, "SB_Sector.PRobj_GlobalParameters",
                        "Global Parameters object not set to the Sector. Please set <PRobj_GlobalParameters> property "
                        "first."};
  f.sector->set("PRobj_GlobalParameters", Ref<Object>());
  EXPECT_EQ(raised_by([&] { f.sector->get("PRobj_GlobalParameters"); }), expected);
  EXPECT_EQ(raised_by([&] { f.sector->call("ConfigureFwdAndAccChannel", true, Value()); }), expected);
  EXPECT_EQ(raised_by([&] { f.sector->call("AcquireReverseTrafficChannel"); }), expected);
  EXPECT_EQ(f.take_calls(), Calls{});
}

TEST(Sector, TellsIdentifiersAndCorrectsLengths) {
  struct Case {
    const char* bits;
    std::int32_t width;
    std::int32_t maximum;
    bool valid;
    const char* corrected;
  };
  SectorFixture f;
  EXPECT_EQ(f.sector->get("PRint_GetATI").to_long(), 257);
  EXPECT_EQ(f.debug_lines().back(), "Sector_1x::lngATI ---------------------------- index = 257");
  for (const Case& c : {Case{"101", 8, 5, true, "00000101"}, Case{"00000101", 3, 5, true, "101"},
                        Case{"110", 8, 5, false, "110"}, Case{"", 2, 0, true, "00"}}) {
    std::array<Value, 3> arguments{c.bits, c.width, c.maximum};
    EXPECT_EQ(f.sector->invoke("ValidateAndCorrectLength", Access::Call, arguments).to_boolean(), c.valid);
    EXPECT_EQ(arguments[0].to_text(), c.corrected);
  }
  EXPECT_EQ(error_number([&] { f.sector->call("ValidateAndCorrectLength", "101", 2, 7); }), 1);
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
  SectorFixture f;
  const auto enable_with = [&](const char* section) {
    const TemporaryFolder folder;
    f.parameters->let("PRstr_FileName", folder.write("sector.ini", section).string());
    f.sector->set("PRobj_GlobalParameters", Ref<Object>(f.parameters));
    return raised_by([&] { f.sector->call("Enable"); });
  };
  for (const Case& c : cases) EXPECT_EQ(enable_with(c.section), c.raised);
  EXPECT_EQ(enable_with("[TestSetMembers]\nno line of a section\n").number, 75);
  EXPECT_EQ(f.take_calls(), Calls{"TestSet.ApplyChanges(0|Nothing|0)"});
}

}  // namespace
}  // namespace vorlan::test
