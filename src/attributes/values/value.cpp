#include "attributes/values/value.hpp"

#include <algorithm>

#include "attributes/index_of.hpp"
#include "automation/error.hpp"
#include "common/conversions.hpp"

namespace vorlan {

AttributeValue::AttributeValue(const ValueClass& value_class)
    : ClassObject(value_class.info()), class_(value_class), record_(value_class.record()) {}

void AttributeValue::receive(std::string_view bits) {
  const auto shorter = class_.spec().shorter_records;
  const bool may_be_cut_off = std::find(shorter.begin(), shorter.end(), bits.size()) != shorter.end();
  if (!record_.receive(bits, may_be_cut_off)) {
    raise(class_.source("PRstr_ValString"), kWrongValString);
  }
}

std::string AttributeValue::build(bool id_alone) const {
  return id_alone ? std::string(record_.stored(class_.record().find("PRstr_ValueId"))) : record_.build();
}

std::size_t AttributeValue::length_at(std::string_view bits, std::size_t position) const {
  if (position == 0) throw class_.no_position();
  const std::string_view rest = bits.substr(std::min(position - 1, bits.size()));
  const std::size_t length = class_.length_at(rest);
  if (length == 0) raise(class_.source("GetValLengthAt"), kWrongValString);
  return length;
}

void AttributeValue::set_fields(std::span<Value> arguments) {
  const auto settable = class_.settable();
  std::vector<std::string> texts(std::min(arguments.size(), settable.size()));
  // All are checked before the first is stored.
  for (std::size_t i = 0; i < texts.size(); ++i) {
    texts[i] = arguments[i].to_text();
    if (!texts[i].empty()) record_.check(settable[i].field, settable[i].at, texts[i]);
  }
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (!texts[i].empty()) record_.let(settable[i].field, settable[i].at, texts[i]);
  }
}

Value AttributeValue::invoke_field(const ValueClass::Member& member, bool assigns, std::span<Value> arguments) {
  const std::size_t given = arguments.size() - (assigns ? 1 : 0);
  At at = member.at;
  if (given > 0) at.index = index_of(arguments[0]);
  if (given > 1) at.inner = index_of(arguments[1]);
  if (!member.accessor.empty() && !record_.has(member.field, at, assigns)) throw class_.outside_grid(member.accessor);
  if (!assigns) return record_.get(member.field, at);
  if (const auto* text = arguments.back().as<std::string>()) {
    record_.let(member.field, at, *text);
  } else {
    record_.let(member.field, at, arguments.back().to_text());
  }
  return {};
}

Value AttributeValue::invoke_member(int index, Access access, std::span<Value> arguments) {
  const ValueClass::Member& member = class_.member(static_cast<std::size_t>(index));
  const bool assigns = access == Access::Let || access == Access::Set;
  switch (member.action) {
    case ValueClass::Action::Field:
    case ValueClass::Action::Element: return invoke_field(member, assigns, arguments);
    case ValueClass::Action::GetElement: return invoke_field(member, false, arguments);
    case ValueClass::Action::LetElement: return invoke_field(member, true, arguments);
    case ValueClass::Action::ValueString:
      if (!assigns) return record_.received_bits();
      receive(arguments[0].to_text());
      return {};
    case ValueClass::Action::ReceivedFlag:
      if (!assigns) return record_.received();
      if (arguments[0].to_boolean() && record_.received_bits().empty()) {
        raise(class_.source("PRbln_ValFlag"), class_.spec().not_received);
      }
      record_.read_received(arguments[0].to_boolean());
      return {};
    case ValueClass::Action::FlowNumber: {
      if (!assigns) return static_cast<std::int16_t>(small_value(record_.stored(member.field)));
      const std::int16_t number = arguments[0].to_integer();
      if (number < 0 || number > 255) throw class_.no_flow();
      record_.let(member.field, {}, dec_to_bin(number, 8));
      return {};
    }
    case ValueClass::Action::SetFields: set_fields(arguments); return {};
    case ValueClass::Action::Build: return build(!arguments.empty() && arguments[0].to_boolean());
    case ValueClass::Action::LengthAt: {
      const std::int16_t position = arguments[1].to_integer();
      const std::size_t length =
          length_at(arguments[0].to_text(), position > 0 ? static_cast<std::size_t>(position) : 0);
      return Value(static_cast<std::int32_t>(length)).to_integer();
    }
    case ValueClass::Action::Initialize: record_.reset(); return {};
    case ValueClass::Action::Operation: class_.spec().operations[member.field].run(record_); return {};
  }
  return {};
}

}  // namespace vorlan
