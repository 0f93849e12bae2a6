// The engine as scripts and foreign objects meet it.
#include <gtest/gtest.h>

#include <functional>

#include "messages/connection/traffic_channel_assignment.hpp"
#include "messages/dissection.hpp"
#include "messages/session/address_management.hpp"
#include "messages/session/session_management.hpp"
#include "support/fake_sector.hpp"
#include "support/message_cases.hpp"
#include "support/octets.hpp"
#include "support/recording_message.hpp"

namespace vorlan::test {
namespace {

TEST(MessageEngine, WritesEveryOctetOfAForeignObjectOnce) {
  SB_Ses_MsgKeepAliveRequest message;
  message.initialize();
  const auto object = make<RecordingMessage>();
  message.create_message(object);
  // Length, then the octets, then the one past the end.
  EXPECT_EQ(object->accesses(), (std::vector<std::string>{"Length=16", "Octet(0)=2", "Octet(1)=0", "Octet(2)=0"}));
}

TEST(MessageEngine, ReadsEveryWholeOctetOfAForeignObjectOnce) {
  const auto object = make<RecordingMessage>(20, std::vector<std::uint8_t>{0x02, 0x5A, 0xFF});
  SB_Ses_MsgKeepAliveRequest message;
  message.receive(object);
  EXPECT_EQ(object->accesses(), (std::vector<std::string>{"Length", "Octet(0)", "Octet(1)"}));
  EXPECT_EQ(message.message_string(), "0000001001011010");  // the last four bits are not read
}

TEST(MessageEngine, KeepsWhatItHadWhenAForeignObjectFails) {
  SB_Ses_MsgKeepAliveRequest message;
  message.receive(received("02 11"));
  for (std::size_t access = 0; access < 3; ++access) {
    const auto object = make<RecordingMessage>(16, std::vector<std::uint8_t>{0x02, 0x22});
    object->fail_after(access, Error(4711, "test set", "out of order"));
    EXPECT_EQ(raised_by([&] { message.receive(object); }), (Raised{4711, "test set", "out of order"}));
    EXPECT_EQ(message.message_string(), bits_of("02 11"));
  }
  EXPECT_EQ(error_number([&] { message.receive(Ref<Object>()); }), 91);
  EXPECT_EQ(error_number([&] { message.Object::set("PRobj_MessageObject", 5.0); }), 13);
  EXPECT_EQ(message.message_string(), bits_of("02 11"));

  SB_Ses_MsgUATIAssignment assignment;
  EXPECT_EQ(error_number([&] { assignment.initialize(Ref<Object>(), {}, ""); }), 91);
  const auto sector = fake_sector(fake_configuration());
  sector->values.erase("PRobj_GlobalParameters");
  EXPECT_EQ(error_number([&] { assignment.initialize(sector, {}, ""); }), 438);
  EXPECT_EQ(error_number([&] { static_cast<void>(assignment.encode()); }), 1);  // still not initialised
}

TEST(MessageEngine, RefusesEncoderStringsThatNoMessageObjectTakes) {
  SB_Ses_MsgKeepAliveRequest message;
  message.initialize(Ref<Object>(), std::string(32768, '1'));
  const auto object = make<RecordingMessage>();
  EXPECT_EQ(error_number([&] { message.create_message(object); }), 6);
  EXPECT_TRUE(object->accesses().empty());
}

TEST(MessageEngine, AnswersLateBoundClients) {
  const auto message = create("SB_Ses_MsgSessionClose");
  message->let("prstr_closereason", "00000001");
  EXPECT_EQ(message->get("PRSTR_CLOSEREASON"), Value("00000001"));
  EXPECT_EQ(message->get("PRstr_MessageID"), Value("00000001"));
  EXPECT_EQ(error_number([&] { message->let("PRstr_MessageID", "00000001"); }), 438);
  EXPECT_EQ(error_number([&] { message->get("PRstr_Nonsense"); }), 438);
  EXPECT_EQ(error_number([&] { message->get("PRstr_CloseReason", std::int16_t{0}); }), 450);
  EXPECT_EQ(error_number([&] { message->call("CreateMessage"); }), 450);
  EXPECT_EQ(error_number([&] { message->let("PRstr_CloseReason", Value(Null{})); }), 94);
  // Not text, or not of the field's width: the value before stays.
  EXPECT_EQ(error_number([&] { message->let("PRstr_CloseReason", std::int16_t{1}); }), 1);
  EXPECT_EQ(message->get("PRstr_CloseReason"), Value("00000001"));
  for (const char* no_bits : {"0000\x01"
                              "000",
                              "000000\xC3\xA9"}) {  // eight octets each
    EXPECT_EQ(raised_by([&] { message->let("PRstr_CloseReason", no_bits); }),
              (Raised{13, "SB_Ses_MsgSessionClose.PRstr_CloseReason", "Type mismatch: a bit string wanted"}));
  }
  EXPECT_EQ(message->get("PRstr_CloseReason"), Value("00000001"));
  // Any other character goes through, and is sent as a zero.
  message->let("PRstr_CloseReason", "0000x21 ");
  message->call("Initialize", Value(), "");
  const auto object = make<simulator::MessageObject>();
  message->call("CreateMessage", Ref<Object>(object));
  EXPECT_EQ(object->hex(), "01 02");
}

/// A configuration that calls back into the message that reads it.
class MeddlingConfiguration final : public Object {
 public:
  explicit MeddlingConfiguration(std::function<void()> meddle) : meddle_(std::move(meddle)) {}
  Value invoke(std::string_view member, Access, std::span<Value> arguments) override {
    if (meddle_) std::exchange(meddle_, {})();
    return values_->get(member, arguments.empty() ? Value() : arguments[0]);
  }

 private:
  std::function<void()> meddle_;
  Ref<Object> values_ = fake_configuration();
};

TEST(MessageEngine, SurvivesAConfigurationThatCallsBack) {
  SB_Con_MsgTrafficChannelAssignment message;
  const auto sector_of = [](std::function<void()> meddle) {
    return make<PropertyBag>(std::map<std::string, Value, PropertyBag::Less>{
        {"PRobj_GlobalParameters", Ref<Object>(make<MeddlingConfiguration>(std::move(meddle)))}});
  };
  message.initialize(sector_of({}), {}, "");
  // Lists are made afresh while their first elements are being read.
  message.initialize(sector_of([&] { message.let<"PRstr_NumPilots">("1111"); }), {}, "");
  // The configuration in use gives way to another while it answers.
  message.initialize(sector_of([&] { message.initialize(sector_of({}), {}, ""); }), {}, "");
  message.initialize(sector_of([] {}), {}, "");
  message.let<"PRstr_NumPilots">("0001");
  EXPECT_EQ(message.encode().size(), 64U);
  // The same while the message is being joined.
  SB_Ses_MsgUATIAssignment assignment;
  assignment.initialize(sector_of([&] { assignment.initialize(sector_of({}), {}, ""); }), {}, "");
  const Value colour[] = {"00010001"};
  EXPECT_EQ(assignment.encode(colour).size(), 176U);
}

TEST(Dissection, NamesFieldsAndUnits) {
  const auto tree = dissect(SB_Ses_MsgSessionClose::shared_class(), bits_of("01 06 01"));
  ASSERT_EQ(tree.size(), 4U);
  EXPECT_EQ(tree[1].name, "CloseReason");
  EXPECT_EQ(tree[1].first, 9U);
  EXPECT_EQ(tree[1].value, "session lost");
  EXPECT_EQ(tree[2].value, "1 octets");
  EXPECT_EQ(tree[3].note, "past the end");
  const auto other = dissect(SB_Ses_MsgSessionClose::shared_class(), bits_of("07 00 00 FF"));
  EXPECT_EQ(other[0].note, "not the MessageID of SB_Ses_MsgSessionClose");
  EXPECT_EQ(other.back().name, "Trailing");
}

}  // namespace
}  // namespace vorlan::test
