// The late-bound face of a message: which member does what.
#include "automation/error.hpp"
#include "messages/message.hpp"

namespace vorlan {

Value Message::invoke_member(int member, Access access, std::span<Value> arguments) {
  const MessageClass::Member& action = class_.member(static_cast<std::size_t>(member));
  // What scripts read most, kept apart from the rest to be quick: a field as it was set.
  if (access == Access::Get && action.stored_text != MessageClass::kNone && !received_) {
    return std::string_view(texts_[static_cast<std::size_t>(action.stored_text)]);
  }
  return invoke_action(action, access, arguments);
}

Value Message::invoke_action(const MessageClass::Member& action, Access access, std::span<Value> arguments) {
  switch (action.action) {
    case MessageClass::Action::Field: return invoke_field(action.field, access, arguments);
    case MessageClass::Action::MessageId: return message_id();
    case MessageClass::Action::MessageString: return checked_message_string();
    case MessageClass::Action::ReceivedFlag: return received_;
    case MessageClass::Action::MessageObject: receive(arguments[0].to_object()); return {};
    case MessageClass::Action::Initialize: {
      const bool takes_sector = class_.spec().takes_sector;
      Ref<Object> sector = takes_sector ? arguments[0].to_object() : Ref<Object>();
      const std::size_t next = takes_sector ? 1 : 0;
      initialize(std::move(sector), arguments[next].to_object(),
                 next + 1 < arguments.size() ? arguments[next + 1].to_text() : std::string());
      return {};
    }
    case MessageClass::Action::CreateMessage: return create_message(arguments[0].to_object(), arguments.subspan(1));
  }
  return {};
}

Value Message::invoke_field(std::size_t field, Access access, std::span<Value> arguments) {
  const FieldSpec& spec = *class_.field(field).spec;
  const bool assigns = access == Access::Let || access == Access::Set;
  if (spec.integer) {
    if (!assigns) return static_cast<std::int16_t>(get_field(field) == "1" ? 1 : 0);
    const std::int16_t number = arguments[0].to_integer();
    check_letting(spec);
    if (number != 0 && number != 1) throw Error(ErrorNumber::InvalidCall, {}, kNoSwitch);
    store(field, number == 1 ? "1" : "0");
    layout_known_ = false;
    return {};
  }
  if (!class_.field(field).repeated) {
    if (!assigns) return get_field(field);
    if (const auto* text = arguments[0].as<std::string>()) {
      let_field(field, *text);
    } else {
      let_field(field, arguments[0].to_text());
    }
    return {};
  }
  const std::size_t given = arguments.size() - (assigns ? 1 : 0);
  // A negative index is beyond every count.
  const auto index = given == 0 ? 0 : static_cast<std::size_t>(static_cast<std::int64_t>(arguments[0].to_integer()));
  if (!assigns) return get_field(field, index);
  let_field(field, index, arguments.back().to_text());
  return {};
}

}  // namespace vorlan
