// What listings show of a simple attribute's row: members, the fields of its record, and the texts it raises.
#include "attributes/simple_attribute_class.hpp"

namespace vorlan {

std::vector<MemberInfo> SimpleAttributeClass::list_members() const {
  const auto member = [](AttributeMember which, bool lets, std::string_view summary) {
    return MemberInfo{.name = member_name(which),
                      .gets = true,
                      .lets = lets,
                      .type = ValueType::String,
                      .summary = std::string(summary)};
  };
  std::vector<MemberInfo> members{
      member(AttributeMember::Attribute, true,
             "A received record. Once there is one, the other getters read from it, whatever is set later."),
      member(AttributeMember::Length, true,
             "Octets behind the Length field. Only kept: BuildAttribute counts for itself."),
      member(AttributeMember::AttribId, spec_.id_settable, "AttributeID."),
      member(AttributeMember::AttrValue, true, "The attribute's value."),
      member(AttributeMember::BuildAttribute, false, "The record to be sent: Length, AttributeID and value as set."),
  };
  MemberInfo& id = members[static_cast<std::size_t>(AttributeMember::AttribId)];
  MemberInfo& build = members.back();
  build.gets = false;
  build.calls = true;
  if (!flows_.empty()) id.summary = "AttributeID. Setting it sets the value that the flow has by default, too.";
  if (spec_.wide_id != 0) {
    const ParameterInfo is_wide{.name = "SixteenBits", .type = ValueType::Boolean};
    id.parameters.push_back(is_wide);
    id.summary = "AttributeID, in 16 bits or in 8.";
    build.parameters.push_back(is_wide);
  }
  return members;
}

std::vector<FieldInfo> SimpleAttributeClass::list_fields() const {
  std::string id_width = std::to_string(spec_.id_bits);
  if (spec_.wide_id != 0) id_width += " or 16";
  std::string value_width = std::to_string(spec_.value_bits);
  return {
      {.name = member_name(AttributeMember::Length),
       .width = "8",
       .initial = std::string(length_.view()),
       .unit = "octets",
       .origin = "computed"},
      {.name = member_name(AttributeMember::AttribId),
       .width = std::move(id_width),
       .initial = std::string(id_.view()),
       .origin = spec_.id_settable ? "set" : "constant"},
      {.name = member_name(AttributeMember::AttrValue),
       .width = spec_.up_to ? "up to " + value_width : std::move(value_width),
       .initial = std::string(value_.view()),
       .unit = std::string(spec_.meaning != nullptr ? spec_.meaning->listed() : std::string_view()),
       .origin = flows_.empty() ? "set" : "set, at first by AttribId"},
  };
}

std::vector<ErrorInfo> SimpleAttributeClass::list_errors() const {
  std::vector<ErrorInfo> errors;
  const auto add = [&](AttributeMember member, std::string text, std::string_view when) {
    // Where the source does not name the member, the rest must.
    const std::string named = spec_.empty_source ? std::string(member_name(member)) + ", " : std::string();
    errors.push_back({source(member), std::move(text), named + std::string(when)});
  };
  constexpr std::string_view kWrongWidth = "let of another width";
  if (spec_.record_bits != 0) add(AttributeMember::Attribute, text(AttributeMember::Attribute), kWrongWidth);
  add(AttributeMember::Length, text(AttributeMember::Length), kWrongWidth);
  if (spec_.id_settable) add(AttributeMember::AttribId, text(AttributeMember::AttribId), kWrongWidth);
  if (!spec_.wrong_high_octet.empty()) {
    add(AttributeMember::AttribId, std::string(spec_.wrong_high_octet), "let with another high octet");
  }
  add(AttributeMember::AttrValue, text(AttributeMember::AttrValue),
      spec_.up_to ? "let of a greater width" : kWrongWidth);
  return errors;
}

}  // namespace vorlan
