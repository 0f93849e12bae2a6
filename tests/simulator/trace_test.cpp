// The trace as scripts read it, as lines of JSON, and as a ladder.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "script.hpp"
#include "support/temporary_folder.hpp"

namespace vorlan::test {

namespace {

TEST(Trace, EveryMessageBothWays) {
  Script script;
  const Value filter = script.filter(0x50, 18);
  script.terminal->let("ConfigurationOrder", "18");
  script.terminal->let("Proposal", i16(18), "04 0005 0001");
  script.send(18, "01", "Start \"1\"");
  script.wait(filter, 100, "Request");
  script.send(18, "51 07", "Response");
  EXPECT_EQ(script.trace->get("JsonLines").to_text(),
            R"({"time_ms":0,"direction":"forward","protocol":18,"label":"Start \"1\"","octets":"01"}
{"time_ms":20,"direction":"reverse","protocol":18,"label":"Request","octets":"50 00 04 00 05 00 01"}
{"time_ms":20,"direction":"forward","protocol":18,"label":"Response","octets":"51 07","note":"TransactionID 7 where 0 is waited for"}
)");
  EXPECT_EQ(script.trace->get("Direction", i16(1)).to_text(), "reverse");
  EXPECT_EQ(error_number([&] { script.trace->get("Octets", i16(3)); }), 9);
  script.trace->call("Clear");
  EXPECT_EQ(script.trace->get("Count").to_integer(), 0);
}

TEST(Trace, Ladder) {
  Script script;
  script.send(18, "01", "ConfigStartMessage");
  script.terminal->call("Send", i16(14), "02 07");
  script.terminal->call("Send", i16(14), "54 07");
  script.ask(21, "02 05 04 05 06", 3);
  script.send(5, "02 01 12 34 56 78", "Short");
  script.send(9, "77");
  const std::string ladder = script.trace->get("Ladder").to_text();
  const std::string_view lines[] = {
      "    0.000 s  AN --> AT  SB_Ses_MsgConfigurationStart  session-configuration (18)  \"ConfigStartMessage\"\n",
      "    0.020 s  AN <-- AT  SB_MsgConfigurationRequest  session-configuration (18)\n"
      "                 ! no filter takes it\n"
      "                 50 00 06 00 05 00 01 00 00 08 10 01 00 02 00 02 00 03\n",
      "SB_Ses_AttrProtocolType, key-exchange\n",
      "0x0005\n",
      "    0.020 s  AN <-- AT  SB_Con_MsgTrafficChannelComplete  route-update (14)\n",
      "    0.020 s  AN <-- AT  SB_App_MsgAttributeUpdateReject  route-update (14)\n",
      "    0.000 s  AN --> AT  SB_TAS_MsgFTAPStatsClearRequest  stream-1-application (21)  \"Request\"\n",
      "    0.020 s  AN <-- AT  SB_TAS_MsgFTAPStatsClearResponse  stream-1-application (21)  \"Answer\"\n",
      "    0.020 s  AN --> AT  SB_Sec_MsgANKeyComplete  key-exchange (5)  \"Short\"\n",
      "    0.020 s  AN --> AT  message 77  packet-consolidation (9)  \"Message\"\n",
  };
  for (const std::string_view line : lines) EXPECT_NE(ladder.find(line), std::string::npos) << line << "in\n" << ladder;
}

TEST(Trace, WrittenToAFile) {
  Script script;
  const TemporaryFolder folder;
  script.send(18, "01");
  const std::string path = (folder.path() / "trace.jsonl").string();
  script.trace->call("WriteJsonLines", path);
  std::stringstream text;
  text << std::ifstream(path).rdbuf();
  EXPECT_EQ(text.str(), script.trace->get("JsonLines").to_text());
  EXPECT_EQ(error_number([&] { script.trace->call("WriteJsonLines", path + "/no"); }), 75);
}

TEST(Trace, KeepsTheLatestThousand) {
  Script script;
  for (int i = 0; i < 1001; ++i) script.send(9, "01", std::to_string(i));
  EXPECT_EQ(script.trace->get("Count").to_integer(), 1000);
  EXPECT_EQ(script.trace->get("Label", i16(0)).to_text(), "1");
}

}  // namespace

}  // namespace vorlan::test
