// The C++ face of a negotiation message: a type of its own, with its getters checked when it is compiled.
#pragma once

#include "attributes/negotiation/negotiation_message.hpp"
#include "automation/registry.hpp"
#include "codec/member_name.hpp"

namespace vorlan {

/// The class made from a row:
///   SB_MsgConfigurationRequest m;
///   m.receive(message_object);
///   m.attribute<"PRobj_AttrMaxMACFlows">(0);
template <const NegotiationSpec& Spec>
class NegotiationOf : public NegotiationMessage {
 public:
  NegotiationOf() : NegotiationMessage(shared_class()) {}
  // A local or a member object keeps the one reference that it starts with, and goes without releasing it.
  ~NegotiationOf() override = default;

  using NegotiationMessage::attribute;
  template <MemberName Name>
  Attribute& attribute(std::size_t n, std::string_view attribute_id = {}) {
    constexpr std::size_t kIndex = [] {
      std::size_t i = 0;
      while (i < Spec.getters.size() && Spec.getters[i].name != Name.view()) ++i;
      return i;
    }();
    static_assert(kIndex < Spec.getters.size(), "the message has no such getter");
    return attribute(Spec.getters[kIndex], n, attribute_id);
  }

  static const NegotiationClass& shared_class() {
    static_assert(fault(Spec).empty(), "a fault in the message's rows; the test of negotiation messages prints it");
    static const NegotiationClass kClass{Spec};
    return kClass;
  }
  static const ClassInfo& info() { return shared_class().info(); }
  static Ref<Object> create(Platform&) { return make<NegotiationOf>(); }
};

template <const NegotiationSpec& Spec>
constexpr ClassEntry negotiation_entry() {
  return {Spec.name, &NegotiationOf<Spec>::info, &NegotiationOf<Spec>::create};
}

}  // namespace vorlan
