// The four-message exchange of SB_PROT_DHKeyXChange.
#include "security/dh_key_exchange.hpp"
#include "security/security_fixture.hpp"

namespace vorlan::test {
namespace {

struct ExchangeFixture : SecurityFixture {
  explicit ExchangeFixture(int bits = 768) {
    key = counted_octets(static_cast<std::size_t>(bits) / 8);
    initialize(bits);
  }
  void initialize(int bits) {
    object->call("Initialize", signalling_value(), Ref<Object>(security_object), integer(bits), messages_value());
  }
  bool execute() { return object->call("ExecuteDHKeyXChange").to_boolean(); }
  Raised failure() {
    return raised_by([&] { execute(); });
  }

  std::string key;
  Ref<SB_PROT_DHKeyXChange> object = make<SB_PROT_DHKeyXChange>(system.platform);
};

std::string send_and_wait(const std::string& label, const std::string& hex, const std::string& answer, int time_out) {
  const std::string code = answer == "ATKeyComplete" ? "3" : "1";
  return "Sig.SendAndWait(" + label + "|3|1|[" + hex + "]|5|0|2|40|-1|" + answer + "|" + code + "|" +
         std::to_string(time_out) + ")";
}

TEST(DHKeyExchange, RunsTheWholeExchange) {
  for (const int bits : {768, 1024}) {
    ExchangeFixture f(bits);
    for (const std::string transaction : {"00", "01"}) {
      f.answer_delay = std::chrono::milliseconds(2900);
      EXPECT_TRUE(f.execute());
      const std::string number = std::to_string(transaction == "01" ? 1 : 0);
      EXPECT_EQ(f.take_calls(),
                (Calls{"Security.GetANPublicKey(" + std::to_string(bits) + ")", "Sig.CreateMessageObject()",
                       send_and_wait("KeyRequestMsg", "00 " + transaction + " 07 " + f.key, "KeyResponseMsg", 250),
                       "Messages.Item(KeyResponseMsg)", "Messages.Remove(KeyResponseMsg)", "Sig.CreateMessageObject()",
                       "Security.SetATPublicKey([" + f.key + "])", "Security.Nonce", "Security.TimeStampShort",
                       "Security.GetKeySignature(" + number + ")", "Sig.CreateMessageObject()",
                       send_and_wait("ANKeyComplete", "02 " + transaction + " 12 34 56 78 " + counted_octets(20),
                                     "ATKeyComplete", 500),
                       "Messages.Item(ATKeyComplete)", "Messages.Remove(ATKeyComplete)"}));
      EXPECT_EQ(f.object->get("PRlng_TKEPSigCompAT"), Value(2));
    }
  }
}

TEST(DHKeyExchange, WaitsAsLongAsTheTerminalAsks) {
  for (const auto& [asked, units] : {std::pair{"00", 500}, {"0A", 500}, {"0B", 550}, {"FF", 12750}}) {
    ExchangeFixture f;
    f.replies["KeyResponseMsg"] = std::string("01 ## ") + asked + " 02";
    EXPECT_TRUE(f.execute());
    EXPECT_NE(f.trace.calls[f.trace.calls.size() - 3].find("|ATKeyComplete|3|" + std::to_string(units) + ")"),
              std::string::npos)
        << asked;
  }
  ExchangeFixture f;  // by position: what is not there is empty
  f.replies["KeyResponseMsg"] = "01 ##";
  EXPECT_TRUE(f.execute());
  EXPECT_EQ(f.trace.calls[6], "Security.SetATPublicKey([])");
}

TEST(DHKeyExchange, FailsWithItsOwnTexts) {
  const std::string other_response =
      "TransactionId field of KeyResponse message received is not same as the TransactionId field of KeyRequest "
      "message sent.";
  const std::string other_complete =
      "TransactionID field of ATKeyComplete message is not same as that of ANKeyComplete message.";
  const std::string not_one = "The Result field of ATKeyComplete message is not 1.";
  struct Case {
    const char* silent_to;
    const char* label;
    const char* reply;
    std::string text;
    const char* last_call;  ///< where it ends; null: at the message that gets no answer
  };
  const Case cases[] = {
      {"KeyRequestMsg", "", "", "KeyResponse message could not be received.", nullptr},
      {"", "KeyResponseMsg", "01 FF 04 02", other_response, "Messages.Remove(KeyResponseMsg)"},
      {"", "KeyResponseMsg", "01", other_response, "Messages.Remove(KeyResponseMsg)"},
      {"ANKeyComplete", "", "",
       "ATKeyComplete message could not be received from the AT in response to the ANKeyComplete message.", nullptr},
      {"", "ATKeyComplete", "03 FF 80", other_complete, "Messages.Item(ATKeyComplete)"},
      {"", "ATKeyComplete", "", other_complete, "Messages.Item(ATKeyComplete)"},
      {"", "ATKeyComplete", "03 ## 00", not_one, "Messages.Item(ATKeyComplete)"},
      {"", "ATKeyComplete", "03 ## 7F", not_one, "Messages.Item(ATKeyComplete)"},
      {"", "ATKeyComplete", "03 ##", not_one, "Messages.Item(ATKeyComplete)"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    ExchangeFixture f;
    f.answer_delay = std::chrono::seconds(3);
    f.execute();
    f.silent_to = c.silent_to;
    f.replies[c.label] = c.reply;
    f.answer_delay = std::chrono::seconds(9);
    EXPECT_EQ(f.failure(), (Raised{1, "SB_PROT_DHKeyXChange.ExecuteDHKeyXChange", c.text}));
    const std::string last = f.take_calls().back();
    const std::string end = c.last_call != nullptr ? c.last_call : "Sig.SendAndWait(" + std::string(c.silent_to);
    EXPECT_EQ(last.substr(0, end.size()), end);
    EXPECT_EQ(f.object->get("PRlng_TKEPSigCompAT"), Value(3)) << "a failed exchange leaves it";
  }
}

TEST(DHKeyExchange, KeyRequestThatCannotBeCreated) {
  const Raised not_created{1, "SB_PROT_DHKeyXChange.ExecuteDHKeyXChange", "KeyRequest message could not be created."};
  for (const int seconds : {256, -2}) {
    ExchangeFixture f;
    f.object->let("PRint_KeyRequestTimeOut", integer(seconds));
    EXPECT_EQ(f.failure(), not_created);
    EXPECT_FALSE(f.debug_lines().empty()) << "what went wrong in particular";
  }
  for (const std::size_t octets : {0U, 95U, 128U}) {
    ExchangeFixture f;
    f.security_object->answer("GetANPublicKey", Ref<Object>(received(counted_octets(octets))));
    EXPECT_EQ(f.failure(), not_created) << octets;
    EXPECT_EQ(f.take_calls().size(), 2U) << "nothing is sent";
  }
}

TEST(DHKeyExchange, KeepsATimeOutThatWasSetBeforeInitialize) {
  ExchangeFixture f;
  const auto object = make<SB_PROT_DHKeyXChange>(f.system.platform);
  EXPECT_EQ(object->get("PRint_KeyRequestTimeOut"), integer(-1));
  EXPECT_EQ(raised_by([&] { object->call("ExecuteDHKeyXChange"); }),
            (Raised{1, "SB_PROT_DHKeyXChange.ExecuteDHKeyXChange",
                    "SB_PROT_DHKeyXChange Object is not initialized. Please call <Initialize> method of this object "
                    "first."}));
  EXPECT_EQ(f.object->get("PRint_KeyRequestTimeOut"), integer(7));
  for (const int seconds : {20, -1}) {
    f.object->let("PRint_KeyRequestTimeOut", integer(seconds));
    f.initialize(768);
    f.take_calls();
    f.execute();
    EXPECT_NE(f.trace.calls[2].find(seconds == -1 ? "|[00 00 07 00 01" : "|[00 00 14 00 01"), std::string::npos);
  }
}

/// Whatever the test set does wrong in any call, there is an error, and the object goes on working.
TEST(DHKeyExchange, SurvivesEveryFaultOfTheTestSet) {
  ExchangeFixture whole;
  whole.execute();
  const auto members = whole.trace.members;
  for (const Trouble trouble : {Trouble::Raises, Trouble::LacksMember, Trouble::WrongType, Trouble::ReturnsNothing}) {
    for (std::size_t call = 0; call < members.size(); ++call) {
      SCOPED_TRACE(whole.trace.calls[call] + " goes wrong in way " + std::to_string(static_cast<int>(trouble)));
      ExchangeFixture f;
      f.trace.trouble = trouble;
      f.trace.at_call = call;
      // What a call returns does not matter where nothing is expected of it.
      const bool fails =
          members[call]->type != ValueType::Empty || trouble == Trouble::Raises || trouble == Trouble::LacksMember;
      EXPECT_EQ(f.failure().number != 0, fails);
      f.trace.trouble = Trouble::None;
      EXPECT_TRUE(f.execute());
    }
  }
}

}  // namespace
}  // namespace vorlan::test
