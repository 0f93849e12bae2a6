#include "listing.hpp"

#include <string>

#include "server/classes.hpp"
#include "simulator/classes.hpp"

namespace vorlan::python {

Registry module_registry() { return Registry(simulator::with_simulator(class_tables())); }

std::string_view python_type(ValueType type) noexcept {
  switch (type) {
    case ValueType::Empty: return "None";
    case ValueType::Null: return "NullType";
    case ValueType::Boolean: return "bool";
    case ValueType::Integer:
    case ValueType::Long: return "int";
    case ValueType::Single:
    case ValueType::Double: return "float";
    case ValueType::Date: return "datetime.datetime";
    case ValueType::String: return "str";
    case ValueType::Array: return "list[Any]";
    case ValueType::Object:
    case ValueType::Any: break;
  }
  return "Any";
}

std::string text_signature(const MemberInfo& member) {
  std::string text = "($self";
  for (const ParameterInfo& parameter : member.parameters) {
    text.append(", ").append(parameter.name).append(parameter.optional ? "=..." : "");
  }
  return text + ")";
}

std::string member_text(const MemberInfo& member) {
  std::string text = member.summary;
  std::string detail;
  for (const ParameterInfo& parameter : member.parameters) {
    detail += detail.empty() ? "Arguments: " : ", ";
    detail.append(parameter.name).append(" ").append(type_name(parameter.type));
    if (parameter.by_reference) detail += " by reference";
    if (parameter.optional) detail += " (optional)";
  }
  if (member.type != ValueType::Empty) {
    detail += detail.empty() ? "" : ". ";
    detail.append(member.is_method() ? "Returns " : "").append(type_name(member.type));
  }
  if (!member.is_method() && !member.lets && !member.sets) detail += ", read only";
  if (!member.is_method() && !member.gets) detail += ", write only";
  return detail.empty() ? text : text + "\n\n" + detail + ".";
}

std::string class_text(const ClassInfo& info) {
  std::string text(info.summary());
  if (!info.clause().empty()) text.append("\n\n").append(info.defined_in());
  if (info.fields().empty()) return text;
  text += "\n\nFields in air-interface order:";
  for (const FieldInfo& field : info.fields()) {
    text.append("\n  ").append(field.name).append(": ").append(field.width);
    if (field.width.find_first_not_of("0123456789") == std::string::npos) text += field.width == "1" ? " bit" : " bits";
    for (const std::string& part : {field.condition, field.unit, field.origin}) {
      if (!part.empty()) text.append(", ").append(part);
    }
    if (!field.initial.empty()) text.append(", \"").append(field.initial).append("\"");
  }
  return text;
}

}  // namespace vorlan::python
