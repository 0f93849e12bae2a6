// Messages that carry attribute records: built, searched, and read through their getters.
#include <gtest/gtest.h>

#include <algorithm>
#include <span>

#include "attributes/negotiation/configuration_messages.hpp"
#include "attributes/negotiation_cases.hpp"
#include "attributes/short_bits.hpp"
#include "support/message_cases.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

constexpr std::string_view kRequest = "SB_MsgConfigurationRequest";
constexpr std::string_view kResponse = "SB_MsgConfigurationResponse";
constexpr std::string_view kUpdate = "SB_MsgAttributeUpdateRequest";
constexpr std::string_view kRequestNotSet =
    "ConfigurationRequest message object not set. Please set <PRobj_MessageObject> property first.";

std::string number(std::uint32_t value, std::size_t width) { return std::string(ShortBits(value, width).view()); }

Raised raised_in(std::string_view source, std::string_view text) { return {1, std::string(source), std::string(text)}; }

/// An object that has received the message.
Ref<Object> taken(std::string_view name, const std::string& hex) {
  const Ref<Object> object = create(name);
  object->set("PRobj_MessageObject", Ref<Object>(received(hex)));
  return object;
}

template <class F>
void for_every_getter(F&& test) {
  const auto each = [&](std::string_view message, std::span<const GetterCase> rows) {
    for (const GetterCase& row : rows) {
      SCOPED_TRACE(std::string(message).append(".").append(row.name));
      test(message, row);
    }
  };
  each(kRequest, kRequestCases);
  each(kUpdate, kUpdateCases);
}

/// "GET failed for ..." as the getter words it. The first seven of the update part its name.
Raised failure(std::string_view message, const GetterCase& row, std::string_view before = {}) {
  std::string text(before);
  text.append("GET failed for ").append(row.text.empty() ? row.name.substr(4) : row.text).append(" Attribute from ");
  const bool parted = message == kUpdate && &row < &kUpdateCases[7];
  text += message == kRequest ? "Configuration Request"
          : parted            ? "Attribute Update Request"
                              : "AttributeUpdateRequest";
  text += " Message";
  const std::string own = std::string(message).append(".PRobj_").append(row.name);
  return raised_in(row.source.empty() ? own : row.source, text);
}

/// A record that the returned object takes.
std::string record_of(const GetterCase& row, std::uint16_t id, char fill) {
  const auto octets = static_cast<std::uint32_t>((row.id_bits + row.value_bits) / 8);
  return number(octets, 8) + number(id, row.id_bits) + std::string(row.value_bits, fill);
}

std::string getter(const GetterCase& row) { return "PRobj_" + std::string(row.name); }

TEST(NegotiationGetters, AreListedInTheirOrder) {
  const auto listed = [](std::string_view message) {
    std::vector<std::string> names;
    for (const MemberInfo& member : create(message)->class_info()->members()) {
      if (member.gets && member.type == ValueType::Object) names.emplace_back(member.name);
    }
    return names;
  };
  std::vector<std::string> expected[2];
  for (const GetterCase& row : kRequestCases) expected[0].push_back(getter(row));
  for (const GetterCase& row : kUpdateCases) expected[1].push_back(getter(row));
  EXPECT_EQ(listed(kRequest), expected[0]);
  EXPECT_EQ(listed(kUpdate), expected[1]);
}

TEST(NegotiationGetters, FindTheRecordAndReturnAnObjectOfTheAttribute) {
  for_every_getter([](std::string_view message, const GetterCase& row) {
    // Records of a neighbouring AttributeID stand around the one that is wanted.
    const auto neighbour = static_cast<std::uint16_t>(row.id ^ 1U);
    const std::string wanted = record_of(row, row.id, '0');
    const std::string other = record_of(row, neighbour, '1');
    const Ref<Object> object = create(message);
    const Ref<Object> builder = create(message);
    builder->call("Initialize", Ref<Object>());
    builder->let("PRstr_TransactionId", "00000111");
    const auto octets = make<simulator::MessageObject>();
    builder->call("CreateMessage", Ref<Object>(octets), other + wanted + other);
    object->set("PRobj_MessageObject", Ref<Object>(octets));

    const Ref<Object> attribute = object->get(getter(row), 0).to_object();
    EXPECT_EQ(attribute->class_info()->name(), "SB_" + std::string(row.returned));
    EXPECT_EQ(attribute->get("PRstr_Attribute").to_text(), wanted);
    EXPECT_EQ(object->get("PRint_AttributeCount", number(row.id, row.id_bits)).to_integer(), 1);

    // There is no second one: the request leaves that to the attribute.
    const Raised missing =
        message == kUpdate ? failure(message, row)
                           : raised_by([&] { create(attribute->class_info()->name())->let("PRstr_Attribute", ""); });
    EXPECT_EQ(raised_by([&] { object->get(getter(row), 1); }), missing);
    EXPECT_EQ(raised_by([&] { object->get(getter(row), -1); }), missing);
    EXPECT_EQ(attribute->get("PRstr_Attribute").to_text(), wanted) << "as it was";
  });
}

TEST(NegotiationGetters, SayThatThereIsNoMessage) {
  for_every_getter([](std::string_view message, const GetterCase& row) {
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

struct SearchCase {
  std::string_view hex;  // the records
  std::string_view id;   // hexadecimal, 8 or 16 bits
  std::vector<std::string_view> found;
};

const std::vector<SearchCase> kSearches = {
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

TEST(NegotiationSearch, FindsRecordsByAttributeID) {
  for (const SearchCase& row : kSearches) {
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
  const auto refused = [](std::string_view name) {
    return raised_in(std::string(name) + ".ReturnAttributeRecord", "Collection object has no entry for this index");
  };
  const std::string records = "02 00 01 00 05 00 09";
  const Ref<Object> request = taken(kRequest, "50 01 " + records);
  EXPECT_EQ(raised_by([&] { request->call("ReturnAttributeRecord", 0); }), refused(kRequest)) << "not decoded yet";
  EXPECT_EQ(request->get("PR_intNumAttribRecords").to_integer(), 0);
  request->call("DecodeConfigurationRequestMsg");
  EXPECT_EQ(request->get("PR_intNumAttribRecords").to_integer(), 3);
  for (const Ref<Object>& object : {request, taken(kUpdate, "52 01 " + records)}) {
    EXPECT_EQ(object->call("ReturnAttributeRecord", 0).to_text(), bits_of("02 00 01"));
    EXPECT_EQ(object->call("ReturnAttributeRecord", 1).to_text(), bits_of("00"));
    EXPECT_EQ(object->call("ReturnAttributeRecord", 2).to_text(), bits_of("05 00 09"));
    for (const int none : {3, -1}) {
      EXPECT_EQ(raised_by([&] { object->call("ReturnAttributeRecord", none); }), refused(object->class_info()->name()));
    }
  }
  request->set("PRobj_MessageObject", Ref<Object>(received("50 02 01 07")));
  EXPECT_EQ(error_number([&] { request->call("ReturnAttributeRecord", 0); }), 1) << "of the message before";
}

TEST(NegotiationSearch, TellsTheLastFlow) {
  struct Case {
    std::string_view hex;
    int flow;  // -1: none
    std::string_view text = {};
  };
  const std::string none = "ConfigurationRequest message has no attribute record with a flow number.";
  const Case cases[] = {
      {"50 01 03 FE 01 00 03 FE 03 00", 3},
      {"50 01 03 FE 03 00 03 FE 01 00 03 FE 20 00", 1},
      {"50 01 03 FE 1F 00", 31},
      {"50 01 03 FE 20 00", -1, none},
      {"50 01 03 FE 80 00 02 FE", -1, none},
      {"50 01", -1, "ConfigurationRequest message has no attribute records."},
      {"50", -1, none},
      {"", -1, kRequestNotSet},
  };
  for (const Case& row : cases) {
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

TEST(NegotiationMessages, SendTransactionIDAndRecords) {
  for (const MessageCase& row : kMessages) {
    SCOPED_TRACE(row.name);
    const Ref<Object> object = create(row.name);
    const auto octets = make<simulator::MessageObject>();
    const auto source = [&](std::string_view member) { return std::string(row.name).append(".").append(member); };
    EXPECT_EQ(raised_by([&] { object->call("CreateMessage", Ref<Object>(octets), "00000000"); }),
              raised_in(source("CreateMessage"), "Class not initialized. Please call <Initialize> of " +
                                                     std::string(row.called) + " Message first."));
    EXPECT_EQ(object->get("PRstr_TransactionId").to_text(), row.initial);
    EXPECT_EQ(object->get("PRstr_MessageID").to_text(), row.id);
    EXPECT_EQ(raised_by([&] { object->get("PRstr_MessageString"); }),
              raised_in(source("PRstr_MessageString"),
                        std::string(row.called) +
                            " message object not set. Please set <PRobj_MessageObject> property first."));
    for (const std::string_view wrong : {"", "0000000", "000000000"}) {
      EXPECT_EQ(raised_by([&] { object->let("PRstr_TransactionId", wrong); }),
                raised_in(source("PRstr_TransactionID"), "Length of <TransactionID> field should be 8 bits."));
    }
    object->let("PRstr_TransactionId", "00001001");
    object->call("Initialize", Ref<Object>(octets), "");
    EXPECT_TRUE(object->call("CreateMessage", Ref<Object>(octets), bits_of("03 00 14 01")).to_boolean());
    EXPECT_EQ(bits_of(octets->hex()), std::string(row.id) + bits_of("09 03 00 14 01"));
    EXPECT_EQ(octets->length(), 48);

    object->set("PRobj_MessageObject", Ref<Object>(received("AB CD 01")));
    EXPECT_EQ(object->get("PRstr_MessageID").to_text(), bits_of("AB")) << "as received, whatever it is";
    EXPECT_EQ(object->get("PRstr_TransactionId").to_text(), bits_of("CD"));
    EXPECT_EQ(object->get("PRstr_MessageString").to_text(), bits_of("AB CD 01"));
  }
}

TEST(NegotiationMessages, SendAnEncoderStringAsItStands) {
  for (const MessageCase& row : kMessages) {
    SCOPED_TRACE(row.name);
    const Ref<Object> object = create(row.name);
    const auto octets = make<simulator::MessageObject>();
    object->call("Initialize", Ref<Object>(octets), "10101");
    object->call("CreateMessage", Ref<Object>(octets), "11111111");
    EXPECT_EQ(octets->length(), 5);
    EXPECT_EQ(octets->octet(0), 0xA8);
    EXPECT_EQ(raised_by([&] { object->let("PRstr_TransactionId", "00000000"); }),
              raised_in(std::string(row.name) + ".PRstr_TransactionID",
                        "Encoder and this property cannot be used simultaneously."));
    object->call("Initialize", Ref<Object>(octets), "");
    EXPECT_EQ(error_number([&] { object->let("PRstr_TransactionId", "00000000"); }), 1) << "never switched off";
  }
}

TEST(NegotiationMessages, CountTextsNameTheAttributeID) {
  const auto raised = [](std::string_view name) {
    return raised_by([&] { create(name)->get("PRint_AttributeCount", "00000100"); });
  };
  EXPECT_EQ(raised(kRequest), raised_in("SB_MsgConfigurationRequest.PRint_AttributeCount",
                                        "Message Object Not Set. GET count of attributes failed for 00000100 of "
                                        "Configuration Request Message"));
  EXPECT_EQ(raised(kUpdate), raised_in("SB_MsgAttributeUpdateRequest.PRint_AttributeCount",
                                       "Message Object Not Set. GET count of attributes failed for 00000100 of "
                                       "AttributeUpdateRequest Message"));
}

TEST(NegotiationMessages, ResponseTellsWhatIsAccepted) {
  const Ref<Object> response = create(kResponse);
  for (const std::string_view member : {"PRstr_ValId", "PRstr_AttrVal"}) {
    const std::string source = std::string(kResponse).append(".").append(member);
    EXPECT_EQ(raised_by([&] { create(kResponse)->get(member, "0000000000010100", 0); }),
              raised_in(source,
                        "<MessageObject> property not set for AttributeId: 0000000000010100 from "
                        "ConfigurationResponse Message"));
    for (const std::string_view wrong : {"", "0000000", "000000000", "00000000000101000"}) {
      EXPECT_EQ(
          raised_by([&] { response->get(member, wrong, 0); }),
          raised_in(source, "Invalid Length of AttributeID. Length of parameter <AttributeID> should be 8 or 16."));
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
  const Ref<Object> request = create(kRequest);
  std::int16_t given = 100;
  for (const std::string_view name :
       {"PRint_MAC_FTC_SubType", "PRint_MAC_RTC_SubType", "PRint_MAC_ACH_SubType", "PRint_MAC_CCH_SubType",
        "PRint_PhyLay_SubType", "PRint_IdleState_SubType", "PRint_ScriptType", "PRint_ValueIDLength"}) {
    EXPECT_EQ(request->get(name).to_integer(), 0) << name;
    request->let(name, ++given);
    EXPECT_EQ(error_number([&] { request->let(name, 70000); }), 6) << name;
  }
  request->let("PRlng_Stream_Config", 70000);
  EXPECT_EQ(request->get("PRlng_Stream_Config").to_long(), 70000);
  EXPECT_EQ(request->get("PRint_MAC_FTC_SubType").to_integer(), 101);
  EXPECT_EQ(request->get("PRint_ValueIDLength").to_integer(), 108);

  EXPECT_EQ(raised_by([&] { request->get("PRstr_EnhancedIdleStateAttrValue"); }),
            raised_in("SB_MsgConfigurationRequest.PRstr_Attrvalue", kRequestNotSet));
  request->set("PRobj_MessageObject", Ref<Object>(received("50 01 04 00 0C 00 01")));
  EXPECT_EQ(request->get("PRstr_EnhancedIdleStateAttrValue").to_text(), "0000000000000001");
}

// --- bad input

/// Reads everything that takes no text, with the indices that matter: a value or an error with a text, each soon.
void read_all(Object& object) {
  for (const MemberInfo& member : object.class_info()->members()) {
    for (const int index : {0, 1, 4092, -1}) {
      const Raised raised = raised_by([&] {
        if (member.type == ValueType::Object && member.gets) {
          const Ref<Object> attribute = object.get(member.name, index).to_object();
          EXPECT_FALSE(attribute->get("PRstr_Attribute").to_text().size() % 8);
        } else if (member.name == "ReturnAttributeRecord" || member.name == "GetFlowNumber") {
          object.call(member.name, index);
        } else if (member.name == "GetAttributeID") {
          object.call(member.name, index, "0000000000000000");
        } else if (member.gets && member.parameters.empty()) {
          object.get(member.name);
        } else if (member.gets && member.parameters.size() == 2) {
          object.get(member.name, "0000000000000000", index);
        }
      });
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
  for (const std::string& hex : {std::string(), std::string("50"), std::string("50 01"), std::string("50 01 00"),
                                 std::string("50 01 FF"), std::string("50 01 FF 00"), std::string("50 01 02 00"),
                                 std::string("50 01 03 FE 01 00 02 00"), wide, longest}) {
    SCOPED_TRACE(hex.substr(0, 30));
    for (const MessageCase& row : kMessages) read_all(*taken(row.name, hex));
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
