// Session-layer messages.
#include "messages/session/address_management.hpp"
#include "messages/session/session_configuration.hpp"
#include "messages/session/session_management.hpp"
#include "support/fake_sector.hpp"
#include "support/message_vectors.hpp"

namespace vorlan::test {
namespace {

TEST(UATIAssignment, SendsTheSectorsIdentityInAirInterfaceOrder) {
  const auto configuration = fake_configuration();
  SB_Ses_MsgUATIAssignment message;
  message.initialize(fake_sector(configuration), {}, "");
  message.let<"PRstr_MessageSequence">("00000111");
  // 01 id, 07 sequence, 01 reserved and subnet included, 68 mask, 13 octets of UATI104, 11 colour, UATI024, 2 + padding
  EXPECT_EQ(sent_by(message), "01 07 01 68 A0 00 00 01 B0 00 00 03 C0 00 00 07 D0 11 AB CD EF 20");
  message.let<"PRstr_SubnetIncluded">("0");
  message.let<"PRstr_UpperOldUATILength">("0000");
  EXPECT_EQ(sent_by(message), "01 07 00 11 AB CD EF 00");
  const Value colour[] = {"11111111"};
  EXPECT_EQ(message.encode(colour), bits_of("01 07 00 FF AB CD EF 00"));
}

TEST(UATIAssignment, TakesTheColourCodeOfTheBaseStation) {
  const auto section_of = [](std::string_view sector) {
    const auto configuration = fake_configuration();
    SB_Ses_MsgUATIAssignment message;
    message.initialize(fake_sector(configuration, sector), {}, "");
    message.let<"PRstr_SubnetIncluded">("0");
    sent_by(message);
    return configuration->reads.at(0);
  };
  EXPECT_EQ(section_of("SECTOR 0"), "PRstr_ColorCode(SECTOR 0)");
  EXPECT_EQ(section_of("SECTOR 2"), "PRstr_ColorCode(SECTOR 0)");
  EXPECT_EQ(section_of("SECTOR 3"), "PRstr_ColorCode(SECTOR 3)");
  EXPECT_EQ(section_of("SECTOR 5"), "PRstr_ColorCode(SECTOR 3)");
}

TEST(SessionMessages, TravelInTheseOctets) {
  const MessageVector vectors[] = {
      {"SessionClose",
       {{"PRstr_CloseReason", "00000011"}, {"PRstr_MoreInfoLen", "00000010"}, {"PRstr_MoreInfo", "1010101111001101"}},
       "01 03 02 AB CD"},
      {"KeepAliveRequest", {{"PRstr_TransactionID", "00100001"}}, "02 21"},
      {"KeepAliveResponse", {}, "03 00"},
      {"HardwareIDRequest", {{"PRstr_TransactionId", "11111111"}}, "03 FF"},
      {"ConfigurationStart", {}, "01"},
      {"UATIComplete",
       {{"PRstr_MessageID", "00000010"},
        {"PRstr_MessageSequence", "00000101"},
        {"PRstr_Reserved", "0000"},
        {"PRstr_UpperOldUATILength", "0010"},
        {"PRstr_UpperOldUATI", "1010101111001101"}},
       "02 05 02 AB CD EE"},
      // Another message's octets are read at the same places.
      {"UATIRequest", {{"PRstr_MessageID", "11111111"}, {"PRstr_TransactionId", "00101010"}}, "FF 2A"},
  };
  for (const MessageVector& vector : vectors) expect_vector("SB_Ses_Msg", vector);
  for (const char* cls : {"HardwareIDResponse", "KeepAliveResponse"}) {
    EXPECT_EQ(create(cls, "SB_Ses_Msg")->get("PRstr_MessageString"), Value("")) << cls;
  }
}

TEST(SessionMessages, SendNoneButTheStoredFieldsThatCount) {
  SB_Ses_MsgSessionClose close;
  close.initialize();
  close.let<"PRstr_CloseReason">("00000011");
  close.let<"PRstr_MoreInfoLen">("00000001");
  close.let<"PRstr_MoreInfo">("11110000");
  close.receive(received("01 00 00"));
  EXPECT_EQ(close.get<"PRstr_MoreInfo">(), "") << "a received length of 0 hides what was stored";
  close.let<"PRstr_MoreInfoLen">("00000000");
  EXPECT_EQ(sent_by(close), "01 03 00");

  // A token on the air does not show: the property tells the stored one.
  SB_Ses_MsgConfigurationComplete complete;
  complete.initialize();
  complete.receive(received("00 11 12 34"));
  EXPECT_EQ(complete.get<"PRstr_TransactionID">(), "00010001");
  EXPECT_EQ(complete.get<"PRstr_SessionConfigurationToken">(), "0000000000000000");
  complete.let<"PRstr_SessionConfigurationToken">("0001001000110100");
  EXPECT_EQ(sent_by(complete), "00 00 12 34");
}

TEST(SoftConfigurationComplete, ComputesTheTokenUnlessItGoesOn) {
  SB_Ses_MsgSoftConfigurationComplete message;
  message.initialize();
  message.let<"PRstr_PersonalityIndexStore">("0101");
  // 02 id, 00 transaction, 0101 store, 0 continue, 1 commit, twelve zeros and 0101, 2 padding
  EXPECT_EQ(sent_by(message), "02 00 54 00 14");
  message.let<"PRstr_CommitPersonalityIndexStore">("1111");
  EXPECT_EQ(sent_by(message), "02 00 54 00 3C");
  EXPECT_EQ(message.get<"PRstr_SessionConfigurationToken">(), "0000000000001111");
  message.let<"PRstr_Continue">("1");
  EXPECT_EQ(sent_by(message), "02 00 58");

  const Value behind_transaction[] = {"101"};
  EXPECT_EQ(message.encode(behind_transaction), "0000001000000000101");  // no padding
  message.initialize(Ref<Object>(), "1");
  EXPECT_EQ(message.encode(), "1");
  EXPECT_EQ(listed(message, raised_by([&] { static_cast<void>(message.encode(behind_transaction)); })),
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
  EXPECT_EQ(message.get<"PRstr_SessionConfigurationToken">(), "");
}

TEST(HardwareIDResponse, HasAValueOfTheLengthThatItNames) {
  SB_Ses_MsgHardwareIDResponse hardware;
  hardware.receive(received("04 09 01 00 00 04 12 34 56 78"));
  EXPECT_EQ(hardware.get<"PRstr_HardwareIdType">(), bits_of("01 00 00"));
  EXPECT_EQ(hardware.get<"PRstr_HardwareIdLength">(), "00000100");
  EXPECT_EQ(hardware.get<"PRstr_HardwareIdValue">(), bits_of("12 34 56 78"));
  for (const char* refused : {"04 09 01 00 00 04 12 34 56 78 00", "04 09 01 00 00 04 12 34 56", "04 09 01 00 00 01"}) {
    hardware.receive(received(refused));
    EXPECT_EQ(listed(hardware, raised_by([&] { static_cast<void>(hardware.get<"PRstr_HardwareIdValue">()); })),
              (Raised{1, "SB_Ses_HardwareIDResponse.PRstr_HardwareIdValue",
                      "PRobj_MessageObject not set properly Length of <HardwareIdValue> field is not 8 * "
                      "HardwareIdLength "}));
  }
}

}  // namespace
}  // namespace vorlan::test
