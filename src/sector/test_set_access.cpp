#include "sector/test_set_access.hpp"

#include <algorithm>

#include "automation/error.hpp"

namespace vorlan {

namespace {

constexpr std::string_view kSection = "TestSetMembers";

// The texts begin with the role.
constexpr ErrorRow kNoRole{kSection, "is no role of a test set's member.",
                           "a line of section TestSetMembers for another role"};
constexpr ErrorRow kFixedName{kSection, "has a name that cannot be changed.",
                              "a line of section TestSetMembers for a fixed name"};
constexpr ErrorRow kNoName{kSection, "has no name.", "a line of section TestSetMembers without a name"};

std::string text_about(std::string_view role, const ErrorRow& row) {
  return std::string("\"").append(role).append("\" in section TestSetMembers ").append(row.text);
}

/// As people look for what is missing.
constexpr std::array<std::string_view, 14> kObjectNames{"PRobj_TestSet",
                                                        "PRobj_TestReport",
                                                        "the channel collection",
                                                        "the forward channel",
                                                        "the access channel",
                                                        "the reverse traffic channel",
                                                        "PRobj_EvSignalling",
                                                        "the message collection",
                                                        "PRobj_EvProtocolController",
                                                        "PRobj_RadioChannelEmulator",
                                                        "the emulator's velocity",
                                                        "the emulator's paths",
                                                        "the fading path",
                                                        "the security object"};
static_assert(kObjectNames.size() == static_cast<std::size_t>(TestSetObject::Security) + 1);

std::string_view trimmed(std::string_view text) {
  const auto begin = text.find_first_not_of(" \t");
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(" \t") - begin + 1);
}

/// The section's lines, "Role=Name".
Value section_lines(Object& configuration) {
  try {
    const std::string file = configuration.get("PRstr_FileName").to_text();
    if (file.empty()) return {};
    const Ref<Object> reader = configuration.get("PRobj_IniReader").to_object();
    return deref(reader, "PRobj_IniReader").call("GetSectionStrings", kSection, file);
  } catch (const Error& error) {
    if (error.is(ErrorNumber::FileAccess) || error.number() == kCancelled) throw;
    return {};  // no section, no file, or a script's own configuration that reads none
  }
}

}  // namespace

TestSetAccess TestSetAccess::named_by(Object& configuration) {
  TestSetAccess access;
  const Value lines = section_lines(configuration);
  if (const auto* array = lines.as<Value::Array>()) {
    for (const Value& line : *array) access.rename(line.to_text());
  }
  return access;
}

void TestSetAccess::list_errors(std::vector<ErrorInfo>& list, std::string_view class_name) {
  for (const ErrorRow& row : {kNoRole, kFixedName, kNoName}) {
    const std::string text = text_about("<role>", row);
    vorlan::list_errors(list, class_name, std::array{ErrorRow{row.source, text, row.when}});
  }
  constexpr ErrorRow kMissing{{}, "<object>", "an object of the test set is Nothing", ErrorNumber::ObjectNotSet};
  vorlan::list_errors(list, class_name, {&kMissing, 1});
}

void TestSetAccess::rename(std::string_view line) {
  const auto equals = line.find('=');
  const std::string_view role = trimmed(line.substr(0, equals));
  const std::string_view name =
      equals == std::string_view::npos ? std::string_view{} : trimmed(line.substr(equals + 1));
  const auto refuse = [&](const ErrorRow& row) { raise(row.source, text_about(role, row)); };
  const auto* const row = std::find_if(std::begin(kTestSetMembers), std::end(kTestSetMembers), [&](const auto& member) {
    return equals_ignoring_case(member.role_name, role);
  });
  if (row == std::end(kTestSetMembers)) refuse(kNoRole);
  if (row->fixed) refuse(kFixedName);
  if (name.empty()) refuse(kNoName);
  names_.emplace_back(row->role, name);
}

std::string_view TestSetAccess::name(Role role) const noexcept {
  for (const auto& [renamed, name] : names_) {
    if (renamed == role) return name;
  }
  return test_set_member(role).name;
}

void TestSetAccess::let(Role role, const Ref<Object>& object, const Value& value) const {
  std::array values{value.converted_to(test_set_member(role).type)};
  invoke(role, object, Access::Let, values);
}

Value TestSetAccess::invoke(Role role, const Ref<Object>& object, Access access, std::span<Value> arguments) const {
  if (!object) {
    throw Error(ErrorNumber::ObjectNotSet, {}, kObjectNames[static_cast<std::size_t>(test_set_member(role).object)]);
  }
  // Held: a script's object may have the caller let go of it meanwhile.
  const Ref<Object> called = object;
  return called->invoke(name(role), access, arguments);
}

Ref<Object> TestSetAccess::existing(Role role, const Value& object) {
  Ref<Object> found = object.to_object();
  if (!found) throw Error(ErrorNumber::ObjectNotSet, {}, test_set_member(role).summary);
  return found;
}

}  // namespace vorlan
