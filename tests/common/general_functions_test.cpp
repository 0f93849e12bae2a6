// Members of SB_GeneralFunctions that are no conversions.
#include "common/general_functions.hpp"

#include <gtest/gtest.h>

#include "common/sector_identity.hpp"
#include "support/fake_platform.hpp"
#include "support/print_value.hpp"
#include "support/raised.hpp"
#include "support/recording_message.hpp"

namespace vorlan {
namespace {

using test::raised_by;

// A call must not copy a long bit string, nor put another object in the place of the caller's.
TEST(GeneralFunctions, MessageArgumentsStayTheCallersOwn) {
  test::FakePlatform fake;
  const auto functions = make<SB_GeneralFunctions>(fake.platform);
  const auto message = make<test::RecordingMessage>();
  std::array<Value, 2> arguments{Value(std::string(1000, '1')), Value(message)};
  const char* const place = arguments[0].as<std::string>()->data();
  functions->invoke("BinStringToMsg", Access::Call, arguments);
  EXPECT_EQ(arguments[0].as<std::string>()->data(), place);
  EXPECT_EQ(arguments[1], Value(message));
  EXPECT_EQ(message->octets().size(), 126U);
  EXPECT_EQ(message->length(), Value(0));
  message->set_length(1000);
  EXPECT_EQ(functions->call("MsgToBinString", message), Value(std::string(1000, '1')));
}

TEST(GeneralFunctions, CentreFrequency) {
  test::FakePlatform fake;
  const auto functions = make<SB_GeneralFunctions>(fake.platform);
  const auto frequency = [&](auto... arguments) { return functions->call("CalculateCentreFrequency", arguments...); };
  EXPECT_EQ(frequency(0, 283), Value(878.49));
  EXPECT_EQ(frequency("0", 283.0, false), Value(833.49));
  const std::string source = "SB_GeneralFunctions.CalculateCentreFrequency";
  EXPECT_EQ(raised_by([&] { frequency(0, 900); }),
            (test::Raised{1, source, "The channel number 900 is not valid in band class 0."}));
  EXPECT_EQ(raised_by([&] { frequency(31, 1); }),
            (test::Raised{1, source, "The frequencies of band class 31 are not known."}));
}

TEST(GeneralFunctions, KnowsTheSectorThatWasRemembered) {
  test::FakePlatform fake;
  const auto functions = make<SB_GeneralFunctions>(fake.platform);
  const auto is_new = [&](auto... arguments) { return functions->call("IsNewSector", arguments...); };
  EXPECT_EQ(is_new("1010", "01", "11"), Value(true)) << "none is remembered";
  remember_sector(*fake.settings, {"1010", "01", "11"});
  EXPECT_EQ(fake.settings->read("1x-EVDOKetra", "SectorFields", "MRUSubnetMask"), "01");
  EXPECT_EQ(is_new("1010", "01", "11"), Value(false));
  EXPECT_EQ(is_new("1011", "01", "11"), Value(true));
  EXPECT_EQ(is_new("1010", "00", "11"), Value(true));
  EXPECT_EQ(is_new("1010", "01", "10"), Value(true));
}

}  // namespace
}  // namespace vorlan
