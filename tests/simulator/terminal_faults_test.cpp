// The terminal misbehaves as it is told.
#include <gtest/gtest.h>

#include "script.hpp"

namespace vorlan::test {

namespace {

const std::string kSkeyRequest = "50 07 02 00 00";

TEST(TerminalFaults, AnswersOfOneProtocolGoWrong) {
  struct Case {
    std::string_view member;
    std::vector<Value> arguments;
    std::string key_exchange;  ///< the answer to kSkeyRequest on protocol 5 within 2 s
    std::string authentication;
  };
  const std::string good = "51 07 02 00 00";
  const std::string good_too = "51 01 03 00 00 A0";
  const Case cases[] = {
      {"Behave", {}, good, good_too},
      {"Refuse", {i16(5)}, "51 07", good_too},
      {"Refuse", {i16(5), i16(0)}, "51 07", good_too},
      {"Refuse", {i16(5), i16(1)}, good, good_too},
      {"StaySilent", {i16(5)}, "", good_too},
      {"StaySilent", {Value(), i16(0x51)}, "", ""},
      {"StaySilent", {i16(5), i16(0x50)}, good, good_too},
      {"AnswerLate", {3000, i16(5)}, "", good_too},
      {"AnswerLate", {1000, i16(5)}, good, good_too},
      {"WrongTransactionID", {i16(5)}, "51 08 02 00 00", good_too},
      {"SendGarbage", {"F1 00 FF", i16(5), i16(0x51)}, "F1 00 FF", good_too},
      {"SendGarbage", {"", i16(5)}, "", good_too},
  };
  for (Case one : cases) {
    Script script;
    script.terminal->invoke(one.member, Access::Call, one.arguments);
    EXPECT_EQ(script.ask(5, kSkeyRequest, 1), one.key_exchange) << one.member;
    EXPECT_EQ(script.ask(6, "50 01 03 00 00 A0", 1), one.authentication) << one.member;
    script.terminal->call("Behave");
    script.test_set->call("Sleep", 10.0);
    EXPECT_EQ(script.ask(5, kSkeyRequest, 1), good) << "after " << one.member;
  }
}

TEST(TerminalFaults, SilenceLastsAsLongAsTheTimeOut) {
  Script script;
  script.terminal->call("StaySilent");
  const auto before = script.now();
  EXPECT_EQ(script.ask(5, kSkeyRequest, 1, 500), "");
  EXPECT_EQ(script.now() - before, 10000);
  EXPECT_EQ(script.fake.clock->passed.count(), 0) << "nobody really waited";
}

TEST(TerminalFaults, LateAnswerIsThereForALaterFilter) {
  Script script;
  script.terminal->call("AnswerLate", 5000, i16(5));
  EXPECT_EQ(script.ask(5, kSkeyRequest, 1), "");
  const Value filter = script.filter(0x51, 5);
  EXPECT_EQ(script.wait(filter, 150), "");
  EXPECT_EQ(script.wait(filter, 3), "51 07 02 00 00") << "5.02 s after the request, 5 s of which have passed";
  EXPECT_EQ(script.trace->get("Note", i16(1)).to_text(), "late on purpose");
}

TEST(TerminalFaults, ReverseChannel) {
  Script script;
  const auto channel = script.part("ReverseTrafficChannels")->call("Item", "RTC_SECTOR 0").to_object();
  script.terminal->let("AcquiresReverseChannel", false);
  EXPECT_FALSE(channel->call("Acquire", i16(750)).to_boolean());
  EXPECT_EQ(script.now(), 15000);
  EXPECT_EQ(script.ask(14, "01 55 00 00", 2), "") << "a terminal that does not come up completes no assignment";
  script.terminal->let("AcquiresReverseChannel", true);
  EXPECT_FALSE(channel->call("Acquire", i16(1)).to_boolean()) << "too little time";
  EXPECT_TRUE(channel->call("Acquire", i16(750)).to_boolean());
  EXPECT_TRUE(channel->get("Acquired").to_boolean());
  EXPECT_EQ(script.ask(16, "01 00 00", 1), "01 01 00") << "SessionClose";
  EXPECT_FALSE(channel->get("Acquired").to_boolean());
}

TEST(TerminalFaults, BadArgumentsAreErrors) {
  Script script;
  const auto call = [&](std::string_view member, std::vector<Value> arguments) {
    return error_number([&] { script.terminal->invoke(member, Access::Call, arguments); });
  };
  EXPECT_EQ(call("AnswerLate", {-1}), 5);
  EXPECT_EQ(call("SendGarbage", {"0"}), 13);
  EXPECT_EQ(call("CheatInKeyExchange", {"Badly"}), 5);
  EXPECT_EQ(call("Send", {i16(18), std::string(2 * 4096, '0')}), 6);
  EXPECT_EQ(error_number([&] { script.terminal->let("TransactionID", i16(256)); }), 5);
  EXPECT_EQ(error_number([&] { script.terminal->let("ConfigurationOrder", "18, stream"); }), 13);
  EXPECT_EQ(error_number([&] { script.send(18, "01 00", "Label"); }), 0);
}

}  // namespace

}  // namespace vorlan::test
