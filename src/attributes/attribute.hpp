// What all attribute objects have in common, whatever their kind.
#pragma once

#include <string_view>
#include <vector>

#include "automation/class_info.hpp"
#include "codec/field_tree.hpp"

namespace vorlan {

/// "MaxMACFlows" of SB_Mac_AttrMaxMACFlows.
constexpr std::string_view attribute_name(std::string_view class_name) noexcept {
  constexpr std::string_view kFront = "SB_Mac_Attr";  // whatever the layer
  return class_name.substr(kFront.size());
}

/// What Length says of so many bits behind it: whole octets, half of one to the even number, as numbers become
/// integers.
constexpr std::size_t octets_behind_length(std::size_t bits) noexcept { return (bits + 3 + bits / 8 % 2) / 8; }

/// A simple or complex configuration attribute.
class Attribute : public ClassObject {
 public:
  static constexpr std::size_t kLengthBits = 8;

  /// PRstr_Attribute: takes a received record, Length and AttributeID included. Errors are number 1 with the class's
  /// own texts, and leave the object as it was.
  virtual void receive(std::string_view record) = 0;
  /// The AttributeID that the object builds with; received records do not change it.
  [[nodiscard]] virtual std::string_view stored_id() const noexcept = 0;
  /// Whether the class takes a record with this AttributeID. Of per-flow and per-reservation attributes only the high
  /// octet counts.
  [[nodiscard]] virtual bool has_id(std::string_view id) const noexcept = 0;
  /// Whether a record holds value records, each with a ValueID.
  [[nodiscard]] virtual bool has_value_records() const noexcept { return false; }
  /// Takes a record apart for people; the object does not change. `first` is the place of the record in `whole`.
  [[nodiscard]] virtual std::vector<DissectedField> dissect(std::string_view whole, Extent record) const = 0;

 protected:
  using ClassObject::ClassObject;
};

}  // namespace vorlan
