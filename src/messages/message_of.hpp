// The C++ face of a message class: a type of its own, with its members checked when it is compiled.
#pragma once

#include "automation/registry.hpp"
#include "codec/member_name.hpp"
#include "messages/message.hpp"

namespace vorlan {

/// The class made from a message's rows:
///   SB_Ses_MsgSessionClose m;
///   m.let<"PRstr_MoreInfoLen">("00000001");
/// An unknown name does not compile. A view returned by get() holds until the next call on the object.
template <const MessageSpec& Spec>
class MessageOf : public Message {
 public:
  MessageOf() : Message(shared_class()) {}
  // A local or a member object keeps the one reference that it starts with, and goes without releasing it.
  ~MessageOf() override = default;

  using Object::get;
  using Object::let;

  template <MemberName Name>
  void let(std::string_view value) {
    let_field(index<Name>(), value);
  }
  template <MemberName Name>
  void let(std::size_t element, std::string_view value) {
    let_field(index<Name, true>(), element, value);
  }
  template <MemberName Name>
  [[nodiscard]] std::string_view get() const {
    return get_field(index<Name>());
  }
  template <MemberName Name>
  [[nodiscard]] std::string_view get(std::size_t element) const {
    return get_field(index<Name, true>(), element);
  }

  static const MessageClass& shared_class() {
    static_assert(fault(Spec).empty(), "a fault in the message's rows; the test of the message tables prints it");
    static const MessageClass kClass{Spec};
    return kClass;
  }
  static const ClassInfo& info() { return shared_class().info(); }
  static Ref<Object> create(Platform&) { return make<MessageOf>(); }

 private:
  template <MemberName Name, bool kOfList = false>
  static constexpr std::size_t index() {
    constexpr std::size_t kIndex = find_field(Spec.fields, Name.view());
    static_assert(kIndex < Spec.fields.size(), "the message has no such member");
    static_assert(is_repeated(Spec.fields[kIndex]) == kOfList, "a list takes an index, any other member takes none");
    return kIndex;
  }
};

template <const MessageSpec& Spec>
constexpr ClassEntry message_entry() {
  return {Spec.name, &MessageOf<Spec>::info, &MessageOf<Spec>::create};
}

}  // namespace vorlan
