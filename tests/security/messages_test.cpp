// The four messages of the key exchange.
#include "support/message_cases.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

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
