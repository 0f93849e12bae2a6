// The engine of all simple configuration attributes, driven by a row each.
#pragma once

#include <string>
#include <string_view>

#include "attributes/attribute.hpp"
#include "attributes/simple_attribute_class.hpp"

namespace vorlan {

/// One attribute with a single value. To build: set the value (and the AttributeID, where it can be set), build().
/// To take apart: receive() a record, get its parts. Every setter checks the width and raises error 1 with the class's
/// own text otherwise, and leaves the object as it was.
class SimpleAttribute : public Attribute {
 public:
  explicit SimpleAttribute(const SimpleAttributeClass& attribute_class);

  [[nodiscard]] const SimpleAttributeClass& attribute_class() const noexcept { return class_; }

  /// PRstr_Attribute: takes a received record. From now on, and for good, length(), id() and value() read from it, by
  /// position alone: what the record is too short for is cut off. build() never does.
  void receive(std::string_view record) override;
  [[nodiscard]] bool received() const noexcept { return received_; }
  [[nodiscard]] const std::string& record() const noexcept { return record_; }

  // Views hold until the object changes. The flag counts only where the class has two AttributeIDs.
  [[nodiscard]] std::string_view length() const noexcept;
  [[nodiscard]] std::string_view id(bool sixteen_bits = false) const noexcept;
  [[nodiscard]] std::string_view value() const noexcept;

  void let_length(std::string_view bits);
  /// Of a class whose AttributeID can be set. Where the value by default follows the flow, it replaces the value.
  void let_id(std::string_view bits);
  void let_value(std::string_view bits);

  /// Length, AttributeID and value, as set; the empty text for a value of variable width that is empty.
  [[nodiscard]] std::string build(bool sixteen_bits = false) const;

  [[nodiscard]] std::string_view stored_id() const noexcept override { return id_.view(); }
  [[nodiscard]] bool has_id(std::string_view id) const noexcept override;
  [[nodiscard]] std::vector<DissectedField> dissect(std::string_view whole, Extent record) const override;

 protected:
  Value invoke_member(int member, Access access, std::span<Value> arguments) override;

 private:
  [[nodiscard]] std::string_view get(AttributeMember member, std::span<const Value> arguments) const;
  void let(AttributeMember member, std::string_view bits);
  [[nodiscard]] std::string_view id_to_build(bool sixteen_bits) const noexcept;
  [[nodiscard]] std::string_view slice(std::size_t from, std::size_t bits) const noexcept;
  [[noreturn]] void refuse(AttributeMember member) const;

  const SimpleAttributeClass& class_;
  ShortBits length_;
  ShortBits id_;
  ShortBits value_;
  bool received_ = false;
  std::string record_;
};

}  // namespace vorlan
