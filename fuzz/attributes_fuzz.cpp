// Calls whatever members of attributes, their values and the messages that carry them, with whatever arguments.
// Whatever comes: a value or one automation error, which leaves the object as it was.
#include <algorithm>
#include <cstdlib>
#include <span>

#include "attributes/attribute.hpp"
#include "attributes/negotiation/dissection.hpp"
#include "attributes/values/value.hpp"
#include "platform/platform.hpp"
#include "read_everything.hpp"
#include "server/classes.hpp"
#include "simulator/message_object.hpp"

namespace {

using namespace vorlan;

/// The octets that are left; zeros behind their end.
class Input {
 public:
  explicit Input(std::span<const std::uint8_t> octets) : left_(octets) {}

  [[nodiscard]] bool empty() const noexcept { return left_.empty(); }
  std::uint8_t octet() {
    if (left_.empty()) return 0;
    const std::uint8_t octet = left_.front();
    left_ = left_.subspan(1);
    return octet;
  }
  std::span<const std::uint8_t> octets(std::size_t count) {
    const auto taken = left_.first(std::min(count, left_.size()));
    left_ = left_.subspan(taken.size());
    return taken;
  }
  /// A bit string of any width, its first octet says how long; now and then with a character that is no bit.
  std::string bits() {
    constexpr std::uint8_t kOctets = 160;
    const std::uint8_t size = octet();
    const std::size_t width = size < kOctets ? size : std::size_t{8} * (size - kOctets);
    std::string text;
    for (const std::uint8_t value : octets((width + 7) / 8)) {
      for (int bit = 7; bit >= 0; --bit) text += (value >> bit & 1) != 0 ? '1' : '0';
    }
    text.resize(std::min(text.size(), width));
    if (size == kOctets) text.assign(1, static_cast<char>(octet() & 0x7FU));
    return text;
  }
  Value argument(ValueType type) {
    switch (type) {
      case ValueType::String: return bits();
      case ValueType::Boolean: return (octet() & 1U) != 0;
      case ValueType::Object: {
        const auto message = make<simulator::MessageObject>(octets(std::size_t{16} * octet()));
        return Ref<Object>(message);
      }
      default: {
        const std::uint8_t number = octet();
        return static_cast<std::int16_t>(number < 0xF0 ? number % 32 - 1 : (number << 8U | octet()) - 0xF000);
      }
    }
  }

 private:
  std::span<const std::uint8_t> left_;
};

/// What the properties without an index say.
std::string state_of(Object& object) {
  std::string state;
  for (const MemberInfo& member : object.class_info()->members()) {
    if (!member.gets || !member.parameters.empty()) continue;
    fuzz::expect_value_or_error([&] { state += object.get(member.name).to_text(); });
    state += '|';
  }
  return state;
}

void call_a_member(Object& object, Input& input) {
  const auto members = object.class_info()->members();
  const MemberInfo& member = members[input.octet() % members.size()];
  const bool assigns = member.sets || (member.lets && (input.octet() & 1U) != 0);
  std::vector<Value> arguments;
  for (const ParameterInfo& parameter : member.parameters) {
    if (parameter.optional && (input.octet() & 3U) == 0) break;
    arguments.push_back(input.argument(parameter.type));
  }
  if (assigns) {
    arguments.resize(std::min(arguments.size(), member.required_parameters()));
    arguments.push_back(input.argument(member.type));
  }
  const Access access = member.calls ? Access::Call : !assigns ? Access::Get : member.sets ? Access::Set : Access::Let;
  const std::string before = state_of(object);
  bool raised = true;
  fuzz::expect_value_or_error([&] {
    object.invoke(member.name, access, arguments);
    raised = false;
  });
  if (raised && state_of(object) != before) std::abort();
}

struct Classes {
  Classes() : registry(class_tables()), catalogue(registry) {
    for (const Registry::Class& cls : registry.classes()) {
      const Ref<Object> object = cls.entry->create(platform);
      const Object* plain = object.get();
      const bool wanted = dynamic_cast<const Attribute*>(plain) != nullptr ||
                          dynamic_cast<const AttributeValue*>(plain) != nullptr ||
                          dynamic_cast<const NegotiationMessage*>(plain) != nullptr;
      if (wanted) entries.push_back(cls.entry);
    }
  }
  Platform platform;
  Registry registry;
  AttributeCatalogue catalogue;
  std::vector<const ClassEntry*> entries;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Classes classes;
  if (size < 2) return 0;
  Input input(std::span(data, size));
  const std::size_t cls = static_cast<std::size_t>(input.octet()) << 8U | input.octet();
  const Ref<Object> object = classes.entries[cls % classes.entries.size()]->create(classes.platform);
  const int most_calls = input.octet() % 32;
  for (int i = 0; i < most_calls && !input.empty(); ++i) call_a_member(*object, input);
  const std::string bits = input.bits();
  fuzz::read_everything(*object, bits);
  if (const auto* attribute = dynamic_cast<const Attribute*>(object.get())) {
    static_cast<void>(attribute->dissect(bits, {0, static_cast<std::uint32_t>(bits.size())}));
  } else if (const auto* message = dynamic_cast<const NegotiationMessage*>(object.get())) {
    static_cast<void>(dissect(message->message_class(), bits, classes.catalogue, most_calls));
  }
  return 0;
}
