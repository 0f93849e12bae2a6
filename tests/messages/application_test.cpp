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
      raised_by([&] { static_cast<void>(message.encode()); }),
      (Raised{1, "SB_App_MsgLocationAssignment.CreateMessage", "The <LocationValue> field should be 40 bits long."}));

  for (const char* type : {"00000000", "00000010"}) {
    configuration->values["PRstr_LocationType"] = Value(type);
    EXPECT_EQ(message.encode(), std::string("0000010100000010") + type + "00000000");
    EXPECT_EQ(raised_by([&] { message.let<"PRstr_PACKET_ZONE_ID">("00000001"); }),
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

TEST(ApplicationMessages, RaiseTheseTexts) {
  struct Case {
    const char* name;
    const char* member;
    const char* value;
    Raised raised;
  };
  const char* const kLocation =
      "LocationComplete message object set to nothing. Please set <PRobj_MessageObject> property first.";
  const char* const kXoff =
      "XoffRequest message object set to Nothing. Please set <PRobj_MessageObject> property first. ";
  const char* const kResetAck =
      "MsgResetAck message Object Set To Nothing. Please set PRobj_MessageObject property first.";
  const Case cases[] = {
      {"SigReset",
       "CreateMessage",
       "()",
       {1, "SB_App_MsgSigReset.CreateMessage", "Please call initialize of Reset Message first."}},
      {"SigReset",
       "PRstr_MessageSequence",
       "1",
       {1, "SB_App_MsgSigReset.PRstr_MessageSequence", "Length of MessageSequence field should be 8 bits ."}},
      {"SigResetAck", "PRstr_MessageID", nullptr, {1, "SB_App_MsgSigReset.PRstr_MessageId", kResetAck}},
      {"SigResetAck", "PRstr_MessageSequence", nullptr, {1, "SB_App_MsgSigReset.PRstr_MessageSequence", kResetAck}},
      {"PktReset",
       "CreateMessage",
       "()",
       {1, "SB_App_MsgPktReset.CreateMessage",
        "Class not initialized. Please call <Initialize> of PktReset Message first."}},
      {"PktReset",
       "PRstr_MessageString",
       nullptr,
       {1, "SB_App_MsgPktReset.PRstr_MessageString",
        "PktReset message object set to nothing. Please set <PRobj_MessageObject> property first."}},
      {"PktResetAck",
       "CreateMessage",
       "()",
       {1, "SB_App_MsgPktResetAck.CreateMessage",
        "Class not initialized. Please call <Initialize> of PktResetAck Message first."}},
      {"LocationRequest",
       "CreateMessage",
       "()",
       {1, "SB_App_MsgLocationRequest.CreateMessage",
        "Class not initialized. Please call <Initialize> of LocationRequest Message first."}},
      {"LocationNotification",
       "PRstr_MessageID",
       nullptr,
       {1, "SB_App_MsgLocationNotification.PRstr_MessageID", kLocation}},
      {"LocationNotification",
       "PRstr_LocationLength",
       nullptr,
       {1, "SB_App_MsgLocationNotification.PRstr_LocationLength", kLocation}},
      {"LocationAssignment",
       "CreateMessage",
       "()",
       {1, "SB_App_MsgLocationAssignment.CreateMessage",
        "Class not initialized. Please Call <Initialize> of LocationAssignment Message first."}},
      {"LocationAssignment",
       "PRstr_TransactionId",
       "1",
       {1, "SB_App_MsgLocationAssignment.PRstr_TransactionID", "Length of <TransactionID> field should be 8 bits."}},
      {"LocationAssignment",
       "PRstr_PACKET_ZONE_ID",
       "1",
       {1, "SB_App_MsgLocationAssignment.PRstr_PACKET_ZONE_ID", "Length of <PACKET_ZONE_ID> field should be 8 bits."}},
      {"LocationComplete",
       "PRstr_TransactionId",
       nullptr,
       {1, "SB_App_MsgLocationComplete.PRstr_TransactionId",
        "LocationComplete message object set to nothing. Please set PRobj_MessageObject property first."}},
      {"XoffRequest", "PRstr_MessageString", nullptr, {1, "SB_App_MsgXoffRequest.PRstr_MessageString", kXoff}},
      {"XoffRequest", "PRstr_MessageID", nullptr, {1, "SB_App_MsgXoffRequest.PRstr_MessageId", kXoff}},
      {"XonRequest",
       "PRstr_MessageString",
       nullptr,
       {1, "SB_App_MsgXonRequest.PRstr_MessageString",
        "XonRequest message object set to Nothing. Please set <PRobj_MessageObject> property first."}},
      {"XonRequest",
       "PRstr_MessageID",
       nullptr,
       {1, "SB_App_MsgXonRequest.PRstr_MessageId",
        "XonRequest message object set to Nothing. Please set <PRobj_MessageObject> property first. "}},
      {"XonResponse",
       "CreateMessage",
       "()",
       {1, "SB_App_MsgXonResponse.CreateMessage",
        "Class not initialized. Please call <Initialize> of XonResponse Message first."}},
      {"XoffResponse",
       "CreateMessage",
       "()",
       {1, "SB_App_MsgXoffResponse.CreateMessage",
        "Class not initialized. Please Call <Initialize> of XoffResponse Message first."}},
      {"DataReady",
       "CreateMessage",
       "()",
       {1, "SB_App_MsgDataReady.CreateMessage", "Please Call <Initialize> of DataReady Message first."}},
      {"DataReady",
       "PRstr_TransactionId",
       "",
       {1, "SB_App_MsgDataReady.PRstr_TransactionID", "Length of <TransactionID> should be 8 bits."}},
      {"DataReadyAck",
       "PRstr_TransactionId",
       nullptr,
       {1, "SB_App_MsgDataReadyAck.PRstr_TransactionId",
        "DataReadyAck message Object Set To Nothing. Please set PRobj_MessageObject property first."}},
  };
  for (const Case& c : cases) expect_text(c.name, kPrefix, c.member, c.value, c.raised);
}

}  // namespace
}  // namespace vorlan::test
