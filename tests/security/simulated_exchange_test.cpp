// Security negotiated and keys exchanged with the simulated test set, which does the real arithmetic.
#ifdef VORLAN_KEY_EXCHANGE

#include <gtest/gtest.h>

#include "parameters/global_parameters.hpp"
#include "sector/sector.hpp"
#include "security/security.hpp"
#include "simulator/script.hpp"

namespace vorlan::test {
namespace {

struct SimulatedSession : Script {
  explicit SimulatedSession(int key_bits) {
    parameters->let("PRint_SKeyLength", i16(key_bits));
    parameters->let("PRlng_AuthKeyLength", 160);
    for (const char* selector : {"PRint_SecurityType", "PRint_KeyXChangeType", "PRint_AuthenticationType"}) {
      parameters->let(selector, i16(1));
    }
    parameters->let("PRint_EncryptionType", i16(0));
    sector->set("PRobj_GlobalParameters", Ref<Object>(parameters));
    sector->set("PRobj_TestSet", test_set);
    sector->set("PRobj_EvSignalling", signalling);
    sector->set("PRobj_TestReport", part("TestReport"));
    security->call("Initialise", Ref<Object>(sector));
    for (const char* family : {"Security", "KeyXChange", "Authentication", "Encryption"}) {
      security->call("Configure" + std::string(family));
    }
    key_exchange = security->get("PRobj_PROT_DHKeyXChange").to_object();
  }
  void negotiate() {
    for (const char* name : {"GenericSecurity", "DHKeyXChange", "SHA1Authentication", "DefaultEncryption"}) {
      const Ref<Object> protocol = security->get("PRobj_PROT_" + std::string(name)).to_object();
      EXPECT_TRUE(protocol->call("NegotiateProtocolSubtype").to_boolean()) << name;
    }
    EXPECT_TRUE(key_exchange->call("NegotiateSKeyLength").to_boolean());
    EXPECT_TRUE(
        security->get("PRobj_PROT_SHA1Authentication").to_object()->call("NegotiateAuthKeyLength").to_boolean());
  }
  std::string failure() {
    return raised_by([&] { key_exchange->call("ExecuteDHKeyXChange"); }).description;
  }

  Ref<SB_GlobalParameters> parameters = make<SB_GlobalParameters>(fake.platform);
  Ref<SB_Sector> sector = make<SB_Sector>(fake.platform);
  Ref<SB_Security> security = make<SB_Security>(fake.platform);
  Ref<Object> key_exchange;
};

TEST(SimulatedKeyExchange, BothSidesHoldTheSameKey) {
  for (const int bits : {768, 1024}) {
    SimulatedSession s(bits);
    s.negotiate();
    EXPECT_EQ(s.terminal->get("SessionKeyLength").to_integer(), bits);
    for (int i = 0; i < 3; ++i) {
      EXPECT_TRUE(s.key_exchange->call("ExecuteDHKeyXChange").to_boolean());
      EXPECT_TRUE(s.part("Security")->get("KeysAgree").to_boolean());
    }
    EXPECT_EQ(s.complaint(), "");
  }
}

TEST(SimulatedKeyExchange, ATerminalThatMisbehavesIsCaught) {
  SimulatedSession s(768);
  s.negotiate();
  const std::string not_one = "The Result field of ATKeyComplete message is not 1.";
  s.terminal->call("CheatInKeyExchange", "WrongKey");
  EXPECT_EQ(s.failure(), not_one);
  s.terminal->call("CheatInKeyExchange", "FalseFailure");
  EXPECT_EQ(s.failure(), not_one);
  s.terminal->call("CheatInKeyExchange", "DegenerateKey");
  EXPECT_NE(s.failure().find("degenerate"), std::string::npos);
  s.terminal->call("Behave");
  EXPECT_EQ(s.failure(), "");

  // 20 s: longer than the 10 s that are waited at least, and the terminal has asked for no more.
  s.terminal->call("AnswerLate", 20000, i16(5), i16(3));
  EXPECT_EQ(s.failure(),
            "ATKeyComplete message could not be received from the AT in response to the ANKeyComplete message.");
  s.test_set->call("Sleep", 20.0);  // until the late answer has come to nothing
  s.terminal->let("KeyTimeOut", i16(21));
  EXPECT_EQ(s.failure(), "");
  EXPECT_EQ(s.key_exchange->get("PRlng_TKEPSigCompAT").to_long(), 20);
}

}  // namespace
}  // namespace vorlan::test

#endif
