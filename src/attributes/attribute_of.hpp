// The C++ face of a simple attribute class: a type of its own, with its members checked when it is compiled.
#pragma once

#include "attributes/attribute_table.hpp"
#include "attributes/simple_attribute.hpp"
#include "codec/member_name.hpp"

namespace vorlan {

/// A property's name as a template argument.
struct AttributeProperty {
  AttributeMember member;

  template <std::size_t N>
  constexpr AttributeProperty(const char (&name)[N]) : member(find({name, N - 1})) {}  // NOLINT: a name as it is

 private:
  static constexpr AttributeMember find(std::string_view name) {
    for (const auto member :
         {AttributeMember::Attribute, AttributeMember::Length, AttributeMember::AttribId, AttributeMember::AttrValue}) {
      if (member_name(member) == name) return member;
    }
    throw "the attribute has no such property";  // at compile time: what does not find its name does not compile
  }
};

/// The class made from a row of a table; each has a name beside its table:
///   SB_Mac_AttrFRABlow a;
///   a.let<"PRstr_AttrValue">("00000001");
///   a.build();
/// Views returned by get() hold until the object changes.
template <const auto& Rows, std::size_t kRow>
class AttributeOf : public SimpleAttribute {
  static_assert(kRow < std::size(Rows), "no row has the name of this class");

 public:
  AttributeOf() : SimpleAttribute(shared_class()) {}
  // A local or a member object keeps the one reference that it starts with, and goes without releasing it.
  ~AttributeOf() override = default;

  using Object::get;
  using Object::let;

  template <AttributeProperty Property>
  void let(std::string_view bits) {
    static_assert(Property.member != AttributeMember::AttribId || Rows[kRow].id_settable, "the AttributeID is fixed");
    if constexpr (Property.member == AttributeMember::Attribute) receive(bits);
    if constexpr (Property.member == AttributeMember::Length) let_length(bits);
    if constexpr (Property.member == AttributeMember::AttribId) let_id(bits);
    if constexpr (Property.member == AttributeMember::AttrValue) let_value(bits);
  }
  template <AttributeProperty Property>
  [[nodiscard]] std::string_view get() const noexcept {
    if constexpr (Property.member == AttributeMember::Attribute) return record();
    if constexpr (Property.member == AttributeMember::Length) return length();
    if constexpr (Property.member == AttributeMember::AttribId) return id();
    if constexpr (Property.member == AttributeMember::AttrValue) return value();
  }

  static const SimpleAttributeClass& shared_class() {
    static_assert(fault(Rows[kRow]).empty(), "a fault in the attribute's row; the test of the tables prints it");
    static const SimpleAttributeClass kClass{Rows[kRow]};
    return kClass;
  }
  static const ClassInfo& info() { return shared_class().info(); }
  static Ref<Object> create(Platform&) { return make<AttributeOf>(); }
};

}  // namespace vorlan
