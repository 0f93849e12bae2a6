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
