#include "automation/bind.hpp"

#include <stdexcept>

namespace vorlan {

std::vector<MemberInfo> describe(std::span<const BoundMember> table) {
  std::vector<MemberInfo> members;
  members.reserve(table.size());
  for (const BoundMember& row : table) {
    MemberInfo& member = members.emplace_back();
    member.name = row.name;
    member.calls = row.method;
    member.gets = !row.method;
    member.get_changes = row.get_changes;
    const bool object = row.type == ValueType::Object;
    member.lets = row.let != nullptr && !object;
    member.sets = row.let != nullptr && (object || row.type == ValueType::Any);
    member.type = row.type;
    member.summary = row.summary;
    std::string_view names = row.parameter_names;
    for (const binding::Parameter& parameter : row.parameters) {
      const auto comma = names.find(',');
      const std::string_view name = names.substr(0, comma);
      if (name.empty()) throw std::logic_error("a parameter without a name: " + std::string(row.name));
      member.parameters.push_back({name, parameter.type, parameter.by_reference, parameter.optional});
      names =
          comma == std::string_view::npos ? std::string_view{} : names.substr(names.find_first_not_of(' ', comma + 1));
    }
    if (!names.empty()) throw std::logic_error("a name without a parameter: " + std::string(row.name));
  }
  return members;
}

}  // namespace vorlan
