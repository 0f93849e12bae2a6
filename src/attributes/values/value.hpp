// The engine of all value classes, driven by rows.
#pragma once

#include <string>
#include <string_view>

#include "attributes/values/record.hpp"
#include "attributes/values/value_class.hpp"

namespace vorlan {

/// One value record of a complex attribute. To build: set fields, build(). To take apart: receive(), get fields.
/// Errors are number 1 with the class's own texts, and leave the object as it was.
class AttributeValue : public ClassObject {
 public:
  explicit AttributeValue(const ValueClass& value_class);

  [[nodiscard]] const ValueClass& value_class() const noexcept { return class_; }

  /// Takes a received value record (PRstr_ValString). Error 1 if it ends before its last field.
  void receive(std::string_view bits);
  /// The value record to be sent, in whole octets; or its ValueID alone.
  [[nodiscard]] std::string build(bool id_alone = false) const;
  /// The length in bits of the value record that begins at a position, counted from 1, of a bit string. Error 1 if the
  /// bit string ends before the record does, error 5 for a position below 1.
  [[nodiscard]] std::size_t length_at(std::string_view bits, std::size_t position) const;

  [[nodiscard]] const Record& record() const noexcept { return record_; }
  [[nodiscard]] Record& record() noexcept { return record_; }

 protected:
  Value invoke_member(int member, Access access, std::span<Value> arguments) override;

 private:
  Value invoke_field(const ValueClass::Member& member, bool assigns, std::span<Value> arguments);
  void set_fields(std::span<Value> arguments);

  const ValueClass& class_;
  Record record_;
};

}  // namespace vorlan
