#include "attributes/values/value_class.hpp"

#include <utility>

namespace vorlan {

namespace {

RecordClass::Texts record_texts(const ValueSpec& spec) {
  return {spec.source.empty() ? spec.name : spec.source, spec.texts, spec.not_received};
}

}  // namespace

ValueClass::ValueClass(const ValueSpec& spec)
    : spec_(spec), record_(spec.fields, record_texts(spec)), info_([&] {
        auto members = list_members();
        return ClassInfo({spec.name, spec.summary, spec.clause}, std::move(members), record_.list_fields(),
                         list_errors());
      }()) {}

std::string ValueClass::source(std::string_view member) const {
  return std::string(record_.texts().source).append(".").append(member);
}

Error ValueClass::no_position() const {
  return Error(ErrorNumber::InvalidCall, source("GetValLengthAt"), "positions begin with 1");
}

Error ValueClass::no_flow() const {
  return Error(ErrorNumber::InvalidCall, std::string(spec_.name) + ".PRint_FlowNN", "a flow from 0 to 255");
}

Error ValueClass::outside_grid(std::string_view accessor) const {
  return Error(ErrorNumber::SubscriptOutOfRange, source(accessor));
}

std::vector<std::size_t> ValueClass::split(std::string_view bits) const {
  const auto equal_parts = [&](std::size_t width) { return std::vector(bits.size() / width, width); };
  if (const std::size_t width = record_.fixed_bits(); width != 0) {
    if (bits.size() % width == 0) return equal_parts(width);
    for (const std::size_t shorter : spec_.shorter_records) {
      if (bits.size() % shorter == 0) return equal_parts(shorter);
    }
    return {};
  }
  std::vector<std::size_t> lengths;
  while (!bits.empty()) {
    const std::size_t length = length_at(bits);
    if (length == 0) return {};
    lengths.push_back(length);
    bits.remove_prefix(length);
  }
  return lengths;
}

void ValueClass::add(Action action, std::size_t field, At at, MemberInfo member) {
  const bool is_accessor = action == Action::GetElement || action == Action::LetElement;
  members_.push_back({action, static_cast<std::uint16_t>(field), at, is_accessor ? member.name : std::string_view{}});
  listed_.push_back(std::move(member));
}

/// The members of a list or table that is reached by the numbers of its elements: a property for each, or two methods.
void ValueClass::add_elements(std::size_t field) {
  const RecordField& row = *record_.field(field).spec;
  const Repeated& repeat = row.repeat;
  const std::size_t columns = is_table(row) ? repeat.inner_places : 1;
  for (std::size_t i = 0; i < repeat.places; ++i) {
    for (std::size_t j = 0; j < columns; ++j) {
      if (repeat.elements.empty()) continue;
      const At at{i, j};
      settable_.push_back({Action::Element, static_cast<std::uint16_t>(field), at});
      add(Action::Element, field, at,
          {.name = names_.emplace_back(element_name(repeat.elements, at)),
           .gets = true,
           .lets = true,
           .type = ValueType::String,
           .summary = std::string(row.summary)});
    }
  }
  if (repeat.accessors.empty()) return;
  std::vector<ParameterInfo> parameters{{.name = "Index", .type = ValueType::Integer}};
  if (is_table(row)) parameters.push_back({.name = "Column", .type = ValueType::Integer});
  add(Action::GetElement, field, {},
      {.name = names_.emplace_back("Get_" + std::string(repeat.accessors)),
       .calls = true,
       .type = ValueType::String,
       .parameters = parameters,
       .summary = std::string(row.summary)});
  parameters.push_back({.name = "Bits", .type = ValueType::String});
  add(Action::LetElement, field, {},
      {.name = names_.emplace_back("Set_" + std::string(repeat.accessors)),
       .calls = true,
       .type = ValueType::Empty,
       .parameters = std::move(parameters),
       .summary = std::string(row.summary)});
}

void ValueClass::add_field(std::size_t field) {
  const RecordField& row = *record_.field(field).spec;
  MemberInfo member{.name = row.name,
                    .gets = true,
                    .lets = row.settable,
                    .type = ValueType::String,
                    .summary = std::string(row.summary)};
  if (is_list(row)) member.parameters.push_back({.name = "Index", .type = ValueType::Integer, .optional = true});
  if (is_table(row)) member.parameters.push_back({.name = "Column", .type = ValueType::Integer, .optional = true});
  if (row.settable && !is_list(row)) settable_.push_back({Action::Field, static_cast<std::uint16_t>(field)});
  add(Action::Field, field, {}, std::move(member));
  if (spec_.has_flow_number && row.name == "PRstr_FlowNN") {
    add(Action::FlowNumber, field, {},
        {.name = "PRint_FlowNN",
         .gets = true,
         .lets = true,
         .type = ValueType::Integer,
         .summary = "The flow as a number."});
  }
}

void ValueClass::add_set_operation() {
  MemberInfo set{.name = spec_.set_operation,
                 .calls = true,
                 .type = ValueType::Empty,
                 .summary = "Sets all fields at once; an empty text leaves its field as it is."};
  for (const Member& member : settable_) {
    const RecordField& row = *record_.field(member.field).spec;
    const std::string name =
        member.action == Action::Element ? element_name(row.repeat.elements, member.at) : std::string(row.name);
    set.parameters.push_back(
        {.name = names_.emplace_back(name.substr(name.find('_') + 1)), .type = ValueType::String, .optional = true});
  }
  add(Action::SetFields, 0, {}, std::move(set));
}

void ValueClass::add_methods() {
  MemberInfo build{.name = "BuildValueRecord",
                   .calls = true,
                   .type = ValueType::String,
                   .summary = "The record to be sent: the fields as set, in whole octets."};
  if (spec_.builds_id_alone) {
    build.parameters.push_back({.name = "ValueIdOnly", .type = ValueType::Boolean, .optional = true});
  }
  add(Action::Build, 0, {}, std::move(build));
  if (spec_.tells_length) {
    add(Action::LengthAt, 0, {},
        {.name = "GetValLengthAt",
         .calls = true,
         .type = ValueType::Integer,
         .parameters = {{.name = "Attribute", .type = ValueType::String},
                        {.name = "Position", .type = ValueType::Integer}},
         .summary = "The length in bits of the value record that begins at a position, from 1, of a bit string."});
  }
  if (spec_.has_initialize) {
    add(Action::Initialize, 0, {},
        {.name = "Initialize",
         .calls = true,
         .type = ValueType::Empty,
         .summary = "Makes the object as it was when created."});
  }
  for (std::size_t i = 0; i < spec_.operations.size(); ++i) {
    const ValueOperation& operation = spec_.operations[i];
    add(Action::Operation, i, {},
        {.name = operation.name, .calls = true, .type = ValueType::Empty, .summary = std::string(operation.summary)});
  }
}

std::vector<MemberInfo> ValueClass::list_members() {
  add(Action::ValueString, 0, {},
      {.name = "PRstr_ValString",
       .gets = true,
       .lets = true,
       .type = ValueType::String,
       .summary = "A received value record. Once there is one, the getters of fields read from it."});
  if (spec_.has_flag) {
    add(Action::ReceivedFlag, 0, {},
        {.name = "PRbln_ValFlag",
         .gets = true,
         .lets = true,
         .type = ValueType::Boolean,
         .summary = "Whether the getters of fields read from the received value record."});
  }
  for (std::size_t i = 0; i < record_.fields().size(); ++i) {
    const RecordField& row = *record_.field(i).spec;
    if (is_property(row)) {
      add_field(i);
    } else if (is_list(row)) {
      add_elements(i);
    }
  }
  if (!spec_.set_operation.empty()) add_set_operation();
  add_methods();
  return std::exchange(listed_, {});
}

std::vector<ErrorInfo> ValueClass::list_errors() const {
  const std::string wrong(kWrongValString);
  std::vector<ErrorInfo> errors{{source("PRstr_ValString"), wrong, "let of a record that ends before its last field"}};
  if (spec_.has_flag) {
    errors.push_back(
        {source("PRbln_ValFlag"), std::string(spec_.not_received), "let True before a record is received"});
  }
  record_.list_errors(errors);
  for (const Member& member : members_) {
    if (member.accessor.empty()) continue;
    errors.push_back(error_info(outside_grid(member.accessor), "call with an index that is not there"));
  }
  if (spec_.has_flow_number) errors.push_back(error_info(no_flow(), "let of another number"));
  if (spec_.tells_length) {
    errors.push_back({source("GetValLengthAt"), wrong, "call for a record that is cut off"});
    errors.push_back(error_info(no_position(), "call with a position below 1"));
    errors.push_back(error_info(Error(ErrorNumber::Overflow, std::string(spec_.name) + ".GetValLengthAt"),
                                "call for a record of more than 32767 bits"));
  }
  for (const ValueOperation& operation : spec_.operations) {
    for (const Refusal& refusal : operation.refusals) {
      errors.push_back(error_info(refusal.error(source(operation.name)), refusal.when));
    }
  }
  return errors;
}

}  // namespace vorlan
