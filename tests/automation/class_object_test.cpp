// A hand-written class as scripts reach it: names, arguments, by-reference arguments, errors.
#include <gtest/gtest.h>

#include "automation/bind.hpp"
#include "support/print_value.hpp"
#include "support/raised.hpp"

namespace vorlan {
namespace {

using test::error_number;
using test::raised_by;

class Sample final : public BoundObject<Sample> {
 public:
  static ClassInfo::Texts texts() { return {"SB_Sample", "a sample", ""}; }
  static std::span<const BoundMember> members();

  std::string name() const { return name_; }
  void set_name(const std::string& name) { name_ = name; }
  std::int16_t level(std::int16_t index) const { return levels_.at(static_cast<std::size_t>(index)); }
  void set_level(std::int16_t index, std::int16_t level) { levels_.at(static_cast<std::size_t>(index)) = level; }
  Ref<Object> peer() const { return peer_; }
  void set_peer(const Ref<Object>& peer) { peer_ = peer; }
  std::int32_t count(std::int32_t& width, std::string& text, const std::optional<std::int32_t>& step) {
    width -= step.value_or(1);
    text += "!";
    if (width < 0) throw Error(ErrorNumber::Overflow);
    if (width == 0) raise("", "Empty source");
    return width;
  }

 private:
  std::string name_ = "first";
  std::array<std::int16_t, 2> levels_{};
  Ref<Object> peer_;
};

constexpr std::array kSampleMembers{
    property<&Sample::name, &Sample::set_name>("PRstr_TransactionID", "text"),
    property<&Sample::level, &Sample::set_level>("PRint_Level", "indexed", "index"),
    property<&Sample::peer, &Sample::set_peer>("PRobj_Peer", "object"),
    property<&Sample::name>("PRstr_Fixed", "read only"),
    method<&Sample::count>("Count", "width, text, step", "counts"),
};
std::span<const BoundMember> Sample::members() { return kSampleMembers; }

TEST(ClassObject, FindsMembersWithoutRegardToCase) {
  const auto sample = make<Sample>();
  sample->let("PRSTR_transactionid", "second");
  EXPECT_EQ(sample->get("PRstr_TransactionId"), Value("second"));
  sample->let("print_level", 1, "7");
  EXPECT_EQ(sample->call("PRINT_LEVEL", 1.0), Value(std::int16_t{7}));
  sample->set("PRobj_Peer", Ref<Object>());
  EXPECT_EQ(sample->class_info()->find("PRstr_TransactionI"), -1);
  EXPECT_EQ(sample->class_info()->find(""), -1);
  for (std::size_t i = 0; i < kSampleMembers.size(); ++i) {
    EXPECT_EQ(sample->class_info()->find(kSampleMembers[i].name), static_cast<int>(i));
  }
}

TEST(ClassObject, RefusesWrongCallsAndNamesTheSource) {
  const auto sample = make<Sample>();
  EXPECT_EQ(raised_by([&] { sample->get("Missing"); }),
            (test::Raised{438, "SB_Sample", "Object doesn't support this property or method: Missing"}));
  EXPECT_EQ(error_number([&] { sample->let("PRstr_Fixed", "x"); }), 438);
  EXPECT_EQ(error_number([&] { sample->set("PRstr_TransactionID", Ref<Object>()); }), 13);
  EXPECT_EQ(error_number([&] { sample->get("PRstr_Fixed", 1); }), 450);
  EXPECT_EQ(error_number([&] { sample->get("PRint_Level"); }), 450);
  EXPECT_EQ(error_number([&] { sample->let("PRint_Level", 1); }), 450);
  EXPECT_EQ(error_number([&] { sample->let("PRstr_TransactionID"); }), 450);
  EXPECT_EQ(error_number([&] { sample->call("Count", 1); }), 450);
  EXPECT_EQ(error_number([&] { sample->call("Count", 1, "", 1, 1); }), 450);
  EXPECT_EQ(raised_by([&] { sample->get("print_level", 99999); }).source, "SB_Sample.PRint_Level");
  EXPECT_EQ(raised_by([&] { sample->call("Count", 0, ""); }).source, "SB_Sample.Count");
  // Raised on purpose without a source: it stays without one.
  EXPECT_EQ(raised_by([&] { sample->call("Count", 1, ""); }), (test::Raised{1, "", "Empty source"}));
}

TEST(ClassObject, GivesByReferenceArgumentsBack) {
  struct Case {
    Value width;
    Value left;
  };
  const Case cases[] = {
      {std::int16_t{8}, std::int16_t{7}}, {8, 7}, {8.0, 7.0}, {7.6, 7.0}, {"8", "7"}, {1, 0} /* then raises */,
  };
  const auto sample = make<Sample>();
  for (const Case& c : cases) {
    std::array<Value, 2> arguments{c.width, Value("text")};
    (void)raised_by([&] { sample->invoke("Count", Access::Call, arguments); });
    EXPECT_EQ(arguments[0], c.left);
    EXPECT_EQ(arguments[1], Value("text!"));
  }
  // A number where a text is wanted becomes the changed text.
  std::array<Value, 3> arguments{Value(8), Value(12), Value(0)};
  EXPECT_EQ(sample->invoke("Count", Access::Call, arguments), Value(8));
  EXPECT_EQ(arguments[0], Value(8));
  EXPECT_EQ(arguments[1], Value("12!"));
}

TEST(ClassObject, DescribesItself) {
  const MemberInfo& member = Sample::info().members()[4];
  EXPECT_TRUE(member.is_method());
  EXPECT_EQ(member.type, ValueType::Long);
  ASSERT_EQ(member.parameters.size(), 3U);
  EXPECT_EQ(member.parameters[0].name, "width");
  EXPECT_TRUE(member.parameters[0].by_reference && member.parameters[1].by_reference);
  EXPECT_FALSE(member.parameters[2].by_reference);
  EXPECT_EQ(member.required_parameters(), 2U);
  EXPECT_TRUE(Sample::info().members()[2].sets && !Sample::info().members()[2].lets);
}

}  // namespace
}  // namespace vorlan
