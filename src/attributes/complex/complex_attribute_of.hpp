// The C++ face of a complex attribute class: a type of its own.
#pragma once

#include "attributes/attribute_table.hpp"
#include "attributes/complex/complex_attribute.hpp"
#include "attributes/values/value_of.hpp"

namespace vorlan {

/// The class made from a row of a table; each has a name beside its table:
///   SB_Mac_AttrDRCLock a;
///   a.build(v.build());
/// In classes with fields: a.let<"PRstr_DRCValue">("00000100"). An unknown name does not compile.
template <const auto& Rows, std::size_t kRow>
class ComplexAttributeOf : public ComplexAttribute {
  static_assert(kRow < std::size(Rows), "no row has the name of this class");

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
    static_assert(fault(Rows[kRow]).empty(), "a fault in the attribute's row; the test of the tables prints it");
    static const ComplexAttributeClass kClass{Rows[kRow]};
    return kClass;
  }
  static const ClassInfo& info() { return shared_class().info(); }
  static Ref<Object> create(Platform&) { return make<ComplexAttributeOf>(); }

 private:
  template <MemberName Name>
  static constexpr std::size_t index() {
    constexpr std::size_t kIndex = find_field(Rows[kRow].fields, Name.view());
    static_assert(kIndex < Rows[kRow].fields.size(), "the attribute has no such field");
    return kIndex;
  }
};

/// What a row says of its value records.
template <const ValueSpec& Value>
inline constexpr ValueClassGetter kRecordsOf = &ValueOf<Value>::shared_class;

}  // namespace vorlan
