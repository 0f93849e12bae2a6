// The engine of all complex configuration attributes, driven by a row each.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "attributes/attribute.hpp"
#include "attributes/complex/complex_attribute_spec.hpp"
#include "attributes/short_bits.hpp"

namespace vorlan {

/// A complex attribute's row, made ready for use. Made once per class, on first use.
class ComplexAttributeClass {
 public:
  explicit ComplexAttributeClass(const ComplexAttributeSpec& spec);
  ComplexAttributeClass(const ComplexAttributeClass&) = delete;
  ComplexAttributeClass& operator=(const ComplexAttributeClass&) = delete;

  enum class Action : std::uint8_t { Attribute, Count, Length, ValueObject, AttribId, Field, Build, Search };
  struct Member {
    Action action;
    std::uint16_t field = 0;
  };

  [[nodiscard]] const ComplexAttributeSpec& spec() const noexcept { return spec_; }
  [[nodiscard]] const RecordClass& fields() const noexcept { return fields_; }
  [[nodiscard]] const ClassInfo& info() const noexcept { return info_; }
  [[nodiscard]] const Member& member(std::size_t index) const noexcept { return members_[index]; }
  /// AttributeID and Length of a new object.
  [[nodiscard]] const std::string& id() const noexcept { return id_; }
  [[nodiscard]] const std::string& length() const noexcept { return length_; }
  [[nodiscard]] std::string source(std::string_view member) const;
  [[nodiscard]] std::string_view count_member() const noexcept { return names_.front(); }
  [[nodiscard]] Error beyond_count() const;

 private:
  [[nodiscard]] std::vector<MemberInfo> list_members();
  [[nodiscard]] std::vector<FieldInfo> list_fields() const;
  [[nodiscard]] std::vector<ErrorInfo> list_errors() const;

  const ComplexAttributeSpec& spec_;
  RecordClass fields_;
  std::string id_;
  std::string length_;
  std::vector<Member> members_;
  std::deque<std::string> names_;  ///< of the members that are named after the class: count, value object
  ClassInfo info_;
};

/// One attribute. To build: make value records, build() with them one after another in the order of preference. To take
/// apart: receive() a record, then value(i) for each of count(). Errors are number 1 with the class's own texts, and
/// leave the object as it was.
class ComplexAttribute : public Attribute {
 public:
  explicit ComplexAttribute(const ComplexAttributeClass& attribute_class);

  [[nodiscard]] const ComplexAttributeClass& attribute_class() const noexcept { return class_; }

  /// Takes a received record, Length and AttributeID included. Its value part must be a whole number of value records.
  void receive(std::string_view record) override;
  [[nodiscard]] bool received() const noexcept { return received_; }
  [[nodiscard]] const std::string& record() const noexcept { return record_; }
  /// The number of received value records. Error 1 before a record is received.
  [[nodiscard]] std::size_t count() const;
  /// The value object, filled with the i-th received value record; as it stands before a record is received. There is
  /// one object, whatever the index. Error 9 beyond the count.
  [[nodiscard]] AttributeValue& value(std::size_t index);

  /// Of the received record once there is one, else as stored. Views hold until the object changes.
  [[nodiscard]] std::string_view length() const noexcept;
  [[nodiscard]] std::string_view id() const noexcept;
  void let_length(std::string_view bits);  ///< 8 bits; only kept, build() counts for itself
  void let_id(std::string_view bits);      ///< 16 bits

  /// Length, the stored AttributeID, and the value records; the fields as stored in classes that have fields. Error 1
  /// of "SB_GeneralFunctions.LongToBin" if more than 255 octets stand behind Length.
  [[nodiscard]] std::string build(std::string_view value_records = {}) const;

  [[nodiscard]] std::string_view stored_id() const noexcept override { return id_.view(); }
  [[nodiscard]] bool has_id(std::string_view id) const noexcept override;
  [[nodiscard]] bool has_value_records() const noexcept override { return class_.spec().form != AttributeForm::Fields; }
  [[nodiscard]] std::vector<DissectedField> dissect(std::string_view whole, Extent record) const override;

  [[nodiscard]] const Record& fields() const noexcept { return fields_; }
  [[nodiscard]] Record& fields() noexcept { return fields_; }

 protected:
  Value invoke_member(int member, Access access, std::span<Value> arguments) override;

 private:
  [[nodiscard]] std::string_view values() const noexcept;

  const ComplexAttributeClass& class_;
  std::string length_;
  ShortBits id_;
  bool received_ = false;
  std::string record_;
  std::vector<std::size_t> lengths_;  ///< of the received value records
  Ref<AttributeValue> value_;
  Record fields_;
};

}  // namespace vorlan
