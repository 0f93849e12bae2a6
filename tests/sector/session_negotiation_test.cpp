// The session configuration that SB_Sector opens and closes, and what it remembers of it.
#include "sector/configuration_answer.hpp"
#include "sector/sector_fixture.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

const MemorySettings::Key kLastId{"1x-EVDOKetra", "SessionFields", "LastTIDFromAT"};
const Raised kNotComplete{1, "SB_Sector.StartSessionNegotiationFromAN",
                          "ConfigurationComplete Message not received from the Access Terminal."};

Calls opening() {
  return {"Sig.AddFilter(0|1|Nothing|18|1000)",
          "Sig.AddFilter(80|1|Nothing|18|1000)",
          "Sig.AddFilter(80|1|Nothing|19|1000)",
          "Sig.AddFilter(80|1|Nothing|4|1000)",
          "Sig.AddFilter(80|1|Nothing|14|1000)",
          "Sig.SendMessage(ConfigStartMessage|3|00000001|18|-1|2|40|0)",
          "Sig.Messages",
          "Messages.Remove(ConfigStartMessage)"};
}
Calls closing(bool received) {
  Calls calls{"Sig.RemoveFilter(filter 80/18)", "Sig.RemoveFilter(filter 80/19)", "Sig.RemoveFilter(filter 80/4)",
              "Sig.RemoveFilter(filter 80/14)", "Sig.WaitForMessage(ConfigurationCompleteMSG|filter 0/18|100)"};
  if (received) calls.push_back("Sig.FetchMessage()");
  calls.push_back("Sig.RemoveFilter(filter 0/18)");
  return calls;
}
Calls operator+(Calls a, const Calls& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}
Calls wait(const std::string& suffix, int protocol) {
  return {"Sig.WaitForMessage(ConfigurationRequestMSG" + suffix + "|filter 80/" + std::to_string(protocol) + "|100)"};
}
Calls answer(const std::string& suffix, int protocol, const std::string& response) {
  return wait(suffix, protocol) +
         Calls{"Sig.FetchMessage()",
               "Sig.SendMessage(ConfigurationResponseMSG" + suffix + "|3|" + bits_of(response) + "|" +
                   std::to_string(protocol) + "|0|2|40|" + (protocol == 18 ? "0" : "-1") + ")",
               "Messages.Remove(ConfigurationRequestMSG" + suffix + ")",
               "Messages.Remove(ConfigurationResponseMSG" + suffix + ")"};
}

TEST(SectorSession, PassesGoOnUntilAWaitComesBackEmpty) {
  SectorFixture f;
  // Two subtypes of protocol 3 in the order of preference, then PriorSession with a value record.
  f.incoming["ConfigurationRequestMSG"] = {bits_of("50 01 06 00 03 00 01 00 00 04 10 00 07 00"), bits_of("50 02")};
  f.incoming["ConfigurationRequestMSG_Stream"] = {bits_of("50 03 0A 00 05 0000 0002 FFFF FFFF")};
  f.incoming["ConfigurationRequestMSG_RTCMAC"] = {bits_of("50 04 06 00 02 11 22 33 44")};
  f.incoming["ConfigurationRequestMSG_RouteUpdate"] = {bits_of("50 05 02 FE 07 02 FF 09")};
  f.incoming["ConfigurationCompleteMSG"] = {bits_of("00 2A 12 34")};
  EXPECT_TRUE(f.sector->call("StartSessionNegotiationFromAN").to_boolean());
  EXPECT_EQ(f.take_calls(), opening() + answer("", 18, "51 01 04 00 03 00 01 03 10 00 07") +
                                answer("_Stream", 19, "51 03 02 00 05") + answer("_RTCMAC", 4, "51 04 02 00 02") +
                                answer("_RouteUpdate", 14, "51 05 02 FE 07 02 FF 09") + answer("", 18, "51 02") +
                                wait("_Stream", 19) + closing(true));
  EXPECT_EQ(f.system.settings->values[kLastId], "42");
  EXPECT_EQ(f.sector->get("PRint_LastTransactionIDFromAT").to_integer(), 42);
}

TEST(SectorSession, AStreamRequestAloneIsNotAnswered) {
  SectorFixture f;
  f.incoming["ConfigurationRequestMSG_Stream"] = {bits_of("50 03")};
  f.system.settings->values[kLastId] = "9";
  EXPECT_EQ(raised_by([&] { f.sector->call("StartSessionNegotiationFromAN"); }), kNotComplete);
  EXPECT_EQ(f.take_calls(), opening() + wait("", 18) + closing(false));
  f.incoming["ConfigurationCompleteMSG"] = {bits_of("00")};  // cut off before its TransactionID
  EXPECT_EQ(raised_by([&] { f.sector->call("StartSessionNegotiationFromAN"); }), kNotComplete);
  EXPECT_EQ(f.system.settings->values[kLastId], "9");
}

TEST(SectorSession, TheLaterMacHasWideAttributeIds) {
  struct Case {
    std::int16_t configured;
    const char* proposed;  ///< of the session configuration, and the response to it
    const char* accepted;
    const char* response;  ///< on the reverse traffic channel MAC
  };
  for (const Case& c : {Case{3, "50 01", "51 01", "51 04 03 00 14 02 03 FF FE 30"},
                        Case{0, "50 01 06 00 04 00 03 00 00", "51 01 04 00 04 00 03", "51 04 03 00 14 02 03 FF FE 30"},
                        Case{3, "50 01 04 00 04 00 01", "51 01 04 00 04 00 01", "51 04 02 00 14 02 FF FE"}}) {
    SectorFixture f;
    f.parameters->let("PRint_ScriptPersonality", std::int16_t{1});
    f.parameters->call("Set_MACLayRTCSubType", "", std::int16_t{1}, c.configured);
    f.incoming["ConfigurationRequestMSG"] = {bits_of(c.proposed)};
    f.incoming["ConfigurationRequestMSG_Stream"] = {bits_of("50 02")};
    f.incoming["ConfigurationRequestMSG_RTCMAC"] = {bits_of("50 04 04 00 14 02 08 03 FF FE 30")};
    f.incoming["ConfigurationCompleteMSG"] = {bits_of("00 01")};
    f.sector->call("StartSessionNegotiationFromAN");
    EXPECT_EQ(f.take_calls(), opening() + answer("", 18, c.accepted) + answer("_Stream", 19, "51 02") +
                                  answer("_RTCMAC", 4, c.response) + wait("_RouteUpdate", 14) + closing(true));
  }
}

TEST(SectorSession, ClosesFromTheAccessNetworksSide) {
  struct Case {
    std::int16_t personalities;
    std::int16_t tested;
    const char* remembered;
    const char* label;
    const char* sent;
    const char* text;  ///< where the TransactionID does not fit
  };
  const char* const hard = "Configuration Complete Message could not be created.";
  const char* const soft = "Soft Configuration Complete Message could not be created.";
  for (const Case& c : {Case{1, 1, "42", "ConfigCompleteMessageAN", "00 2A 00 00", hard},
                        Case{2, 0, "0", "ConfigCompleteMessageAN", "00 00 00 00", hard},
                        Case{2, 1, "42", "SoftConfigCompleteMessageAN", "02 2A 04 00 00", soft}}) {
    SectorFixture f;
    f.parameters->let("PRint_PersonalityCountAN", c.personalities);
    f.parameters->let("PRint_ScriptPersonality", c.tested);
    f.system.settings->values[kLastId] = c.remembered;
    std::array<Value, 1> id{std::int16_t{-1}};
    EXPECT_TRUE(f.sector->invoke("EndSessionNegotiationFromAN", Access::Call, id).to_boolean());
    EXPECT_EQ(id[0].to_text(), c.remembered);
    const std::string label = c.label;
    EXPECT_EQ(f.take_calls(), (Calls{"Sig.SendMessage(" + label + "|3|" + bits_of(c.sent) + "|18|-1|2|40|0)",
                                     "Sig.Messages", "Messages.Remove(" + label + ")"}));
    for (const char* remembered : {"256", "-1"}) {
      f.system.settings->values[kLastId] = remembered;
      EXPECT_EQ(raised_by([&] { f.sector->call("EndSessionNegotiationFromAN", std::int16_t{0}); }),
                (Raised{1, "SB_Sector.EndSessionNegotiationFromAN", c.text}));
    }
    EXPECT_EQ(f.take_calls(), Calls{});
  }
}

TEST(SectorSession, RemembersAndForgets) {
  SectorFixture f;
  auto& values = f.system.settings->values;
  EXPECT_EQ(f.sector->get("PRint_LastTransactionIDFromAT").to_integer(), 1);
  EXPECT_EQ(f.sector->get("PRlng_MRUPrefControlChannelCycle").to_long(), -1);
  f.sector->let("PRlng_MRUPrefControlChannelCycle", 70000);
  EXPECT_EQ(f.sector->get("PRlng_MRUPrefControlChannelCycle").to_long(), 70000);
  EXPECT_EQ((values[{"1x-EVDOKetra", "IdleStateFields", "MRUPrefCCHCycleEnabled"}]), "1");
  values[{"1x-EVDOKetra", "AuthFields", "MRUAuthKeyLength"}] = "8";
  f.sector->call("ClearSessionInfo");
  std::string all;
  for (const auto& [key, value] : values) all += std::get<1>(key) + "/" + std::get<2>(key) + "=" + value + " ";
  EXPECT_EQ(all,
            "AuthFields/MRUAuthKeyLength=160 AuthFields/MRUAuthType=0 EncryptionFields/MRUEncryption=0 "
            "IdleStateFields/MRUPrefCCHCycle=-1 IdleStateFields/MRUPrefCCHCycleEnabled=0 "
            "KeyExchangeFields/MRUKeyExchange=0 KeyExchangeFields/MRUSKeyLength=0 SecurityFields/MRUSecurity=0 ");
}

}  // namespace
}  // namespace vorlan::test
