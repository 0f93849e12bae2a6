// Whole sessions of SB_Sector and SB_PROT_RevTrafficChannel with the simulated test set.
#include <cstdlib>

#include "sector/simulated_sector.hpp"

// Known to be this system's C library, or not, only behind its headers.
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace vorlan::test {
namespace {

using Lines = std::vector<std::string>;

/// `at` and `ftap`: TransactionIDs with which the terminal and the sector's test application begin.
Lines session(int at, int ftap) {
  const auto id = [](int number) {
    const std::uint8_t octet[]{static_cast<std::uint8_t>(number)};
    return simulator::hex_text(octet);
  };
  return {
      "> ConfigStartMessage | 01",
      "< ConfigurationRequestMSG | 50 " + id(at) + " 06 00 05 00 01 00 00 08 10 01 00 02 00 02 00 03",
      "> ConfigurationResponseMSG | 51 " + id(at) + " 04 00 05 00 01 03 10 01 00",
      "< ConfigurationRequestMSG_Stream | 50 " + id(at + 1) + " 0A 00 00 00 00 00 02 00 03 FF FF",
      "> ConfigurationResponseMSG_Stream | 51 " + id(at + 1) + " 02 00 00",
      "< ConfigurationRequestMSG_RTCMAC | 50 " + id(at + 2) + " 0A 01 00 30 10 08 08 10 10 20 FF",
      "> ConfigurationResponseMSG_RTCMAC | 51 " + id(at + 2) + " 02 01 00",
      "< ConfigurationRequestMSG_RouteUpdate | 50 " + id(at + 3) + " 05 04 00 01 00 00",
      "> ConfigurationResponseMSG_RouteUpdate | 51 " + id(at + 3) + " 02 04 00",
      "< ConfigurationCompleteMSG | 00 " + id(at + 4),
      "> ConfigCompleteMessageAN | 00 " + id(at + 4) + " 00 00",
      "> RPConfigRequestMessage | 50 00 0A 01 01 30 10 08 08 10 10 20 40",
      "< RPConfigResponseMessage | 51 00 02 01 01",
      "> PPConfigRequestMessage | 50 01 06 00 01 00 00 00 40",
      "< PPConfigResponseMessage | 51 01 02 00 01",
      "> FTAPAssign | 00 " + id(ftap + 1) + " 02 00 0C 02 01 01",
      "< FTAPComplete | 01 " + id(ftap + 1),
      "> FTAPClearReq | 02 " + id(ftap) + " 04 05 06",
      "< FTAPClearRes | 03 " + id(ftap),
      "> FTAPClearReq | 02 " + id(ftap + 2) + " 04 05 06",
      "< FTAPClearRes | 03 " + id(ftap + 2),
  };
}

const std::string kReport =
    "Forward Channel for Master Sector0 configured with Ior = -60\n"
    "Access Channel configured.\n"
    "Reverse Traffic Channel acquired\n"
    "Configured: 2 path/s for Sector: SECTOR 0\n"
    "The Velocity set at the BaseStation is: 30Km/hr \n"
    "Fading has been enabled \n"
    "Destroyed: 2 Path/s configured for Sector: SECTOR 0\n";

TEST(SimulatedSession, FromTheFirstChannelToTheCleanUp) {
  SimulatedSector s;
  s.run();
  EXPECT_EQ(s.rungs(), session(0, 0));
  EXPECT_EQ(s.report(), kReport);
  EXPECT_EQ(s.complaint(), "");
  EXPECT_EQ(s.state(), "Open");
  EXPECT_TRUE(s.terminal->get("OnReverseChannel").to_boolean());
  EXPECT_EQ(s.sector->get("PRint_LastTransactionIDFromAT").to_integer(), 4);
  EXPECT_EQ(s.simulated->changes_applied(), 2) << "one for each level step";
  s.expect_clean();
  EXPECT_EQ(s.fake.clock->passed.count(), 0) << "nobody really waited";

  s.trace->call("Clear");
  s.run();
  EXPECT_EQ(s.rungs(), session(5, 3));
  EXPECT_EQ(s.report(), kReport + kReport);
  EXPECT_EQ(s.complaint(), "");
  s.expect_clean();
}

TEST(SimulatedSession, OrdersOfTheTerminalsRequests) {
  struct Case {
    const char* order;
    std::size_t messages;  ///< both ways
    bool complete;
  };
  for (const Case& c : {Case{"", 2, true}, Case{"18", 4, true}, Case{"18 19 4 14 18", 12, true}, Case{"19", 2, false},
                        Case{"18 4", 4, false}, Case{"18 19 4 14 19", 10, false}}) {
    SCOPED_TRACE(c.order);
    SimulatedSector s;
    s.terminal->let("ConfigurationOrder", c.order);
    const auto negotiate = [&] { s.sector->call("StartSessionNegotiationFromAN"); };
    EXPECT_EQ(raised_by(negotiate),
              c.complete ? Raised{}
                         : (Raised{1, "SB_Sector.StartSessionNegotiationFromAN",
                                   "ConfigurationComplete Message not received from the Access Terminal."}));
    EXPECT_EQ(s.rungs().size(), c.messages);
    EXPECT_EQ(s.complaint(), "");
    EXPECT_EQ(s.signalling->get("Filters").to_integer(), 0);
  }
}

TEST(SimulatedSession, ClosesSoftlyWhereThereAreMorePersonalities) {
  SimulatedSector s;
  s.parameters->let("PRint_PersonalityCountAN", i16(2));
  s.parameters->let("PRint_ScriptPersonality", i16(1));
  s.terminal->let("TransactionID", i16(0xFE));
  s.sector->call("StartSessionNegotiationFromAN");
  std::array<Value, 1> id{i16(-1)};
  s.sector->invoke("EndSessionNegotiationFromAN", Access::Call, id);
  EXPECT_EQ(id[0].to_integer(), 2) << "TransactionIDs begin again after 255";
  EXPECT_EQ(s.rungs().back(), "> SoftConfigCompleteMessageAN | 02 02 04 00 00");
  EXPECT_EQ(s.state(), "Open");
  EXPECT_EQ(s.complaint(), "");
}

TEST(SimulatedSession, EverySectorHasItsOwnChannels) {
  struct Case {
    std::string name;
    const char* label;
    int pilot_pn;
    std::int32_t sector_id24;
    int color_code;
  };
  for (const Case& c :
       {Case{"SECTOR 2", "Master Sector2", 348, 65539, 16}, Case{"SECTOR 3", "Slave Sector0", 16, 65540, 17},
        Case{"SECTOR 4", "Slave Sector1", 184, 65541, 17}}) {
    SCOPED_TRACE(c.name);
    SimulatedSector s(c.name);
    const Ref<Object> channel = s.sector->call("ConfigureFwdAndAccChannel", true, i16(7)).to_object();
    EXPECT_EQ(channel, s.channel("ForwardChannels", "FC_" + c.name));
    EXPECT_EQ(channel, s.sector->get("PRobj_ForwardChannel").to_object());
    EXPECT_EQ(channel->get("PilotPN").to_integer(), c.pilot_pn);
    EXPECT_EQ(channel->get("CCDataRate").to_single(), 76.8F);
    EXPECT_EQ(channel->get("Level").to_single(), -60);
    EXPECT_EQ(channel->get("RPCDRCLockEc_Ior").to_double(), -13);
    EXPECT_EQ(channel->get("Ec_Ior").to_double(), -15);
    EXPECT_EQ(channel->get("Argument").to_integer(), 7);
    const Ref<Object> access = s.channel("AccessChannels", "ACH_" + c.name);
    EXPECT_EQ(access->get("SectorID24").to_long(), c.sector_id24);
    EXPECT_EQ(access->get("ColorCode").to_integer(), c.color_code);
    EXPECT_EQ(access->get("ForwardChannel").to_object(), channel);
    EXPECT_EQ(s.report(), "Forward Channel for " + std::string(c.label) +
                              " configured with Ior = -60\nAccess Channel configured.\n");
  }
}

TEST(SimulatedSession, LaterSubtypesHaveChannelsOfTheirOwn) {
  for (const std::string subtype : {"1", "2"}) {
    SCOPED_TRACE(subtype);
    SimulatedSector s;
    s.parameters->let("PRint_ScriptPersonality", i16(1));
    s.sector->let("PRint_CurrentSubType", subtype);
    s.parameters->let("PRbln_SlotContentsState", true);
    const std::string key = "ST" + subtype + "_FC_SECTOR 0";
    const Ref<Object> channel = s.sector->call("ReConfigureFwdAndAccChannel", true, Value()).to_object();
    EXPECT_EQ(channel->get("Key").to_text(), key);
    EXPECT_EQ(channel->get("MACIndex").to_integer(), subtype == "1" ? 5 : 70);
    EXPECT_EQ(channel->get("SlotContentsState").to_boolean(), subtype == "1");
    EXPECT_EQ(channel->get("ARQMode").to_boolean(), subtype == "2");
    EXPECT_EQ(s.sector->get("PRbln_SubType2ForwardChannelConfigured").to_boolean(), subtype == "2");
    const Ref<Object> access = s.channel("SubType" + subtype + "AccessChannels", "ST" + subtype + "_ACH_SECTOR 0");
    EXPECT_EQ(access->get("ForwardChannel").to_object(), channel);

    EXPECT_TRUE(s.sector->call("AcquireReverseTrafficChannel").to_boolean());
    s.sector->call("LowerLevel", 10.5F, i16(32));
    EXPECT_EQ(channel->get("Level").to_single(), -70.5F);
    EXPECT_EQ(s.now(), 32100) << "acquisition and settle time";
    EXPECT_EQ(error_number([&] { s.sector->call("RaiseLevel", 30.5F, i16(33)); }), 6);
    EXPECT_EQ(channel->get("Level").to_single(), -40) << "changed before the settle time overflows";
    s.sector->let("PR_intNumPath", i16(8));
    s.sector->call("EnableFading");
    const Ref<Object> paths = s.sector->get("PRobj_RadioChannelPaths").to_object();
    EXPECT_EQ(paths->call("Item", "Path8").to_object()->get("ForwardChannel").to_object(), channel);
    s.sector->call("CleanUp");
    EXPECT_EQ(s.part("ForwardChannels")->get("Count").to_integer(), 0);
    EXPECT_EQ(s.part("SubType" + subtype + "AccessChannels")->get("Count").to_integer(), 0);
  }
}

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
TEST(SimulatedSession, ManySessionsLeaveMemoryWhereItWas) {
  SimulatedSector s;
  const auto run = [&](int count) {
    for (int i = 0; i < count; ++i) {
      s.run();
      s.fake.debug->lines.clear();
    }
    return static_cast<std::int64_t>(mallinfo2().uordblks);
  };
  const char* const wanted = std::getenv("VORLAN_SESSIONS");
  // The trace and the test report keep their latest 1000 lines: they are full by then.
  const std::int64_t before = run(200);
  const std::int64_t after = run(wanted == nullptr ? 2000 : std::atoi(wanted));
  EXPECT_LT(after - before, 4000) << "2 octets left behind by each session show";
  EXPECT_EQ(s.complaint(), "");
}
#endif

}  // namespace
}  // namespace vorlan::test
