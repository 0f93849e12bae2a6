// Every complex attribute class of the registry, against the table of cases; and all tables against the registry.
#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <vector>

#include "attributes/bits.hpp"
#include "attributes/field_attribute_cases.hpp"
#include "attributes/simple_attribute_cases.hpp"
#include "attributes/value_cases.hpp"
#include "support/message_cases.hpp"

namespace vorlan::test {
namespace {

/// An attribute with value records.
struct ComplexCase {
  std::string name;
  std::string value;   // its value class
  std::string source;  // class part of sources
  OfAttribute row;

  [[nodiscard]] std::string from(std::string_view member) const { return source + "." + std::string(member); }
  [[nodiscard]] std::string count() const { return "PRint_Attr" + name.substr(11) + "Count"; }
  [[nodiscard]] std::string object() const { return "PRobj_" + name.substr(11) + "Val"; }
  [[nodiscard]] bool has(std::string_view part) const { return name.find(part) != std::string::npos; }
  /// A per-flow or per-reservation attribute, whose whole ID is set.
  [[nodiscard]] bool has_flow() const { return has("NN") || has("KK") || has("PrmPP"); }
  [[nodiscard]] bool has_length() const { return !has("SuppCDMAChannels"); }
};

std::vector<ComplexCase> complex_cases() {
  std::vector<ComplexCase> cases;
  for (const ValueCase& row : kValueCases) {
    if (row.attribute.form == kNone) continue;
    ComplexCase& one = cases.emplace_back();
    one.value = "SB_" + std::string(row.name);
    one.name = "SB_" + std::string(row.name.substr(0, 4)) + "Attr" + std::string(row.name.substr(7));
    if (one.has("DiffChnl")) one.name.pop_back();  // its value class alone has a plural
    one.source = one.name;
    for (const std::string_view source : {row.source, row.own_source}) {
      if (source.find('*') != std::string_view::npos) one.source = replaced(source, '*', "Attr");
    }
    one.row = row.attribute;
  }
  return cases;
}

struct Field {
  std::string name;
  std::size_t bits;
};
std::vector<Field> fields_of(const FieldAttributeCase& row) {
  std::vector<Field> fields;
  std::istringstream words{std::string(row.fields)};
  for (std::string name, bits; words >> name >> bits;) fields.push_back({"PRstr_" + name, std::stoul(bits)});
  return fields;
}

std::set<std::string> members_of(std::string_view name) {
  std::set<std::string> members;
  for (const MemberInfo& member : create(name)->class_info()->members()) members.emplace(member.name);
  return members;
}

TEST(EveryAttributeAndValue, IsInATable) {
  std::multiset<std::string> listed;
  for (const AttributeCase& row : kAttributeCases) listed.insert("SB_" + std::string(row.name));
  for (const FieldAttributeCase& row : kFieldAttributeCases) listed.emplace(row.name);
  for (const ComplexCase& row : complex_cases()) listed.insert(row.name);
  for (const ValueCase& row : kValueCases) listed.insert("SB_" + std::string(row.name));
  std::multiset<std::string> registered;
  const Registry registry(class_tables());
  for (const Registry::Class& cls : registry.classes()) {
    const std::string_view kind = cls.name().substr(std::min<std::size_t>(6, cls.name().size()));
    const bool is_attribute = kind.starts_with("_Attr");
    if (!is_attribute && !kind.starts_with("_Val")) continue;
    registered.emplace(cls.name());
    const ClassInfo& info = cls.info();
    SCOPED_TRACE(cls.name());
    EXPECT_FALSE(info.clause().empty() || info.summary().empty());
    if (is_attribute) {
      for (const MemberInfo& member : info.members()) EXPECT_FALSE(member.summary.empty()) << member.name;
    }
    for (const ErrorInfo& error : info.errors()) EXPECT_FALSE(error.description.empty());
  }
  EXPECT_EQ(registered, listed);
}

TEST(EveryComplexAttribute, HasItsMembers) {
  for_every(complex_cases(), [](const ComplexCase& row) {
    std::set<std::string> expected{"BuildAttribute"};
    if (row.has_length()) expected.insert({"PRstr_Length", "PRstr_AttribId"});
    if (!row.has_length()) expected.insert("ReturnValIDSupp");
    if (row.row.form == kList) expected.insert({"PRstr_Attribute", row.count(), row.object()});
    EXPECT_EQ(members_of(row.name), expected);
  });
}

TEST(EveryComplexAttribute, BuildsFromValueRecords) {
  for_every(complex_cases(), [](const ComplexCase& row) {
    const Ref<Object> attribute = create(row.name);
    const std::string value = create(row.value)->call("BuildValueRecord").to_text();
    std::size_t id = row.row.id;
    for (const std::string& values : {value, value + value, std::string()}) {
      EXPECT_EQ(attribute->call("BuildAttribute", values).to_text(),
                bits_of((row.row.id_bits + values.size()) / 8, 8) + bits_of(id, row.row.id_bits) + values);
      if (!row.has_flow()) continue;
      id = (row.row.id & 0xFF00U) | 7U;
      EXPECT_EQ(raised_by([&] { attribute->let("PRstr_AttribId", bits_of(7, 8)); }),
                (Raised{1, row.from("PRstr_AttribID"), "Length of Attribute ID field should be 16."}));
      attribute->let("PRstr_AttribId", bits_of(id, 16));
    }
    if (!row.has_length()) return;
    EXPECT_EQ(attribute->get("PRstr_AttribId").to_text(), bits_of(id, row.row.id_bits));
    attribute->let("PRstr_Length", "10101010");
    const char* const wrong = row.row.id_bits == 8 ? "The length of <Length> field should be equal to 8 bits."
                                                   : "Length of Attribute Length field should be 8.";
    expect_widths_refused(*attribute, "PRstr_Length", 8, {1, row.from("PRstr_Length"), wrong});
    EXPECT_EQ(attribute->get("PRstr_Length").to_text(), "10101010");
  });
}

TEST(EveryComplexAttribute, TakesListsOfRecordsApart) {
  for_every(complex_cases(), [](const ComplexCase& row) {
    if (row.row.form != kList) return;
    const Ref<Object> attribute = create(row.name);
    const std::string count = row.count(), object = row.object();
    const std::string_view not_set = row.name.starts_with("SB_Mac_") && row.row.id_bits == 8
                                         ? "Property <PRstr_Attribute> has not been set. Please set this first. "
                                         : "<PRstr_Attribute> has not been set. Please set this first.";
    EXPECT_EQ(raised_by([&] { attribute->get(count); }), (Raised{1, row.from(count), std::string(not_set)}));
    EXPECT_EQ(attribute->get(object, 5).to_object()->class_info()->name(), row.value);

    const Ref<Object> value = create(row.value);
    std::string values;
    for (int n = 0; n < 4; ++n) {
      const std::string record = attribute->call("BuildAttribute", values).to_text();
      attribute->let("PRstr_Attribute", record);
      // Cut off, with part of a record too many, and without an AttributeID.
      for (const std::string& wrong : {record.substr(0, record.size() - 1), record + "1", record.substr(0, 12)}) {
        EXPECT_EQ(raised_by([&] { attribute->let("PRstr_Attribute", wrong); }),
                  (Raised{1, row.from("PRstr_Attribute"), std::string(row.row.malformed)}));
      }
      EXPECT_EQ(attribute->get(count).to_integer(), n);
      for (int i = 0; i < n; ++i) {
        const Ref<Object> got = attribute->get(object, i).to_object();
        EXPECT_EQ(got->get("PRstr_ValueId").to_text(), bits_of(static_cast<std::size_t>(i) + 1, 8));
      }
      for (const int beyond : {n, -1}) EXPECT_EQ(error_number([&] { attribute->get(object, beyond); }), 9);
      EXPECT_EQ(attribute->get("PRstr_Attribute").to_text(), record);
      if (row.has_length()) {
        EXPECT_EQ(attribute->get("PRstr_Length").to_text(), record.substr(0, 8));
        EXPECT_EQ(attribute->get("PRstr_AttribId").to_text(), bits_of(row.row.id, row.row.id_bits));
      }
      value->let("PRstr_ValueId", bits_of(static_cast<std::size_t>(n) + 1, 8));
      values += value->call("BuildValueRecord").to_text();
    }
  });
}

TEST(EveryComplexAttribute, HoldsFieldsOfItsOwn) {
  for_every(kFieldAttributeCases, [](const FieldAttributeCase& row) {
    const std::string source = std::string(row.name) + ".";
    const Raised malformed{1, source + "PRstr_Attribute",
                           "Error: Length of Attribute String should be " + std::string(row.record_bits) + "."};
    std::set<std::string> members{"PRstr_Attribute", "PRstr_Length", "PRstr_AttribId", "BuildAttribute"};
    for (const Field& field : fields_of(row)) members.insert(field.name);
    EXPECT_EQ(members_of(row.name), members);
    for (const char bit : {'0', '1'}) {
      const Ref<Object> sender = create(row.name);
      std::string values;
      for (const auto& [name, width] : fields_of(row)) {
        const std::string bits(width, bit);
        EXPECT_EQ(sender->get(name).to_text(), std::string(width, '0'));
        const std::string text =
            "Length of <" + name.substr(6) + "> field should be " + std::to_string(width) + " bits.";
        expect_widths_refused(*sender, name, width, {1, source + name, text});
        sender->let(name, bits);
        values += bits;
      }
      const std::string record = sender->call("BuildAttribute").to_text();
      EXPECT_EQ(record, bits_of(1 + values.size() / 8, 8) + bits_of(row.id, 8) + values);
      const Ref<Object> receiver = create(row.name);
      receiver->let("PRstr_Attribute", record);
      for (const std::string& wrong : {record + "1", record.substr(0, record.size() - 1), std::string()}) {
        EXPECT_EQ(raised_by([&] { receiver->let("PRstr_Attribute", wrong); }), malformed);
      }
      EXPECT_EQ(receiver->get("PRstr_Attribute").to_text(), record);
      for (const auto& [name, width] : fields_of(row)) {
        EXPECT_EQ(receiver->get(name).to_text(), std::string(width, bit)) << name;
      }
    }
  });
}

}  // namespace
}  // namespace vorlan::test
