// The messages of the test applications, and that of the stream layer.
#include "messages/stream/application_data.hpp"
#include "messages/testapp/forward_test_application.hpp"
#include "support/message_vectors.hpp"

namespace vorlan::test {
namespace {

constexpr std::string_view kPrefix = "SB_TAS_Msg";

TEST(TestApplicationMessages, TravelInTheseOctets) {
  const MessageVector vectors[] = {
      {"FTAPParameterAssignment", {{"PRstr_TransactionId", "00000101"}}, "00 05"},
      {"FTAPParameterComplete", {{"PRstr_MessageID", "00000001"}, {"PRstr_TransactionId", "00000101"}}, "01 05"},
      {"FTAPStatsClearRequest", {{"PRstr_TransactionId", "00000101"}}, "02 05"},
      {"FTAPStatsClearResponse", {{"PRstr_TransactionId", "00000101"}}, "03 05"},
      {"FTAPStatsGetRequest", {{"PRstr_TransactionId", "00000101"}}, "04 05"},
      {"RTAPParameterAssignment", {{"PRstr_TransactionId", "00000101"}}, "80 05"},
      {"RTAPParameterComplete", {{"PRstr_MessageID", "10000001"}, {"PRstr_TransactionId", "00000101"}}, "81 05"},
  };
  for (const MessageVector& vector : vectors) expect_vector(kPrefix, vector);
}

TEST(TestApplicationMessages, AppendTheirSecondArgumentUnchecked) {
  for (const char* name :
       {"FTAPParameterAssignment", "FTAPStatsClearRequest", "FTAPStatsGetRequest", "RTAPParameterAssignment"}) {
    const Ref<Object> message = create(name, kPrefix);
    message->call("Initialize", Ref<Object>(), "");
    const auto object = make<simulator::MessageObject>();
    message->call("CreateMessage", Ref<Object>(object), "0000001000000000000011");
    EXPECT_EQ(object->length(), 16 + 22);
    EXPECT_EQ(object->hex().substr(3), "00 02 00 0C") << name;
  }
}

TEST(FTAPStatsGetResponse, FindsItsRecords) {
  struct Case {
    const char* hex;
    const char* idle;
    const char* connected;
    const char* first_sync;
  };
  const Case cases[] = {
      // Records of 7, 7 and 6 octets, the Length included, behind id 05 and transaction 09.
      {"05 09 06 05 11 22 33 44 55 06 04 66 77 88 99 AA 05 06 01 02 03 04", "06 04 66 77 88 99 AA",
       "06 05 11 22 33 44 55", "05 06 01 02 03 04"},
      // Not there, and nothing at all.
      {"05 09 02 07 FF", "", "", ""},
      {"05 09", "", "", ""},
      // The first of two counts; an unknown one is stepped over by its own length.
      {"05 09 03 77 04 05 06 04 01 02 03 04 05 06 04 FF FF FF FF FF", "06 04 01 02 03 04 05", "", ""},
      // A wrong Length is part of the record that comes out: the width is fixed.
      {"05 09 01 04 02 07 FF 00 00 00", "01 04 02 07 FF 00 00", "", ""},
      // Length 0 steps over one octet: the Length that follows was read as its AttributeID.
      {"05 09 00 06 04 01 02 03 04 05", "06 04 01 02 03 04 05", "", "00 06 04 01 02 03"},
      // Cut off, and a Length beyond the end.
      {"05 09 06 04 11", "06 04 11", "", ""},
      {"05 09 FF 05 11", "", "FF 05 11", ""},
      {"05 09 FF", "", "", ""},
  };
  for (const Case& c : cases) {
    SB_TAS_MsgFTAPStatsGetResponse message;
    message.receive(received(c.hex));
    EXPECT_EQ(message.get<"PRstr_IdleASPStatsAttr">(), bits_of(c.idle)) << c.hex;
    EXPECT_EQ(message.get<"PRstr_ConnectedSSStatsAttr">(), bits_of(c.connected)) << c.hex;
    EXPECT_EQ(message.get<"PRstr_FirstSyncCCPktStatsAttr">(), bits_of(c.first_sync)) << c.hex;
  }
}

TEST(AttributeRecords, AreReadable) {
  EXPECT_EQ(testapp::ftap_records_text(bits_of("02 00 0C 06 04 80 03 00 00 07")),
            "DRCValueFixedMode: DRCValue 12; IdleASPStats: IdleASPChangeOverflow 1, IdleASPChange 3, "
            "IdleTimeOverflow 0, IdleTime 7");
  EXPECT_EQ(testapp::ftap_records_text(bits_of("01 05 02 7F 01 00 06 06 00 03 80")),
            "ConnectedSSStats; attribute 127; empty record; FirstSyncCCPktStats: FirstSyncCCPktOverflow 0, "
            "FirstSyncCCPkt 3, CCTimeOverflow 1");
  EXPECT_EQ(testapp::rtap_records_text(bits_of("03 01 01 05")), "PacketRateMode: MinRate 1, MaxRate 5");
}

TEST(ApplicationData, SendsNoPayload) {
  SB_Str_MsgApplicationData message;
  message.let<"PRstr_VirtualStream">("00000000");  // only the text of seven zeros is refused, by its width
  message.let<"PRstr_VirtualStream">("10000001");
  for (const std::size_t width : {6U, 14U, 22U}) message.let<"PRstr_StreamLayerPayload">(std::string(width, '1'));
  message.initialize();
  EXPECT_EQ(sent_by(message), "81 00");
  EXPECT_EQ(message.get<"PRstr_StreamLayerPayload">(), std::string(22, '1'));
  message.initialize(Ref<Object>(), "101");
  EXPECT_EQ(message.encode(), "101");

  message.receive(received("81 7F AA"));  // stream 81, 01 reserved, the rest
  EXPECT_EQ(message.get<"PRstr_VirtualStream">(), "10000001");
  EXPECT_EQ(message.get<"PRstr_Reserved">(), "01");
  EXPECT_EQ(message.get<"PRstr_StreamLayerPayload">(), "11111110101010");
  EXPECT_EQ(error_number([&] { message.Object::get("PRstr_MessageID"); }), 438);
}

TEST(ApplicationData, TellsAWrongPayloadInDescriptionAndHelpFile) {
  SB_Str_MsgApplicationData message;
  for (const std::size_t width : {7U, 8U, 0U, 5U}) {
    try {
      message.let<"PRstr_StreamLayerPayload">(std::string(width, '0'));
      ADD_FAILURE() << width;
    } catch (const Error& error) {
      EXPECT_EQ(error.source(), "SB_App_MsgApplicationData.PRstr_StreamLayerPayload");
      EXPECT_EQ(error.description(), "Length of <StreamLayerPayload> Field should be (8 × n) + 6,");
      EXPECT_EQ(error.help_file(), "where n is anon-negative integer.");
    }
  }
}

}  // namespace
}  // namespace vorlan::test
