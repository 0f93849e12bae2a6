// What is made of a complex attribute's row: its members, the fields of its record, and the texts that it raises.
#include "attributes/complex/complex_attribute.hpp"
#include "automation/error.hpp"
#include "common/conversions.hpp"

namespace vorlan {

namespace {

std::string initial_length(const ComplexAttributeSpec& spec, const RecordClass& fields) {
  const RecordClass& values = spec.values != nullptr ? spec.values().record() : fields;
  return dec_to_bin(static_cast<std::int32_t>((spec.id_bits + Record(values).build().size()) / 8), 8);
}

}  // namespace

ComplexAttributeClass::ComplexAttributeClass(const ComplexAttributeSpec& spec)
    : spec_(spec),
      fields_(spec.fields, {.source = spec.source.empty() ? spec.name : spec.source}),
      id_(long_to_bin(spec.id, spec.id_bits)),
      length_(initial_length(spec, fields_)),
      names_({std::string("PRint_Attr").append(attribute_name(spec.name)) + "Count",
              std::string("PRobj_").append(attribute_name(spec.name)) + "Val"}),
      info_([&] {
        auto members = list_members();
        return ClassInfo({spec.name, spec.summary, spec.clause}, std::move(members), list_fields(), list_errors());
      }()) {}

std::string ComplexAttributeClass::source(std::string_view member) const {
  return std::string(spec_.source.empty() ? spec_.name : spec_.source).append(".").append(member);
}

Error ComplexAttributeClass::beyond_count() const { return Error(ErrorNumber::SubscriptOutOfRange, source(names_[1])); }

std::vector<MemberInfo> ComplexAttributeClass::list_members() {
  std::vector<MemberInfo> members;
  const auto add = [&](Action action, MemberInfo member, std::size_t field = 0) {
    members.push_back(std::move(member));
    members_.push_back({action, static_cast<std::uint16_t>(field)});
  };
  if (spec_.form != AttributeForm::Builder) {
    add(Action::Attribute, {.name = "PRstr_Attribute",
                            .gets = true,
                            .lets = true,
                            .type = ValueType::String,
                            .summary = "A received record, which the getters read from then on."});
  }
  if (spec_.form == AttributeForm::RecordList) {
    add(Action::Count, {.name = names_[0],
                        .gets = true,
                        .type = ValueType::Integer,
                        .summary = "The number of value records in the received record."});
    add(Action::ValueObject, {.name = names_[1],
                              .gets = true,
                              .type = ValueType::Object,
                              .parameters = {{.name = "Index", .type = ValueType::Integer}},
                              .summary = "The value object, filled with a value record of the received record."});
  }
  if (const AttributeSearch* search = spec_.search) {
    MemberInfo member{
        .name = search->name, .calls = true, .type = ValueType::String, .summary = std::string(search->summary)};
    for (const std::string_view name : search->arguments) {
      member.parameters.push_back({.name = name, .type = ValueType::String, .optional = !member.parameters.empty()});
    }
    add(Action::Search, std::move(member));
  } else {
    add(Action::Length, {.name = "PRstr_Length",
                         .gets = true,
                         .lets = true,
                         .type = ValueType::String,
                         .summary = "Octets behind the Length field. Only kept: BuildAttribute counts for itself."});
    add(Action::AttribId, {.name = "PRstr_AttribId",
                           .gets = true,
                           .lets = spec_.id_settable,
                           .type = ValueType::String,
                           .summary = "AttributeID."});
  }
  for (std::size_t i = 0; i < fields_.fields().size(); ++i) {
    const RecordField& row = *fields_.field(i).spec;
    add(Action::Field,
        {.name = row.name,
         .gets = true,
         .lets = row.settable,
         .type = ValueType::String,
         .summary = std::string(row.summary)},
        i);
  }
  MemberInfo build{.name = "BuildAttribute",
                   .calls = true,
                   .type = ValueType::String,
                   .summary = "The record to be sent: Length, AttributeID, and value records or fields."};
  if (spec_.form != AttributeForm::Fields) {
    build.parameters.push_back({.name = "ValueRecords", .type = ValueType::String});
  }
  add(Action::Build, std::move(build));
  return members;
}

std::vector<FieldInfo> ComplexAttributeClass::list_fields() const {
  std::vector<FieldInfo> list{
      {.name = "Length", .width = "8", .initial = length_, .unit = "octets", .origin = "computed"},
      {.name = "AttributeID",
       .width = std::to_string(spec_.id_bits),
       .initial = id_,
       .origin = spec_.id_settable ? "set" : "constant"}};
  const auto rows = spec_.values != nullptr ? spec_.values().record().list_fields() : fields_.list_fields();
  for (FieldInfo row : rows) {
    if (spec_.values != nullptr) row.condition += row.condition.empty() ? "per value" : ", per value";
    list.push_back(std::move(row));
  }
  return list;
}

std::vector<ErrorInfo> ComplexAttributeClass::list_errors() const {
  std::vector<ErrorInfo> errors;
  if (!spec_.wrong_record.empty()) {
    errors.push_back({source("PRstr_Attribute"), std::string(spec_.wrong_record), "let of a malformed record"});
  }
  if (spec_.form == AttributeForm::RecordList) {
    errors.push_back({source(count_member()), std::string(spec_.not_received), "get before a record is received"});
    errors.push_back(error_info(Error(ErrorNumber::Overflow, std::string(spec_.name).append(".").append(names_[0])),
                                "get of more than 32767"));
    errors.push_back(error_info(beyond_count(), "get beyond the count"));
  }
  if (spec_.search == nullptr) {
    errors.push_back({source("PRstr_Length"), std::string(spec_.wrong_length), "let of another width"});
  }
  if (spec_.id_settable) {
    errors.push_back({source("PRstr_AttribID"), std::string(spec_.wrong_id), "let of another width"});
  }
  fields_.list_errors(errors);
  if (spec_.form != AttributeForm::Fields) {
    try {
      static_cast<void>(dec_to_bin(256, 8));
    } catch (const Error& error) {
      errors.push_back(error_info(error, "BuildAttribute with 256 octets behind Length; likewise with more"));
    }
  }
  return errors;
}

}  // namespace vorlan
