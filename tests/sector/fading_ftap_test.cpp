// What SB_Sector asks of the test set for fading and forward test packets.
#include "sector/sector_fixture.hpp"

namespace vorlan::test {
namespace {

TEST(SectorFading, ConnectsPathsAndSwitchesOn) {
  SectorFixture f;
  f.sector->call("ConfigureFwdAndAccChannel", false, Value());
  f.take_calls();
  f.sector->call("EnableFading");
  EXPECT_EQ(f.take_calls(), (Calls{"Emulator.Velocity", "Emulator.Paths", "Velocity.ReferenceVelocity=30",
                                   "Paths.Item(Path1)", "Path1.ConnectToForwardChannel(<FC_SECTOR 0>)",
                                   "Paths.Item(Path2)", "Path2.ConnectToForwardChannel(<FC_SECTOR 0>)",
                                   "Report.AddText(Configured: 2 path/s for Sector: SECTOR 0)",
                                   "Report.AddText(The Velocity set at the BaseStation is: 30Km/hr )",
                                   "Emulator.Enabled=True", "Report.AddText(Fading has been enabled )"}));
  EXPECT_EQ(f.sector->get("PRobj_RadioChannelPaths"), Value(Ref<Object>(f.paths)));

  f.sector->call("SetGainAndDelay", std::int16_t{2}, -3.5, Null{});
  f.sector->call("SetGainAndDelay", std::int16_t{1}, Value(), 2.25);
  EXPECT_EQ(error_number([&] { f.sector->call("SetGainAndDelay", std::int16_t{1}, 1.0, "late"); }), 13);
  EXPECT_EQ(error_number([&] { f.sector->call("SetGainAndDelay", std::int16_t{3}, 1.0, 1.0); }), 9);
  EXPECT_EQ(f.take_calls(), (Calls{"Path2.Gain=-3.5", "Path1.Delay=2.25"}));
  f.parameters->let("PRbln_FadingEnabled", false);
  EXPECT_EQ(raised_by([&] { f.sector->call("SetGainAndDelay", std::int16_t{1}, 1.0, 1.0); }),
            (Raised{1, "SB_Sector.SetGainAndDelay", "This function will be called only when Fading is to be enabled"}));

  f.sector->call("DestoyFadingObjects");
  EXPECT_EQ(f.take_calls(),
            (Calls{"Report.AddText(Destroyed: 2 Path/s configured for Sector: SECTOR 0)", "Emulator.Reset()"}));
  f.sector->set("PRobj_RadioChannelEmulator", Ref<Object>());
  EXPECT_EQ(raised_by([&] { f.sector->call("DestoyFadingObjects"); }),
            (Raised{1, "SB_Sector.DestoyFadingObjects:", "Could not create objects for RadioChannelEmulator"}));
}

TEST(SectorFading, OtherNumbersOfPathsConnectNone) {
  for (const std::int16_t count : std::array<std::int16_t, 2>{0, 9}) {
    SectorFixture f;
    f.sector->let("PR_intNumPath", count);
    f.sector->call("EnableFading");
    EXPECT_EQ(f.trace.calls[3],
              "Report.AddText(Configured: " + std::to_string(count) + " path/s for Sector: SECTOR 0)");
  }
}

TEST(SectorFading, FadesTheChannelOfTheCurrentSubtype) {
  SectorFixture f;
  f.test_subtype(1);
  f.sector->call("ReConfigureFwdAndAccChannel", false, Value());
  f.take_calls();
  f.sector->call("EnableFading");
  EXPECT_EQ(f.trace.calls[4], "Path1.ConnectToForwardChannel(<ST1_FC_SECTOR 0>)");
}

TEST(SectorFtap, NegotiatesParametersAndClearsStatistics) {
  SectorFixture f;
  f.parameters->let("PRstr_TAS_DRCValue", "00001100");
  EXPECT_TRUE(f.sector->call("NegotiateFTAP", true, false, true, false).to_boolean());
  EXPECT_EQ(f.take_calls(),
            (Calls{"Sig.CreateMessageObject()", "Sig.CreateMessageObject()", "Controller.FTAPTestPktTxAutoOn=True",
                   "Sig.SendAndWait(FTAPAssign|3|1|[00 01 02 00 0C 02 02 01]|21|0|2|40|0|FTAPComplete|1|150)",
                   "Sig.SendAndWait(FTAPClearReq|3|1|[02 00 04 05 06]|21|0|2|40|0|FTAPClearRes|3|250)", "Sig.Messages",
                   "Messages.Remove(FTAPClearRes)", "Messages.Remove(FTAPAssign)", "Messages.Remove(FTAPComplete)",
                   "Messages.Remove(FTAPClearReq)"}));
  EXPECT_EQ(f.debug_lines().back(),
            "SB_Sector::Negotiate_FTAP --- AttributeRecords : 000000100000000000001100000000100000001000000001");
  f.sector->let("PRbln_FTAPTestPktTxAutoOn", false);
  f.sector->call("NegotiateFTAP", false, true, false, true);
  EXPECT_EQ(f.trace.calls[2],
            "Sig.SendAndWait(FTAPAssign|3|1|[00 03 02 01 01 02 03 01]|21|0|2|40|0|FTAPComplete|1|150)");
}

TEST(SectorFtap, TransactionIdsWrap) {
  SectorFixture f;
  for (int i = 0; i < 256; ++i) EXPECT_TRUE(f.sector->call("SendFTAPClearStats").to_boolean());
  EXPECT_EQ(f.trace.calls[f.trace.calls.size() - 4],
            "Sig.SendAndWait(FTAPClearReq|3|1|[02 FF 04 05 06]|21|0|2|40|0|FTAPClearRes|3|250)");
  f.take_calls();
  f.sector->call("SendFTAPClearStats");
  EXPECT_EQ(f.take_calls(), (Calls{"Sig.CreateMessageObject()",
                                   "Sig.SendAndWait(FTAPClearReq|3|1|[02 00 04 05 06]|21|0|2|40|0|FTAPClearRes|3|250)",
                                   "Sig.Messages", "Messages.Remove(FTAPClearRes)", "Messages.Remove(FTAPClearReq)"}));
}

TEST(SectorFtap, ValuesOutOfRangeFailBeforeAnythingIsSent) {
  struct Case {
    const char* property;
    const char* bits;
    const char* text;
  };
  for (const Case& c :
       {Case{"PRstr_TAS_DRCValue", "00001101", "DRCValue invalid in script parameters. Valid range 0 to 12. "},
        Case{"PRstr_TAS_DRCCover", "00001000", "DRCCover invalid in script parameters. Valid range 0 to 7. "},
        Case{"PRstr_TAS_ACKChannelBit", "00000010",
             "Invalid ACKChannelBit in script parameters. Valid values 0 and 1. "},
        Case{"PRstr_TAS_LoopBackPersistence", "11111111",
             "Invalid LoopBackPersistence in script parameters. Valid values 0 and 1. "}}) {
    SectorFixture f;
    f.parameters->let(c.property, c.bits);
    EXPECT_EQ(raised_by([&] { f.sector->call("NegotiateFTAP", true, true, true, true); }),
              (Raised{1, "SB_Sector.NegotiateFTAP", c.text}));
    EXPECT_EQ(f.take_calls(), Calls{"Sig.CreateMessageObject()"});
    EXPECT_TRUE(f.sector->call("NegotiateFTAP", false, false, false, false).to_boolean());
  }
}

TEST(SectorFtap, ASilentTerminalIsAnError) {
  const std::string not_cleared =
      "AT did not clear its current statistics to 0 when requested through FTAPStatsClearRequest";
  const auto negotiate = [](SectorFixture& f) { f.sector->call("NegotiateFTAP", true, true, true, true); };
  SectorFixture f;
  f.silent_to = "FTAPAssign";
  EXPECT_EQ(raised_by([&] { negotiate(f); }),
            (Raised{1, "18_6_4.Negotiate_FTAP",
                    "FTAPParameterComplete not received in response to FTAPParameterAssignment"}));
  f.silent_to = "FTAPClearReq";
  EXPECT_EQ(raised_by([&] { negotiate(f); }), (Raised{1, "SB_Sector.NegotiateFTAP", not_cleared}));
  EXPECT_EQ(raised_by([&] { f.sector->call("SendFTAPClearStats"); }),
            (Raised{1, "SB_Sector.SendFTAPClearStats", not_cleared}));
}

TEST(SectorFtap, SwitchesTestPackets) {
  SectorFixture f;
  f.debug_lines().clear();
  f.sector->call("EnableFTAPTestPktFlow");
  f.sector->call("DisableFTAPTestPktFlow");
  EXPECT_EQ(f.take_calls(), (Calls{"Controller.FTAPTestPktTxAutoOn", "Controller.StartFTAPTestPktTx=True",
                                   "Controller.FTAPTestPktTxAutoOn", "Controller.StartFTAPTestPktTx=False"}));
  f.controller->answer("FTAPTestPktTxAutoOn", false);
  f.sector->call("DisableFTAPTestPktFlow");
  EXPECT_EQ(f.take_calls(), Calls{"Controller.FTAPTestPktTxAutoOn"});
  Calls points;
  for (const int point : {0, 1, 2, 3, 4, 5, 3}) points.push_back("FTAPTestPktTxAutoOn point " + std::to_string(point));
  EXPECT_EQ(f.debug_lines(), points);
}

}  // namespace
}  // namespace vorlan::test
