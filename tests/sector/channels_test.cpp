// What SB_Sector asks of the test set for its channels, levels, fading and test packets.
#include "sector/simulated_sector.hpp"

namespace vorlan::test {
namespace {

Raised refused(const std::string& operation, const std::string& text) { return {1, "SB_Sector." + operation, text}; }

TEST(SectorChannels, TakeTheirSettingsFromTheConfiguration) {
  SimulatedSector s;
  const std::pair<std::string, int> integers[] = {
      {"PropagationDelay", 100}, {"MACIndex", 20},     {"MACIndex_SubType2", 70}, {"DRCCover", 5},
      {"HandoffDelay", 8},       {"CCOffset", 2},      {"RABLength", 3},          {"RABOffset", 6},
      {"DRCLockPeriod", 0},      {"DRCLockLength", 1}, {"FrameOffset", 9},        {"RevTCHPropagationDelay", 120}};
  for (const auto& [name, value] : integers) s.parameters->let("PRint_" + name, value);
  s.parameters->let("PRstr_SectorID", "11111111000000000000000000000101");
  s.parameters->let("PRbln_SlotContentsState", true);
  s.parameters->let("PRsin_Ior", -55.5F);
  s.parameters->let("PRdbl_MAC_RPC_DRCLock_Channel_Ec_Ior", -7.25);
  s.parameters->let("PRdbl_MacRACEc_Ior", -9.5);
  s.parameters->let("PRdbl_MacARQEc_Ior", -11.5);
  s.sector->call("ConfigureFwdAndAccChannel", true, "as it is");
  EXPECT_EQ(s.wire.take_calls(),
            (Calls{"Item(FC_SECTOR 0)", "Configure(12|100|20|5|8|76.8|2|3|6|0|1|as it is)", "SlotContentsState=True",
                   "Level=-55.5", "RPCDRCLockEc_Ior=-7.25", "Ec_Ior=-9.5",
                   "AddText(Forward Channel for Master Sector0 configured with Ior = -55.5)", "Apply()",
                   "Add(ACH_SECTOR 0|5|16)", "AttachToForwardChannel(<FC_SECTOR 0>)", "PropagationDelay=120",
                   "FrameOffset=9", "Apply()", "AddText(Access Channel configured.)"}));
  const auto reverse = s.part("ReverseTrafficChannels")->call("Item", "ST2_RTC_SECTOR 0").to_object();
  s.sector->set("PRobj_SubType2RevTrafficChannel", s.tapped(reverse));
  s.parameters->let("PRint_ScriptPersonality", i16(1));
  s.parameters->call("Set_PhyLaySubType", "", i16(1), i16(2));
  s.sector->call("ReConfigureFwdAndAccChannel", true, Value());
  EXPECT_TRUE(s.sector->get("PRbln_SubType2ForwardChannelConfigured").to_boolean());
  EXPECT_EQ(s.wire.take_calls(),
            (Calls{"Item(ST2_FC_SECTOR 0)", "Configure(12|100|70|5|8|76.8|2|3|6|0|1|Empty)", "ARQMode=True",
                   "Level=-55.5", "RPCDRCLockEc_Ior=-7.25", "Ec_Ior=-9.5", "ARQEc_Ior=-11.5",
                   "AddText(Forward Channel for Master Sector0 configured with Ior = -55.5)", "Apply()",
                   "Add(ST2_ACH_SECTOR 0|5|16)", "AttachToForwardChannel(<ST2_FC_SECTOR 0>)", "PropagationDelay=120",
                   "FrameOffset=9", "Apply()", "AddText(Access Channel configured.)"}));
  EXPECT_EQ(reverse->get("FrameOffset").to_integer(), 9);
}

TEST(SectorChannels, OnlySubtypes1And2AreReconfigured) {
  for (const int subtype : {0, 3, -1}) {
    SimulatedSector s;
    s.test_subtype(subtype);
    EXPECT_EQ(s.raised("ReConfigureFwdAndAccChannel", true, Value()),
              refused("ReConfigureFwdAndAccChannel", "Forward Channel could not be reconfigured."));
    EXPECT_FALSE(s.sector->call("ReConfigureAccessChannel", Value()).to_boolean());
    EXPECT_EQ(s.wire.calls, Calls{});
  }
}

TEST(SectorChannels, AGivenForwardChannelReplacesTheSectorsOwn) {
  SimulatedSector s;
  for (const Ref<Object>& given : {s.tapped(s.forward_channel("FC_SECTOR 1")), Ref<Object>()}) {
    EXPECT_TRUE(s.sector->call("ConfigureAccessChannel", given).to_boolean());
    EXPECT_EQ(s.wire.take_calls()[1], "AttachToForwardChannel(<FC_SECTOR 1>)");
  }
  EXPECT_EQ(error_number([&] { s.sector->call("ConfigureAccessChannel", "no channel"); }), 13);
}

TEST(SectorChannels, LabelsComeFromTheNamesLastCharacter) {
  SimulatedSector s;
  for (const auto& [name, label] :
       {std::pair{"SECTOR 2", "Master Sector2"}, {"SECTOR 3", "Slave Sector0"}, {"SECTOR 5", "Slave Sector2"}}) {
    s.sector->let("PRstr_SectorName", name);
    const Value channel = s.sector->call("ConfigureFwdAndAccChannel", false, Value());
    EXPECT_EQ(channel, s.sector->get("PRobj_ForwardChannel"));
    EXPECT_EQ(s.report(), "Forward Channel for " + std::string(label) + " configured with Ior = -60\n");
    s.part("TestReport")->call("Clear");
  }
  s.sector->let("PRstr_SectorName", "SECTOR X");
  EXPECT_EQ(s.raised("ConfigureFwdAndAccChannel", false, Value()),
            refused("ConfigureFwdAndAccChannel", "Forward Channel could not be configured."));
}

TEST(SectorChannels, AReverseChannelThatIsNotAcquired) {
  SimulatedSector s;
  const auto acquire = [&] { return s.sector->call("AcquireReverseTrafficChannel").to_boolean(); };
  s.wire.answers["Acquired"] = false;
  EXPECT_FALSE(acquire());
  s.terminal->call("LeaveReverseChannel");
  s.terminal->let("AcquiresReverseChannel", false);
  EXPECT_EQ(s.raised("AcquireReverseTrafficChannel"),
            refused("AcquireReverseTrafficChannel", "Reverse Traffic acquisition failed."));
  EXPECT_EQ(s.report(), "");
  // Whoever cancels the wait is told so, not that the acquisition failed.
  s.wire.take_calls();
  s.wire.trouble = Trouble::Raises;
  s.wire.failure = Error(18, {}, "User interrupt occurred");
  EXPECT_EQ(error_number(acquire), 18);
}

TEST(SectorChannels, CleanUpRemovesWhatIsThere) {
  SimulatedSector s;
  s.sector->call("ConfigureFwdAndAccChannel", true, Value());
  s.wire.take_calls();
  s.wire.trouble = Trouble::Raises;
  s.sector->set("PRobj_SubType2AccChCollection", Ref<Object>());
  // What can be removed is removed before the failure is raised; that others are not there is none.
  EXPECT_EQ(raised_by([&] { s.sector->call("CleanUp"); }), (Raised{1000, "TestSet", "broken"}));
  EXPECT_EQ(s.wire.calls, (Calls{"Remove(FC_SECTOR 0)", "Remove(ST1_FC_SECTOR 0)", "Remove(ST2_FC_SECTOR 0)",
                                 "Remove(ACH_SECTOR 0)", "Remove(ST1_ACH_SECTOR 0)"}));
  EXPECT_EQ(s.part("AccessChannels")->get("Count").to_integer(), 0);
  EXPECT_EQ(s.sector->get("PRobj_ForwardChannel"), Value(Ref<Object>()));
}

TEST(SectorLevels, TheLevelBeforeTheStepDecides) {
  struct Case {
    const char* operation;
    float level;
    int settle;   ///< in seconds
    float after;  ///< the level before: refused
  };
  for (const Case& c :
       {Case{"RaiseLevel", -50, 32, -40}, Case{"RaiseLevel", -51, 33, -41}, Case{"RaiseLevel", -49.5F, 32, -49.5F},
        Case{"LowerLevel", -120, -1, -130}, Case{"LowerLevel", -120.5F, 32, -120.5F}, Case{"LowerLevel", 0, 32, -10}}) {
    SCOPED_TRACE(std::string(c.operation) + " from " + Value(c.level).to_text());
    SimulatedSector s;
    s.sector->call("ConfigureFwdAndAccChannel", false, Value());
    s.forward_channel()->let("Level", c.level);
    const Raised raised = s.raised(c.operation, 10.0F, i16(c.settle));
    EXPECT_EQ(s.forward_channel()->get("Level").to_single(), c.after);
    if (c.after == c.level) {
      EXPECT_EQ(raised, c.operation == std::string("RaiseLevel")
                            ? refused(c.operation, "Power level cannot be raised above -50 dB")
                            : refused(c.operation, "Power level cannot be reduced below -120 dB"));
    } else {
      EXPECT_EQ(raised.number, c.settle == 33 ? 6 : 0) << "33 s do not fit in milliseconds";
    }
    EXPECT_EQ(s.simulated->changes_applied(), c.after == c.level ? 0 : 1);
    EXPECT_EQ(s.now(), raised.number == 0 && c.settle > 0 ? 1000 * c.settle : 0);
  }
}

TEST(SectorLevels, Personality1UsesTheChannelOfItsSubtype) {
  SimulatedSector s;
  s.test_subtype(2);
  s.sector->call("ReConfigureFwdAndAccChannel", false, Value());
  s.sector->call("LowerLevel", 0.5F, i16(0));
  EXPECT_EQ(s.forward_channel("ST2_FC_SECTOR 0")->get("Level").to_single(), -60.5F);
  s.wire.take_calls();
  s.sector->call("EnableFading");
  EXPECT_EQ(s.wire.take_calls()[4], "ConnectToForwardChannel(<ST2_FC_SECTOR 0>)");
  s.test_subtype(0);  // has no channel of its own: nothing changes
  s.sector->set("PRobj_TestSet", Ref<Object>());
  s.sector->set("PRobj_ParentTestSet", s.tapped(s.test_set));
  EXPECT_TRUE(s.sector->call("LowerLevel", 0.5F, i16(0)).to_boolean());
  EXPECT_EQ(s.wire.calls, Calls{"ApplyChanges(0|Nothing|0)"});
}

TEST(SectorFading, SetsPathsThatAreThere) {
  SimulatedSector s;
  s.sector->call("ConfigureFwdAndAccChannel", false, Value());
  s.sector->call("EnableFading");
  s.wire.take_calls();
  const auto set = [&](int path, const Value& gain, const Value& delay) {
    return s.raised("SetGainAndDelay", i16(path), gain, delay);
  };
  EXPECT_EQ(set(2, -3.5, Null{}), Raised{});
  EXPECT_EQ(set(1, Value(), 2.25), Raised{});
  EXPECT_EQ(set(1, 1.0, "late").number, 13);
  EXPECT_EQ(set(3, 1.0, 1.0).number, 9);
  const auto path = [&](const char* key) {
    return s.part("RadioChannelEmulator")->get("Paths").to_object()->call("Item", key).to_object();
  };
  EXPECT_EQ(path("Path2")->get("ForwardChannel"), Value(s.forward_channel()));
  EXPECT_EQ(path("Path2")->get("Gain").to_single(), -3.5F);
  EXPECT_FALSE(path("Path3")->get("ForwardChannel").to_object());
  EXPECT_EQ(path("Path1")->get("Delay").to_single(), 2.25F);
  EXPECT_EQ(s.wire.take_calls().size(), 2U) << "nothing else was set";
  s.parameters->let("PRbln_FadingEnabled", false);
  EXPECT_EQ(set(1, 1.0, 1.0),
            refused("SetGainAndDelay", "This function will be called only when Fading is to be enabled"));
  for (const int count : {0, 9}) {  // connect none
    s.sector->let("PR_intNumPath", i16(count));
    s.sector->call("EnableFading");
    EXPECT_EQ(s.wire.take_calls()[3], "AddText(Configured: " + std::to_string(count) + " path/s for Sector: SECTOR 0)");
  }
  s.sector->set("PRobj_RadioChannelEmulator", Ref<Object>());
  EXPECT_EQ(s.raised("DestoyFadingObjects"),
            refused("DestoyFadingObjects:", "Could not create objects for RadioChannelEmulator"));
}

TEST(SectorFtap, ValuesOutOfRangeFailBeforeAnythingIsSent) {
  struct Case {
    const char* setting;
    const char* value;
    const char* text;
  };
  const Case cases[] = {
      {"PRstr_TAS_DRCValue", "00001101", "DRCValue invalid in script parameters. Valid range 0 to 12. "},
      {"PRstr_TAS_DRCCover", "00001000", "DRCCover invalid in script parameters. Valid range 0 to 7. "},
      {"PRstr_TAS_ACKChannelBit", "00000010", "Invalid ACKChannelBit in script parameters. Valid values 0 and 1. "},
      {"PRstr_TAS_LoopBackPersistence", "11111111",
       "Invalid LoopBackPersistence in script parameters. Valid values 0 and 1. "}};
  for (const Case& c : cases) {
    SimulatedSector s;
    s.parameters->let(c.setting, c.value);
    EXPECT_EQ(s.raised("NegotiateFTAP", true, true, true, true), refused("NegotiateFTAP", c.text));
    EXPECT_EQ(s.wire.take_calls("Send"), Calls{});
    EXPECT_TRUE(s.sector->call("NegotiateFTAP", false, false, false, false).to_boolean()) << "not among those sent";
  }
}

TEST(SectorFtap, CountsTransactionsAndLooksAtTheSwitch) {
  SimulatedSector s;
  s.sector->let("PRbln_FTAPTestPktTxAutoOn", false);
  s.sector->call("NegotiateFTAP", false, true, false, true);
  EXPECT_NE(s.wire.take_calls("Send").at(0).find("[00 01 02 01 01 02 03 00]"), std::string::npos);
  EXPECT_EQ(s.fake.debug->lines.back(),
            "SB_Sector::Negotiate_FTAP --- AttributeRecords : 000000100000000100000001000000100000001100000000");
  for (int i = 0; i < 255; ++i) s.sector->call("SendFTAPClearStats");
  const Calls sent = s.wire.take_calls("Send");
  EXPECT_NE(sent.at(253).find("[02 FF 04 05 06]"), std::string::npos);
  EXPECT_NE(sent.at(254).find("[02 00 04 05 06]"), std::string::npos);
  s.fake.debug->lines.clear();
  s.sector->call("EnableFTAPTestPktFlow");
  s.sector->call("DisableFTAPTestPktFlow");
  EXPECT_EQ(s.wire.calls, (Calls{"FTAPTestPktTxAutoOn", "FTAPTestPktTxAutoOn"})) << "automatic they are not";
  EXPECT_EQ(s.fake.debug->lines, (Calls{"FTAPTestPktTxAutoOn point 0", "FTAPTestPktTxAutoOn point 3"}));
  s.terminal->call("StaySilent");
  EXPECT_EQ(s.raised("SendFTAPClearStats"),
            refused("SendFTAPClearStats",
                    "AT did not clear its current statistics to 0 when requested through FTAPStatsClearRequest"));
}

}  // namespace
}  // namespace vorlan::test
