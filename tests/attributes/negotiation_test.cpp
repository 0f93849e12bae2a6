// Messages that carry attribute records: built, searched, and read through their getters.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

#include "attributes/bits.hpp"
#include "attributes/negotiation/configuration_messages.hpp"
#include "attributes/negotiation_cases.hpp"
#include "support/message_cases.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

constexpr std::string_view kRequest = "SB_MsgConfigurationRequest";
constexpr std::string_view kResponse = "SB_MsgConfigurationResponse";
constexpr std::string_view kUpdate = "SB_MsgAttributeUpdateRequest";
constexpr std::string_view kRequestNotSet =
    "ConfigurationRequest message object not set. Please set <PRobj_MessageObject> property first.";

Raised raised_in(std::string_view source, std::string_view text) { return {1, std::string(source), std::string(text)}; }

/// An object that has received the message.
Ref<Object> taken(std::string_view name, const std::string& hex) {
  const Ref<Object> object = create(name);
  object->set("PRobj_MessageObject", Ref<Object>(received(hex)));
  return object;
}

template <class F>
void for_every_getter(F&& test) {
  for_every(kRequestCases, [&](const GetterCase& row) { test(kRequest, row); });
  for_every(kUpdateCases, [&](const GetterCase& row) { test(kUpdate, row); });
}

/// "GET failed for ..." as the getter words it. The first seven of the update part its name.
Raised failure(std::string_view message, const GetterCase& row, std::string_view before = {}) {
  const std::string called(row.text == kWithAttr ? row.name : row.text.empty() ? row.name.substr(4) : row.text);
  const bool parted = message == kUpdate && &row < &kUpdateCases[7];
  const std::string from = message == kRequest ? "Configuration Request"
                           : parted            ? "Attribute Update Request"
                                               : "AttributeUpdateRequest";
  return raised_in(row.source.empty() ? std::string(message).append(".PRobj_").append(row.name) : row.source,
                   std::string(before) + "GET failed for " + called + " Attribute from " + from + " Message");
}

/// A record that the returned object takes.
std::string record_of(const GetterCase& row, std::uint16_t id, char fill) {
  return bits_of((row.id_bits + row.value_bits) / 8U, 8) + bits_of(id, row.id_bits) + std::string(row.value_bits, fill);
}

std::string getter(const GetterCase& row) { return "PRobj_" + std::string(row.name); }

TEST(NegotiationGetters, AreListedInTheirOrder) {
  std::vector<std::string> listed, expected;
  for (const std::string_view message : {kRequest, kUpdate}) {
    for (const MemberInfo& member : create(message)->class_info()->members()) {
      if (member.gets && member.type == ValueType::Object) listed.emplace_back(member.name);
    }
  }
  for_every_getter([&](std::string_view, const GetterCase& row) { expected.push_back(getter(row)); });
  EXPECT_EQ(listed, expected);
}

TEST(NegotiationGetters, FindTheRecordAndReturnAnObjectOfTheAttribute) {
  for_every_getter([](std::string_view message, const GetterCase& row) {
    // Records of a neighbouring AttributeID stand around the one that is wanted.
    const std::string wanted = record_of(row, row.id, '0');
    const std::string other = record_of(row, static_cast<std::uint16_t>(row.id ^ 1U), '1');
    const Ref<Object> object = create(message), builder = create(message);
    builder->call("Initialize", Ref<Object>());
    builder->let("PRstr_TransactionId", "00000111");
    const auto octets = make<simulator::MessageObject>();
    builder->call("CreateMessage", Ref<Object>(octets), other + wanted + other);
    object->set("PRobj_MessageObject", Ref<Object>(octets));

    const Ref<Object> attribute = object->get(getter(row), 0).to_object();
    EXPECT_EQ(attribute->class_info()->name(), "SB_" + std::string(row.returned));
    EXPECT_EQ(attribute->get("PRstr_Attribute").to_text(), wanted);
    EXPECT_EQ(object->get("PRint_AttributeCount", bits_of(row.id, row.id_bits)).to_integer(), 1);

    // There is no second one: the request leaves that to the attribute.
    const Raised missing =
        message == kUpdate ? failure(message, row)
                           : raised_by([&] { create(attribute->class_info()->name())->let("PRstr_Attribute", ""); });
    for (const int none : {1, -1}) EXPECT_EQ(raised_by([&] { object->get(getter(row), none); }), missing);
    EXPECT_EQ(attribute->get("PRstr_Attribute").to_text(), wanted) << "as it was";

    const Raised expected = failure(message, row, "Message Object Not Set. ");
    EXPECT_EQ(raised_by([&] { create(message)->get(getter(row), 0); }), expected);
    const auto errors = create(message)->class_info()->errors();
    EXPECT_TRUE(std::any_of(errors.begin(), errors.end(), [&](const ErrorInfo& error) {
      return error.source == expected.source && error.description == expected.description;
    }));
  });
}

TEST(NegotiationGetters, TakeAnAttributeIDOfAFlowOrReservation) {
  const Ref<Object> request = taken(kRequest, "50 01 03 FE 00 00 03 FE 02 01 03 FE 02 00");
  const auto record = [](Object& message, std::string_view member, int index, std::string_view id) {
    return message.get(member, index, id).to_object()->get("PRstr_Attribute").to_text();
  };
  EXPECT_EQ(record(*request, "PRobj_AttrFlowNNNakEnableFwd", 1, "1111111000000010"), bits_of("03 FE 02 00"));
  EXPECT_EQ(record(*request, "PRobj_AttrFlowNNNakEnableFwd", 0, ""), bits_of("03 FE 00 00"));

  const Ref<Object> update = taken(kUpdate, "52 01 02 07 01 02 07 AA 03 FE 02 11 03 FE 02 22");
  EXPECT_EQ(record(*update, "PRobj_AttrReservationKKQoSRequestFwd", 0, "0000011100000001"), bits_of("02 07 01"));
  EXPECT_EQ(record(*update, "PRobj_AttrReservationKKQoSRequestFwd", 0, ""), bits_of("02 07 AA"));
  SB_MsgAttributeUpdateRequest typed;
  typed.receive(bits_of("52 01 03 FE 02 11 03 FE 02 22"));
  auto& level = dynamic_cast<SB_MAC_AttrBucketLevelMaxNN&>(typed.attribute<"PRobj_AttrBucketLevelMaxNN">(1));
  EXPECT_EQ(level.get<"PRstr_AttrValue">(), "00100010");
  EXPECT_EQ(&typed.attribute<"PRobj_AttrBucketLevelMaxNN">(0), &level) << "one object, whatever the number";
  EXPECT_EQ(level.get<"PRstr_AttrValue">(), "00010001");
}

// --- the search

TEST(NegotiationSearch, FindsRecordsByAttributeID) {
  const struct {
    std::string_view hex;  // the records
    std::string_view id;   // hexadecimal, 8 or 16 bits
    std::vector<std::string_view> found;
  } kSearches[] = {
      {"03 00 14 01 02 00 15 03 00 14 02", "00 14", {"03 00 14 01", "03 00 14 02"}},
      // An 8-bit search finds the high octet of 16-bit AttributeIDs; a ValueID reads as the low one.
      {"03 00 14 01 02 00 05 02 01 00", "00", {"03 00 14 01", "02 00 05"}},
      {"02 FF 01 03 FF FC 05", "FF FC", {"03 FF FC 05"}},
      {"02 FF FC 03 FF FC 05", "FF FC", {"02 FF FC", "03 FF FC 05"}},
      {"", "00", {}},
      // Length 0: the AttributeID that is compared belongs to the next record.
      {"00 00 00 02", "00 00", {"00"}},
      {"00 00 00 02", "00", {"00", "00"}},
      // Length 1 and a 16-bit search: the low octet is the next record's Length.
      {"01 00 02 07 AA", "00 02", {"01 00"}},
      // What runs past the end is as long as the message is; an AttributeID that is cut off is not found.
      {"02 00 01 FF 00 01 02", "00 01", {"02 00 01", "FF 00 01 02"}},
      {"02 00 01 05 00", "00 00", {}},
      {"02 00 01 05 00", "00", {"02 00 01", "05 00"}},
      {"02 00 01 05", "05", {}},
  };
  for (const auto& row : kSearches) {
    SCOPED_TRACE(std::string(row.hex).append(" / ").append(row.id));
    const Ref<Object> update = taken(kUpdate, std::string("52 01 ").append(row.hex));
    const std::string id = bits_of(row.id);
    EXPECT_EQ(update->get("PRint_AttributeCount", id).to_integer(), static_cast<int>(row.found.size()));
    for (std::size_t i = 0; i < row.found.size(); ++i) {
      EXPECT_EQ(update->call("GetAttributeID", static_cast<std::int16_t>(i), id).to_text(), bits_of(row.found[i]));
    }
    for (const int none : {static_cast<int>(row.found.size()), -1, 32767}) {
      EXPECT_EQ(update->call("GetAttributeID", static_cast<std::int16_t>(none), id).to_text(), "");
    }
  }
  const Ref<Object> update = taken(kUpdate, "52 01 03 00 14 01");
  for (const std::string_view odd : {"", "0000", "000000000001", "0000000x", "00000000000101000"}) {
    EXPECT_EQ(update->get("PRint_AttributeCount", odd).to_integer(), 0) << odd;
  }
  EXPECT_EQ(create(kUpdate)->call("GetAttributeID", 0, "0000000000010100").to_text(), "");
}

TEST(NegotiationSearch, GivesRecordsByTheirNumber) {
  const auto expect_none = [](Object& object, int number) {
    EXPECT_EQ(raised_by([&] { object.call("ReturnAttributeRecord", number); }),
              raised_in(std::string(object.class_info()->name()) + ".ReturnAttributeRecord",
                        "Collection object has no entry for this index"));
  };
  const std::string records = "02 00 01 00 05 00 09";
  const Ref<Object> request = taken(kRequest, "50 01 " + records);
  expect_none(*request, 0);  // not decoded yet
  EXPECT_EQ(request->get("PR_intNumAttribRecords").to_integer(), 0);
  request->call("DecodeConfigurationRequestMsg");
  EXPECT_EQ(request->get("PR_intNumAttribRecords").to_integer(), 3);
  for (const Ref<Object>& object : {request, taken(kUpdate, "52 01 " + records)}) {
    EXPECT_EQ(object->call("ReturnAttributeRecord", 0).to_text(), bits_of("02 00 01"));
    EXPECT_EQ(object->call("ReturnAttributeRecord", 1).to_text(), bits_of("00"));
    EXPECT_EQ(object->call("ReturnAttributeRecord", 2).to_text(), bits_of("05 00 09"));
    for (const int none : {3, -1}) expect_none(*object, none);
  }
  request->set("PRobj_MessageObject", Ref<Object>(received("50 02 01 07")));
  expect_none(*request, 0);  // of the message before
}

TEST(NegotiationSearch, TellsTheLastFlow) {
  const std::string_view none = "ConfigurationRequest message has no attribute record with a flow number.";
  const struct {
    std::string_view hex;
    int flow;  // -1: none
    std::string_view text = {};
  } kCases[] = {
      {"50 01 03 FE 01 00 03 FE 03 00", 3},
      {"50 01 03 FE 03 00 03 FE 01 00 03 FE 20 00", 1},
      {"50 01 03 FE 1F 00", 31},
      {"50 01 03 FE 20 00", -1, none},
      {"50 01 03 FE 80 00 02 FE", -1, none},
      {"50 01", -1, "ConfigurationRequest message has no attribute records."},
      {"50", -1, none},
      {"", -1, kRequestNotSet},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.hex);
    const Ref<Object> request = taken(kRequest, std::string(row.hex));
    std::array<Value, 1> flow{Value(std::int16_t{77})};
    const Raised raised =
        raised_by([&] { EXPECT_TRUE(request->invoke("GetFlowNumber", Access::Call, flow).to_boolean()); });
    EXPECT_EQ(raised, row.flow >= 0 ? Raised{} : raised_in("SB_MsgConfigurationRequest.GetFlowNumber", row.text));
    EXPECT_EQ(flow[0].to_integer(), row.flow >= 0 ? row.flow : 77);
  }
  EXPECT_EQ(raised_by([] { create(kRequest)->call("GetFlowNumber", 0); }).description, kRequestNotSet);
}

// --- building, texts

struct MessageCase {
  std::string_view name;
  std::string_view id;
  std::string_view initial;  // TransactionID of a new object
  std::string_view called;   // in its texts
};
constexpr MessageCase kMessages[] = {
    {kRequest, "01010000", "", "ConfigurationRequest"},
    {kResponse, "01010001", "00000000", "ConfigurationResponse"},
    {kUpdate, "01010010", "00000000", "AttributeUpdateRequest"},
};

/// What is raised when a message's member is read, or set, or called with a message object and records.
template <class... Arguments>
void expect(Object& object, std::string_view member, std::string_view source, const std::string& text, Access access,
            const Arguments&... arguments) {
  std::vector<Value> values{Value(arguments)...};
  EXPECT_EQ(raised_by([&] { object.invoke(member, access, values); }),
            raised_in(std::string(object.class_info()->name()).append(".").append(source), text));
}

TEST(NegotiationMessages, SendTransactionIDAndRecords) {
  for_every(kMessages, [](const MessageCase& row) {
    const Ref<Object> object = create(row.name);
    const auto octets = make<simulator::MessageObject>();
    const std::string called(row.called);
    expect(*object, "CreateMessage", "CreateMessage",
           "Class not initialized. Please call <Initialize> of " + called + " Message first.", Access::Call,
           Ref<Object>(octets), "00000000");
    expect(*object, "PRstr_MessageString", "PRstr_MessageString",
           called + " message object not set. Please set <PRobj_MessageObject> property first.", Access::Get);
    for (const std::string_view wrong : {"", "0000000", "000000000"}) {
      expect(*object, "PRstr_TransactionId", "PRstr_TransactionID", "Length of <TransactionID> field should be 8 bits.",
             Access::Let, wrong);
    }
    EXPECT_EQ(object->get("PRstr_TransactionId").to_text(), row.initial);
    EXPECT_EQ(object->get("PRstr_MessageID").to_text(), row.id);
    object->let("PRstr_TransactionId", "00001001");
    object->call("Initialize", Ref<Object>(octets), "");
    EXPECT_TRUE(object->call("CreateMessage", Ref<Object>(octets), bits_of("03 00 14 01")).to_boolean());
    EXPECT_EQ(bits_of(octets->hex()), std::string(row.id) + bits_of("09 03 00 14 01"));
    EXPECT_EQ(octets->length(), 48);

    object->set("PRobj_MessageObject", Ref<Object>(received("AB CD 01")));
    EXPECT_EQ(object->get("PRstr_MessageID").to_text(), bits_of("AB")) << "as received, whatever it is";
    EXPECT_EQ(object->get("PRstr_TransactionId").to_text(), bits_of("CD"));
    EXPECT_EQ(object->get("PRstr_MessageString").to_text(), bits_of("AB CD 01"));
  });
}

TEST(NegotiationMessages, SendAnEncoderStringAsItStands) {
  for_every(kMessages, [](const MessageCase& row) {
    const Ref<Object> object = create(row.name);
    const auto octets = make<simulator::MessageObject>();
    object->call("Initialize", Ref<Object>(octets), "10101");
    object->call("CreateMessage", Ref<Object>(octets), "11111111");
    EXPECT_EQ(octets->length(), 5);
    EXPECT_EQ(octets->octet(0), 0xA8);
    for (const int round : {0, 1}) {
      expect(*object, "PRstr_TransactionId", "PRstr_TransactionID",
             "Encoder and this property cannot be used simultaneously.", Access::Let, "00000000");
      if (round == 0) object->call("Initialize", Ref<Object>(octets), "");  // never switched off
    }
  });
}

TEST(NegotiationMessages, CountTextsNameTheAttributeID) {
  const std::string front = "Message Object Not Set. GET count of attributes failed for 00000100 of ";
  for (const auto& [name, called] :
       {std::pair{kRequest, "Configuration Request"}, {kUpdate, "AttributeUpdateRequest"}}) {
    expect(*create(name), "PRint_AttributeCount", "PRint_AttributeCount", front + called + " Message", Access::Get,
           "00000100");
  }
}

TEST(NegotiationMessages, ResponseTellsWhatIsAccepted) {
  const Ref<Object> response = create(kResponse);
  for (const std::string_view member : {"PRstr_ValId", "PRstr_AttrVal"}) {
    expect(*response, member, member,
           "<MessageObject> property not set for AttributeId: 0000000000010100 from ConfigurationResponse Message",
           Access::Get, "0000000000010100", 0);
    for (const std::string_view wrong : {"", "0000000", "000000000", "00000000000101000"}) {
      expect(*response, member, member,
             "Invalid Length of AttributeID. Length of parameter <AttributeID> should be 8 or 16.", Access::Get, wrong,
             0);
    }
  }
  response->set("PRobj_MessageObject", Ref<Object>(received("51 01 02 04 07 03 00 14 01 03 00 14 02 00")));
  EXPECT_EQ(response->get("PRstr_ValId", "00000100", 0).to_text(), "00000111");
  EXPECT_EQ(response->get("PRstr_ValId", "0000000000010100", 1).to_text(), "00000010");
  EXPECT_EQ(response->get("PRstr_AttrVal", "0000000000010100", 0).to_text(), "00000001");
  EXPECT_EQ(response->get("PRstr_AttrVal", "0000000000010100", 2).to_text(), "");
  response->let("PRstr_MessageString", bits_of("51 02 02 04 09"));
  EXPECT_EQ(response->get("PRstr_ValId", "00000100", 0).to_text(), "00001001") << "received as a text";
}

TEST(NegotiationMessages, RequestKeepsItsSettings) {
  constexpr std::string_view kSettings[] = {"PRint_MAC_FTC_SubType", "PRint_MAC_RTC_SubType", "PRint_MAC_ACH_SubType",
                                            "PRint_MAC_CCH_SubType", "PRint_PhyLay_SubType",  "PRint_IdleState_SubType",
                                            "PRint_ScriptType",      "PRint_ValueIDLength"};
  const Ref<Object> request = create(kRequest);
  for (std::int16_t i = 0; i < 8; ++i) {
    EXPECT_EQ(request->get(kSettings[i]).to_integer(), 0) << kSettings[i];
    request->let(kSettings[i], i);
    EXPECT_EQ(error_number([&] { request->let(kSettings[i], 70000); }), 6) << kSettings[i];
  }
  for (std::int16_t i = 0; i < 8; ++i) EXPECT_EQ(request->get(kSettings[i]).to_integer(), i);
  request->let("PRlng_Stream_Config", 70000);
  EXPECT_EQ(request->get("PRlng_Stream_Config").to_long(), 70000);

  expect(*request, "PRstr_EnhancedIdleStateAttrValue", "PRstr_Attrvalue", std::string(kRequestNotSet), Access::Get);
  request->set("PRobj_MessageObject", Ref<Object>(received("50 01 04 00 0C 00 01")));
  EXPECT_EQ(request->get("PRstr_EnhancedIdleStateAttrValue").to_text(), "0000000000000001");
}

TEST(NegotiationMessages, FindFaultsInRows) {
  for (const NegotiationSpec& row : {kConfigurationRequest, kConfigurationResponse, kAttributeUpdateRequest}) {
    EXPECT_EQ(fault(row), "");
  }
  void (*const kFaults[])(NegotiationSpec&) = {
      [](auto& row) { row.id = "0101001"; },
      [](auto& row) { row.transaction_id = "000"; },
      [](auto& row) { row.counted = {}; },
      [](auto& row) { row.getters = {}; },
      [](auto& row) { row.getters = kRequestGetters; },  // lists getters that it does not have
      [](auto& row) { row.members = kConfigurationResponseMembers; },
      [](auto& row) { row.lists_at_once = false; },
  };
  for (const auto& change : kFaults) {
    NegotiationSpec row = kAttributeUpdateRequest;
    change(row);
    EXPECT_NE(fault(row), "") << &change - kFaults;
  }
}

// --- bad input

/// Reads everything, with the indices that matter: a value or an error with a text, each soon.
void read_all(Object& object) {
  for (const MemberInfo& member : object.class_info()->members()) {
    if (member.sets || member.name == "Initialize" || member.name == "CreateMessage") continue;
    for (const int index : {0, 1, 4092, -1}) {
      std::vector<Value> arguments;
      for (const ParameterInfo& parameter : member.parameters) {
        arguments.push_back(parameter.type == ValueType::String ? Value("0000000000000000") : Value(index));
      }
      const Raised raised =
          raised_by([&] { object.invoke(member.name, member.calls ? Access::Call : Access::Get, arguments); });
      EXPECT_TRUE(raised.number == 0 || (raised.number == 1 && !raised.description.empty())) << member.name;
    }
  }
}

TEST(NegotiationMessages, EndOnWhateverComes) {
  std::string longest = "50 01";
  for (int i = 2; i < 4095; ++i) longest += " 00";
  std::string wide = "50 01";
  for (int i = 0; i < 8; ++i) {
    wide += " FF 00";
    for (int octet = 0; octet < 254; ++octet) wide += " 0C";
  }
  for (const std::string_view hex :
       std::initializer_list<std::string_view>{"", "50", "50 01", "50 01 00", "50 01 FF", "50 01 FF 00", "50 01 02 00",
                                               "50 01 03 FE 01 00 02 00", wide, longest}) {
    SCOPED_TRACE(hex.substr(0, 30));
    for (const MessageCase& row : kMessages) read_all(*taken(row.name, std::string(hex)));
  }
  EXPECT_EQ(taken(kRequest, longest)->get("PRint_AttributeCount", "00000000").to_integer(), 4092);
  EXPECT_EQ(taken(kRequest, longest)->get("PRint_AttributeCount", "0000000000000000").to_integer(), 4091);
  EXPECT_EQ(taken(kRequest, wide)->get("PRint_AttributeCount", "00000000").to_integer(), 8);

  // A message longer than any that is received, with more records than 16 bits count.
  SB_MsgConfigurationResponse response;
  response.receive(std::string(16 + 8 * 70000, '0'));
  EXPECT_EQ(response.index().count("0000000000000000"), 69998U);
  EXPECT_EQ(response.index().count("0000000000000001"), 0U);
  response.receive(std::string(16, '0') + std::string(8 * 66000, '0') + bits_of("02 00 01"));
  EXPECT_EQ(response.accepted("PRstr_ValId", "0000000000000001", 0), "");
  EXPECT_EQ(response.record("0000000000000001"), bits_of("02 00 01"));
}

TEST(NegotiationMessages, ReadWholeOctetsOnly) {
  const auto message = received("50 01 03 00 14 01 FF");
  message->set_length(7 * 8 - 3);
  const Ref<Object> request = create(kRequest);
  request->set("PRobj_MessageObject", Ref<Object>(message));
  EXPECT_EQ(request->get("PRstr_MessageString").to_text(), bits_of("50 01 03 00 14 01"));
  EXPECT_EQ(error_number([&] { request->set("PRobj_MessageObject", Ref<Object>()); }), 91);
  EXPECT_EQ(request->get("PRstr_MessageString").to_text(), bits_of("50 01 03 00 14 01")) << "kept";
}

}  // namespace
}  // namespace vorlan::test
