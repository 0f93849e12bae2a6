// What SB_Sector asks of the test set for its channels, levels, fading and test packets, where that is not the usual.
#include "automation/error.hpp"
#include "sector/sector_fixture.hpp"

namespace vorlan::test {
namespace {

Raised refused(const std::string& operation, const std::string& text) { return {1, "SB_Sector." + operation, text}; }

TEST(SectorChannels, OnlySubtypes1And2AreReconfigured) {
  for (const std::int16_t subtype : std::array<std::int16_t, 3>{0, 3, -1}) {
    SectorFixture f;
    f.test_subtype(subtype);
    EXPECT_EQ(raised_by([&] { f.sector->call("ReConfigureFwdAndAccChannel", true, Value()); }),
              refused("ReConfigureFwdAndAccChannel", "Forward Channel could not be reconfigured."));
    EXPECT_FALSE(f.sector->call("ReConfigureAccessChannel", Value()).to_boolean());
    EXPECT_EQ(f.take_calls(), Calls{});
  }
}

TEST(SectorChannels, AGivenForwardChannelReplacesTheSectorsOwn) {
  SectorFixture f;
  for (const Ref<Object>& given : {Ref<Object>(f.guest(TestSetObject::ForwardChannel, "Other")), Ref<Object>()}) {
    EXPECT_TRUE(f.sector->call("ConfigureAccessChannel", given).to_boolean());
    EXPECT_EQ(f.take_calls()[1], "ACH_SECTOR 0.AttachToForwardChannel(<Other>)");
  }
  EXPECT_EQ(error_number([&] { f.sector->call("ConfigureAccessChannel", "no channel"); }), 13);
}

TEST(SectorChannels, LabelsComeFromTheNamesLastCharacter) {
  SectorFixture f;
  for (const auto& [name, label] :
       {std::pair{"SECTOR 2", "Master Sector2"}, {"SECTOR 3", "Slave Sector0"}, {"SECTOR 5", "Slave Sector2"}}) {
    f.sector->let("PRstr_SectorName", name);
    const Value channel = f.sector->call("ConfigureFwdAndAccChannel", false, Value());
    EXPECT_EQ(channel, f.sector->get("PRobj_ForwardChannel"));
    EXPECT_EQ(f.take_calls()[6],
              "Report.AddText(Forward Channel for " + std::string(label) + " configured with Ior = -55.5)");
  }
  f.sector->let("PRstr_SectorName", "SECTOR X");
  EXPECT_EQ(raised_by([&] { f.sector->call("ConfigureFwdAndAccChannel", false, Value()); }),
            refused("ConfigureFwdAndAccChannel", "Forward Channel could not be configured."));
}

TEST(SectorChannels, AReverseChannelThatIsNotAcquired) {
  SectorFixture f;
  f.reverse->answer("Acquired", false);
  EXPECT_FALSE(f.sector->call("AcquireReverseTrafficChannel").to_boolean());
  EXPECT_EQ(f.take_calls().size(), 2U);
  f.reverse->answer("Acquire", false);
  EXPECT_EQ(raised_by([&] { f.sector->call("AcquireReverseTrafficChannel"); }),
            refused("AcquireReverseTrafficChannel", "Reverse Traffic acquisition failed."));
  EXPECT_EQ(f.take_calls(), Calls{"RTC.Acquire(750)"});
  // Whoever cancels the wait is told so, not that the acquisition failed.
  f.reverse->answers["Acquire"] = [](std::span<Value>) -> Value { throw Error(18, {}, "User interrupt occurred"); };
  EXPECT_EQ(error_number([&] { f.sector->call("AcquireReverseTrafficChannel"); }), 18);
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

TEST(SectorLevels, TheLevelBeforeTheStepDecides) {
  struct Case {
    const char* operation;
    float level;
    std::int16_t settle;  ///< in seconds
    const char* written;  ///< null: refused
  };
  for (const Case& c : {Case{"RaiseLevel", -50, 32, "-40"}, Case{"RaiseLevel", -51, 33, "-41"},
                        Case{"RaiseLevel", -49.5F, 32, nullptr}, Case{"LowerLevel", -120, -1, "-130"},
                        Case{"LowerLevel", -120.5F, 32, nullptr}, Case{"LowerLevel", 0, 32, "-10"}}) {
    SCOPED_TRACE(std::string(c.operation) + " from " + Value(c.level).to_text());
    SectorFixture f;
    f.sector->call("ConfigureFwdAndAccChannel", false, Value());
    dynamic_cast<Guest&>(*f.sector->get("PRobj_ForwardChannel").to_object()).answer("Level", c.level);
    f.take_calls();
    const Raised raised = raised_by([&] { f.sector->call(c.operation, 10.0F, c.settle); });
    Calls calls{"FC_SECTOR 0.Level"};
    if (c.written == nullptr) {
      EXPECT_EQ(raised, c.operation == std::string("RaiseLevel")
                            ? refused(c.operation, "Power level cannot be raised above -50 dB")
                            : refused(c.operation, "Power level cannot be reduced below -120 dB"));
    } else {
      EXPECT_EQ(raised.number, c.settle == 33 ? 6 : 0) << "33 s do not fit in milliseconds";
      calls.insert(calls.end(), {"FC_SECTOR 0.Level=" + std::string(c.written), "TestSet.ApplyChanges(0|Nothing|0)"});
    }
    EXPECT_EQ(f.take_calls(), calls);
    EXPECT_EQ(f.system.clock->passed, std::chrono::seconds(raised.number == 0 && c.settle > 0 ? c.settle : 0));
  }
}

TEST(SectorLevels, Personality1UsesTheChannelOfItsSubtype) {
  SectorFixture f;
  f.test_subtype(2);
  f.sector->call("ReConfigureFwdAndAccChannel", false, Value());
  EXPECT_TRUE(f.sector->get("PRbln_SubType2ForwardChannelConfigured").to_boolean());
  dynamic_cast<Guest&>(*f.sector->get("PRobj_SubType2ForwardChannel").to_object()).answer("Level", -60.0F);
  f.take_calls();
  f.sector->call("LowerLevel", 0.5F, std::int16_t{0});
  EXPECT_EQ(f.take_calls()[1], "ST2_FC_SECTOR 0.Level=-60.5");
  f.sector->call("EnableFading");
  EXPECT_EQ(f.take_calls()[4], "Path1.ConnectToForwardChannel(<ST2_FC_SECTOR 0>)");
  f.test_subtype(0);  // has no channel of its own: nothing changes
  f.sector->set("PRobj_TestSet", Ref<Object>());
  f.sector->set("PRobj_ParentTestSet", Ref<Object>(f.test_set));
  EXPECT_TRUE(f.sector->call("LowerLevel", 0.5F, std::int16_t{0}).to_boolean());
  EXPECT_EQ(f.take_calls(), Calls{"TestSet.ApplyChanges(0|Nothing|0)"});
}

TEST(SectorFading, SetsPathsThatAreThere) {
  SectorFixture f;
  f.sector->call("ConfigureFwdAndAccChannel", false, Value());
  f.sector->call("EnableFading");
  f.take_calls();
  f.sector->call("SetGainAndDelay", std::int16_t{2}, -3.5, Null{});
  f.sector->call("SetGainAndDelay", std::int16_t{1}, Value(), 2.25);
  EXPECT_EQ(error_number([&] { f.sector->call("SetGainAndDelay", std::int16_t{1}, 1.0, "late"); }), 13);
  EXPECT_EQ(error_number([&] { f.sector->call("SetGainAndDelay", std::int16_t{3}, 1.0, 1.0); }), 9);
  EXPECT_EQ(f.take_calls(), (Calls{"Path2.Gain=-3.5", "Path1.Delay=2.25"}));
  f.parameters->let("PRbln_FadingEnabled", false);
  EXPECT_EQ(raised_by([&] { f.sector->call("SetGainAndDelay", std::int16_t{1}, 1.0, 1.0); }),
            refused("SetGainAndDelay", "This function will be called only when Fading is to be enabled"));
  f.parameters->let("PRbln_FadingEnabled", true);
  for (const std::int16_t count : std::array<std::int16_t, 2>{0, 9}) {  // connect none
    f.sector->let("PR_intNumPath", count);
    f.sector->call("EnableFading");
    EXPECT_EQ(f.take_calls()[3],
              "Report.AddText(Configured: " + std::to_string(count) + " path/s for Sector: SECTOR 0)");
  }
  f.sector->set("PRobj_RadioChannelEmulator", Ref<Object>());
  EXPECT_EQ(raised_by([&] { f.sector->call("DestoyFadingObjects"); }),
            refused("DestoyFadingObjects:", "Could not create objects for RadioChannelEmulator"));
}

TEST(SectorFtap, ValuesOutOfRangeFailBeforeAnythingIsSent) {
  const std::pair<std::array<const char*, 2>, const char*> cases[] = {
      {{"PRstr_TAS_DRCValue", "00001101"}, "DRCValue invalid in script parameters. Valid range 0 to 12. "},
      {{"PRstr_TAS_DRCCover", "00001000"}, "DRCCover invalid in script parameters. Valid range 0 to 7. "},
      {{"PRstr_TAS_ACKChannelBit", "00000010"}, "Invalid ACKChannelBit in script parameters. Valid values 0 and 1. "},
      {{"PRstr_TAS_LoopBackPersistence", "11111111"},
       "Invalid LoopBackPersistence in script parameters. Valid values 0 and 1. "}};
  for (const auto& [setting, text] : cases) {
    SectorFixture f;
    f.parameters->let(setting[0], setting[1]);
    EXPECT_EQ(raised_by([&] { f.sector->call("NegotiateFTAP", true, true, true, true); }),
              refused("NegotiateFTAP", text));
    EXPECT_EQ(f.take_calls(), Calls{"Sig.CreateMessageObject()"});
    EXPECT_TRUE(f.sector->call("NegotiateFTAP", false, false, false, false).to_boolean()) << "not among those sent";
  }
}

TEST(SectorFtap, CountsTransactionsAndLooksAtTheSwitch) {
  SectorFixture f;
  f.sector->let("PRbln_FTAPTestPktTxAutoOn", false);
  f.sector->call("NegotiateFTAP", false, true, false, true);
  EXPECT_EQ(f.take_calls()[2],
            "Sig.SendAndWait(FTAPAssign|3|1|[00 01 02 01 01 02 03 01]|21|0|2|40|0|FTAPComplete|1|150)");
  EXPECT_EQ(f.debug_lines().back(),
            "SB_Sector::Negotiate_FTAP --- AttributeRecords : 000000100000000100000001000000100000001100000001");
  for (int i = 0; i < 255; ++i) f.sector->call("SendFTAPClearStats");
  EXPECT_NE(f.trace.calls[f.trace.calls.size() - 9].find("|[02 FF 04 05 06]|"), std::string::npos);
  EXPECT_NE(f.take_calls().end()[-4].find("|[02 00 04 05 06]|"), std::string::npos);
  f.controller->answer("FTAPTestPktTxAutoOn", false);
  f.debug_lines().clear();
  f.sector->call("EnableFTAPTestPktFlow");
  f.sector->call("DisableFTAPTestPktFlow");
  EXPECT_EQ(f.take_calls(), (Calls{"Controller.FTAPTestPktTxAutoOn", "Controller.FTAPTestPktTxAutoOn"}));
  EXPECT_EQ(f.debug_lines(), (Calls{"FTAPTestPktTxAutoOn point 0", "FTAPTestPktTxAutoOn point 3"}));
  f.silent_to = "FTAPClearReq";
  EXPECT_EQ(raised_by([&] { f.sector->call("SendFTAPClearStats"); }),
            refused("SendFTAPClearStats",
                    "AT did not clear its current statistics to 0 when requested through FTAPStatsClearRequest"));
}

}  // namespace
}  // namespace vorlan::test
