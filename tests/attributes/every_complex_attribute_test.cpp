// Every complex attribute class of the registry, against the table of cases.
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "attributes/complex_attribute_cases.hpp"
#include "attributes/short_bits.hpp"
#include "attributes/simple_attribute_cases.hpp"
#include "attributes/value_cases.hpp"
#include "support/message_cases.hpp"

namespace vorlan::test {
namespace {

std::string bits_of(std::size_t value, std::size_t width) {
  return std::string(ShortBits(static_cast<std::uint32_t>(value), width).view());
}

std::string source(const ComplexCase& row, std::string_view member) {
  return std::string(row.source.empty() ? row.name : row.source).append(".").append(member);
}
std::string bare_name(const ComplexCase& row) { return std::string(row.name.substr(row.name.find("_Attr") + 5)); }

/// A per-flow or per-reservation attribute, whose whole ID is set.
bool has_flow(const ComplexCase& row) {
  return row.name.find("NN") != std::string_view::npos || row.name.find("KK") != std::string_view::npos ||
         row.name.ends_with("PrmPP");
}
bool has_length(const ComplexCase& row) { return row.name != "SB_Con_AttrSuppCDMAChannels"; }

template <class F>
void for_every_case(ComplexForm form, F&& test) {
  for (const ComplexCase& row : kComplexCases) {
    SCOPED_TRACE(row.name);
    if (row.form == form) test(row);
  }
}

TEST(EveryAttributeAndValue, IsInATable) {
  std::set<std::string> listed;
  for (const AttributeCase& row : kAttributeCases) listed.emplace(row.name);
  for (const ComplexCase& row : kComplexCases) listed.emplace(row.name);
  for (const ValueCase& row : kValueCases) listed.emplace(row.name);
  std::set<std::string> registered;
  const Registry registry(class_tables());
  for (const Registry::Class& cls : registry.classes()) {
    const std::string_view name = cls.name();
    const std::size_t attribute = name.find("_Attr");
    const bool is_message = attribute != std::string_view::npos && name.substr(attribute).starts_with("_Attribute");
    if (name.find("_Val") == std::string_view::npos && (attribute == std::string_view::npos || is_message)) continue;
    registered.emplace(name);
  }
  EXPECT_EQ(registered, listed);
}

TEST(EveryComplexAttribute, HasItsMembers) {
  for (const ComplexCase& row : kComplexCases) {
    SCOPED_TRACE(row.name);
    std::set<std::string> expected{"BuildAttribute"};
    if (has_length(row)) expected.insert({"PRstr_Length", "PRstr_AttribId"});
    if (!has_length(row)) expected.insert("ReturnValIDSupp");
    if (row.form != kBuilder) expected.insert("PRstr_Attribute");
    if (row.form == kList) {
      expected.insert({"PRint_Attr" + bare_name(row) + "Count", "PRobj_" + bare_name(row) + "Val"});
    }
    if (row.form == kFields) {
      std::istringstream words{std::string(row.value)};
      for (std::string name, width; words >> name >> width;) expected.insert("PRstr_" + name);
    }
    std::set<std::string> members;
    const ClassInfo& info = *create(row.name)->class_info();
    for (const MemberInfo& member : info.members()) {
      members.emplace(member.name);
      EXPECT_FALSE(member.summary.empty()) << member.name;
    }
    EXPECT_EQ(members, expected);
    EXPECT_FALSE(info.clause().empty() || info.summary().empty());
    for (const ErrorInfo& error : info.errors()) EXPECT_FALSE(error.description.empty());
  }
}

TEST(EveryComplexAttribute, BuildsFromValueRecords) {
  for (const ComplexCase& row : kComplexCases) {
    SCOPED_TRACE(row.name);
    if (row.form == kFields) continue;
    const Ref<Object> attribute = create(row.name);
    const std::string value = create(row.value)->call("BuildValueRecord").to_text();
    std::size_t id = row.id;
    for (const std::string& values : {value, value + value, std::string()}) {
      EXPECT_EQ(attribute->call("BuildAttribute", values).to_text(),
                bits_of((row.id_bits + values.size()) / 8, 8) + bits_of(id, row.id_bits) + values);
      if (!has_flow(row)) continue;
      id = (row.id & 0xFF00U) | 7U;
      EXPECT_EQ(raised_by([&] { attribute->let("PRstr_AttribId", bits_of(7, 8)); }),
                (Raised{1, source(row, "PRstr_AttribID"), "Length of Attribute ID field should be 16."}));
      attribute->let("PRstr_AttribId", bits_of(id, 16));
    }
    if (!has_length(row)) continue;
    EXPECT_EQ(attribute->get("PRstr_AttribId").to_text(), bits_of(id, row.id_bits));
    attribute->let("PRstr_Length", "10101010");
    EXPECT_EQ(raised_by([&] { attribute->let("PRstr_Length", "1010101"); }),
              (Raised{1, source(row, "PRstr_Length"),
                      row.id_bits == 8 ? "The length of <Length> field should be equal to 8 bits."
                                       : "Length of Attribute Length field should be 8."}));
    EXPECT_EQ(attribute->get("PRstr_Length").to_text(), "10101010");
  }
}

TEST(EveryComplexAttribute, TakesListsOfRecordsApart) {
  for_every_case(kList, [](const ComplexCase& row) {
    const Ref<Object> attribute = create(row.name);
    const std::string count = "PRint_Attr" + bare_name(row) + "Count";
    const std::string object = "PRobj_" + bare_name(row) + "Val";
    const std::string_view not_set = row.name.starts_with("SB_Mac_") && row.id_bits == 8
                                         ? "Property <PRstr_Attribute> has not been set. Please set this first. "
                                         : "<PRstr_Attribute> has not been set. Please set this first.";
    EXPECT_EQ(raised_by([&] { attribute->get(count); }), (Raised{1, source(row, count), std::string(not_set)}));
    EXPECT_EQ(attribute->get(object, std::int32_t{5}).to_object()->class_info()->name(), row.value);

    const Ref<Object> value = create(row.value);
    std::string values;
    for (std::int32_t n = 0; n < 4; ++n) {
      const std::string record = attribute->call("BuildAttribute", values).to_text();
      attribute->let("PRstr_Attribute", record);
      EXPECT_EQ(attribute->get(count).to_integer(), n);
      for (std::int32_t i = 0; i < n; ++i) {
        const Ref<Object> got = attribute->get(object, i).to_object();
        EXPECT_EQ(got->get("PRstr_ValueId").to_text(), bits_of(static_cast<std::size_t>(i) + 1, 8));
      }
      for (const std::int32_t beyond : {n, -1}) {
        EXPECT_EQ(error_number([&] { attribute->get(object, beyond); }), 9);
      }
      if (n > 0) {
        // Cut off, with part of a record too many, and without an AttributeID.
        for (const std::string& wrong : {record.substr(0, record.size() - 1), record + "1", record.substr(0, 12)}) {
          EXPECT_EQ(raised_by([&] { attribute->let("PRstr_Attribute", wrong); }),
                    (Raised{1, source(row, "PRstr_Attribute"), std::string(row.malformed)}));
        }
      }
      EXPECT_EQ(attribute->get("PRstr_Attribute").to_text(), record);
      EXPECT_EQ(attribute->get(count).to_integer(), n);
      if (has_length(row)) {
        EXPECT_EQ(attribute->get("PRstr_Length").to_text(), record.substr(0, 8));
        EXPECT_EQ(attribute->get("PRstr_AttribId").to_text(), bits_of(row.id, row.id_bits));
      }
      value->let("PRstr_ValueId", bits_of(static_cast<std::size_t>(n) + 1, 8));
      values += value->call("BuildValueRecord").to_text();
    }
  });
}

TEST(EveryComplexAttribute, HoldsFieldsOfItsOwn) {
  for_every_case(kFields, [](const ComplexCase& row) {
    for (const char bit : {'0', '1'}) {
      const Ref<Object> sender = create(row.name);
      std::string values;
      std::istringstream words{std::string(row.value)};
      std::string name, width;
      while (words >> name >> width) {
        const std::string property = "PRstr_" + name, bits(std::stoul(width), bit);
        EXPECT_EQ(sender->get(property).to_text(), std::string(bits.size(), '0'));
        EXPECT_EQ(raised_by([&] { sender->let(property, bits + "1"); }),
                  (Raised{1, source(row, property),
                          "Length of <" + name + "> field should be " + std::to_string(bits.size()) + " bits."}));
        sender->let(property, bits);
        values += bits;
      }
      const std::string record = sender->call("BuildAttribute").to_text();
      EXPECT_EQ(record, bits_of(1 + values.size() / 8, 8) + bits_of(row.id, 8) + values);
      const Ref<Object> receiver = create(row.name);
      receiver->let("PRstr_Attribute", record);
      for (const std::string& wrong : {record + "1", record.substr(0, record.size() - 1), std::string()}) {
        EXPECT_EQ(raised_by([&] { receiver->let("PRstr_Attribute", wrong); }),
                  (Raised{1, source(row, "PRstr_Attribute"), std::string(row.malformed)}));
      }
      EXPECT_EQ(receiver->get("PRstr_Attribute").to_text(), record);
      std::istringstream again{std::string(row.value)};
      while (again >> name >> width) {
        EXPECT_EQ(receiver->get("PRstr_" + name).to_text(), std::string(std::stoul(width), bit)) << name;
      }
    }
  });
}

}  // namespace
}  // namespace vorlan::test
