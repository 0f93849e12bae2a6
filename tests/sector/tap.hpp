// A tap on the wire to a test set: records what the library asks of it, checks that against the table of members, and
// lets calls go wrong.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "automation/class_info.hpp"
#include "automation/error.hpp"
#include "common/bits.hpp"
#include "common/octets.hpp"
#include "sector/test_set_members.hpp"
#include "simulator/message_object.hpp"

namespace vorlan::test {

using Calls = std::vector<std::string>;

/// How the call whose turn it is goes wrong.
enum class Trouble { None, Raises, LacksMember, WrongType, ReturnsNothing };

/// What the taps of one test set share.
struct Wire {
  Calls calls;  ///< "Item(FC_SECTOR 0)", "Level", "Level=-61"; messages, objects or bit strings, as "[00 2A]"
  std::vector<const TestSetMember*> members;  ///< of each call; null where a property was let
  Trouble trouble = Trouble::None;
  std::size_t at_call = 0;
  Error failure{1000, "TestSet", "broken"};
  std::map<std::string, Value> answers;  ///< by call, instead of what the test set answers

  /// The calls since the last time, all or those that begin so.
  Calls take_calls(std::string_view front = "") {
    members.clear();
    std::erase_if(calls, [&](const std::string& call) { return !call.starts_with(front); });
    return std::exchange(calls, {});
  }
};

/// Stands before an object of the simulated test set, and before every object that this one returns.
class Tap : public Object {
 public:
  Tap(Wire& wire, Ref<Object> tapped) : wire_(&wire), tapped_(std::move(tapped)) {}

  Value invoke(std::string_view member, Access access, std::span<Value> arguments) override {
    const TestSetMember& row = checked_row(member, access, arguments);
    const std::string call = text_of_call(row, access, arguments);
    wire_->calls.push_back(call);
    wire_->members.push_back(access == Access::Let ? nullptr : &row);
    const Trouble trouble = wire_->calls.size() == wire_->at_call + 1 ? wire_->trouble : Trouble::None;
    if (trouble == Trouble::Raises) throw Error(wire_->failure);
    if (trouble == Trouble::LacksMember) throw Error(ErrorNumber::MemberNotFound, "TestSet", member);
    if (const auto other = wire_->answers.find(call); other != wire_->answers.end()) return other->second;

    std::vector<Value> passed(arguments.begin(), arguments.end());
    for (Value& argument : passed) {
      if (const Tap* tap = as<Tap>(argument)) argument = tap->tapped_;
    }
    Value answer = tapped_->invoke(member, access, passed);
    if (trouble == Trouble::WrongType) return "junk";
    if (trouble == Trouble::ReturnsNothing) return Ref<Object>();
    const auto* object = answer.as<Ref<Object>>();
    if (object == nullptr || !*object || as<simulator::MessageObject>(answer) != nullptr) return answer;
    return Ref<Object>(make<Tap>(*wire_, *object));
  }

 private:
  template <class T>
  static const T* as(const Value& value) {
    const auto* object = value.as<Ref<Object>>();
    return object == nullptr ? nullptr : dynamic_cast<const T*>(object->get());
  }

  static const TestSetMember& checked_row(std::string_view member, Access access, std::span<const Value> arguments) {
    const auto* const row = std::find_if(std::begin(kTestSetMembers), std::end(kTestSetMembers),
                                         [&](const TestSetMember& one) { return one.name == member; });
    if (row == std::end(kTestSetMembers)) throw Error(ErrorNumber::MemberNotFound, "TestSet", member);
    const bool lets = access == Access::Let;
    const Use use = lets ? Use::Let : access == Access::Call ? Use::Call : Use::Get;
    bool good = (row->use == use || (row->use == Use::GetAndLet && use != Use::Call)) &&
                arguments.size() == row->arguments.size() + (lets ? 1U : 0U) &&
                (!lets || arguments.back().is(row->type));
    for (std::size_t i = 0; good && i < row->arguments.size(); ++i) {
      const TestSetArgument& wanted = row->arguments[i];
      good = (wanted.type == ValueType::Any || arguments[i].is(wanted.type)) &&
             (!wanted.constant || arguments[i] == Value(*wanted.constant) ||
              (wanted.or_constant && arguments[i] == Value(*wanted.or_constant)));
    }
    if (!good) throw Error(999, "TestSet", std::string(member) + " is called otherwise than the table of members says");
    return *row;
  }

  static std::string text_of_argument(const Value& value) {
    if (const auto* message = as<simulator::MessageObject>(value)) return "[" + message->hex() + "]";
    if (const Tap* tap = as<Tap>(value)) return "<" + tap->tapped_->get("Key").to_text() + ">";
    if (value.is(ValueType::Object)) return "Nothing";
    if (value.is_empty()) return "Empty";
    const std::string text = value.to_text();
    const bool message = value.is(ValueType::String) && text.size() >= 8 && text.find_first_not_of("01") > text.size();
    if (!message) return text;
    simulator::Octets octets(octets_for(text.size()));
    pack_bits(text, octets.data());
    return "[" + octets_text(octets) + "]";
  }
  static std::string text_of_call(const TestSetMember& row, Access access, std::span<const Value> arguments) {
    std::string texts;
    for (const Value& value : arguments) texts += (texts.empty() ? "" : "|") + text_of_argument(value);
    const std::string name(row.name);
    return access == Access::Let ? name + "=" + texts : row.use == Use::Call ? name + "(" + texts + ")" : name;
  }

  Wire* wire_;
  Ref<Object> tapped_;
};

}  // namespace vorlan::test
