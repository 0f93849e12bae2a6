// What SB_Sector asks of the test set for its channels and levels.
#include "automation/error.hpp"
#include "sector/sector_fixture.hpp"

namespace vorlan::test {
namespace {

TEST(SectorChannels, ConfiguresForwardAndAccessChannel) {
  SectorFixture f;
  f.sector->let("PRstr_SectorName", "SECTOR 4");
  const Value forward = f.sector->call("ConfigureFwdAndAccChannel", true, "as it is");
  EXPECT_EQ(
      f.take_calls(),
      (Calls{"FCH.Item(FC_SECTOR 4)", "FC_SECTOR 4.Configure(12|101|102|103|104|76.8|105|106|107|108|109|as it is)",
             "FC_SECTOR 4.SlotContentsState=True", "FC_SECTOR 4.Level=-55.5", "FC_SECTOR 4.RPCDRCLockEc_Ior=-7.25",
             "FC_SECTOR 4.Ec_Ior=-9.5", "Report.AddText(Forward Channel for Slave Sector1 configured with Ior = -55.5)",
             "FCH.Apply()", "ACH.Add(ACH_SECTOR 4|5|17)", "ACH_SECTOR 4.AttachToForwardChannel(<FC_SECTOR 4>)",
             "RTC.PropagationDelay=120", "RTC.FrameOffset=9", "ACH.Apply()",
             "Report.AddText(Access Channel configured.)"}));
  EXPECT_EQ(forward, f.sector->get("PRobj_ForwardChannel"));
  EXPECT_FALSE(f.sector->get("PRbln_SubType2ForwardChannelConfigured").to_boolean());
}

TEST(SectorChannels, ReconfiguresTheChannelsOfTheCurrentSubtype) {
  SectorFixture f;
  f.test_subtype(1);
  f.sector->call("ReConfigureFwdAndAccChannel", false, Value());
  EXPECT_EQ(f.take_calls(),
            (Calls{"FCH.Item(ST1_FC_SECTOR 0)",
                   "ST1_FC_SECTOR 0.Configure(12|101|102|103|104|76.8|105|106|107|108|109|Empty)",
                   "ST1_FC_SECTOR 0.SlotContentsState=True", "ST1_FC_SECTOR 0.Level=-55.5",
                   "ST1_FC_SECTOR 0.RPCDRCLockEc_Ior=-7.25", "ST1_FC_SECTOR 0.Ec_Ior=-9.5",
                   "Report.AddText(Forward Channel for Master Sector0 configured with Ior = -55.5)", "FCH.Apply()"}));
  // Subtype 2 follows from the configuration, until a script sets another.
  SectorFixture g;
  g.parameters->let("PRint_ScriptPersonality", std::int16_t{1});
  g.parameters->call("Set_PhyLaySubType", "", std::int16_t{1}, std::int16_t{2});
  g.sector->set("PRobj_SubType2RevTrafficChannel", Ref<Object>(g.guest(TestSetObject::ReverseTrafficChannel, "RTC2")));
  g.sector->call("ReConfigureFwdAndAccChannel", true, Value());
  EXPECT_EQ(
      g.take_calls(),
      (Calls{"FCH.Item(ST2_FC_SECTOR 0)",
             "ST2_FC_SECTOR 0.Configure(12|101|110|103|104|76.8|105|106|107|108|109|Empty)",
             "ST2_FC_SECTOR 0.ARQMode=True", "ST2_FC_SECTOR 0.Level=-55.5", "ST2_FC_SECTOR 0.RPCDRCLockEc_Ior=-7.25",
             "ST2_FC_SECTOR 0.Ec_Ior=-9.5", "ST2_FC_SECTOR 0.ARQEc_Ior=-11.5",
             "Report.AddText(Forward Channel for Master Sector0 configured with Ior = -55.5)", "FCH.Apply()",
             "ACH2.Add(ST2_ACH_SECTOR 0|5|17)", "ST2_ACH_SECTOR 0.AttachToForwardChannel(<ST2_FC_SECTOR 0>)",
             "RTC2.PropagationDelay=120", "RTC2.FrameOffset=9", "ACH2.Apply()",
             "Report.AddText(Access Channel configured.)"}));
  EXPECT_TRUE(g.sector->get("PRbln_SubType2ForwardChannelConfigured").to_boolean());
}

TEST(SectorChannels, OnlySubtypes1And2AreReconfigured) {
  for (const std::int16_t subtype : std::array<std::int16_t, 3>{0, 3, -1}) {
    SectorFixture f;
    f.test_subtype(subtype);
    EXPECT_EQ(raised_by([&] { f.sector->call("ReConfigureFwdAndAccChannel", true, Value()); }),
              (Raised{1, "SB_Sector.ReConfigureFwdAndAccChannel", "Forward Channel could not be reconfigured."}));
    EXPECT_FALSE(f.sector->call("ReConfigureAccessChannel", Value()).to_boolean());
    EXPECT_EQ(f.take_calls(), Calls{});
  }
}

TEST(SectorChannels, AGivenForwardChannelReplacesTheSectorsOwn) {
  SectorFixture f;
  const Ref<Object> other = f.guest(TestSetObject::ForwardChannel, "Other");
  EXPECT_TRUE(f.sector->call("ConfigureAccessChannel", other).to_boolean());
  EXPECT_EQ(f.take_calls()[1], "ACH_SECTOR 0.AttachToForwardChannel(<Other>)");
  EXPECT_TRUE(f.sector->call("ConfigureAccessChannel", Ref<Object>()).to_boolean());
  EXPECT_EQ(f.take_calls()[1], "ACH_SECTOR 0.AttachToForwardChannel(<Other>)");
  EXPECT_EQ(error_number([&] { f.sector->call("ConfigureAccessChannel", "no channel"); }), 13);
}

TEST(SectorChannels, LabelsComeFromTheNamesLastCharacter) {
  struct Case {
    const char* name;
    const char* label;
  };
  for (const Case& c :
       {Case{"SECTOR 2", "Master Sector2"}, Case{"SECTOR 3", "Slave Sector0"}, Case{"SECTOR 5", "Slave Sector2"}}) {
    SectorFixture f;
    f.sector->let("PRstr_SectorName", c.name);
    f.sector->call("ConfigureFwdAndAccChannel", false, Value());
    EXPECT_EQ(f.trace.calls[6],
              "Report.AddText(Forward Channel for " + std::string(c.label) + " configured with Ior = -55.5)");
  }
  SectorFixture f;
  f.sector->let("PRstr_SectorName", "SECTOR X");
  EXPECT_EQ(raised_by([&] { f.sector->call("ConfigureFwdAndAccChannel", false, Value()); }),
            (Raised{1, "SB_Sector.ConfigureFwdAndAccChannel", "Forward Channel could not be configured."}));
}

TEST(SectorChannels, AcquiresTheReverseTrafficChannel) {
  SectorFixture f;
  EXPECT_TRUE(f.sector->call("AcquireReverseTrafficChannel").to_boolean());
  EXPECT_EQ(f.take_calls(),
            (Calls{"RTC.Acquire(750)", "RTC.Acquired", "Report.AddText(Reverse Traffic Channel acquired)"}));
  f.reverse->answer("Acquired", false);
  EXPECT_FALSE(f.sector->call("AcquireReverseTrafficChannel").to_boolean());
  EXPECT_EQ(f.take_calls().size(), 2U);
  f.reverse->answer("Acquire", false);
  EXPECT_EQ(raised_by([&] { f.sector->call("AcquireReverseTrafficChannel"); }),
            (Raised{1, "SB_Sector.AcquireReverseTrafficChannel", "Reverse Traffic acquisition failed."}));
  EXPECT_EQ(f.take_calls(), Calls{"RTC.Acquire(750)"});
  // Whoever cancels the wait is told so, not that the acquisition failed.
  f.reverse->answers["Acquire"] = [](std::span<Value>) -> Value { throw Error(18, {}, "User interrupt occurred"); };
  EXPECT_EQ(raised_by([&] { f.sector->call("AcquireReverseTrafficChannel"); }).number, 18);
}

TEST(SectorChannels, CleanUpRemovesWhatIsThere) {
  SectorFixture f;
  f.sector->call("ConfigureFwdAndAccChannel", true, Value());
  f.take_calls();
  f.access1->answers["Remove"] = [](std::span<Value>) -> Value { throw Error(ErrorNumber::SubscriptOutOfRange); };
  f.forward->answers["Remove"] = [](std::span<Value> key) -> Value {
    if (key[0].to_text() == "ST1_FC_SECTOR 0") throw Error(1000, "TestSet", "broken");
    return {};
  };
  f.sector->set("PRobj_SubType2AccChCollection", Ref<Object>());
  // What can be removed is removed before the failure is raised.
  EXPECT_EQ(raised_by([&] { f.sector->call("CleanUp"); }), (Raised{1000, "TestSet", "broken"}));
  EXPECT_EQ(f.take_calls(),
            (Calls{"FCH.Remove(FC_SECTOR 0)", "FCH.Remove(ST1_FC_SECTOR 0)", "FCH.Remove(ST2_FC_SECTOR 0)",
                   "ACH.Remove(ACH_SECTOR 0)", "ACH1.Remove(ST1_ACH_SECTOR 0)"}));
  EXPECT_EQ(f.sector->get("PRobj_ForwardChannel"), Value(Ref<Object>()));
}

struct LevelCase {
  const char* operation;
  float level;
  const char* written;  ///< null: refused
};

TEST(SectorLevels, TheLevelBeforeTheStepDecides) {
  for (const LevelCase& c :
       {LevelCase{"RaiseLevel", -50, "FC_SECTOR 0.Level=-40"}, LevelCase{"RaiseLevel", -51, "FC_SECTOR 0.Level=-41"},
        LevelCase{"RaiseLevel", -49.5F, nullptr}, LevelCase{"LowerLevel", -120, "FC_SECTOR 0.Level=-130"},
        LevelCase{"LowerLevel", -120.5F, nullptr}, LevelCase{"LowerLevel", 0, "FC_SECTOR 0.Level=-10"}}) {
    SCOPED_TRACE(std::string(c.operation) + " from " + Value(c.level).to_text());
    SectorFixture f;
    f.sector->call("ConfigureFwdAndAccChannel", false, Value());
    dynamic_cast<Guest&>(*f.sector->get("PRobj_ForwardChannel").to_object()).answer("Level", c.level);
    f.take_calls();
    const bool raise = c.operation == std::string("RaiseLevel");
    const Raised raised = raised_by([&] { f.sector->call(c.operation, 10.0F, std::int16_t{32}); });
    if (c.written == nullptr) {
      EXPECT_EQ(raised, raise ? (Raised{1, "SB_Sector.RaiseLevel", "Power level cannot be raised above -50 dB"})
                              : (Raised{1, "SB_Sector.LowerLevel", "Power level cannot be reduced below -120 dB"}));
      EXPECT_EQ(f.take_calls(), Calls{"FC_SECTOR 0.Level"});
    } else {
      EXPECT_EQ(raised, Raised{});
      EXPECT_EQ(f.take_calls(), (Calls{"FC_SECTOR 0.Level", c.written, "TestSet.ApplyChanges(0|Nothing|0)"}));
      EXPECT_EQ(f.system.clock->passed, std::chrono::seconds(32));
    }
  }
}

TEST(SectorLevels, ASettleTimeOf33SecondsOverflowsAfterTheStep) {
  SectorFixture f;
  f.sector->call("ConfigureFwdAndAccChannel", false, Value());
  dynamic_cast<Guest&>(*f.sector->get("PRobj_ForwardChannel").to_object()).answer("Level", -60.0F);
  f.take_calls();
  EXPECT_EQ(error_number([&] { f.sector->call("RaiseLevel", 1.0F, std::int16_t{33}); }), 6);
  EXPECT_EQ(f.take_calls(), (Calls{"FC_SECTOR 0.Level", "FC_SECTOR 0.Level=-59", "TestSet.ApplyChanges(0|Nothing|0)"}));
  EXPECT_EQ(f.system.clock->passed.count(), 0);
  EXPECT_TRUE(f.sector->call("LowerLevel", 1.0F, std::int16_t{-1}).to_boolean());
  EXPECT_EQ(f.system.clock->passed.count(), 0);
}

TEST(SectorLevels, Personality1StepsTheChannelOfItsSubtype) {
  SectorFixture f;
  f.test_subtype(2);
  f.sector->call("ReConfigureFwdAndAccChannel", false, Value());
  dynamic_cast<Guest&>(*f.sector->get("PRobj_SubType2ForwardChannel").to_object()).answer("Level", -60.0F);
  f.take_calls();
  f.sector->call("LowerLevel", 0.5F, std::int16_t{0});
  EXPECT_EQ(f.take_calls()[1], "ST2_FC_SECTOR 0.Level=-60.5");
  f.test_subtype(0);  // has no channel of its own: nothing changes
  EXPECT_TRUE(f.sector->call("LowerLevel", 0.5F, std::int16_t{0}).to_boolean());
  EXPECT_EQ(f.take_calls(), Calls{"TestSet.ApplyChanges(0|Nothing|0)"});
  f.sector->set("PRobj_TestSet", Ref<Object>());
  f.sector->set("PRobj_ParentTestSet", Ref<Object>(f.test_set));
  f.sector->call("Enable");
  EXPECT_EQ(f.take_calls(), Calls{"TestSet.ApplyChanges(0|Nothing|0)"});
}

}  // namespace
}  // namespace vorlan::test
