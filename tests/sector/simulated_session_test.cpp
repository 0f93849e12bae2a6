// Whole sessions of SB_Sector and SB_PROT_RevTrafficChannel with the simulated test set.
#include <cstdlib>

#include "sector/simulated_sector.hpp"

// Known to be this system's C library, or not, only behind its headers.
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace vorlan::test {
namespace {

/// What the sector sends in its first session.
const Calls kSession{
    "SendMessage(ConfigStartMessage|3|[01]|18|-1|2|40|0)",
    "SendMessage(ConfigurationResponseMSG|3|[51 00 04 00 05 00 01 03 10 01 00]|18|0|2|40|0)",
    "SendMessage(ConfigurationResponseMSG_Stream|3|[51 01 02 00 00]|19|0|2|40|-1)",
    "SendMessage(ConfigurationResponseMSG_RTCMAC|3|[51 02 02 01 00]|4|0|2|40|-1)",
    "SendMessage(ConfigurationResponseMSG_RouteUpdate|3|[51 03 02 04 00]|14|0|2|40|-1)",
    "SendMessage(ConfigCompleteMessageAN|3|[00 04 00 00]|18|-1|2|40|0)",
    "SendAndWait(RPConfigRequestMessage|3|1|[50 00 0A 01 01 30 10 08 08 10 10 20 40]|4|0|2|40|-1|"
    "RPConfigResponseMessage|1|250)",
    "SendAndWait(PPConfigRequestMessage|3|1|[50 01 06 00 01 00 00 00 40]|4|0|2|40|-1|"
    "PPConfigResponseMessage|1|250)",
    "SendAndWait(FTAPAssign|3|1|[00 01 02 00 0C 02 01 01]|21|0|2|40|0|FTAPComplete|1|150)",
    "SendAndWait(FTAPClearReq|3|1|[02 00 04 05 06]|21|0|2|40|0|FTAPClearRes|3|250)",
    "SendAndWait(FTAPClearReq|3|1|[02 02 04 05 06]|21|0|2|40|0|FTAPClearRes|3|250)",
};

const std::string kReport =
    "Forward Channel for Master Sector0 configured with Ior = -60\n"
    "Access Channel configured.\n"
    "Reverse Traffic Channel acquired\n"
    "Configured: 2 path/s for Sector: SECTOR 0\n"
    "The Velocity set at the BaseStation is: 30Km/hr \n"
    "Fading has been enabled \n"
    "Destroyed: 2 Path/s configured for Sector: SECTOR 0\n";

/// What a session leaves at the test set: as it was, but for the message that is kept.
void expect_clean(SimulatedSector& s) {
  EXPECT_EQ(s.complaint(), "");
  EXPECT_EQ(s.state(), "Open");
  EXPECT_EQ(s.signalling->get("Filters").to_integer(), 0);
  EXPECT_EQ(s.signalling->get("Messages").to_object()->get("Keys"), Value(Value::Array{"ConfigurationCompleteMSG"}));
  for (const char* channels : {"ForwardChannels", "AccessChannels"}) {
    EXPECT_EQ(s.part(channels)->get("Count").to_integer(), 0) << channels;
  }
  EXPECT_FALSE(s.part("RadioChannelEmulator")->get("Enabled").to_boolean());
  EXPECT_FALSE(s.part("ProtocolController")->get("StartFTAPTestPktTx").to_boolean());
}

TEST(SimulatedSession, FromTheFirstChannelToTheCleanUp) {
  SimulatedSector s;
  s.run();
  EXPECT_EQ(s.wire.take_calls("Send"), kSession);
  EXPECT_EQ(s.report(), kReport);
  EXPECT_TRUE(s.terminal->get("OnReverseChannel").to_boolean());
  EXPECT_EQ(s.sector->get("PRint_LastTransactionIDFromAT").to_integer(), 4);
  EXPECT_EQ(s.simulated->changes_applied(), 2) << "one for each level step";
  EXPECT_EQ(s.fake.clock->passed.count(), 0) << "nobody really waited";
  expect_clean(s);

  s.run();
  const Calls again = s.wire.take_calls("Send");
  EXPECT_EQ(again.size(), kSession.size());
  EXPECT_NE(again.back().find("[02 05 04 05 06]"), std::string::npos) << "TransactionIDs go on";
  EXPECT_EQ(s.sector->get("PRint_LastTransactionIDFromAT").to_integer(), 9);
  EXPECT_EQ(s.report(), kReport + kReport);
  expect_clean(s);
}

#if defined(__GLIBC__) && !defined(VORLAN_SANITIZE)  // which has an allocator of its own
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
