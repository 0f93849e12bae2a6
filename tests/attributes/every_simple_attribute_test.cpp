// Every simple attribute class of the registry, against the table of cases.
#include <gtest/gtest.h>

#include <set>

#include "attributes/simple_attribute.hpp"
#include "attributes/simple_attribute_cases.hpp"
#include "support/message_cases.hpp"

namespace vorlan::test {
namespace {

std::string bits_of(std::uint32_t value, std::size_t width) { return std::string(ShortBits(value, width).view()); }

/// The class with both AttributeIDs has to be told which.
bool takes_flag(const AttributeCase& row) { return row.name == "SB_App_AttrRANHandoff"; }

std::string get(Object& object, const AttributeCase& row, std::string_view member) {
  return (takes_flag(row) && member == "PRstr_AttribId" ? object.get(member, false) : object.get(member)).to_text();
}
std::string build(Object& object, const AttributeCase& row) {
  return (takes_flag(row) ? object.call("BuildAttribute", false) : object.call("BuildAttribute")).to_text();
}

template <class F>
void for_every_case(F&& test) {
  for (const AttributeCase& row : kAttributeCases) {
    SCOPED_TRACE(row.name);
    test(row);
  }
}

TEST(EverySimpleAttribute, IsInTheTable) {
  std::set<std::string_view> listed;
  for (const AttributeCase& row : kAttributeCases) listed.insert(row.name);
  std::set<std::string_view> registered;
  const Registry registry(class_tables());
  for (const Registry::Class& cls : registry.classes()) {
    if (dynamic_cast<SimpleAttribute*>(create(cls.name()).get()) != nullptr) registered.insert(cls.name());
  }
  EXPECT_EQ(listed.size(), 60U);
  EXPECT_EQ(registered, listed);
}

TEST(EverySimpleAttribute, StartsWithItsDefaults) {
  for_every_case([](const AttributeCase& row) {
    const Ref<Object> object = create(row.name);
    const std::string id = bits_of(row.id, row.id_bits);
    EXPECT_EQ(get(*object, row, "PRstr_Attribute"), "");
    EXPECT_EQ(get(*object, row, "PRstr_Length"), bits_of(row.length, 8));
    EXPECT_EQ(get(*object, row, "PRstr_AttribId"), id);
    EXPECT_EQ(get(*object, row, "PRstr_AttrValue"), row.initial);
    const auto octets = static_cast<std::uint32_t>((id.size() + row.initial.size()) / 8);
    EXPECT_EQ(build(*object, row), row.initial.empty() ? "" : bits_of(octets, 8) + id + std::string(row.initial));
  });
}

TEST(EverySimpleAttribute, ListsItsMembersAndTexts) {
  static constexpr std::string_view kNames[] = {"PRstr_Attribute", "PRstr_Length", "PRstr_AttribId", "PRstr_AttrValue",
                                                "BuildAttribute"};
  for_every_case([](const AttributeCase& row) {
    const Ref<Object> object = create(row.name);
    const ClassInfo& info = *object->class_info();
    EXPECT_EQ(fault(dynamic_cast<SimpleAttribute&>(*object).attribute_class().spec()), "");
    EXPECT_FALSE(info.clause().empty() || info.summary().empty());
    ASSERT_EQ(info.members().size(), std::size(kNames));
    for (std::size_t i = 0; i < std::size(kNames); ++i) {
      const MemberInfo& member = info.members()[i];
      EXPECT_EQ(member.name, kNames[i]);
      EXPECT_FALSE(member.summary.empty());
      EXPECT_EQ(member.calls, i == 4);
      EXPECT_EQ(member.lets, i == 2 ? row.id_settable : i != 4) << member.name;
    }
    ASSERT_EQ(info.fields().size(), 3U);
    EXPECT_EQ(info.fields()[2].initial, row.initial);
    const auto refused = static_cast<std::size_t>(2 + (row.record_bits != 0) + row.id_settable);
    EXPECT_GE(info.errors().size(), refused);
    EXPECT_LE(info.errors().size(), refused + 1);
    for (const ErrorInfo& error : info.errors()) EXPECT_FALSE(error.description.empty());
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

std::string text(std::string_view pattern, std::size_t width) {
  std::string result(pattern);
  if (const auto at = result.find('#'); at != std::string::npos) result.replace(at, 1, std::to_string(width));
  return result;
}

TEST(EverySimpleAttribute, RefusesWrongWidthsAndKeepsItsValues) {
  for_every_case([](const AttributeCase& row) {
    const Ref<Object> object = create(row.name);
    const std::string_view part = row.source == "name" ? row.name : row.source;
    const std::string before = build(*object, row);
    const auto expect = [&](std::string_view member, std::size_t wrong, std::string_view source_member,
                            const std::string& description) {
      const std::string source = part.empty() ? "" : std::string(part) + "." + std::string(source_member);
      EXPECT_EQ(raised_by([&] { object->let(member, std::string(wrong, '1')); }), (Raised{1, source, description}));
    };
    const Texts& texts = kTexts[row.family];
    for (const int off : {-1, 1, 8}) {
      const auto wrong = [&](int width) { return static_cast<std::size_t>(width + off); };
      if (row.record_bits != 0) {
        const bool plain = row.name == "SB_App_AttrFlowNNHigherLayerProFwd";
        expect("PRstr_Attribute", wrong(row.record_bits), "PRstr_Attribute",
               text(plain ? kTexts[kUsual].record : texts.record, row.record_bits));
      }
      expect("PRstr_Length", wrong(8), "PRstr_Length", std::string(texts.length));
      if (row.id_settable) {
        expect("PRstr_AttribId", wrong(row.id_bits), row.family == kBits ? "PRstr_AttribId" : "PRstr_AttribID",
               text(texts.id, row.id_bits));
      } else {
        EXPECT_EQ(error_number([&] { object->let("PRstr_AttribId", bits_of(row.id, row.id_bits)); }), 438);
      }
      if (row.up_to && off < 0) continue;
      expect("PRstr_AttrValue", wrong(row.value_bits), "PRstr_AttrValue",
             row.name == "SB_Con_AttrAccessHashingClassMask" ? "Length of Attribute Value should be 16 bits ."
                                                             : text(texts.value, row.value_bits));
    }
    EXPECT_EQ(build(*object, row), before);
    EXPECT_EQ(get(*object, row, "PRstr_Attribute"), "");
    EXPECT_EQ(get(*object, row, "PRstr_Length"), bits_of(row.length, 8));
  });
}

TEST(EverySimpleAttribute, ComesBackAsItWasBuilt) {
  for_every_case([](const AttributeCase& row) {
    const std::size_t width = row.value_bits;
    for (const std::string& value : {std::string(width, '0'), std::string(width, '1'), bits_of(1, width),
                                     bits_of(1U << (width - 1), width), bits_of(0xA5C3, width)}) {
      const Ref<Object> sender = create(row.name);
      std::string id = bits_of(row.id, row.id_bits);
      if (row.id_settable) {
        id = bits_of(row.id | 3U, row.id_bits);
        sender->let("PRstr_AttribId", id);
      }
      sender->let("PRstr_AttrValue", value);
      sender->let("PRstr_Length", "10101010");  // kept, but never sent
      const std::string record = build(*sender, row);
      EXPECT_EQ(record, bits_of(static_cast<std::uint32_t>((id.size() + width) / 8), 8) + id + value);
      EXPECT_EQ(get(*sender, row, "PRstr_Length"), "10101010");

      const Ref<Object> receiver = create(row.name);
      // One class takes only records that are an octet shorter than its own: half its value comes back.
      const std::string sent = row.record_bits == 0 ? record : record.substr(0, row.record_bits);
      receiver->let("PRstr_Attribute", sent);
      EXPECT_EQ(get(*receiver, row, "PRstr_Attribute"), sent);
      EXPECT_EQ(get(*receiver, row, "PRstr_Length"), record.substr(0, 8));
      EXPECT_EQ(get(*receiver, row, "PRstr_AttribId"), id);
      EXPECT_EQ(get(*receiver, row, "PRstr_AttrValue"),
                row.name == "SB_App_AttrFlowNNTranstAbrtTimerRv" ? value.substr(0, 8) : value);
    }
  });
}

}  // namespace
}  // namespace vorlan::test
