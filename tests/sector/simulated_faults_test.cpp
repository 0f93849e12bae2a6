// What a script sees of a terminal that misbehaves in the middle of a session, and that the next session
// of the same objects goes well.
#include "sector/simulated_sector.hpp"

namespace vorlan::test {
namespace {

const Raised kContent{};
const Raised kNotComplete{1, "SB_Sector.StartSessionNegotiationFromAN",
                          "ConfigurationComplete Message not received from the Access Terminal."};
const Raised kNoResponse{1, "SB_DefaultSession.DefSessionNegotiation",
                         "Configuration Response Message could not be created."};
const Raised kNotAssigned{1, "18_6_4.Negotiate_FTAP",
                          "FTAPParameterComplete not received in response to FTAPParameterAssignment"};
const Raised kNotCleared{1, "SB_Sector.NegotiateFTAP",
                         "AT did not clear its current statistics to 0 when requested through FTAPStatsClearRequest"};

const std::string kRates = "SB_PROT_RevTrafficChannel.NegotiateRateParametersAttribute";
const Raised kRatesUnanswered{1, kRates,
                              "ConfigurationResponse not received from the AT for ConfigurationRequest on Default "
                              "Reverse Traffic Channel MAC Protoco1 proposing Rate Parameters Attribute"};

/// The session with the trouble, then Behave(), ten seconds and a session without.
void expect_one_bad_session(SimulatedSector& s, const Raised& expected, const std::string& complaint = "") {
  EXPECT_EQ(raised_by([&] { s.run(); }), expected);
  EXPECT_EQ(s.complaint(), complaint);
  EXPECT_EQ(s.signalling->get("Filters").to_integer(), 0);
  s.terminal->call("Behave");
  s.terminal->call("ForgetComplaints");
  s.test_set->call("Sleep", 10.0);
  s.trace->call("Clear");
  s.part("TestReport")->call("Clear");
  EXPECT_EQ(raised_by([&] { s.run(); }), kContent);
  EXPECT_EQ(s.complaint(), "");
  EXPECT_EQ(s.state(), "Open");
  EXPECT_EQ(s.part("TestReport")->get("Count").to_integer(), 7);
}

TEST(SimulatedFaults, TheTerminalMisbehaves) {
  struct Case {
    std::string_view member;
    std::vector<Value> arguments;
    Raised raised;
    std::string complaint = "";
  };
  const Value request = i16(0x50);
  const Value response = i16(0x51);
  const std::vector<Case> cases{
      {"Refuse", {i16(5)}, kContent},

      {"StaySilent", {}, kNotComplete},
      {"StaySilent", {i16(18)}, kNotComplete},
      {"StaySilent", {i16(18), i16(0)}, kNotComplete},
      {"StaySilent", {i16(19)}, kNotComplete},
      {"StaySilent", {i16(14)}, kNotComplete},
      {"StaySilent", {i16(4)}, kNotComplete},
      {"StaySilent", {i16(4), response}, kRatesUnanswered},
      {"StaySilent", {i16(21)}, kNotAssigned},
      {"StaySilent", {i16(21), i16(3)}, kNotCleared},

      // Time-outs are 2 s, 5 s, 3 s and 5 s; the terminal takes 20 ms of its own.
      {"AnswerLate", {1980, i16(18)}, kContent},
      {"AnswerLate", {2000, i16(18)}, kNotComplete},
      {"AnswerLate", {4980, i16(4), response}, kContent},
      {"AnswerLate", {5000, i16(4), response}, kRatesUnanswered},
      {"AnswerLate", {2980, i16(21), i16(1)}, kContent},
      {"AnswerLate", {3000, i16(21), i16(1)}, kNotAssigned},
      {"AnswerLate", {5000, i16(21), i16(3)}, kNotCleared},

      {"WrongTransactionID", {i16(18), request}, kNotComplete, "TransactionID 1 where 0 is waited for"},
      {"WrongTransactionID", {i16(14), request}, kNotComplete, "TransactionID 4 where 3 is waited for"},
      {"WrongTransactionID",
       {i16(18), i16(0)},
       kContent,
       "TransactionID 5 where that of the terminal's ConfigurationComplete, 4, is waited for"},

      {"SendGarbage", {"50", i16(18), request}, kNoResponse},
      {"SendGarbage", {"50 01 0A 00 00", i16(19), request}, kNoResponse},
      {"SendGarbage", {"50 02 00", i16(4), request}, kNoResponse},
      {"SendGarbage", {"FF 00", i16(14), request}, kNotComplete},
      {"SendGarbage", {"", i16(18), request}, kNotComplete},
      {"SendGarbage", {"00", i16(18), i16(0)}, kNotComplete},
      {"SendGarbage", {"EE", i16(4), response}, kRatesUnanswered},
      {"SendGarbage", {"FF FF FF FF", i16(21), i16(1)}, kNotAssigned},
  };
  for (const Case& c : cases) {
    std::string name(c.member);
    for (const Value& argument : c.arguments) name += ' ' + argument.to_text();
    SCOPED_TRACE(name);
    SimulatedSector s;
    std::vector<Value> arguments = c.arguments;
    s.terminal->invoke(c.member, Access::Call, arguments);
    expect_one_bad_session(s, c.raised, c.complaint);
  }
}

}  // namespace
}  // namespace vorlan::test
