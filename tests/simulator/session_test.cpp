// Session configuration against the simulated terminal, where it is not the usual one, and the messages that it answers
// out of hand.
#include <gtest/gtest.h>

#include "script.hpp"

namespace vorlan::test {

namespace {

constexpr int kRequest = 0x50;

TEST(Session, OrderAndProposalsAreTheScripts) {
  Script script;
  const Value complete = script.filter(0, 18);
  script.terminal->let("ConfigurationOrder", "");
  script.send(18, "01");
  EXPECT_EQ(script.wait(complete), "00 00") << "nothing to propose: it completes at once";
  EXPECT_EQ(script.terminal->get("State").to_text(), "AnsweringAN");
  script.send(18, "02 00 00");
  EXPECT_EQ(script.terminal->get("State").to_text(), "Open");

  script.terminal->let("ConfigurationOrder", Value::Array{i16(14), i16(2)});
  script.terminal->let("Proposal", i16(14), "02 05 07");
  const Value route_update = script.filter(kRequest, 14);
  const Value access_mac = script.filter(kRequest, 2);
  script.send(18, "01");
  EXPECT_EQ(script.wait(route_update), "50 01 02 05 07");
  script.send(14, "51 01 02 05 08");
  EXPECT_EQ(script.complaint(), "attribute 05 is answered with something that was not proposed");
  EXPECT_EQ(script.wait(access_mac), "50 02") << "a protocol without a proposal";
}

TEST(Session, ResponsesOutOfPlaceAreComplaints) {
  Script script;
  const Value stream = script.filter(kRequest, 19);
  script.send(18, "01");
  const std::pair<std::string, std::string> cases[] = {
      {"51 05 04 00 05 00 01", "TransactionID 5 where 0 is waited for"},
      {"51", "too short for a TransactionID"},
  };
  for (const auto& [response, complaint] : cases) {
    script.send(18, response);
    EXPECT_EQ(script.complaint(), complaint);
  }
  script.send(19, "51 00");
  EXPECT_EQ(script.complaint(), "a ConfigurationResponse that no ConfigurationRequest waits for");
  EXPECT_EQ(script.wait(stream), "") << "the terminal has not gone on";
  script.send(18, "51 00 09 00");
  EXPECT_EQ(script.complaint(), "a record that runs past the end of the message");
  EXPECT_EQ(script.trace->get("Note", i16(5)).to_text(), script.complaint());
}

TEST(Session, TerminalAnswersProposalsOfTheAccessNetwork) {
  struct Case {
    int protocol;
    std::string request;
    std::string response;
  };
  const Case cases[] = {
      {18, "50 07 06 00 04 00 03 00 01", "51 07 04 00 04 00 03"},  // RTC MAC subtype 3 of 3 and 1
      {4, "50 08 04 00 14 09 02 05 FF 03 00 00 50",
       "51 08 03 00 14 09 03 FF 03 00"},                  // 16-bit AttributeIDs from now on
      {5, "50 09 02 00 01", "51 09 02 00 01"},            // SKeyLength 1024
      {6, "50 0A 03 00 00 80", "51 0A 03 00 00 80"},      // ACAuthKeyLength 128
      {12, "50 0B 05 01 03 4A 52 00", "51 0B 02 01 03"},  // SlottedMode, ValueID 3
  };
  Script script;
  for (const Case& one : cases) {
    EXPECT_EQ(script.ask(one.protocol, one.request, 1), one.response);
  }
  EXPECT_EQ(script.terminal->get("SubType", i16(4)).to_integer(), 3);
  EXPECT_EQ(script.terminal->get("SessionKeyLength").to_integer(), 1024);
}

TEST(Session, MessagesAnsweredOutOfHand) {
  struct Case {
    int protocol;
    std::string message;
    int answer_code;
    std::string answer;
  };
  const Case cases[] = {
      {20, "00 2A", 1, "01 2A"},                          // FTAPParameterAssignment
      {21, "02 FF 04 05 06", 3, "03 FF"},                 // FTAPStatsClearRequest
      {22, "04 01 06 09", 5, "05 01 05 06 00 00 00 00"},  // FTAPStatsGetRequest: only what it knows
      {23, "80 11", 1, "81 11"},                          // RTAPParameterAssignment
      {16, "02 33", 3, "03 33"},                          // KeepAliveRequest
      {17, "01 44", 2, "02 44 00"},                       // UATIAssignment
      {14, "01 55 00 00 00 00 00 00", 2, "02 55"},        // TrafficChannelAssignment
      {21, "02", 3, ""},                                  // too short
      {7, "00", 1, ""},                                   // nobody knows it
  };
  for (const Case& one : cases) {
    Script script;
    EXPECT_EQ(script.ask(one.protocol, one.message, one.answer_code), one.answer) << one.message;
    EXPECT_EQ(script.terminal->get("OnReverseChannel").to_boolean(), one.protocol == 14);
  }
}

}  // namespace

}  // namespace vorlan::test
