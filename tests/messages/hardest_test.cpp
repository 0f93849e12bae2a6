// The four messages on which the engine was proven.
#include <gtest/gtest.h>

#include "messages/application/nak.hpp"
#include "messages/connection/route_update.hpp"
#include "messages/connection/sector_parameters.hpp"
#include "messages/connection/traffic_channel_assignment.hpp"
#include "support/fake_sector.hpp"
#include "support/listed.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

const std::string kOneChannel = "000000000000100000011001";  // HRPD, band class 1, channel 25

std::string bits(std::initializer_list<std::string_view> parts) {
  std::string joined;
  for (const auto part : parts) joined += part;
  return joined;
}

TEST(Nak, HasTwoLayouts) {
  SB_App_MsgNak nak;
  nak.initialize();
  EXPECT_EQ(nak.encode(), bits({"00000010", "00000001", "00", std::string(22, '0'), std::string(16, '0')}));
  nak.let<"PRstr_FirstErased">(0, "1000000000000000000001");
  nak.let<"PRstr_NakRequests">("00000011");
  nak.let<"PRstr_WindowLen">(2, "1000000000000001");
  nak.let("PRint_NakType", std::int16_t{1});
  nak.let<"PRstr_RLPFlow">("10101");
  nak.let<"PRstr_SequenceLength">("00010110");
  const std::string zeros(38, '0');
  const std::string message =
      bits({"00000010", "10101", "000", "00010110", "00000011", "1000000000000000000001", std::string(16, '0'), "00",
            zeros, "00", std::string(22, '0'), "1000000000000001", "00"});
  EXPECT_EQ(nak.encode(), message);

  SB_App_MsgNak other;
  other.receive(message);
  EXPECT_EQ(other.get<"PRstr_NakRequests">(), "10101000");  // read in the layout of NakType 0
  other.let("PRint_NakType", std::int16_t{1});
  EXPECT_EQ(other.get<"PRstr_NakRequests">(), "00000011");
  EXPECT_EQ(other.get<"PRstr_RLPFlow">(), "10101");
  EXPECT_EQ(other.get<"PRstr_FirstErased">(0), "1000000000000000000001");
  EXPECT_EQ(other.get<"PRstr_WindowLen">(2), "1000000000000001");
  EXPECT_EQ(other.get<"PRstr_Reserved">(2), "00");
  other.let("PRint_NakType", std::int16_t{0});
  EXPECT_EQ(other.get<"PRstr_RLPFlow">(), "00000");  // the stored one
}

TEST(Nak, KeepsRequestsWithinTheNewNumber) {
  SB_App_MsgNak nak;
  const std::string first = "1111111111111111111111";
  nak.let<"PRstr_FirstErased">(0, first);
  nak.let<"PRstr_NakRequests">("00000011");
  EXPECT_EQ(nak.get<"PRstr_FirstErased">(0), first);
  EXPECT_EQ(nak.get<"PRstr_FirstErased">(2), std::string(22, '0'));
  nak.let<"PRstr_FirstErased">(2, first);
  nak.let<"PRstr_NakRequests">("00000001");
  nak.let<"PRstr_NakRequests">("00000011");
  EXPECT_EQ(nak.get<"PRstr_FirstErased">(2), std::string(22, '0'));  // dropped

  EXPECT_EQ(raised_by([&] { nak.let<"PRstr_FirstErased">(3, first); }),
            (Raised{1, "SB_App_MsgNak.PRstr_FirstErased", "Index for FirstErased exceeds NakRequests."}));
  EXPECT_EQ(raised_by([&] { nak.let<"PRstr_WindowLen">(3, "1"); }),
            (Raised{1, "SB_App_MsgNak.PRstr_FirstErased", "Index for WindowLen exceeds NakRequests."}));
  EXPECT_EQ(raised_by([&] { nak.let<"PRstr_WindowLen">(0, "1"); }),
            (Raised{1, "SB_App_MsgNak.PRstr_WindowLen",
                    " The length of argument passed should be equal to the length of WindowLen(length=16)."}));
  EXPECT_EQ(raised_by([&] { nak.let<"PRstr_NakRequests">("1"); }),
            (Raised{1, "SB_App_MsgNak.PRstr_NakRequests",
                    " The length of argument passed should be equal to  the length of NakRequests (length=8)."}));
  EXPECT_EQ(error_number([&] { nak.let("PRint_NakType", std::int16_t{2}); }), 5);
}

TEST(TrafficChannelAssignment, StartsFromTheConfiguration) {
  SB_Con_MsgTrafficChannelAssignment message;
  message.initialize(fake_sector(fake_configuration()), {}, "");
  // One pilot and no channel: 63 bits, one of padding.
  const std::string one_pilot = bits({"000001100", "0", "000101", "001", "10", "011"});
  const std::string head = bits({"00000001", "00000000"});
  const std::string fixed = bits({"1001", "10", "000000", "000000"});
  EXPECT_EQ(message.encode(), bits({head, "0", fixed, "0001", one_pilot, "0"}));
  message.let<"PRstr_ChannelIncluded">("1");
  EXPECT_EQ(message.encode(), bits({head, "1", kOneChannel, fixed, "0001", one_pilot, "0"}));

  // New records take PilotPN, MACIndex, DRCCover and RABLength, but no RABOffset.
  message.let<"PRstr_ChannelIncluded">("0");
  message.let<"PRstr_NumPilots">("0010");
  const std::string new_pilot = bits({"000001100", "0", "000101", "001", "10", "000"});
  EXPECT_EQ(message.encode(), bits({head, "0", fixed, "0010", new_pilot, new_pilot, "0"}));
}

TEST(TrafficChannelAssignment, SendsTheTailOnlyWhenAsked) {
  SB_Con_MsgTrafficChannelAssignment message;
  const auto configuration = fake_configuration();
  configuration->values.find("PRint_PhyLaySubType")->second = std::int16_t{2};  // MACIndex 70 in 7 bits: 1000110
  message.initialize(fake_sector(configuration), {}, "");
  message.let<"PRstr_NumPilots">("0011");
  message.let<"PRstr_SofterHandoff">(1, "1");
  message.let<"PRstr_DSC">(0, "001");
  message.let<"PRstr_DSC">(1, "111");  // not sent: same cell as the pilot before
  message.let<"PRstr_DSC">(2, "010");
  message.let<"PRstr_DSCChannelGain">("10001");
  const std::string start = message.encode().substr(0, 39 + 3 * 24);
  EXPECT_EQ(message.encode(), start + "0");  // 111 bits, padded
  EXPECT_EQ(start.substr(39 + 10, 6), "000110");

  message.let<"PRstr_MACIndexMSBsIncluded">("1");
  EXPECT_EQ(message.encode(), start + bits({"0", "1", "111", "10001", "001", "010"}) + "0");
  message.let<"PRstr_RAChannelGainIncluded">("1");
  message.let<"PRstr_RAChannelGain">(1, "11");
  EXPECT_EQ(message.encode(), start + bits({"1", "001100", "1", "111", "10001", "001", "010"}) + "000");
}

TEST(TrafficChannelAssignment, KeepsMACIndexAndItsPartsConsistent) {
  SB_Con_MsgTrafficChannelAssignment message;
  message.initialize(fake_sector(fake_configuration()), {}, "");
  message.let<"PRstr_MACIndex">(0, "100101");
  EXPECT_NO_THROW(message.let<"PRstr_MACIndexLSBs">(0, "100101"));
  EXPECT_NO_THROW(message.let<"PRstr_MACIndexMSB">(0, "1"));
  EXPECT_EQ(message.get<"PRstr_MACIndexLSBs">(0), "100101");
  EXPECT_EQ(listed(message, raised_by([&] { message.let<"PRstr_MACIndexLSBs">(0, "000101"); })),
            (Raised{1, "SB_Con_MsgTrafficChannelAssigment.PRstr_MACIndexLSBs",
                    "Incorrect value supplied.Please make sure that any occurence of MACIndexLSBs is equal to the 6 "
                    "least significant bits of the corresponding occurence of MACIndex"}));
  EXPECT_EQ(listed(message, raised_by([&] { message.let<"PRstr_MACIndexMSB">(0, "0"); })),
            (Raised{1, "SB_Con_MsgTrafficChannelAssigment.PRstr_MACIndexMSB",
                    "Incorrect value supplied.Please make sure that any occurence of MACIndexMSB is equal to the most "
                    "significant bit of the corresponding occurence of MACIndex"}));
  EXPECT_EQ(listed(message, raised_by([&] { message.let<"PRstr_PilotPN">(1, "000000001"); })),
            (Raised{1, "SB_Con_MsgTrafficChannelAssignment.PRstr_PilotPN",
                    "Out of range index. Please add elements with index 0 through 0"}));
  EXPECT_EQ(listed(message, raised_by([&] { static_cast<void>(message.get<"PRstr_DRCCover">(1)); })),
            (Raised{1, "SB_Con_MsgTrafficChannelAssigment.PRstr_DRCCover",
                    "Trying to access Array Index Value that is out of range."}));
}

TEST(TrafficChannelAssignment, NamesTheArrayThatLacksElements) {
  SB_Con_MsgTrafficChannelAssignment message;
  const auto configuration = fake_configuration();
  configuration->values.find("PRstr_PilotPN")->second = "";  // a configuration without a value
  message.initialize(fake_sector(configuration), {}, "");
  message.let<"PRstr_NumPilots">("0010");
  EXPECT_EQ(
      listed(message, raised_by([&] { static_cast<void>(message.encode()); })),
      (Raised{1, "Sb_Con_MsgTrafficChannelAssignment.CreateMessage", "PilotPN array should contain 2 elements."}));
}

TEST(SectorParameters, SendsRel0BodyAndOnlyTheGroupsAskedFor) {
  SB_Con_MsgSectorParameters message;
  const auto configuration = fake_configuration();
  message.initialize(fake_sector(configuration), {}, "");
  configuration->reads.clear();
  const std::string head =
      bits({"00000001", "001100010000", bits_of("A0000001B0000003C0000007D000000F"), "01101000", "0001001000110100",
            "0010100010110110110000", "11010000000000001111000", "00000000101", "00000000", "00000000000", "01", "10"});
  ASSERT_EQ(head.size(), 251U);
  EXPECT_EQ(message.encode(), bits({head, "00001", kOneChannel, "00000", "0", "0", "0"}));  // 287 bits and padding
  const std::vector<std::string> order{
      "PRstr_CountryCode",         "PRstr_SectorID",          "PRstr_SectorID127_96",
      "PRstr_SectorID95_64",       "PRstr_SectorID63_32",     "PRstr_SubnetMask",
      "PRstr_SectorSignature",     "PRstr_RouteUpdateRadius", "PRstr_RevLinkSilenceDuration",
      "PRstr_RevLinkSilencePeriod"};
  EXPECT_EQ(configuration->reads, order);

  message.let<"PRstr_NeighborCount">("00010");
  message.let<"PRstr_NeighborPilotPN">(1, "111111111");
  message.let<"PRstr_NeighborChannelIncluded">(1, "1");
  message.let<"PRstr_NeighborSearchWindowSizeIncluded">("1");
  message.let<"PRstr_NeighborSearchWindowSize">(0, "0110");
  message.let<"PRstr_ExtendedChannelCount">("00010");  // Not sent, and so no masks for them.
  message.let<"PRstr_AccessHashingMaskLength">("0010");
  message.let<"PRstr_AccessHashingChannelMaskIncluded">("1");
  message.let<"PRstr_AccessHashingChannelMask">(0, "101");
  const std::string neighbours =
      bits({"00010", "000001100", "111111111", "0", "1", kOneChannel, "1", "0110", "0000", "0"});
  // The chain ends with the access hashing group; the flag before it is sent, those behind it are not.
  std::string expected = bits({head, "00001", kOneChannel, neighbours, "0", "1", "0010", "0", "101"});
  expected.resize((expected.size() + 7) / 8 * 8, '0');
  EXPECT_EQ(message.encode(), expected);
  message.let<"PRstr_AccessHashingMaskLength">("0001");
  EXPECT_EQ(message.get<"PRstr_AccessHashingChannelMask">(0), "00") << "a mask of the width before";

  EXPECT_EQ(raised_by([&] { message.let<"PRstr_AccessHashingChannelMask">(0, "1"); }),
            (Raised{1, "SB_Con_MsgSectorParameters.PRstr_AccessHashingChannelMask",
                    "Length of <AccessHashingChannelMask> field should be equal to the value (AccessHashingMaskLength "
                    "+ 1)"}));
  EXPECT_EQ(raised_by([&] { message.let<"PRstr_Channel">(1, kOneChannel); }),
            (Raised{1, "SB_Con_MsgSectorParameters.PRstr_Channel",
                    "Out of range index. Please add elements with index 0 through 0"}));
  EXPECT_EQ(raised_by([&] { message.let<"PRstr_Latitude">("1"); }).description,
            "Length of <PRstr_Latitude> field should be 22 bits.");
}

TEST(RouteUpdate, WalksPilotsWithAndWithoutAChannel) {
  SB_Con_MsgRouteUpdate message;
  EXPECT_EQ(message.Object::get("PRbln_MessageReceived"), Value(false));
  EXPECT_EQ(raised_by([&] { static_cast<void>(message.get<"PRstr_Keep">(0)); }),
            (Raised{1, "SB_Con_MsgRouteUpdate.PRstr_Keep",
                    "RouteUpdate Message object set to nothing. Please set <PRobj_MessageObject> property first."}));
  const std::string reference = bits({"00000000", "00000111", "000001100", "001110", "1"});
  const std::string near = bits({"000001100000001", "0", "010000", "1"});
  const std::string far = bits({"000001100000010", "1", kOneChannel, "010001", "0"});
  message.receive(bits({reference, "0010", near, far}));
  EXPECT_EQ(message.Object::get("PRbln_MessageReceived"), Value(true));
  EXPECT_EQ(message.get<"PRstr_ReferencePilotStrength">(), "001110");
  EXPECT_EQ(message.get<"PRstr_PilotPNPhase">(1), "000001100000010");
  EXPECT_EQ(message.get<"PRstr_Channel">(1), kOneChannel);
  EXPECT_EQ(message.get<"PRstr_PilotStrength">(1), "010001");
  EXPECT_EQ(message.get<"PRstr_Keep">(0), "1");
  EXPECT_EQ(raised_by([&] { static_cast<void>(message.get<"PRstr_Channel">(0)); }),
            (Raised{1, "SB_Con_MsgRouteUpdate.PRstr_Channel", "ChannelNumber Not included For this  index.\""}));
  EXPECT_EQ(error_number([&] { static_cast<void>(message.get<"PRstr_Keep">(2)); }), 9);

  // Promised, but cut off: what is left of it, then nothing.
  message.receive(bits({reference, "1111", near, far.substr(0, 20)}));
  EXPECT_EQ(message.get<"PRstr_Channel">(1), kOneChannel.substr(0, 4));
  EXPECT_EQ(message.get<"PRstr_Keep">(1), "");
  EXPECT_EQ(message.get<"PRstr_PilotPNPhase">(14), "");
}

}  // namespace
}  // namespace vorlan::test
