// The C++ face of a complex attribute class: a type of its own.
#pragma once

#include "attributes/complex/complex_attribute.hpp"
#include "attributes/values/value_of.hpp"

namespace vorlan {

/// The class made from a row:
///   SB_Mac_AttrDRCLock a;
///   a.build(v.build());
/// In classes with fields: a.let<"PRstr_DRCValue">("00000100"). An unknown name does not compile.
template <const ComplexAttributeSpec& Spec>
class ComplexAttributeOf : public ComplexAttribute {
 public:
  ComplexAttributeOf() : ComplexAttribute(shared_class()) {}
  // A local or a member object keeps the one reference that it starts with, and goes without releasing it.
  ~ComplexAttributeOf() override = default;

  using Object::get;
  using Object::let;

  template <MemberName Name>
  void let(std::string_view bits) {
    fields().let(index<Name>(), {}, bits);
  }
  template <MemberName Name>
  [[nodiscard]] std::string_view get() const {
    return fields().get(index<Name>());
  }

  static const ComplexAttributeClass& shared_class() {
    static_assert(fault(Spec).empty(), "a fault in the attribute's row; the test of the attribute tables prints it");
    static const ComplexAttributeClass kClass{Spec};
    return kClass;
  }
  static const ClassInfo& info() { return shared_class().info(); }
  static Ref<Object> create(Platform&) { return make<ComplexAttributeOf>(); }

 private:
  template <MemberName Name>
  static constexpr std::size_t index() {
    constexpr std::size_t kIndex = find_field(Spec.fields, Name.view());
    static_assert(kIndex < Spec.fields.size(), "the attribute has no such field");
    return kIndex;
  }
};

template <const ComplexAttributeSpec& Spec>
constexpr ClassEntry complex_attribute_entry() {
  return {Spec.name, &ComplexAttributeOf<Spec>::info, &ComplexAttributeOf<Spec>::create};
}

}  // namespace vorlan
