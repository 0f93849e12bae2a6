#include "attributes/complex/complex_attribute.hpp"

#include <algorithm>
#include <numeric>

#include "attributes/index_of.hpp"
#include "automation/error.hpp"
#include "common/conversions.hpp"

namespace vorlan {

ComplexAttribute::ComplexAttribute(const ComplexAttributeClass& attribute_class)
    : Attribute(attribute_class.info()),
      class_(attribute_class),
      length_(attribute_class.length()),
      id_(attribute_class.id()),
      fields_(attribute_class.fields()) {}

std::string_view ComplexAttribute::values() const noexcept {
  const std::size_t header = std::min(kLengthBits + class_.spec().id_bits, record_.size());
  return std::string_view(record_).substr(header);
}

void ComplexAttribute::receive(std::string_view record) {
  const ComplexAttributeSpec& spec = class_.spec();
  const auto refuse = [&] { raise(class_.source("PRstr_Attribute"), spec.wrong_record); };
  const std::size_t header = kLengthBits + spec.id_bits;
  if (record.size() < header) refuse();
  const std::string_view values = record.substr(header);
  if (spec.form == AttributeForm::Fields) {
    if (values.size() != class_.fields().fixed_bits() || !fields_.receive(values)) refuse();
  } else {
    std::vector<std::size_t> lengths = spec.values().split(values);
    if (lengths.empty() && !values.empty()) refuse();
    lengths_ = std::move(lengths);
  }
  record_ = record;
  received_ = true;
}

std::size_t ComplexAttribute::count() const {
  if (!received_) raise(class_.source(class_.count_member()), class_.spec().not_received);
  return lengths_.size();
}

AttributeValue& ComplexAttribute::value(std::size_t index) {
  if (received_ && index >= lengths_.size()) throw class_.beyond_count();
  if (!value_) value_ = make<AttributeValue>(class_.spec().values());
  if (received_) {
    const auto start =
        std::accumulate(lengths_.begin(), lengths_.begin() + static_cast<std::ptrdiff_t>(index), std::size_t{0});
    value_->receive(values().substr(start, lengths_[index]));
  }
  return *value_;
}

std::string_view ComplexAttribute::length() const noexcept {
  return received_ ? std::string_view(record_).substr(0, kLengthBits) : length_;
}

std::string_view ComplexAttribute::id() const noexcept {
  return received_ ? std::string_view(record_).substr(kLengthBits, class_.spec().id_bits) : id_.view();
}

bool ComplexAttribute::has_id(std::string_view id) const noexcept {
  constexpr std::size_t kHighOctet = 8;
  const std::string_view own = class_.id();
  return id == own ||
         (class_.spec().id_settable && id.size() == own.size() && id.starts_with(own.substr(0, kHighOctet)));
}

void ComplexAttribute::let_length(std::string_view bits) {
  if (bits.size() != kLengthBits) raise(class_.source("PRstr_Length"), class_.spec().wrong_length);
  length_ = bits;
}

void ComplexAttribute::let_id(std::string_view bits) {
  if (bits.size() != class_.spec().id_bits) raise(class_.source("PRstr_AttribID"), class_.spec().wrong_id);
  id_ = ShortBits(bits);
}

std::string ComplexAttribute::build(std::string_view value_records) const {
  const std::string own = class_.spec().form == AttributeForm::Fields ? fields_.build() : std::string();
  const std::string_view values = class_.spec().form == AttributeForm::Fields ? own : value_records;
  const std::string_view id = id_.view();
  std::string record =
      dec_to_bin(static_cast<std::int32_t>(octets_behind_length(id.size() + values.size())), kLengthBits);
  record.reserve(record.size() + id.size() + values.size());
  return record.append(id).append(values);
}

Value ComplexAttribute::invoke_member(int index, Access access, std::span<Value> arguments) {
  const ComplexAttributeClass::Member& member = class_.member(static_cast<std::size_t>(index));
  const bool assigns = access == Access::Let || access == Access::Set;
  switch (member.action) {
    case ComplexAttributeClass::Action::Attribute:
      if (!assigns) return record_;
      receive(arguments[0].to_text());
      return {};
    case ComplexAttributeClass::Action::Count: return Value(static_cast<std::int32_t>(count())).to_integer();
    case ComplexAttributeClass::Action::Length:
      if (!assigns) return length();
      let_length(arguments[0].to_text());
      return {};
    case ComplexAttributeClass::Action::ValueObject: return Ref<Object>(&value(index_of(arguments[0])));
    case ComplexAttributeClass::Action::AttribId:
      if (!assigns) return id();
      let_id(arguments[0].to_text());
      return {};
    case ComplexAttributeClass::Action::Field:
      if (!assigns) return fields_.get(member.field);
      fields_.let(member.field, {}, arguments[0].to_text());
      return {};
    case ComplexAttributeClass::Action::Build: return build(arguments.empty() ? std::string() : arguments[0].to_text());
    case ComplexAttributeClass::Action::Search: return class_.spec().search->run(*this, arguments);
  }
  return {};
}

}  // namespace vorlan
