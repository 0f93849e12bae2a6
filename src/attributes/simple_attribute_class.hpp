// A simple attribute's row, made ready for use: bit strings made, members listed. Made once per class, on first use.
#pragma once

#include <string>
#include <vector>

#include "attributes/simple_attribute_spec.hpp"
#include "automation/class_info.hpp"

namespace vorlan {

/// The members that every class has, in the order in which ClassInfo lists them.
enum class AttributeMember : std::uint8_t { Attribute, Length, AttribId, AttrValue, BuildAttribute };

inline constexpr std::string_view kAttributeMemberNames[] = {"PRstr_Attribute", "PRstr_Length", "PRstr_AttribId",
                                                             "PRstr_AttrValue", "BuildAttribute"};
constexpr std::string_view member_name(AttributeMember member) noexcept {
  return kAttributeMemberNames[static_cast<std::size_t>(member)];
}

class SimpleAttributeClass {
 public:
  explicit SimpleAttributeClass(const SimpleAttributeSpec& spec);
  SimpleAttributeClass(const SimpleAttributeClass&) = delete;
  SimpleAttributeClass& operator=(const SimpleAttributeClass&) = delete;

  [[nodiscard]] const SimpleAttributeSpec& spec() const noexcept { return spec_; }
  [[nodiscard]] const ClassInfo& info() const noexcept { return info_; }

  // What a new object holds.
  [[nodiscard]] const ShortBits& length() const noexcept { return length_; }
  [[nodiscard]] const ShortBits& id() const noexcept { return id_; }
  [[nodiscard]] const ShortBits& wide_id() const noexcept { return wide_id_; }
  [[nodiscard]] const ShortBits& value() const noexcept { return value_; }

  /// The value that setting this AttributeID brings; null where it brings none.
  [[nodiscard]] const ShortBits* flow_value(std::string_view id) const noexcept;

  /// The text of a refused setter.
  [[nodiscard]] std::string text(AttributeMember member) const;
  /// Source of the same error; empty for classes that name none.
  [[nodiscard]] std::string source(AttributeMember member) const;

 private:
  [[nodiscard]] std::vector<MemberInfo> list_members() const;
  [[nodiscard]] std::vector<FieldInfo> list_fields() const;
  [[nodiscard]] std::vector<ErrorInfo> list_errors() const;

  struct Flow {
    ShortBits id;  ///< empty: every other one
    ShortBits value;
  };

  const SimpleAttributeSpec& spec_;
  std::vector<Flow> flows_;
  ShortBits length_;
  ShortBits id_;
  ShortBits wide_id_;
  ShortBits value_;
  ClassInfo info_;
};

}  // namespace vorlan
