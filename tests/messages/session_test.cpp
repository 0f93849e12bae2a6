#include <gtest/gtest.h>

#include "messages/session/address_management.hpp"
#include "messages/session/session_configuration.hpp"
#include "messages/session/session_management.hpp"
#include "support/fake_sector.hpp"
#include "support/message_cases.hpp"
#include "support/octets.hpp"
#include "support/raised.hpp"
#include "support/recording_message.hpp"

namespace vorlan::test {
namespace {

std::string sent(Message& message, std::span<const Value> arguments = {}) {
  const auto object = make<simulator::MessageObject>();
  EXPECT_TRUE(message.create_message(object, arguments));
  EXPECT_EQ(object->length() % 8, 0);
  return object->hex();
}

TEST(UATIAssignment, SendsTheSectorsIdentityInAirInterfaceOrder) {
  const auto configuration = fake_configuration();
  SB_Ses_MsgUATIAssignment message;
  message.initialize(fake_sector(configuration), {}, "");
  message.let<"PRstr_MessageSequence">("00000111");
  // 01 id, 07 sequence, 01 reserved and subnet included, 68 mask, 13 octets of UATI104, 11 colour, UATI024, 2 + padding
  EXPECT_EQ(sent(message), "01 07 01 68 A0 00 00 01 B0 00 00 03 C0 00 00 07 D0 11 AB CD EF 20");
  message.let<"PRstr_SubnetIncluded">("0");
  message.let<"PRstr_UpperOldUATILength">("0000");
  EXPECT_EQ(sent(message), "01 07 00 11 AB CD EF 00");
  const Value colour[] = {"11111111"};
  EXPECT_EQ(sent(message, colour), "01 07 00 FF AB CD EF 00");
}

TEST(UATIAssignment, TakesTheColourCodeOfTheBaseStation) {
  const auto section_of = [](std::string_view sector) {
    const auto configuration = fake_configuration();
    SB_Ses_MsgUATIAssignment message;
    message.initialize(fake_sector(configuration, sector), {}, "");
    message.let<"PRstr_SubnetIncluded">("0");
    sent(message);
    return configuration->reads.at(0);
  };
  EXPECT_EQ(section_of("SECTOR 0"), "PRstr_ColorCode(SECTOR 0)");
  EXPECT_EQ(section_of("SECTOR 2"), "PRstr_ColorCode(SECTOR 0)");
  EXPECT_EQ(section_of("SECTOR 3"), "PRstr_ColorCode(SECTOR 3)");
  EXPECT_EQ(section_of("SECTOR 5"), "PRstr_ColorCode(SECTOR 3)");
}

TEST(SessionMessages, SendTheseOctets) {
  SB_Ses_MsgSessionClose close;
  close.initialize();
  close.let<"PRstr_CloseReason">("00000011");
  close.let<"PRstr_MoreInfoLen">("00000010");
  close.let<"PRstr_MoreInfo">("1010101111001101");
  EXPECT_EQ(sent(close), "01 03 02 AB CD");
  close.let<"PRstr_MoreInfoLen">("00000000");  // the stored MoreInfo is not sent
  EXPECT_EQ(sent(close), "01 03 00");

  SB_Ses_MsgKeepAliveRequest request;
  request.initialize();
  request.let<"PRstr_TransactionID">("00100001");
  EXPECT_EQ(sent(request), "02 21");
  SB_Ses_MsgKeepAliveResponse response;
  response.initialize();
  EXPECT_EQ(sent(response), "03 00");
  SB_Ses_MsgHardwareIDRequest hardware;
  hardware.initialize();
  hardware.let<"PRstr_TransactionId">("11111111");
  EXPECT_EQ(sent(hardware), "03 FF");
  SB_Ses_MsgConfigurationStart start;
  start.initialize();
  EXPECT_EQ(sent(start), "01");
  SB_Ses_MsgConfigurationComplete complete;
  complete.initialize();
  complete.let<"PRstr_SessionConfigurationToken">("0001001000110100");
  EXPECT_EQ(sent(complete), "00 00 12 34");
}

TEST(SoftConfigurationComplete, ComputesTheTokenUnlessItGoesOn) {
  SB_Ses_MsgSoftConfigurationComplete message;
  message.initialize();
  message.let<"PRstr_PersonalityIndexStore">("0101");
  // 02 id, 00 transaction, 0101 store, 0 continue, 1 commit, twelve zeros and 0101, 2 padding
  EXPECT_EQ(sent(message), "02 00 54 00 14");
  message.let<"PRstr_CommitPersonalityIndexStore">("1111");
  EXPECT_EQ(sent(message), "02 00 54 00 3C");
  EXPECT_EQ(message.get<"PRstr_SessionConfigurationToken">(), "0000000000001111");
  message.let<"PRstr_Continue">("1");
  EXPECT_EQ(sent(message), "02 00 58");

  const Value behind_transaction[] = {"101"};
  EXPECT_EQ(message.encode(behind_transaction), "0000001000000000101");  // no padding
  message.initialize(Ref<Object>(), "1");
  EXPECT_EQ(message.encode(), "1");
  EXPECT_EQ(raised_by([&] { static_cast<void>(message.encode(behind_transaction)); }),
            (Raised{1, "SB_Ses_MsgSoftConfigurationComplete.CreateMessage",
                    "Encoder and this property cannot be used simultaneously"}));
}

TEST(SoftConfigurationComplete, ReadsTheTokenOnlyOfAMessageThatHasOne) {
  SB_Ses_MsgSoftConfigurationComplete message;
  message.receive(received("02 07 50 00 14"));  // store 5, continue 0, commit 0
  EXPECT_EQ(message.get<"PRstr_PersonalityIndexStore">(), "0101");
  EXPECT_EQ(message.get<"PRstr_Commit">(), "0");
  EXPECT_EQ(message.get<"PRstr_SessionConfigurationToken">(), "0000000000000101");
  message.receive(received("02 07 58"));  // continue 1: the stored values
  EXPECT_EQ(message.get<"PRstr_Commit">(), "1");
  EXPECT_EQ(message.get<"PRstr_SessionConfigurationToken">(), "0000000000000000");
}

TEST(ReceivedSessionMessages, AreCutAtTheirPlaces) {
  SB_Ses_MsgUATIComplete complete;
  complete.receive(received("02 05 02 AB CD EE"));
  EXPECT_EQ(complete.message_id(), "00000010");
  EXPECT_EQ(complete.get<"PRstr_MessageSequence">(), "00000101");
  EXPECT_EQ(complete.get<"PRstr_Reserved">(), "0000");
  EXPECT_EQ(complete.get<"PRstr_UpperOldUATILength">(), "0010");
  EXPECT_EQ(complete.get<"PRstr_UpperOldUATI">(), bits_of("AB CD"));

  SB_Ses_MsgHardwareIDResponse hardware;
  hardware.receive(received("04 09 01 00 00 04 12 34 56 78"));
  EXPECT_EQ(hardware.get<"PRstr_HardwareIdType">(), bits_of("01 00 00"));
  EXPECT_EQ(hardware.get<"PRstr_HardwareIdLength">(), "00000100");
  EXPECT_EQ(hardware.get<"PRstr_HardwareIdValue">(), bits_of("12 34 56 78"));
  for (const char* refused : {"04 09 01 00 00 04 12 34 56 78 00", "04 09 01 00 00 04 12 34 56", "04 09 01 00 00 01"}) {
    hardware.receive(received(refused));
    EXPECT_EQ(raised_by([&] { static_cast<void>(hardware.get<"PRstr_HardwareIdValue">()); }),
              (Raised{1, "SB_Ses_HardwareIDResponse.PRstr_HardwareIdValue",
                      "PRobj_MessageObject not set properly Length of <HardwareIdValue> field is not 8 * "
                      "HardwareIdLength "}));
  }

  // A token on the air does not show: the property tells the stored one.
  SB_Ses_MsgConfigurationComplete configuration;
  configuration.receive(received("00 11 12 34"));
  EXPECT_EQ(configuration.get<"PRstr_TransactionID">(), "00010001");
  EXPECT_EQ(configuration.get<"PRstr_SessionConfigurationToken">(), "0000000000000000");

  // A received length of 0 hides what was stored.
  SB_Ses_MsgSessionClose close;
  close.let<"PRstr_MoreInfoLen">("00000001");
  close.let<"PRstr_MoreInfo">("11110000");
  close.receive(received("01 00 00"));
  EXPECT_EQ(close.get<"PRstr_MoreInfo">(), "");

  // Another message's octets are read at the same places.
  SB_Ses_MsgUATIRequest request;
  request.receive(received("FF 2A"));
  EXPECT_EQ(request.message_id(), "11111111");
  EXPECT_EQ(request.get<"PRstr_TransactionId">(), "00101010");
}

/// Every text of the session layer, as scripts compare it.
TEST(SessionMessages, RaiseTheseTexts) {
  struct Case {
    const char* cls;
    const char* member;
    const char* value;  ///< to let; null: get; "()": CreateMessage
    const char* source;
    const char* description;
  };
  constexpr const char* kCreate = "()";
  static constexpr Case kCases[] = {
      {"UATIAssignment", "", kCreate, "SB_Ses_MsgUATIAssignment.CreateMessage",
       "Class not initialized. Please call <Initialize> of UATIAssignment Message first."},
      {"UATIAssignment", "PRstr_MessageSequence", "1", "SB_Ses_MsgUATIAssignment.PRstr_MessageSequence",
       "Length of MessageSequence string should be 8 bits."},
      {"UATIAssignment", "PRstr_SubnetIncluded", "", "SB_Ses_MsgUATIAssignment.PRstr_SubnetIncluded",
       "Length of SubnetIncluded string should be 1 bits."},
      {"UATIAssignment", "PRstr_UpperOldUATILength", "00000", "SB_Ses_MsgUATIAssignment.PRstr_UpperOldUATILength",
       "Length of UpperOldUATILength string should be 4 bits."},
      {"SessionClose", "", kCreate, "SB_Ses_MsgSessionClose.CreateMessage",
       "Class not initialized. Please call <Initialize> of SessionClose Message first."},
      {"SessionClose", "PRstr_CloseReason", "1", "SB_Ses_MsgSessionClose.PRstr_CloseReason",
       "Length of <CloseReason> field should be 8 bits."},
      {"SessionClose", "PRstr_MoreInfoLen", "1", "SB_Ses_MsgSessionClose.PRstr_MoreInfoLen",
       "Length of <MoreInfoLen> field should be 8 bits."},
      {"SessionClose", "PRstr_MoreInfo", "00000000", "SB_Ses_MsgSessionClose.PRstr_MoreInfo",
       "Length of MoreInfo field should be MoreInfo * 8 bits."},
      {"SessionClose", "PRstr_MessageString", nullptr, "SB_Ses_MsgSessionClose.PRstr_MessageString",
       "SessionClose message object not set. Please set property <PRobj_MessageObject> first."},
      {"KeepAliveRequest", "", kCreate, "SB_Ses_MsgKeepAliveRequest.CreateMessage",
       "Please call initialize of KeepAliveRequest Message first."},
      {"KeepAliveResponse", "", kCreate, "SB_Ses_MsgKeepAliveResponse.CreateMessage",
       "Please Call Initialize of KeepAliveResponse Message first."},
      {"KeepAliveRequest", "PRstr_TransactionID", "1", "SB_Ses_MsgKeepAliveRequest.PRstr_TransactionID",
       "Length of TransactionID field should be 8 bits."},
      {"KeepAliveResponse", "PRstr_TransactionID", "1", "SB_Ses_MsgKeepAliveRequest.PRstr_TransactionID",
       "Length of TransactionID field should be 8 bits."},
      {"KeepAliveRequest", "PRstr_MessageString", nullptr, "SB_Ses_MsgKeepAliveRequest.PRstr_MessageString",
       "KeepAlive message object set to nothing.Please set PRobj_MessageObject property first"},
      {"HardwareIDRequest", "", kCreate, "SB_Ses_MsgHardwareIDRequest.CreateMessage",
       "Class not initialized. Please call <Initialize> of HardwareIDRequest Message first."},
      {"HardwareIDRequest", "PRstr_TransactionId", "1", "SB_Ses_MsgHardwareIDRequest.PRstr_TransactionId",
       "Length of <TransactionId> field should be 8 bits."},
      {"ConfigurationStart", "", kCreate, "SB_Ses_MsgConfigurationStart.CreateMessage",
       "Class not initialized. Please call <Initialize> of ConfigurationStart Message first."},
      {"ConfigurationComplete", "", kCreate, "SB_Ses_MsgConfigurationComplete.CreateMessage",
       "Class not initialized. Please call <Initialize> of ConfigurationComplete Message first."},
      {"ConfigurationComplete", "PRstr_TransactionID", "1", "SB_Ses_MsgConfigurationComplete.PRstr_TransactionID",
       "The length of <TransactionId> field should be 8 bits."},
      {"ConfigurationComplete", "PRstr_SessionConfigurationToken", "1",
       "SB_Ses_MsgConfigurationComplete.PRstr_SessionConfigurationToken",
       "The length of <SessionConfigurationToken> field should be 16 bits."},
      {"ConfigurationComplete", "PRstr_MessageString", nullptr, "SB_Ses_MsgConfigurationComplete.PRstr_MessageString",
       "ConfigurationComplete message object not set. Please set property <PRobj_MessageObject> first."},
      {"SoftConfigurationComplete", "", kCreate, "SB_Ses_MsgSoftConfigurationComplete.CreateMessage",
       "Class not initialized. Please call <Initialize> of SoftConfigurationComplete Message first."},
      {"SoftConfigurationComplete", "PRstr_TransactionID", "1",
       "SB_Ses_MsgSoftConfigurationComplete.PRstr_TransactionID",
       "The length of <TransactionId> field should be 8 bits."},
      {"SoftConfigurationComplete", "PRstr_PersonalityIndexStore", "1",
       "SB_Ses_MsgSoftConfigurationComplete.PRstr_PersonalityIndexStore",
       "The length of <PersonalityIndexStore> field should be 4 bits."},
      {"SoftConfigurationComplete", "PRstr_CommitPersonalityIndexStore", "1",
       "SB_Ses_MsgSoftConfigurationComplete.PRstr_CommitPersonalityIndexStore",
       "The length of <CommitPersonalityIndexStore> field should be 4 bits."},
      {"SoftConfigurationComplete", "PRstr_Continue", "11", "SB_Ses_MsgSoftConfigurationComplete.PRstr_Continue",
       "The length of <Continue> field should be 1 bit."},
      {"SoftConfigurationComplete", "PRstr_Commit", "11", "SB_Ses_MsgSoftConfigurationComplete.PRstr_Commit",
       "The length of <Commit> field should be 1 bit."},
      {"SoftConfigurationComplete", "PRstr_MessageString", nullptr,
       "SB_Ses_MsgSoftConfigurationComplete.PRstr_MessageString",
       "SoftConfigurationComplete message object not set. Please set property <PRobj_MessageObject> first."},
      {"UATIComplete", "PRstr_UpperOldUATI", nullptr, "SB_Ses_MsgUATIComplete.PRstr_UpperOldUATI",
       "UATI Complete Message Object Set To Nothing. Please set <PRobj_MessageObject> property first."},
      {"UATIComplete", "PRstr_MessageID", nullptr, "SB_Ses_MsgUATIComplete.PRstr_MessageID",
       "UATI Complete Message Object Set To Nothing. Please set <PRobj_MessageObject> property first."},
      {"UATIRequest", "PRstr_TransactionId", nullptr, "SB_Ses_MsgUATIRequest.PRstr_TransactionId",
       "UATIRequest Message object set to nothing. Please set <PRobj_MessageObject> property first."},
      {"HardwareIDResponse", "PRstr_MessageID", nullptr, "SB_Ses_HardwareIDResponse.PRstr_MessageId",
       "HardwareIDResponse message Object Set To Nothing.Please set <PRobj_MessageObject> property first"},
      {"HardwareIDResponse", "PRstr_TransactionId", nullptr, "SB_Ses_HardwareIDResponse.PRstr_TransactionId",
       "HardwareIDResponse message Object set To Nothing. Please set <PRobj_MessageObject> property first"},
      {"HardwareIDResponse", "PRstr_HardwareIdType", nullptr, "SB_Ses_HardwareIDResponse.PRstr_HardwareIdType",
       "HardwareIDResponse message Object Set To Nothing. Please set <PRobj_MessageObject> property first"},
      {"HardwareIDResponse", "PRstr_HardwareIdLength", nullptr, "SB_Ses_HardwareIDResponse.PRstr_HardwareIdLength",
       "HardwareIDResponse message object set to nothing. Please set <PRobj_MessageObject> property first"},
      {"HardwareIDResponse", "PRstr_HardwareIdValue", nullptr, "SB_Ses_HardwareIDResponse.PRstr_HardwareIdValue",
       "HardwareIDResponse message object set to nothing. Please set <PRobj_MessageObject> property first"},
  };
  for (const Case& c : kCases) expect_text(c.cls, "SB_Ses_Msg", c.member, c.value, {1, c.source, c.description});

  for (const char* cls : {"HardwareIDResponse", "KeepAliveResponse"}) {
    EXPECT_EQ(create(cls, "SB_Ses_Msg")->get("PRstr_MessageString"), Value("")) << cls;
  }
}

TEST(SessionMessages, RefuseFieldsInEncoderMode) {
  struct Case {
    const char* cls;
    const char* member;
    const char* description;
  };
  static constexpr Case kCases[] = {
      {"KeepAliveResponse", "PRstr_TransactionID", "Encoder and this property cannot be used simultaneously."},
      {"SessionClose", "PRstr_MoreInfo", "Encoder and this property cannot be used simultaneously."},
      {"ConfigurationComplete", "PRstr_TransactionID",
       "Encoder and this PRstr_TransactionID cannot be used simultaneously"},
      {"ConfigurationComplete", "PRstr_SessionConfigurationToken",
       "Encoder and this property cannot be used simultaneously."},
      {"SoftConfigurationComplete", "PRstr_TransactionID",
       "Encoder and this PRstr_TransactionID cannot be used simultaneously"},
  };
  for (const Case& c : kCases) {
    const auto message = create(c.cls, "SB_Ses_Msg");
    message->call("Initialize", Value(), "10101");
    const std::string source = "SB_Ses_Msg" + std::string(c.cls) + "." + c.member;
    EXPECT_EQ(raised_by([&] { message->let(c.member, "00000000"); }), (Raised{1, source, c.description}));
    // Sent as it is, though not whole octets.
    const auto object = make<RecordingMessage>();
    EXPECT_EQ(message->call("CreateMessage", Ref<Object>(object)), Value(true));
    EXPECT_EQ(object->length().to_long(), 5);
    EXPECT_EQ(object->octets(), std::vector<std::uint8_t>{0xA8});
  }
}

}  // namespace
}  // namespace vorlan::test
