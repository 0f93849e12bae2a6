// The four messages of the key exchange.
#include "support/message_cases.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

TEST(KeyExchangeMessages, RaiseTheirTexts) {
  struct Case {
    const char* name;
    const char* member;
    std::string value;
    const char* text;
  };
  const std::string again = "Please set PRobj_MessageObject property first.";
  const Case cases[] = {
      {"KeyRequest", "PRstr_TransactionId", "0", "Length of <TransactionId> field should be 8 bits."},
      {"KeyRequest", "PRstr_Timeout", "000001111", "Length of <Timeout> field should be 8 bits."},
      {"KeyRequest", "PRstr_ANPubKey", std::string(760, '1'), "Length of <ANPubKey> field should be 768 or 1024 bits."},
      {"KeyRequest", "PRstr_ANPubKey", std::string(769, '1'), "Length of <ANPubKey> field should be 768 or 1024 bits."},
      {"KeyRequest", "CreateMessage", "()",
       "Class not initialized. Please call <Initialize> of KeyRequest Message first."},
      {"ANKeyComplete", "PRstr_TransactionId", "", "Length of <TransactionId> field should be 8 bits."},
      {"ANKeyComplete", "PRstr_Nonce", "1", "Length of <Nonce> field should be 16 bits."},
      {"ANKeyComplete", "PRstr_TimeStampShort", "1", "Length of <TimeStampShort> field should be 16 bits."},
      {"ANKeyComplete", "PRstr_KeySignature", "1", "Length of <KeySignature> field should be 160 bits."},
      {"ANKeyComplete", "CreateMessage", "()",
       "Class not initialized. Please call <Initialize> of ANKeyComplete Message first."},
  };
  for (const Case& c : cases) {
    const std::string source = "SB_Sec_Msg" + std::string(c.name) + "." + c.member;
    expect_text(c.name, "SB_Sec_Msg", c.member, c.value.c_str(), {1, source, c.text});
  }
  for (const char* member : {"PRstr_MessageID", "PRstr_TransactionId", "PRstr_Timeout", "PRstr_ATPubKey"}) {
    expect_text(
        "KeyResponse", "SB_Sec_Msg", member, nullptr,
        {1, "SB_Sec_MsgKeyResponse." + std::string(member), "KeyResponse message object set to nothing. " + again});
  }
  for (const char* member : {"PRstr_MessageID", "PRstr_TransactionId", "PRstr_Result", "PRstr_Reserved"}) {
    expect_text("ATKeyComplete", "SB_Sec_Msg", member, nullptr,
                {1, "SB_Sec_MsgATKeyComplete." + std::string(member), "ATKey message Object Set To Nothing." + again});
  }
}

TEST(KeyExchangeMessages, AreReadByPosition) {
  const Ref<Object> response = create("SB_Sec_MsgKeyResponse");
  const auto parts = [&](const char* hex) {
    response->set("PRobj_MessageObject", Ref<Object>(received(hex)));
    return response->get("PRstr_TransactionId").to_text() + "/" + response->get("PRstr_Timeout").to_text() + "/" +
           response->get("PRstr_ATPubKey").to_text();
  };
  EXPECT_EQ(parts("01 2A 14 81 02"), "00101010/00010100/1000000100000010");
  EXPECT_EQ(parts("01 2A 14"), "00101010/00010100/");
  EXPECT_EQ(parts("01"), "//");
  const Ref<Object> complete = create("SB_Sec_MsgATKeyComplete");
  complete->set("PRobj_MessageObject", Ref<Object>(received("03 2A 85")));
  EXPECT_EQ(complete->get("PRstr_Result").to_text(), "1");
  EXPECT_EQ(complete->get("PRstr_Reserved").to_text(), "0000101");
}

}  // namespace
}  // namespace vorlan::test
