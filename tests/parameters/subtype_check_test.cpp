// Corrections of protocol subtypes, with the lines that report them.
#include <gtest/gtest.h>

#include "parameters/subtype_check.hpp"

namespace vorlan {
namespace {

using Lines = std::vector<std::string>;

TEST(SubtypeCheck, CorrectsAndWarns) {
  const std::string needs =
      " is supported only with Physical Layer SubType 2, MAC FTC Layer SubType 1 and MAC RTC Layer SubType 3";
  const std::string to_phy = "Initialising the value of Physical Layer SubType to 2";
  const std::string to_ftc = "Initialising the value of MAC FTC Layer SubType to 1";
  const std::string to_rtc = "Initialising the value of MAC RTC Layer SubType to 3";
  // Two blanks in front of every name but the first.
  const auto invalid = [](int value, const std::string& name, const char* key, int highest) {
    return "Warning: Invalid value " + std::to_string(value) + " for " + name + "[" + key + "]. The valid range for " +
           name + " is between [-1," + std::to_string(highest) + "]";
  };
  const auto set_to = [](const std::string& name, int value) {
    return "Initialising the value of " + name + " to " + std::to_string(value);
  };
  const std::string phy = "Physical Layer SubType";
  const std::string ftc = "MAC Layer FTC SubType";
  const std::string rtc = "MAC Layer RTC SubType";
  struct Case {
    SubtypeSet given;  // physical, RTC, FTC, idle, CC, ACH, application, async, sub-sync
    SubtypeSet corrected;
    Lines warnings;
  };
  const Case cases[] = {
      {{0, 0, 0, 0, 0, 0, 0, 4, 0}, {0, 0, 0, 0, 0, 0, 0, 4, 0}, {}},
      {{2, 3, 1, 1, 1, 1, 1, 9, 9}, {2, 3, 1, 1, 1, 1, 1, 9, 9}, {}},
      {{-1, -1, -1, -1, -1, -1, -1, -1, -1}, {-1, -1, -1, -1, -1, -1, -1, -1, -1}, {}},
      {{3, 0, 0, 0, 0, 0, 0, 5, 0}, {0, 0, 0, 0, 0, 0, 0, 5, 0}, {invalid(3, phy, "PhyLaySubType", 2), set_to(phy, 0)}},
      {{2, 4, 2, 0, 0, 0, 0, 4, 0},
       {2, 3, 1, 0, 0, 0, 0, 4, 0},
       {invalid(2, ftc, "MACLayFTCSubType", 1), set_to(" " + ftc, 1), invalid(4, rtc, "MACLayRTCSubType", 3),
        set_to(" " + rtc, 3)}},
      {{1, -2, -2, 2, 2, -2, 0, 4, 0},
       {1, 1, 0, 0, 0, 0, 0, 4, 0},
       {invalid(-2, ftc, "MACLayFTCSubType", 1), set_to(" " + ftc, 0), invalid(-2, rtc, "MACLayRTCSubType", 3),
        set_to(" " + rtc, 1), invalid(2, "Idle State SubType", "IdleStateSubType", 1), set_to(" Idle State SubType", 0),
        invalid(2, "MAC Layer CC SubType", "MACLayCCSubType", 1), set_to(" MAC Layer CC SubType", 0),
        invalid(-2, "MAC Layer ACH SubType", "MACLayACHSubType", 1), set_to(" MAC Layer ACH SubType", 0)}},
      {{0, 0, 0, 0, 0, 0, 1, 4, 0},
       {2, 3, 1, 0, 0, 0, 1, 4, 0},
       {"Warning: Multi-Flow Packet Application" + needs, to_phy, to_ftc, to_rtc}},
      {{2, 3, 0, 1, 0, 0, 0, 4, 0},
       {2, 3, 1, 1, 0, 0, 0, 4, 0},
       {"W arning: Enhanced Idle State Protocol" + needs, to_ftc}},
      {{2, 1, 1, 0, 1, 1, 0, 0, 0},
       {2, 3, 1, 0, 1, 1, 0, 0, 0},
       {"Warning: Enhanced Control Channel MAC Protocol" + needs, to_rtc}},
      {{1, 3, 1, 0, 0, 1, 0, 4, 0},
       {2, 3, 1, 0, 0, 1, 0, 4, 0},
       {"Warning: Enhanced Access Channel MAC Protocol" + needs, to_phy}},
      {{1, 3, 0, 0, 0, 0, 0, 4, 0},
       {1, 1, 0, 0, 0, 0, 0, 4, 0},
       {"Warning: MAC RTC Layer SubType 3 is not supported with Physical Layer SubType 1"}},
      {{0, 3, 0, 0, 0, 0, 0, 6, 0},
       {0, 0, 0, 0, 0, 0, 0, 4, 0},
       {"Warning: MAC RTC Layer SubType 3 is not supported with Physical Layer SubType 0",
        "Warning: Valid Value of Async rate are in the range 4..5 for Default Control Channel (CCMAC Subtype 0)",
        "Initialising the value of Async Rate (for CCMAC Subtype 0) to 4"}},
  };
  for (const Case& c : cases) {
    SubtypeSet subtypes = c.given;
    EXPECT_EQ(correct_subtypes(subtypes), c.warnings);
    EXPECT_EQ(subtypes, c.corrected);
  }
}

}  // namespace
}  // namespace vorlan
