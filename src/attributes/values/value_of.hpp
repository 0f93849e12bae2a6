// The C++ face of a value class: a type of its own, with its members checked when it is compiled.
#pragma once

#include "attributes/values/value.hpp"
#include "automation/registry.hpp"
#include "codec/member_name.hpp"

namespace vorlan {

/// The class made from a row:
///   SB_Mac_ValDRCLock v;
///   v.let<"PRstr_DRCLockLength">("01");
///   v.build();
/// Elements of lists and tables are reached by the name of the list and their indices. An unknown name does not
/// compile. Views returned by get() hold until the object changes.
template <const ValueSpec& Spec>
class ValueOf : public AttributeValue {
 public:
  ValueOf() : AttributeValue(shared_class()) {}
  // A local or a member object keeps the one reference that it starts with, and goes without releasing it.
  ~ValueOf() override = default;

  using Object::get;
  using Object::let;

  template <MemberName Name>
  void let(std::string_view bits) {
    record().let(index<Name>(), {}, bits);
  }
  template <MemberName Name>
  void let(At at, std::string_view bits) {
    record().let(index<Name>(), at, bits);
  }
  template <MemberName Name>
  [[nodiscard]] std::string_view get(At at = {}) const {
    return record().get(index<Name>(), at);
  }

  static const ValueClass& shared_class() {
    static_assert(fault(Spec).empty(), "a fault in the value's rows; the test of the value tables prints it");
    static const ValueClass kClass{Spec};
    return kClass;
  }
  static const ClassInfo& info() { return shared_class().info(); }
  static Ref<Object> create(Platform&) { return make<ValueOf>(); }

 private:
  template <MemberName Name>
  static constexpr std::size_t index() {
    constexpr std::size_t kIndex = find_field(Spec.fields, Name.view());
    static_assert(kIndex < Spec.fields.size(), "the value has no such field");
    return kIndex;
  }
};

template <const ValueSpec& Spec>
constexpr ClassEntry value_entry() {
  return {Spec.name, &ValueOf<Spec>::info, &ValueOf<Spec>::create};
}

}  // namespace vorlan
