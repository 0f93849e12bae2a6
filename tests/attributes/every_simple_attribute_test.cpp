// Every simple attribute class of the registry, against the table of cases.
#include <gtest/gtest.h>

#include "attributes/bits.hpp"
#include "attributes/simple_attribute_cases.hpp"
#include "support/message_cases.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

/// Values of up to a width.
bool up_to(const AttributeCase& row) { return row.family == kVariable && row.name != "Con_AttrAccessHashingClassMask"; }

/// RANHandoff says by a flag which of its two AttributeIDs is meant.
bool takes_flag(const AttributeCase& row) { return row.name == "App_AttrRANHandoff"; }
std::string get(Object& object, const AttributeCase& row, std::string_view member) {
  return (takes_flag(row) && member == "PRstr_AttribId" ? object.get(member, false) : object.get(member)).to_text();
}
std::string build(Object& object, const AttributeCase& row) {
  return (takes_flag(row) ? object.call("BuildAttribute", false) : object.call("BuildAttribute")).to_text();
}
std::string record_of(const std::string& id, const std::string& value) {
  return bits_of((id.size() + value.size()) / 8, 8) + id + value;
}

TEST(EverySimpleAttribute, HasItsMembersAndDefaults) {
  for_every(kAttributeCases, [](const AttributeCase& row) {
    const Ref<Object> object = create(row.name, "SB_");
    const std::string id = bits_of(row.id, row.id_bits);
    const std::string initial = bits_of(row.initial);
    EXPECT_EQ(get(*object, row, "PRstr_Attribute"), "");
    EXPECT_EQ(get(*object, row, "PRstr_Length"), bits_of(row.length, 8));
    EXPECT_EQ(get(*object, row, "PRstr_AttribId"), id);
    EXPECT_EQ(get(*object, row, "PRstr_AttrValue"), initial);
    EXPECT_EQ(build(*object, row), initial.empty() ? "" : record_of(id, initial));
    EXPECT_EQ(object->class_info()->fields().back().initial, initial);
    std::string members;
    for (const MemberInfo& member : object->class_info()->members()) {
      members.append(member.name).append(member.lets ? "= " : " ");
    }
    EXPECT_EQ(members, std::string("PRstr_Attribute= PRstr_Length= PRstr_AttribId") + (row.id_settable ? "=" : "") +
                           " PRstr_AttrValue= BuildAttribute ");
  });
}

/// The texts of a family, with "#" where the class's own width stands.
struct Texts {
  std::string_view record, length, id, value;
};
constexpr Texts kTexts[] = {
    {"Error: Length of Attribute String should be #.", "Length of Attribute Length field should be 8.",
     "Length of Attribute ID field should be #.", "Length of Attribute Value field should be #."},
    {"Error: Length of Attribute String should be # bits.", "Length of Attribute Length field should be 8 bits.",
     "Length of Attribute ID field should be # bits.", "Length of Attribute Value field should be # bits."},
    {"", "Length of <Length> field should be 8 bits.", "",
     "The length of argument passed should be equal to the length of Attribute value field (length=#).  "},
    {"", "The length of <Length> field should be 8 bits.  ", "",
     "The length of argument passed should be equal to the length of AttrValue (length=#).  "},
    {"Length of attribute string should be # bits .", "Length of attribute string should be 8 bits .",
     "Length of <AttributeId> field should be # bits .", "Length of Attribute Value should not be more than # bits ."},
    {"SessionKeyLength Attribute string should be # bits long.", " Attribute Length string should be 8 bits long. ", "",
     "Attribute Value string should be # bits long."},
    {"Length of attribute string should be # bits.", "Length of attribute should be 8 bits .", "",
     "Length of attribute value  should be # bits ."},
};

TEST(EverySimpleAttribute, RefusesWrongWidthsAndKeepsItsValues) {
  for_every(kAttributeCases, [](const AttributeCase& row) {
    const Ref<Object> object = create(row.name, "SB_");
    const std::string part = row.source == "name" ? "SB_" + std::string(row.name) : std::string(row.source);
    const std::string before = build(*object, row);
    const Texts& texts = kTexts[row.family];
    const auto expect = [&](std::string_view member, std::size_t width, std::string_view source,
                            std::string_view pattern, bool narrower_too = true) {
      const Raised refused{1, part.empty() ? part : part + "." + std::string(source),
                           replaced(pattern, '#', std::to_string(width))};
      expect_widths_refused(*object, member, width, refused, narrower_too);
    };
    // One class has another family's text.
    const bool plain = row.name == "App_AttrFlowNNHigherLayerProFwd";
    if (row.record_bits != 0) {
      expect("PRstr_Attribute", row.record_bits, "PRstr_Attribute", plain ? kTexts[kUsual].record : texts.record);
    }
    expect("PRstr_Length", 8, "PRstr_Length", texts.length);
    if (row.id_settable) {
      expect("PRstr_AttribId", row.id_bits, row.family == kBits ? "PRstr_AttribId" : "PRstr_AttribID", texts.id);
    } else {
      EXPECT_EQ(error_number([&] { object->let("PRstr_AttribId", bits_of(row.id, row.id_bits)); }), 438);
    }
    const bool one_width = row.family == kVariable && !up_to(row);
    expect("PRstr_AttrValue", row.value_bits, "PRstr_AttrValue",
           one_width ? "Length of Attribute Value should be # bits ." : texts.value, !up_to(row));
    EXPECT_EQ(build(*object, row), before);
    EXPECT_EQ(get(*object, row, "PRstr_Attribute"), "");
    EXPECT_EQ(get(*object, row, "PRstr_Length"), bits_of(row.length, 8));
  });
}

TEST(EverySimpleAttribute, ComesBackAsItWasBuilt) {
  for_every(kAttributeCases, [](const AttributeCase& row) {
    const std::size_t width = row.value_bits;
    for (const std::size_t number : {0x0000U, 0xFFFFU, 0x0001U, 0x8080U, 0xA5C3U}) {
      const std::string value = bits_of(number, width);
      const Ref<Object> sender = create(row.name, "SB_");
      const std::string id = bits_of(row.id | (row.id_settable ? 3U : 0U), row.id_bits);
      if (row.id_settable) sender->let("PRstr_AttribId", id);
      sender->let("PRstr_AttrValue", value);
      sender->let("PRstr_Length", "10101010");  // kept, but never sent
      const std::string record = build(*sender, row);
      EXPECT_EQ(record, record_of(id, value));
      EXPECT_EQ(get(*sender, row, "PRstr_Length"), "10101010");

      const Ref<Object> receiver = create(row.name, "SB_");
      // One class takes only records that are an octet shorter than its own: half its value comes back.
      const std::string sent = row.record_bits == 0 ? record : record.substr(0, row.record_bits);
      receiver->let("PRstr_Attribute", sent);
      receiver->let("PRstr_AttrValue", bits_of(0x5A5A, width));  // to be sent, not read
      EXPECT_EQ(get(*receiver, row, "PRstr_Attribute"), sent);
      EXPECT_EQ(get(*receiver, row, "PRstr_Length"), record.substr(0, 8));
      EXPECT_EQ(get(*receiver, row, "PRstr_AttribId"), id);
      EXPECT_EQ(get(*receiver, row, "PRstr_AttrValue"),
                row.name == "App_AttrFlowNNTranstAbrtTimerRv" ? value.substr(0, 8) : value);
      EXPECT_EQ(build(*receiver, row), record_of(bits_of(row.id, row.id_bits), bits_of(0x5A5A, width)));
    }
  });
}

}  // namespace
}  // namespace vorlan::test
