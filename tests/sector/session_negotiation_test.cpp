// The session configuration that SB_Sector opens and closes, and what it remembers of it.
#include "sector/simulated_sector.hpp"

namespace vorlan::test {
namespace {

const MemorySettings::Key kLastId{"1x-EVDOKetra", "SessionFields", "LastTIDFromAT"};

/// Labels and octets of what the sector has sent.
Calls sent(SimulatedSector& s) {
  Calls messages = s.wire.take_calls("SendMessage(");
  for (std::string& call : messages) call = call.substr(12, call.find(']') - 11);
  return messages;
}

TEST(SectorSession, PassesGoOnUntilAWaitComesBackEmpty) {
  SimulatedSector s;
  s.terminal->let("ConfigurationOrder", "18 19 4 14 18");
  // Two subtypes of protocol 3 in the order of preference, then PriorSession with a value record.
  s.terminal->let("Proposal", i16(18), "06 0003 0001 0000 04 1000 07 00");
  s.terminal->let("Proposal", i16(19), "0A 00 05 0000 0002 FFFF FFFF");
  s.terminal->let("Proposal", i16(4), "06 00 02 11 22 33 44");
  s.terminal->let("Proposal", i16(14), "02 FE 07 02 FF 09");
  s.terminal->let("TransactionID", i16(254));
  s.terminal->let("AnswerDelay", 0);  // what no filter waits for yet is lost
  EXPECT_TRUE(s.sector->call("StartSessionNegotiationFromAN").to_boolean());
  EXPECT_EQ(
      sent(s),
      (Calls{"ConfigStartMessage|3|[01]", "ConfigurationResponseMSG|3|[51 FE 04 00 03 00 01 03 10 00 07]",
             "ConfigurationResponseMSG_Stream|3|[51 FF 02 00 05]", "ConfigurationResponseMSG_RTCMAC|3|[51 00 02 00 02]",
             "ConfigurationResponseMSG_RouteUpdate|3|[51 01 02 FE 07 02 FF 09]",
             "ConfigurationResponseMSG|3|[51 02 04 00 03 00 01 03 10 00 07]"}));
  EXPECT_EQ(s.fake.settings->values[kLastId], "3") << "behind 255 comes 0";
  EXPECT_EQ(s.sector->get("PRint_LastTransactionIDFromAT").to_integer(), 3);
}

TEST(SectorSession, AStreamRequestAloneIsNotAnswered) {
  SimulatedSector s;
  s.fake.settings->values[kLastId] = "9";
  s.terminal->let("ConfigurationOrder", "19");
  EXPECT_EQ(s.raised("StartSessionNegotiationFromAN"),
            (Raised{1, "SB_Sector.StartSessionNegotiationFromAN",
                    "ConfigurationComplete Message not received from the Access Terminal."}));
  EXPECT_EQ(sent(s), Calls{"ConfigStartMessage|3|[01]"});
  EXPECT_EQ(s.fake.settings->values[kLastId], "9");
}

TEST(SectorSession, TheLaterMacHasWideAttributeIds) {
  struct Case {
    int configured;
    const char* proposed;  ///< of the session configuration
    const char* response;  ///< on the reverse traffic channel MAC
  };
  for (const Case& c :
       {Case{3, "", "51 02 03 00 14 02 03 FF FE 30"}, Case{0, "06 0004 0003 0000", "51 02 03 00 14 02 03 FF FE 30"},
        Case{3, "04 0004 0001", "51 02 02 00 14 02 FF FE"}}) {
    SimulatedSector s;
    s.parameters->let("PRint_ScriptPersonality", i16(1));
    s.parameters->call("Set_MACLayRTCSubType", "", i16(1), i16(c.configured));
    s.terminal->let("ConfigurationOrder", "18 19 4");
    s.terminal->let("Proposal", i16(18), c.proposed);
    s.terminal->let("Proposal", i16(4), "04 0014 02 08 03 FFFE 30");
    raised_by([&] { s.sector->call("StartSessionNegotiationFromAN"); });
    EXPECT_EQ(sent(s).back(), "ConfigurationResponseMSG_RTCMAC|3|[" + std::string(c.response) + "]");
  }
}

TEST(SectorSession, ClosesFromTheAccessNetworksSide) {
  struct Case {
    int personalities;
    int tested;
    const char* remembered;
    const char* sent;
    const char* text;  ///< where the TransactionID does not fit
  };
  const char* const hard = "Configuration Complete Message could not be created.";
  const char* const soft = "Soft Configuration Complete Message could not be created.";
  for (const Case& c : {Case{1, 1, "42", "ConfigCompleteMessageAN|3|[00 2A 00 00]", hard},
                        Case{2, 0, "0", "ConfigCompleteMessageAN|3|[00 00 00 00]", hard},
                        Case{2, 1, "42", "SoftConfigCompleteMessageAN|3|[02 2A 04 00 00]", soft}}) {
    SimulatedSector s;
    s.parameters->let("PRint_PersonalityCountAN", i16(c.personalities));
    s.parameters->let("PRint_ScriptPersonality", i16(c.tested));
    s.fake.settings->values[kLastId] = c.remembered;
    std::array<Value, 1> id{i16(-1)};
    EXPECT_TRUE(s.sector->invoke("EndSessionNegotiationFromAN", Access::Call, id).to_boolean());
    EXPECT_EQ(id[0].to_text(), c.remembered);
    EXPECT_EQ(s.wire.take_calls("Send"), Calls{"SendMessage(" + std::string(c.sent) + "|18|-1|2|40|0)"});
    EXPECT_EQ(s.signalling->get("Messages").to_object()->get("Count").to_integer(), 0);
    for (const char* remembered : {"256", "-1"}) {
      s.fake.settings->values[kLastId] = remembered;
      EXPECT_EQ(s.raised("EndSessionNegotiationFromAN", i16(0)),
                (Raised{1, "SB_Sector.EndSessionNegotiationFromAN", c.text}));
    }
    EXPECT_EQ(s.wire.take_calls("Send"), Calls{});
  }
}

TEST(SectorSession, RemembersAndForgets) {
  SimulatedSector s;
  auto& values = s.fake.settings->values;
  EXPECT_EQ(s.sector->get("PRint_LastTransactionIDFromAT").to_integer(), 1);
  EXPECT_EQ(s.sector->get("PRlng_MRUPrefControlChannelCycle").to_long(), -1);
  s.sector->let("PRlng_MRUPrefControlChannelCycle", 70000);
  EXPECT_EQ(s.sector->get("PRlng_MRUPrefControlChannelCycle").to_long(), 70000);
  EXPECT_EQ((values[{"1x-EVDOKetra", "IdleStateFields", "MRUPrefCCHCycleEnabled"}]), "1");
  values[{"1x-EVDOKetra", "AuthFields", "MRUAuthKeyLength"}] = "8";
  s.sector->call("ClearSessionInfo");
  std::string all;
  for (const auto& [key, value] : values) all += std::get<1>(key) + "/" + std::get<2>(key) + "=" + value + " ";
  EXPECT_EQ(all,
            "AuthFields/MRUAuthKeyLength=160 AuthFields/MRUAuthType=0 EncryptionFields/MRUEncryption=0 "
            "IdleStateFields/MRUPrefCCHCycle=-1 IdleStateFields/MRUPrefCCHCycleEnabled=0 "
            "KeyExchangeFields/MRUKeyExchange=0 KeyExchangeFields/MRUSKeyLength=0 SecurityFields/MRUSecurity=0 ");
}

}  // namespace
}  // namespace vorlan::test
