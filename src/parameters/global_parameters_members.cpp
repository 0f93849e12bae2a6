// The late-bound face of the configuration: which member does what.
#include <array>

#include "automation/error.hpp"
#include "parameters/global_parameters.hpp"

namespace vorlan {

namespace {

using G = SB_GlobalParameters;

constexpr std::array kMembers{
    method<&G::Initialize>("Initialize", "sectorName", "Loads all parameters of a sector, once"),
    method<&G::InitialiseArrayForPersonalityCount>("InitialiseArrayForPersonalityCount", "array, personality",
                                                   "Lengthens an array up to a personality; new elements are -1"),
    method<&G::GetParamIntegerValue>("GetParamIntegerValue", "section, key", "Any key of the parameter file"),
    method<&G::GetParamStringValue>("GetParamStringValue", "section, key", "Any key of the parameter file"),
    method<&G::GetParamBooleanValue>("GetParamBooleanValue", "section, key", "Any key of the parameter file"),
    property<&G::file_name, &G::set_file_name>("PRstr_FileName", "Path of the parameter file"),
    property<&G::ini_reader, &G::set_ini_reader>("PRobj_IniReader", "The object that reads the parameter file"),
    property<&G::test_report, &G::set_test_report>("PRobj_TestReport", "The test report, which takes warnings"),
    property<&G::test_system, &G::set_test_system>("PRobj_TestSystem", "The test system"),
    property<&G::active_personality, &G::set_active_personality>(
        "PRint_ActivePersonalityCount", "The active personality, whose subtypes the properties mean"),
    property<&G::personality_count, &G::set_personality_count>("PRint_PersonalityCountAN",
                                                               "Personalities that the access network negotiates"),
    property<&G::script_type, &G::set_script_type>("PRint_ScriptType", "The kind of the script"),
    property<&G::message_type, &G::set_message_type>("PRint_EVDOMessageType", "The kind of the script's messages"),
    property<&G::current_sector>("PRint_SectorIndex", "The sector named last; 0 to 5"),
};

constexpr std::size_t kFormsOfPersonality = 3;  // getter, setter, property

bool assigns(Access access) noexcept { return access == Access::Let || access == Access::Set; }

/// An argument that is missing or Empty is the empty text.
std::string text_argument(std::span<Value> arguments, std::size_t index) {
  return index < arguments.size() ? arguments[index].to_text() : std::string();
}

std::vector<MemberInfo> list_members() {
  std::vector<MemberInfo> members;
  const ParameterInfo sector{.name = "sectorName", .type = ValueType::String, .optional = true};
  for (const ParameterSpec* spec : all_parameters()) {
    members.push_back({.name = spec->name,
                       .gets = true,
                       .lets = true,
                       .type = spec->type(),
                       .parameters = {sector},
                       .summary = std::string(spec->summary)});
  }
  const ParameterInfo given_sector{.name = "sectorName", .type = ValueType::String};
  const ParameterInfo personality{.name = "personality", .type = ValueType::Integer};
  const ParameterInfo value{.name = "value", .type = ValueType::Integer};
  for (const PersonalitySpec& spec : kPersonalitySpecs) {
    const std::string summary(spec.summary);
    members.push_back({.name = spec.getter,
                       .calls = true,
                       .type = ValueType::Integer,
                       .parameters = {given_sector, personality},
                       .summary = summary});
    members.push_back({.name = spec.setter,
                       .calls = true,
                       .type = ValueType::Empty,
                       .parameters = {given_sector, personality, value},
                       .summary = summary});
    members.push_back({.name = spec.property,
                       .gets = true,
                       .lets = true,
                       .type = ValueType::Integer,
                       .parameters = {sector},
                       .summary = summary + ", of the active personality"});
  }
  for (MemberInfo& member : describe(kMembers)) members.push_back(std::move(member));
  return members;
}

std::vector<ErrorInfo> list_errors() {
  const auto source = [](std::string_view member) { return "SB_GlobalParameters." + std::string(member); };
  std::vector<ErrorInfo> errors{
      {"SB_GlobalParameters", "Sector Name: <name> is invalid", "a sector name that is not SECTOR 0 to SECTOR 5"},
      {source("InvalidParameter"), "<key> script parameter has an invalid value",
       "Initialize, for a key that cannot be read"},
      {source("InitialiseArrayForPersonalityCount"),
       "Personality Count index is greater than the Maximum number of personalities to be negotiated",
       "a personality above PRint_PersonalityCountAN"},
  };
  for (const ParameterSpec* spec : all_parameters()) {
    if (spec->where == Where::Sector0Only) {
      errors.push_back({source(spec->name),
                        std::string(spec->file_key()) +
                            " value is BitSequence script specific and can be accesssed from SECTOR 0 only.",
                        "get for another sector"});
    }
    if (spec->range == nullptr) continue;
    errors.push_back({source(spec->name), std::string(spec->range->text), "get for a sector, above the limit"});
    errors.push_back({source("Initialize"), std::string(spec->range->loading_text), "above the limit"});
  }
  for (const PersonalitySpec& spec : kPersonalitySpecs) {
    if (!spec.not_subtype2.empty()) {
      errors.push_back({source(spec.setter), std::string(spec.not_subtype2), "another physical layer subtype"});
    }
    if (spec.setter_text.empty()) continue;
    errors.push_back({std::string(spec.setter_source), std::string(spec.setter_text),
                      when_of(spec.setter, spec.setter_source, "another personality than 1")});
    errors.push_back({source(spec.property), std::string(spec.property_text), "let in another personality than 1"});
  }
  return errors;
}

}  // namespace

const ClassInfo& G::info() {
  static const ClassInfo kInfo{{.name = "SB_GlobalParameters", .summary = "The test configuration of one sector"},
                               list_members(),
                               {},
                               list_errors()};
  return kInfo;
}

Value G::invoke_member(int member, Access access, std::span<Value> arguments) {
  auto index = static_cast<std::size_t>(member);
  if (index < values_.size()) return invoke_parameter(index, access, arguments);
  index -= values_.size();
  if (index < kPersonalityParameters * kFormsOfPersonality) return invoke_personality(index, access, arguments);
  const BoundMember& row = kMembers[index - kPersonalityParameters * kFormsOfPersonality];
  return (assigns(access) ? row.let : row.get)(*this, arguments);
}

Value G::invoke_parameter(std::size_t row, Access access, std::span<Value> arguments) {
  const ParameterSpec& spec = *all_parameters()[row];
  if (assigns(access)) {
    Value value = arguments.back().converted_to(spec.type());
    if (spec.writes_back) write_back(spec, value, text_argument(arguments.first(arguments.size() - 1), 0));
    values_[row] = std::move(value);
    return {};
  }
  if (arguments.empty()) return values_[row];
  if (const auto* name = arguments[0].as<std::string>()) return name->empty() ? values_[row] : read_live(spec, *name);
  const std::string name = arguments[0].to_text();
  return name.empty() ? values_[row] : read_live(spec, name);
}

Value G::invoke_personality(std::size_t member, Access access, std::span<Value> arguments) {
  const std::size_t parameter = member / kFormsOfPersonality;
  const PersonalitySpec& spec = kPersonalitySpecs[parameter];
  switch (member % kFormsOfPersonality) {
    case 0:
      return trapped(spec.getter, [&] {
        return Value(get_element(parameter, text_argument(arguments, 0), arguments[1].to_integer()));
      });
    case 1:
      set_element(parameter, text_argument(arguments, 0), arguments[1].to_integer(), arguments[2].to_integer());
      return {};
    default: break;
  }
  if (!assigns(access)) {
    return trapped(spec.property,
                   [&] { return Value(get_element(parameter, text_argument(arguments, 0), active_personality_)); });
  }
  const std::int16_t value = arguments.back().to_integer();
  if (!spec.property_text.empty() && value > 0 && active_personality_ != kEnhancedPersonality) {
    raise("SB_GlobalParameters." + std::string(spec.property), spec.property_text);
  }
  set_element(parameter, text_argument(arguments.first(arguments.size() - 1), 0), active_personality_, value);
  return {};
}

}  // namespace vorlan
