// A test set that records every call and checks it against the table of members: unknown members, numbers of arguments,
// types and constants that the table does not have are errors.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "automation/class_info.hpp"
#include "automation/error.hpp"
#include "sector/test_set_members.hpp"
#include "simulator/message_object.hpp"

namespace vorlan::test {

/// How the call whose turn it is goes wrong.
enum class Trouble { None, Raises, LacksMember, WrongType, ReturnsNothing };

/// What the objects of one test set share.
struct Trace {
  std::vector<std::string> calls;
  Trouble trouble = Trouble::None;
  std::size_t at_call = 0;
  /// The member called; null where a property was let.
  std::vector<const TestSetMember*> members;
};

class Guest : public Object {
 public:
  using Answer = std::function<Value(std::span<Value>)>;

  Guest(Trace& trace, TestSetObject kind, std::string given) : name(std::move(given)), trace_(&trace), kind_(kind) {}

  Value invoke(std::string_view member, Access access, std::span<Value> arguments) override {
    const TestSetMember& row = checked_row(member, access, arguments);
    const bool lets = access == Access::Let;
    std::string entry = name + "." + std::string(member);
    if (!lets && row.use == Use::Call) entry += "(" + texts(arguments) + ")";
    if (lets) entry += "=" + texts(arguments);
    trace_->calls.push_back(entry);
    trace_->members.push_back(lets ? nullptr : &row);
    if (trace_->trouble != Trouble::None && trace_->calls.size() == trace_->at_call + 1) {
      switch (trace_->trouble) {
        case Trouble::Raises: throw Error(1000, "TestSet", "broken");
        case Trouble::LacksMember: throw Error(ErrorNumber::MemberNotFound, "TestSet", member);
        case Trouble::WrongType: return "junk";
        default: return Ref<Object>();
      }
    }
    if (lets) return {};
    const auto found = answers.find(std::string(member));
    return found == answers.end() ? Value() : found->second(arguments);
  }

  void answer(const std::string& member, Value value) {
    answers[member] = [value](std::span<Value>) { return value; };
  }

  std::string name;
  std::map<std::string, Answer> answers;

 private:
  const TestSetMember& checked_row(std::string_view member, Access access, std::span<Value> arguments) const {
    for (const TestSetMember& row : kTestSetMembers) {
      if (row.object != kind_ || row.name != member) continue;
      const auto fail = [&](std::string_view why) { throw Error(999, name, std::string(member).append(why)); };
      const bool lets = access == Access::Let;
      const bool allowed = lets                     ? row.use == Use::Let || row.use == Use::GetAndLet
                           : access == Access::Call ? row.use == Use::Call
                                                    : row.use == Use::Get || row.use == Use::GetAndLet;
      if (!allowed) fail(" is asked for in the wrong way");
      if (arguments.size() != row.arguments.size() + (lets ? 1U : 0U)) fail(": number of arguments");
      if (lets && !arguments.back().is(row.type)) fail(": type of the value");
      for (std::size_t i = 0; i < row.arguments.size(); ++i) {
        const TestSetArgument& argument = row.arguments[i];
        if (argument.type != ValueType::Any && !arguments[i].is(argument.type)) fail(": type of an argument");
        if (argument.constant && arguments[i] != Value(*argument.constant) &&
            !(argument.or_constant && arguments[i] == Value(*argument.or_constant))) {
          fail(": another constant");
        }
      }
      return row;
    }
    throw Error(ErrorNumber::MemberNotFound, name, member);
  }

  static std::string texts(std::span<const Value> values) {
    std::string text;
    for (const Value& value : values) text += (text.empty() ? "" : "|") + text_of_value(value);
    return text;
  }
  static std::string text_of_value(const Value& value) {
    if (value.is_empty()) return "Empty";
    if (!value.is(ValueType::Object)) return value.to_text();
    const Ref<Object> object = value.to_object();
    if (!object) return "Nothing";
    if (const auto* guest = dynamic_cast<const Guest*>(object.get())) return "<" + guest->name + ">";
    const auto* message = dynamic_cast<const simulator::MessageObject*>(object.get());
    return message != nullptr ? "[" + message->hex() + "]" : "object";
  }

  Trace* trace_;
  TestSetObject kind_;
};

/// Its objects, with answers of a test set on which everything succeeds.
struct RecordingTestSet {
  Ref<Guest> guest(TestSetObject kind, const std::string& name) { return make<Guest>(trace, kind, name); }
  /// A collection makes what it is asked for.
  Ref<Guest> collection(TestSetObject items, const std::string& name, TestSetObject kind) {
    Ref<Guest> made = guest(kind, name);
    const auto item = [this, items](std::span<Value> key) {
      return Value(Ref<Object>(guest(items, key[0].to_text())));
    };
    made->answers["Item"] = made->answers["Add"] = item;
    return made;
  }

  RecordingTestSet() {
    signalling->answers["AddFilter"] = [](std::span<Value> a) {
      return Value("filter " + a[0].to_text() + "/" + a[3].to_text());
    };
    signalling->answers["WaitForMessage"] = [this](std::span<Value> a) {
      auto& waiting = incoming[a[0].to_text()];
      if (waiting.empty()) return Value(false);
      fetched = waiting.front();
      waiting.pop_front();
      return Value(true);
    };
    signalling->answers["FetchMessage"] = [this](std::span<Value>) { return Value(fetched); };
    signalling->answers["SendAndWait"] = [this](std::span<Value> a) { return Value(silent_to != a[0].to_text()); };
    signalling->answers["CreateMessageObject"] = [](std::span<Value>) {
      return Value(Ref<Object>(make<simulator::MessageObject>()));
    };
    signalling->answer("Messages", Ref<Object>(messages));
    reverse->answer("Acquire", true);
    reverse->answer("Acquired", true);
    controller->answer("FTAPTestPktTxAutoOn", true);
    emulator->answer("Velocity", Ref<Object>(velocity));
    emulator->answer("Paths", Ref<Object>(paths));
    messages->answers["Item"] = [this](std::span<Value> label) {
      return Value(Ref<Object>(answers[label[0].to_text()]));
    };
  }

  /// The calls since the last time.
  std::vector<std::string> take_calls() {
    trace.members.clear();
    return std::exchange(trace.calls, {});
  }

  Trace trace;
  Ref<Guest> test_set = guest(TestSetObject::TestSet, "TestSet");
  Ref<Guest> report = guest(TestSetObject::TestReport, "Report");
  Ref<Guest> forward = collection(TestSetObject::ForwardChannel, "FCH", TestSetObject::ChannelCollection);
  Ref<Guest> access = collection(TestSetObject::AccessChannel, "ACH", TestSetObject::ChannelCollection);
  Ref<Guest> access1 = collection(TestSetObject::AccessChannel, "ACH1", TestSetObject::ChannelCollection);
  Ref<Guest> access2 = collection(TestSetObject::AccessChannel, "ACH2", TestSetObject::ChannelCollection);
  Ref<Guest> reverse = guest(TestSetObject::ReverseTrafficChannel, "RTC");
  Ref<Guest> signalling = guest(TestSetObject::Signalling, "Sig");
  Ref<Guest> messages = guest(TestSetObject::MessageCollection, "Messages");
  Ref<Guest> controller = guest(TestSetObject::ProtocolController, "Controller");
  Ref<Guest> emulator = guest(TestSetObject::RadioChannelEmulator, "Emulator");
  Ref<Guest> velocity = guest(TestSetObject::FadingVelocity, "Velocity");
  Ref<Guest> paths = collection(TestSetObject::FadingPath, "Paths", TestSetObject::FadingPaths);

  std::map<std::string, std::deque<std::string>> incoming;  ///< bits by the label that is waited for
  std::string fetched;
  std::string silent_to;  ///< the label that gets no answer
  std::map<std::string, Ref<simulator::MessageObject>> answers;
};

}  // namespace vorlan::test
