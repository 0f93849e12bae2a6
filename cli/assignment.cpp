#include "cli/assignment.hpp"

#include <charconv>

#include "cli/commands.hpp"

namespace vorlan::cli {

long Assignment::index_number() const noexcept {
  long number = 0;
  if (index) std::from_chars(index->data(), index->data() + index->size(), number);
  return number;
}

Assignment parse_assignment(std::string_view word) {
  const auto equals = word.find('=');
  std::string_view name = word.substr(0, equals);
  const auto bracket = name.find_first_of("[(");
  Assignment parsed;
  if (bracket != std::string_view::npos && (name.ends_with(']') || name.ends_with(')'))) {
    parsed.index = std::string(name.substr(bracket + 1, name.size() - bracket - 2));
    name = name.substr(0, bracket);
  }
  if (equals == std::string_view::npos || name.empty()) {
    throw UsageError("\"" + std::string(word) + "\" is not of the form FIELD=VALUE or FIELD[i]=VALUE");
  }
  parsed.name = name;
  parsed.value = word.substr(equals + 1);
  return parsed;
}

Error no_layout(std::string_view class_name, const Assignment& assignment) {
  return Error(ErrorNumber::MemberNotFound, class_name, assignment.name + " (it selects no layout)");
}

}  // namespace vorlan::cli
