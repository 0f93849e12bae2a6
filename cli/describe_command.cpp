// vorlan describe
#include <cstdio>

#include "cli/commands.hpp"
#include "cli/names.hpp"
#include "cli/table.hpp"
#include "nlohmann/json.hpp"

namespace vorlan::cli {

namespace {

using nlohmann::ordered_json;

std::string access_text(const MemberInfo& member) {
  std::string text;
  const auto add = [&](bool allowed, std::string_view name) {
    if (allowed) text.append(text.empty() ? "" : " ").append(name);
  };
  add(member.gets, "get");
  add(member.lets, "let");
  add(member.sets, "set");
  add(member.calls, "call");
  return text;
}

/// "CreateMessage(ByRef MessageObject As Object, [UATIColorCode As String]) As Boolean".
std::string signature(const MemberInfo& member) {
  std::string text(member.name);
  if (member.is_method() || !member.parameters.empty()) {
    text += '(';
    for (const ParameterInfo& parameter : member.parameters) {
      if (text.back() != '(') text += ", ";
      if (parameter.optional) text += '[';
      if (parameter.by_reference) text += "ByRef ";
      text.append(parameter.name).append(" As ").append(type_name(parameter.type));
      if (parameter.optional) text += ']';
    }
    text += ')';
  }
  if (member.type != ValueType::Empty) text.append(" As ").append(type_name(member.type));
  return text;
}

ordered_json members_json(const ClassInfo& info) {
  auto list = ordered_json::array();
  for (const MemberInfo& member : info.members()) {
    auto parameters = ordered_json::array();
    for (const ParameterInfo& parameter : member.parameters) {
      parameters.push_back({{"name", parameter.name},
                            {"type", type_name(parameter.type)},
                            {"by_reference", parameter.by_reference},
                            {"optional", parameter.optional}});
    }
    list.push_back({{"name", member.name},
                    {"access", access_text(member)},
                    {"type", type_name(member.type)},
                    {"parameters", std::move(parameters)},
                    {"summary", member.summary}});
  }
  return list;
}

ordered_json class_json(const Registry::Class& named) {
  const ClassInfo& info = named.info();
  ordered_json json{{"name", info.name()}, {"prog_id", named.prog_id()}, {"summary", info.summary()}};
  json["defined_in"] = info.defined_in();
  json["fields"] = ordered_json::array();
  for (const FieldInfo& field : info.fields()) {
    json["fields"].push_back({{"name", field.name},
                              {"width", field.width},
                              {"condition", field.condition},
                              {"initial", field.initial},
                              {"unit", field.unit},
                              {"origin", field.origin}});
  }
  json["members"] = members_json(info);
  json["errors"] = ordered_json::array();
  for (const ErrorInfo& error : info.errors()) {
    json["errors"].push_back(
        {{"number", error.number}, {"source", error.source}, {"description", error.description}, {"when", error.when}});
  }
  return json;
}

/// Long zeros would push everything behind them off the screen.
std::string initial_text(const std::string& bits) {
  constexpr std::size_t kReadable = 8;
  return bits.size() > kReadable && bits.find('1') == std::string::npos ? "all 0" : bits;
}

void print_fields(const ClassInfo& info) {
  if (info.fields().empty()) return;
  Table table({"Field", "Bits", "Initially", "Unit or codes", "Comes from", "Present"});
  for (const FieldInfo& field : info.fields()) {
    table.add({std::string(bare_name(field.name)), field.width, initial_text(field.initial), field.unit, field.origin,
               field.condition});
  }
  constexpr std::size_t kWidest = 40;  // of so many columns
  std::printf("\nFields, in air-interface order\n%s", table.text("  ", kWidest).c_str());
}

void print_members(const ClassInfo& info) {
  constexpr std::size_t kSignature = 110;
  Table properties;
  std::string methods;
  for (const MemberInfo& member : info.members()) {
    if (member.is_method()) {
      std::string_view indent = "  ";
      for (const std::string& line : wrapped(signature(member), kSignature, ", ")) {
        methods.append(indent).append(line).append("\n");
        indent = "          ";
      }
      if (!member.summary.empty()) methods.append("      ").append(member.summary).append("\n");
    } else {
      properties.add({signature(member), access_text(member), member.summary});
    }
  }
  const std::string text = properties.text("  ", kWidestCell);
  if (!text.empty()) std::printf("\nProperties\n%s", text.c_str());
  if (!methods.empty()) std::printf("\nMethods\n%s", methods.c_str());
}

void print_errors(const ClassInfo& info) {
  if (info.errors().empty()) return;
  std::printf("\nErrors\n");
  for (const ErrorInfo& error : info.errors()) {
    std::printf("  error %d%s%s: %s\n      \"%s\"\n", error.number, error.source.empty() ? "" : " in ",
                error.source.c_str(), error.when.c_str(), error.description.c_str());
  }
}

}  // namespace

void describe_class(const Registry& registry, const std::string& name, bool json) {
  const Registry::Class& named = class_named(registry, name);
  const ClassInfo& info = named.info();
  if (json) {
    std::puts(class_json(named).dump(2).c_str());
    return;
  }
  const std::string where = info.clause().empty() ? "" : "  (" + info.defined_in() + ")";
  std::printf("%s%s\n%s\n", named.prog_id().c_str(), where.c_str(), std::string(info.summary()).c_str());
  print_fields(info);
  print_members(info);
  print_errors(info);
}

}  // namespace vorlan::cli
