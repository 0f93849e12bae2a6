#include "attributes/simple_attribute.hpp"

#include <algorithm>

#include "automation/error.hpp"

namespace vorlan {

SimpleAttribute::SimpleAttribute(const SimpleAttributeClass& attribute_class)
    : Attribute(attribute_class.info()),
      class_(attribute_class),
      length_(attribute_class.length()),
      id_(attribute_class.id()),
      value_(attribute_class.value()) {}

void SimpleAttribute::refuse(AttributeMember member) const { raise(class_.source(member), class_.text(member)); }

void SimpleAttribute::receive(std::string_view record) {
  const std::size_t bits = class_.spec().record_bits;
  if (bits != 0 && record.size() != bits) refuse(AttributeMember::Attribute);
  record_.assign(record);
  received_ = true;
}

std::string_view SimpleAttribute::slice(std::size_t from, std::size_t bits) const noexcept {
  return std::string_view(record_).substr(std::min(from, record_.size()), bits);
}

std::string_view SimpleAttribute::id_to_build(bool sixteen_bits) const noexcept {
  return sixteen_bits && class_.spec().wide_id != 0 ? class_.wide_id().view() : id_.view();
}

bool SimpleAttribute::has_id(std::string_view id) const noexcept {
  const std::string_view own = class_.id().view();
  const bool per_flow = class_.spec().id_settable && own.size() == 16;
  const bool is_wide = class_.spec().wide_id != 0 && id == class_.wide_id().view();
  return id == own || is_wide || (per_flow && id.size() == 16 && id.starts_with(own.substr(0, 8)));
}

std::string_view SimpleAttribute::length() const noexcept { return received_ ? slice(0, kLengthBits) : length_.view(); }

std::string_view SimpleAttribute::id(bool sixteen_bits) const noexcept {
  const std::string_view stored = id_to_build(sixteen_bits);
  return received_ ? slice(kLengthBits, stored.size()) : stored;
}

std::string_view SimpleAttribute::value() const noexcept {
  const SimpleAttributeSpec& spec = class_.spec();
  return received_ ? slice(kLengthBits + spec.id_bits, spec.value_bits) : value_.view();
}

void SimpleAttribute::let_length(std::string_view bits) {
  if (bits.size() != kLengthBits) refuse(AttributeMember::Length);
  length_ = ShortBits(bits);
}

void SimpleAttribute::let_id(std::string_view bits) {
  const SimpleAttributeSpec& spec = class_.spec();
  if (bits.size() != spec.id_bits) refuse(AttributeMember::AttribId);
  if (!spec.wrong_high_octet.empty() && bits.substr(0, 8) != class_.id().view().substr(0, 8)) {
    raise(class_.source(AttributeMember::AttribId), spec.wrong_high_octet);
  }
  id_ = ShortBits(bits);
  if (const ShortBits* value = class_.flow_value(bits)) value_ = *value;
}

void SimpleAttribute::let_value(std::string_view bits) {
  const SimpleAttributeSpec& spec = class_.spec();
  if (spec.up_to ? bits.size() > spec.value_bits : bits.size() != spec.value_bits) refuse(AttributeMember::AttrValue);
  value_ = ShortBits(bits);
}

std::string SimpleAttribute::build(bool sixteen_bits) const {
  const std::string_view value = value_.view();
  if (class_.spec().up_to && value.empty()) return {};
  const std::string_view id = id_to_build(sixteen_bits);
  const std::size_t bits = id.size() + value.size();
  const std::size_t octets = octets_behind_length(bits);
  std::string record;
  record.reserve(kLengthBits + bits);
  record.append(ShortBits(static_cast<std::uint32_t>(octets), kLengthBits).view()).append(id).append(value);
  return record;
}

std::string_view SimpleAttribute::get(AttributeMember member, std::span<const Value> arguments) const {
  switch (member) {
    case AttributeMember::Attribute: return record_;
    case AttributeMember::Length: return length();
    case AttributeMember::AttribId: return id(!arguments.empty() && arguments[0].to_boolean());
    default: return value();
  }
}

void SimpleAttribute::let(AttributeMember member, std::string_view bits) {
  switch (member) {
    case AttributeMember::Attribute: return receive(bits);
    case AttributeMember::Length: return let_length(bits);
    case AttributeMember::AttribId: return let_id(bits);
    default: return let_value(bits);
  }
}

Value SimpleAttribute::invoke_member(int member, Access access, std::span<Value> arguments) {
  const auto which = static_cast<AttributeMember>(member);
  if (which == AttributeMember::BuildAttribute) return build(!arguments.empty() && arguments[0].to_boolean());
  if (access == Access::Get || access == Access::Call) return get(which, arguments);
  if (const auto* text = arguments[0].as<std::string>()) {
    let(which, *text);
  } else {
    let(which, arguments[0].to_text());
  }
  return {};
}

}  // namespace vorlan
