// The messages of the default signaling and packet applications.
#include "messages/application/location_update.hpp"
#include "support/fake_sector.hpp"
#include "support/message_vectors.hpp"

namespace vorlan::test {
namespace {

constexpr std::string_view kPrefix = "SB_App_Msg";

TEST(ApplicationMessages, TravelInTheseOctets) {
  const MessageVector vectors[] = {
      {"SigReset", {{"PRstr_MessageSequence", "00000111"}}, "00 07"},
      {"SigResetAck", {{"PRstr_MessageID", "00000001"}, {"PRstr_MessageSequence", "00000111"}}, "01 07"},
      {"PktReset", {}, "00"},
      {"PktResetAck", {}, "01"},
      {"LocationRequest", {}, "03"},
      // 05 octets: SID 18, reserved, NID 7, PACKET_ZONE_ID A5
      {"LocationNotification",
       {{"PRstr_LocationType", "00000001"},
        {"PRstr_LocationLength", "00000101"},
        {"PRstr_LocationValue", "0000000000100100000000000000011110100101"}},
       "04 01 05 00 24 00 07 A5"},
      {"LocationComplete", {{"PRstr_MessageID", "00000110"}, {"PRstr_TransactionId", "01000010"}}, "06 42"},
      {"XonRequest", {{"PRstr_MessageID", "00000111"}}, "07"},
      {"XonResponse", {}, "08"},
      {"XoffRequest", {{"PRstr_MessageID", "00001001"}}, "09"},
      {"XoffResponse", {}, "0A"},
      {"DataReady", {{"PRstr_TransactionId", "11110000"}}, "0B F0"},
      {"DataReadyAck", {{"PRstr_TransactionId", "11110000"}}, "0C F0"},
  };
  for (const MessageVector& vector : vectors) expect_vector(kPrefix, vector);
}

TEST(LocationAssignment, TakesTheLocationFromTheConfiguration) {
  const auto configuration = fake_configuration();
  SB_App_MsgLocationAssignment message;
  message.initialize(fake_sector(configuration), {}, "");
  message.let<"PRstr_TransactionID">("00000010");
  message.let<"PRstr_PACKET_ZONE_ID">("10100101");
  configuration->reads.clear();
  // 05 id, 02 transaction, 01 type, 05 octets: SID 18 in 15 bits, a zero, NID 7, zone A5
  EXPECT_EQ(sent_by(message), "05 02 01 05 00 24 00 07 A5");
  EXPECT_EQ(configuration->reads, (std::vector<std::string>{"PRstr_LocationType", "PRstr_SID", "PRstr_NID"}));
  EXPECT_EQ(message.get<"PRstr_LocationValue">(), bits_of("00 24 00 07 A5"));

  // A value of another width is told as it is, but not sent.
  configuration->values["PRstr_SID"] = Value("0");
  EXPECT_EQ(message.get<"PRstr_LocationValue">(), "0" + bits_of("00 07 A5").insert(0, "0"));
  EXPECT_EQ(
      listed(message, raised_by([&] { static_cast<void>(message.encode()); })),
      (Raised{1, "SB_App_MsgLocationAssignment.CreateMessage", "The <LocationValue> field should be 40 bits long."}));

  for (const char* type : {"00000000", "00000010"}) {
    configuration->values["PRstr_LocationType"] = Value(type);
    EXPECT_EQ(message.encode(), std::string("0000010100000010") + type + "00000000");
    EXPECT_EQ(listed(message, raised_by([&] { message.let<"PRstr_PACKET_ZONE_ID">("00000001"); })),
              (Raised{1, "SB_App_MsgLocationAssignment.PRstr_PACKET_ZONE_ID",
                      "This property cannot be set when <LocationType> is not 0x01"}));
  }
  EXPECT_EQ(message.get<"PRstr_PACKET_ZONE_ID">(), "10100101");
}

TEST(LocationNotification, HasNoLocationOfTypeZero) {
  SB_App_MsgLocationNotification message;
  message.receive(received("04 00 05 00 24"));
  EXPECT_EQ(raised_by([&] { static_cast<void>(message.get<"PRstr_LocationLength">()); }),
            (Raised{1, "SB_App_MsgLocationNotification.PRstr_LocationLength",
                    "Location Length not included in the message string"}));
  EXPECT_EQ(raised_by([&] { static_cast<void>(message.get<"PRstr_LocationValue">()); }),
            (Raised{1, "SB_App_MsgLocationNotification.PRstr_LocationValue",
                    "Location Value not included in the message string"}));
  message.receive(received("04 01 05 00 24"));  // cut off
  EXPECT_EQ(message.get<"PRstr_LocationValue">(), bits_of("00 24"));
  EXPECT_EQ(location_update::location_text(bits_of("00 24 00 07 A5")), "SID 18, NID 7, PACKET_ZONE_ID 165");
}

}  // namespace
}  // namespace vorlan::test
