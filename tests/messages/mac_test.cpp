// MAC-layer messages.
#include "messages/dissection.hpp"
#include "messages/mac/access_channel.hpp"
#include "messages/mac/forward_traffic_channel.hpp"
#include "messages/mac/reverse_traffic_channel.hpp"
#include "support/fake_sector.hpp"
#include "support/message_vectors.hpp"

namespace vorlan::test {
namespace {

TEST(AccessParameters, TakesItsFieldsFromTheConfiguration) {
  const auto configuration = fake_configuration();
  SB_MAC_MsgAccessParameters message;
  message.initialize(fake_sector(configuration), {}, "");
  // 01, cycle 64, signature, open loop 81, then 11101 -3 dB, 5 steps, of 6, preamble 2, capsule 3, persistence 4 x 0
  EXPECT_EQ(sent_by(message), "01 40 56 78 51 EA B2 30 00 00 00");
  EXPECT_EQ(configuration->reads,
            (std::vector<std::string>{"PRint_AccessCycleDuration", "PRstr_AccessSignature", "PRsin_OpenLoopAdjust",
                                      "PRsin_ProbeInitialAdjust", "PRint_ProbeNumStep", "PRint_PowerStep",
                                      "PRint_PreambleLength", "PRint_CapsuleLengthMax"}));
  message.let<"PRstr_APersistence">(0, "111111");
  message.let<"PRstr_APersistence">(3, "000001");
  EXPECT_EQ(sent_by(message), "01 40 56 78 51 EA B2 3F C0 00 10");
  configuration->values["PRint_CapsuleLengthMax"] = std::int16_t{15};  // read again every time
  EXPECT_EQ(sent_by(message), "01 40 56 78 51 EA B2 FF C0 00 10");
}

TEST(AccessParameters, SendsTheInitialAdjustmentInTwosComplement) {
  struct Case {
    float adjust;
    const char* bits;
  };
  for (const Case& c : {Case{-3, "11101"}, Case{3, "00011"}, Case{0, "00000"}, Case{-0.4F, "00000"},
                        Case{-2.5F, "11110"}, Case{2.5F, "00010"}, Case{-16, "10000"}, Case{15, "01111"}}) {
    const auto configuration = fake_configuration();
    configuration->values["PRsin_ProbeInitialAdjust"] = c.adjust;
    SB_MAC_MsgAccessParameters message;
    message.initialize(fake_sector(configuration), {}, "");
    EXPECT_EQ(message.encode().substr(40, 5), c.bits) << c.adjust;
    configuration->values["PRsin_ProbeInitialAdjust"] = -32.0F;
    EXPECT_EQ(error_number([&] { sent_by(message); }), 1);
  }
}

TEST(AccessParameters, ChecksThePersistence) {
  const std::string source = "SB_Mac_MsgAccessparameters.PRstr_APersistence";
  const auto message = make<SB_MAC_MsgAccessParameters>();
  const auto let = [&](std::int16_t index, const char* bits) {
    return listed(*message, raised_by([&] { message->Object::let("PRstr_APersistence", index, bits); }));
  };
  EXPECT_EQ(let(4, "1"), (Raised{1, source, "Index is out of bounds"}));
  EXPECT_EQ(let(-1, "000000"), (Raised{1, source, "Index is out of bounds"}));
  EXPECT_EQ(let(3, "1"), (Raised{1, source, "Length of <Apersistence> field should be 6 bits."}));
  EXPECT_EQ(error_number([&] { message->Object::get("PRstr_APersistence", std::int16_t{0}); }), 438);
  message->initialize(fake_sector(fake_configuration()), {}, "1");
  EXPECT_EQ(let(4, "1"), (Raised{1, source, "Encoder and this property cannot be used simultaneously"}));
}

TEST(AccessParameters, OfTheEnhancedProtocolAreTakenApart) {
  // 84 bits, then 1, 16 slots, offset 2, rate 1, time-out 3, nominal 5, correction 2 and 4
  const auto tree =
      dissect(SB_MAC_MsgAccessParameters::shared_class(), bits_of("01 40 56 78 51 EA B2 3F C0 00 1E 5D 50"));
  const std::vector<std::string> values{"1",        "16 slots", "8 slots", "19.2 kbit/s",
                                        "48 slots", "+1 dB",    "-2 dB",   "4 dB"};
  ASSERT_GE(tree.size(), values.size() + 1);
  for (std::size_t i = 0; i < values.size(); ++i) {
    EXPECT_EQ(tree[tree.size() - 1 - values.size() + i].value, values[i]);
  }
  EXPECT_EQ(tree[4].value, "-3 dB");
  EXPECT_EQ(tree[9].value, "0");  // the persistence of all ones
}

TEST(RateLimits, SendTheseOctets) {
  expect_vector("SB_Mac_Msg", {"AcAck", {}, "00"});
  expect_vector("SB_Mac_Msg", {"RTCAck", {}, "00"});
  expect_vector("SB_Mac_Msg", {"UnicastRevRateLimit", {{"PRstr_RateLimit", "0101"}}, "02 50"});

  SB_Mac_MsgBroadcastRevRateLimit broadcast;
  broadcast.initialize();
  EXPECT_EQ(sent_by(broadcast), "01 04 00");  // 000001 0000 and six of padding
  broadcast.let<"PRstr_RateLimit">(0, "0101");
  broadcast.let<"PRstr_RPCCount">("000011");  // makes the limits afresh
  broadcast.let<"PRstr_RateLimit">(2, "0011");
  EXPECT_EQ(sent_by(broadcast), "01 0C 00 C0");  // 000011 0000 0000 0011
  broadcast.let<"PRstr_RPCCount">("000000");
  EXPECT_EQ(sent_by(broadcast), "01 00");
  broadcast.let<"PRstr_RPCCount">("111111");
  EXPECT_EQ(broadcast.encode().size(), 272U);  // 8 + 6 + 63 x 4 and padding
}

TEST(FixedModeEnable, GivesWhatIsThere) {
  expect_vector("SB_Mac_Msg", {"FixedModeEnable",
                               {{"PRstr_TCAMessageSequence", "00000111"},
                                {"PRstr_DRCCover", "101"},
                                {"PRstr_DRCValue", "1100"},
                                {"PRstr_EndTime", "1111111111111111"},
                                {"PRstr_Reserved", "1"}},
                               "00 07 B9 FF FF"});
  expect_vector(
      "SB_Mac_Msg",
      {"FixedModeEnable", {{"PRstr_DRCValue", "1100"}, {"PRstr_EndTime", "1"}, {"PRstr_Reserved", ""}}, "00 07 B9"});
}

TEST(BroadcastRevRateLimit, ChecksTheIndex) {
  const std::string source = "SB_Mac_BroadcastReverseRateLimit.PRstr_RateLimit";
  SB_Mac_MsgBroadcastRevRateLimit broadcast;
  EXPECT_EQ(raised_by([&] { static_cast<void>(broadcast.get<"PRstr_RateLimit">(1)); }),
            (Raised{1, source, " Index more than the upper bound of RateLimit array "}));
  EXPECT_EQ(raised_by([&] { broadcast.let<"PRstr_RateLimit">(1, "1"); }),
            (Raised{1, source, "Length of <RateLimit> field should be 4 bits."}));
  EXPECT_EQ(error_number([&] { broadcast.let<"PRstr_RateLimit">(1, "0000"); }), 9);
}

}  // namespace
}  // namespace vorlan::test
