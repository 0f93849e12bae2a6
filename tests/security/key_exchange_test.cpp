// The four-message exchange of SB_PROT_DHKeyXChange with the simulated test set, which does the real arithmetic.
#ifdef VORLAN_KEY_EXCHANGE

#include "security/dh_key_exchange.hpp"

#include <regex>

#include "security/security_fixture.hpp"

namespace vorlan::test {
namespace {

struct ExchangeFixture : SecurityFixture {
  explicit ExchangeFixture(int bits = 768) {
    initialize(bits);
    object->call("NegotiateSKeyLength");
    wire.take_calls();
  }
  void initialize(int bits) { object->call("Initialize", wired_signalling, wired_security, i16(bits), wired_messages); }
  bool execute() { return object->call("ExecuteDHKeyXChange").to_boolean(); }
  Raised failure() {
    return listed(*object, raised_by([&] { execute(); }));
  }
  Ref<SB_PROT_DHKeyXChange> object = make<SB_PROT_DHKeyXChange>(fake.platform);
};

TEST(DHKeyExchange, BothSidesHoldTheSameKey) {
  const std::regex octets("([0-9A-F]{2} ?){20,}");
  for (const int bits : {768, 1024}) {
    ExchangeFixture f(bits);
    EXPECT_EQ(f.terminal->get("SessionKeyLength").to_integer(), bits);
    f.terminal->let("AnswerDelay", 2900);
    for (const std::string number : {"1", "2"}) {
      EXPECT_TRUE(f.execute());
      EXPECT_TRUE(f.part("Security")->get("KeysAgree").to_boolean());
      Calls calls = f.wire.take_calls();
      for (std::string& call : calls) call = std::regex_replace(call, octets, "...");
      EXPECT_EQ(calls,
                (Calls{"GetANPublicKey(" + std::to_string(bits) + ")", "CreateMessageObject()",
                       "SendAndWait(KeyRequestMsg|3|1|[...]|5|0|2|40|-1|KeyResponseMsg|1|250)", "Item(KeyResponseMsg)",
                       "Remove(KeyResponseMsg)", "CreateMessageObject()", "SetATPublicKey([...])", "Nonce",
                       "TimeStampShort", "GetKeySignature(" + number + ")", "CreateMessageObject()",
                       "SendAndWait(ANKeyComplete|3|1|[...]|5|0|2|40|-1|ATKeyComplete|3|500)", "Item(ATKeyComplete)",
                       "Remove(ATKeyComplete)"}));
      EXPECT_EQ(f.object->get("PRlng_TKEPSigCompAT"), Value(2));
    }
    EXPECT_EQ(f.complaint(), "");
  }
}

TEST(DHKeyExchange, WaitsAsLongAsTheTerminalAsks) {
  ExchangeFixture f;
  for (const auto& [asked, units] : {std::pair{0, "500"}, {10, "500"}, {11, "550"}, {255, "12750"}}) {
    f.terminal->let("KeyTimeOut", i16(asked));
    f.execute();
    const Calls sent = f.wire.take_calls("SendAndWait(ANKeyComplete");
    EXPECT_TRUE(sent.at(0).ends_with("|ATKeyComplete|3|" + std::string(units) + ")")) << sent[0];
  }
  f.terminal->call("AnswerLate", 20000, i16(5), i16(3));
  EXPECT_TRUE(f.execute());
  EXPECT_EQ(f.object->get("PRlng_TKEPSigCompAT"), Value(20));
}

TEST(DHKeyExchange, FailsWithItsOwnTexts) {
  const std::string other_response =
      "TransactionId field of KeyResponse message received is not same as the TransactionId field of KeyRequest "
      "message sent.";
  const std::string other_complete =
      "TransactionID field of ATKeyComplete message is not same as that of ANKeyComplete message.";
  const std::string not_one = "The Result field of ATKeyComplete message is not 1.";
  struct Case {
    int silent;  ///< MessageID that the terminal does not send; none: -1
    const char* label;
    const char* answer;
    std::string text;
    const char* last_call;  ///< where it ends
  };
  const Case cases[] = {
      {1, "", "", "KeyResponse message could not be received.", "SendAndWait(KeyRequestMsg"},
      {-1, "KeyResponseMsg", "01 FF 04 02", other_response, "Remove(KeyResponseMsg)"},
      {-1, "KeyResponseMsg", "01", other_response, "Remove(KeyResponseMsg)"},
      {3, "", "", "ATKeyComplete message could not be received from the AT in response to the ANKeyComplete message.",
       "SendAndWait(ANKeyComplete"},
      {-1, "ATKeyComplete", "03 FF 80", other_complete, "Item(ATKeyComplete)"},
      {-1, "ATKeyComplete", "", other_complete, "Item(ATKeyComplete)"},
      {-1, "ATKeyComplete", "03 02 00", not_one, "Item(ATKeyComplete)"},
      {-1, "ATKeyComplete", "03 02 7F", not_one, "Item(ATKeyComplete)"},
      {-1, "ATKeyComplete", "03 02", not_one, "Item(ATKeyComplete)"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    ExchangeFixture f;
    f.terminal->let("AnswerDelay", 3000);
    f.execute();
    f.terminal->let("AnswerDelay", 4500);
    f.answer(c.label, c.answer);
    if (c.silent >= 0) f.terminal->call("StaySilent", i16(5), i16(c.silent));
    EXPECT_EQ(f.failure(), (Raised{1, "SB_PROT_DHKeyXChange.ExecuteDHKeyXChange", c.text}));
    EXPECT_TRUE(f.wire.calls.back().starts_with(c.last_call)) << f.wire.calls.back();
    EXPECT_EQ(f.object->get("PRlng_TKEPSigCompAT"), Value(3)) << "a failed exchange leaves it";
  }
}

TEST(DHKeyExchange, ATerminalThatCheats) {
  struct Case {
    const char* way;
    bool succeeds;
    bool agree;
  };
  ExchangeFixture f;
  for (const Case& c : {Case{"WrongKey", false, false}, Case{"FalseSuccess", true, false},
                        Case{"FalseFailure", false, true}, Case{"None", true, true}}) {
    f.terminal->call("CheatInKeyExchange", c.way);
    EXPECT_EQ(f.failure().number, c.succeeds ? 0 : 1) << c.way;
    EXPECT_EQ(f.part("Security")->get("KeysAgree").to_boolean(), c.agree) << c.way;
  }
  f.terminal->call("CheatInKeyExchange", "DegenerateKey");
  EXPECT_EQ(f.failure().description, "Invalid procedure call or argument: the terminal's public key is degenerate");
}

TEST(DHKeyExchange, KeyRequestThatCannotBeCreated) {
  const Raised not_created{1, "SB_PROT_DHKeyXChange.ExecuteDHKeyXChange", "KeyRequest message could not be created."};
  for (const int seconds : {256, -2}) {
    ExchangeFixture f;
    f.object->let("PRint_KeyRequestTimeOut", i16(seconds));
    EXPECT_EQ(f.failure(), not_created);
    EXPECT_FALSE(f.fake.debug->lines.empty()) << "what went wrong in particular";
  }
  for (const std::size_t octets : {0U, 95U, 128U}) {
    ExchangeFixture f;
    f.wire.answers["GetANPublicKey(768)"] = Ref<Object>(make<simulator::MessageObject>(simulator::Octets(octets, 2)));
    EXPECT_EQ(f.failure(), not_created) << octets;
    EXPECT_EQ(f.wire.calls.size(), 2U) << "nothing is sent";
  }
}

TEST(DHKeyExchange, KeepsATimeOutThatWasSetBeforeInitialize) {
  ExchangeFixture f;
  const auto object = make<SB_PROT_DHKeyXChange>(f.fake.platform);
  EXPECT_EQ(object->get("PRint_KeyRequestTimeOut"), i16(-1));
  EXPECT_EQ(listed(*object, raised_by([&] { object->call("ExecuteDHKeyXChange"); })),
            (Raised{1, "SB_PROT_DHKeyXChange.ExecuteDHKeyXChange",
                    "SB_PROT_DHKeyXChange Object is not initialized. Please call <Initialize> method of this object "
                    "first."}));
  EXPECT_EQ(f.object->get("PRint_KeyRequestTimeOut"), i16(7));
  for (const int seconds : {20, -1}) {
    f.object->let("PRint_KeyRequestTimeOut", i16(seconds));
    f.initialize(768);
    f.execute();
    const Calls sent = f.wire.take_calls("SendAndWait(KeyRequestMsg");
    EXPECT_NE(sent.at(0).find(seconds == -1 ? "[00 00 07 " : "[00 00 14 "), std::string::npos) << sent[0];
  }
}

/// Whatever the test set does wrong in any call, there is an error, and the object goes on working.
TEST(DHKeyExchange, SurvivesEveryFaultOfTheTestSet) {
  ExchangeFixture whole;
  whole.execute();
  for (const Trouble trouble : {Trouble::Raises, Trouble::LacksMember, Trouble::WrongType, Trouble::ReturnsNothing}) {
    for (std::size_t call = 0; call < whole.wire.calls.size(); ++call) {
      SCOPED_TRACE(whole.wire.calls[call] + " goes wrong in way " + std::to_string(static_cast<int>(trouble)));
      ExchangeFixture f;
      f.wire.trouble = trouble;
      f.wire.at_call = call;
      // What a call returns does not matter where nothing is expected of it.
      const bool fails = whole.wire.members[call]->type != ValueType::Empty || trouble == Trouble::Raises ||
                         trouble == Trouble::LacksMember;
      EXPECT_EQ(error_number([&] { f.execute(); }) != 0, fails);
      f.wire.trouble = Trouble::None;
      f.test_set->call("Sleep", 10.0);
      EXPECT_TRUE(f.execute());
    }
  }
}

}  // namespace
}  // namespace vorlan::test

#endif
