// Every value class of the registry, against the table of cases.
#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <vector>

#include "attributes/bits.hpp"
#include "attributes/value_cases.hpp"
#include "support/message_cases.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

struct FieldCase {
  std::string name;
  std::size_t width = 0;
  std::string marks;
  [[nodiscard]] bool is(char mark) const { return marks.find(mark) != std::string::npos; }
  /// Set and sent by a record whose counts are 1.
  [[nodiscard]] bool sent() const { return marks.find_first_of("-rvx") == std::string::npos; }
  [[nodiscard]] std::string property() const { return "PRstr_" + name; }
};

/// The number at the end of the class's name for $.
std::string with_size(std::string_view pattern, std::string_view class_name) {
  return replaced(pattern, '$', class_name.substr(class_name.find_last_not_of("0123456789") + 1));
}

std::vector<FieldCase> fields_of(const ValueCase& row) {
  std::vector<FieldCase> fields;
  const bool names_id = row.fields.find("ValueId") != std::string_view::npos;
  std::istringstream words{(names_id ? "" : "ValueId 8, ") + std::string(row.fields)};
  for (std::string name; words >> name;) {
    FieldCase field;
    words >> field.width;
    std::getline(words, field.marks, ',');
    field.name = with_size(name, row.name);
    const auto at = field.name.find_first_of("~^");
    if (at == std::string::npos) {
      fields.push_back(field);
      continue;
    }
    const bool from_zero = field.name[at] == '~';
    for (char digit = from_zero ? '0' : '1'; digit <= '3'; ++digit) {
      FieldCase element = field;
      element.name[at] = digit;
      if (from_zero && digit > '0') element.marks += 'x';
      fields.push_back(element);
    }
  }
  return fields;
}

template <class F>
void for_every_case(F&& test) {
  for_every(kValueCases, [&](const ValueCase& row) { test(row, fields_of(row)); });
}

Ref<Object> create(const ValueCase& row) { return test::create(row.name, "SB_"); }

std::string class_part(const ValueCase& row) {
  return row.source.empty() ? "SB_" + std::string(row.name) : replaced(row.source, '*', "Val");
}
std::string source(const ValueCase& row, const FieldCase& field) {
  const bool own = !row.own_source.empty() && (field.is('-') || field.is('v'));
  // A source that scripts know: it names a property that the class does not have.
  const bool other = field.name.starts_with("LoLatT2PTransition");
  return (own ? replaced(row.own_source, '*', "Val") : class_part(row)) + "." +
         (other ? "PRstr_ProfileType" : field.property());
}

/// 1 in counts and flags; all ones, or 1, in the others.
std::string fill(const FieldCase& field, bool ones) {
  std::string bits(field.width, ones && !field.is('#') ? '1' : '0');
  bits.back() = '1';
  return bits;
}

/// Sets all fields that can be set.
void fill_all(Object& object, const std::vector<FieldCase>& fields, bool ones) {
  for (const FieldCase& field : fields) {
    if (!field.is('r') && !field.is('v')) object.let(field.property(), fill(field, ones));
  }
}

TEST(EveryValue, HasItsMembersInOrder) {
  for_every_case([](const ValueCase& row, const std::vector<FieldCase>& fields) {
    std::vector<std::string> properties;
    std::set<std::string> methods;
    std::string controls;
    for (const MemberInfo& member : create(row)->class_info()->members()) {
      if (member.calls) {
        methods.emplace(member.name);
      } else if (member.name.starts_with("PRstr_")) {
        properties.emplace_back(member.name);
      } else {
        controls += member.name;
      }
    }
    std::vector<std::string> expected{"PRstr_ValString"};
    for (const FieldCase& field : fields) expected.push_back(field.property());
    EXPECT_EQ(properties, expected);
    EXPECT_EQ(controls, row.controls);
    std::istringstream names{"BuildValueRecord " + with_size(row.operations, row.name)};
    EXPECT_EQ(methods, (std::set<std::string>{std::istream_iterator<std::string>(names), {}}));
  });
}

TEST(EveryValue, StartsWithItsDefaults) {
  for_every_case([](const ValueCase& row, const auto&) {
    const Ref<Object> object = create(row);
    EXPECT_EQ(object->get("PRstr_ValString").to_text(), "");
    EXPECT_EQ(object->call("BuildValueRecord").to_text(), bits_of(row.initial));
  });
}

TEST(EveryValue, ComesBackAsItWasBuilt) {
  for_every_case([](const ValueCase& row, const std::vector<FieldCase>& fields) {
    for (const bool ones : {false, true}) {
      const Ref<Object> sender = create(row);
      std::string record;
      for (const FieldCase& field : fields) {
        if (field.is('r')) {
          record.append(field.width, '0');
          continue;
        }
        if (field.is('v')) continue;
        sender->let(field.property(), fill(field, ones));
        EXPECT_EQ(sender->get(field.property()).to_text(), fill(field, ones)) << field.name;
        if (field.sent()) record += fill(field, ones);
      }
      // Not reached by properties: one T2P and one FRAB value, one bucket factor.
      if (row.name == "Mac_ValBucketFactorNN") record.append(8 + 4 + 8, '0');
      record = filled_up(record);
      ASSERT_EQ(sender->call("BuildValueRecord").to_text(), record);

      const Ref<Object> receiver = create(row);
      receiver->let("PRstr_ValString", record);
      EXPECT_EQ(receiver->get("PRstr_ValString").to_text(), record);
      for (const FieldCase& field : fields) {
        if (field.is('-')) continue;
        std::string got;
        const Raised raised = raised_by([&] { got = receiver->get(field.property()).to_text(); });
        EXPECT_EQ(raised, field.is('x') ? (Raised{9, source(row, field), "Subscript out of range"}) : Raised{});
        if (field.sent() || field.is('r')) {
          EXPECT_EQ(got, field.sent() ? fill(field, ones) : std::string(field.width, '0')) << field.name;
        }
      }
      // What is received is not what is sent.
      EXPECT_EQ(receiver->call("BuildValueRecord").to_text(), bits_of(row.initial));

      if (std::string_view(row.operations).find("GetValLengthAt") == std::string_view::npos) continue;
      const std::string in_attribute = "1010101" + record + record;
      EXPECT_EQ(receiver->call("GetValLengthAt", in_attribute, 8).to_integer(), record.size());
      EXPECT_EQ(raised_by([&] { receiver->call("GetValLengthAt", record.substr(0, record.size() - 8), 1); }).number, 1);
    }
  });
}

TEST(EveryValue, RefusesRecordsThatEndBeforeTheirLastField) {
  for_every_case([](const ValueCase& row, const std::vector<FieldCase>& fields) {
    const Ref<Object> object = create(row);
    fill_all(*object, fields, false);
    const std::string record = object->call("BuildValueRecord").to_text();
    object->let("PRstr_ValString", record);
    const Raised refused{1, class_part(row) + ".PRstr_ValString", "Length of ValString is not correct."};
    for (std::size_t length = 0; length + 8 <= record.size(); ++length) {
      // Older terminals' records of this class are shorter.
      if (row.name == "Mac_ValPowerParameters" && (length == 16 || length == 24)) continue;
      EXPECT_EQ(raised_by([&] { object->let("PRstr_ValString", record.substr(0, length)); }), refused) << length;
    }
    EXPECT_EQ(object->get("PRstr_ValString").to_text(), record);
    EXPECT_EQ(object->get("PRstr_ValueId").to_text(), "00000001");
  });
}

/// The text of a field's wrong width.
std::string wrong_width(const ValueCase& row, const FieldCase& field) {
  const std::string width = std::to_string(field.width);
  if (field.name == "DynamicThresholds") {
    return std::string(row.name == "Con_ValSetMgmSameChnlParameter" ? "SetMgmSameChnlParameter"
                                                                    : "SetMgmDiffChnlParameters") +
           " <DynamicThresholds> field should be 1 bit long. ";
  }
  if (row.fields == kPower && field.name != "ValueId")
    return "Error: Length of " + field.name + " should be " + width + " bits.";
  if (row.name == "Mac_ValDRCLock") {
    return "The length of argument passed should be equal to the length of " + field.name + " (length=" + width +
           ").  ";
  }
  return "Length of <" + field.name + "> field should be " + width + " bits.";
}

TEST(EveryValue, RefusesWrongWidthsAndKeepsItsValues) {
  for_every_case([](const ValueCase& row, const std::vector<FieldCase>& fields) {
    const Ref<Object> object = create(row);
    fill_all(*object, fields, false);
    const std::string before = object->call("BuildValueRecord").to_text();
    for (const FieldCase& field : fields) {
      if (field.is('r')) {
        EXPECT_EQ(error_number([&] { object->let(field.property(), std::string(field.width, '0')); }), 438);
        if (field.is('-')) continue;
        const char* const not_set = row.fields == kCycle
                                        ? "ValStr has not yet been set."
                                        : "Value String has not been set. Please set <PRstr_ValString> property first";
        EXPECT_EQ(raised_by([&] { object->get(field.property()); }), (Raised{1, source(row, field), not_set}));
        continue;
      }
      expect_widths_refused(*object, field.property(), field.width, {1, source(row, field), wrong_width(row, field)});
    }
    EXPECT_EQ(object->call("BuildValueRecord").to_text(), before);
  });
}

TEST(EveryValue, SetsAllFieldsAtOnceOrNone) {
  for_every_case([](const ValueCase& row, const std::vector<FieldCase>& fields) {
    std::istringstream names{with_size(row.operations, row.name)};
    std::string operation;
    while (names >> operation && !operation.starts_with("Set") && operation != "TxT2Pmax") continue;
    if (!names || operation.starts_with("Set_")) return;
    std::vector<Value> arguments;
    for (const FieldCase& field : fields) arguments.emplace_back(fill(field, true));
    const Ref<Object> single = create(row);
    fill_all(*single, fields, true);
    const Ref<Object> at_once = create(row);
    auto wrong = arguments;
    wrong.back() = Value("1011011101111");
    EXPECT_EQ(error_number([&] { at_once->invoke(operation, Access::Call, wrong); }), 1);
    std::vector<Value> empty(arguments.size(), Value(""));
    at_once->invoke(operation, Access::Call, empty);
    EXPECT_EQ(at_once->call("BuildValueRecord").to_text(), bits_of(row.initial));
    at_once->invoke(operation, Access::Call, arguments);
    EXPECT_EQ(at_once->call("BuildValueRecord").to_text(), single->call("BuildValueRecord").to_text());
    for (const FieldCase& field : fields) EXPECT_EQ(at_once->get(field.property()).to_text(), fill(field, true));
    EXPECT_EQ(at_once->call("BuildValueRecord", true).to_text(), "11111111");
    EXPECT_EQ(at_once->call("BuildValueRecord", false).to_text(), at_once->call("BuildValueRecord").to_text());
  });
}

}  // namespace
}  // namespace vorlan::test
