// What all attribute objects have in common, whatever their kind.
#pragma once

#include <string_view>
#include <vector>

#include "automation/class_info.hpp"
#include "codec/field_tree.hpp"

namespace vorlan {

/// A simple or complex configuration attribute.
class Attribute : public ClassObject {
 public:
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
