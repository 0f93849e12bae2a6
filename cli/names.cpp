#include "cli/names.hpp"

#include "automation/error.hpp"

namespace vorlan::cli {

namespace {

bool matches_glob(std::string_view pattern, std::string_view text) noexcept {
  std::size_t p = 0;
  std::size_t t = 0;
  std::size_t star = std::string_view::npos;  // the last "*", and where the text it stands for begins
  std::size_t covered = 0;
  while (t < text.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      covered = t;
    } else if (p < pattern.size() &&
               (pattern[p] == '?' || equals_ignoring_case(pattern.substr(p, 1), text.substr(t, 1)))) {
      ++p;
      ++t;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      t = ++covered;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

}  // namespace

bool matches(std::string_view pattern, std::string_view text) noexcept {
  if (pattern.find_first_of("*?") != std::string_view::npos) return matches_glob(pattern, text);
  for (std::size_t i = 0; i + pattern.size() <= text.size(); ++i) {
    if (equals_ignoring_case(pattern, text.substr(i, pattern.size()))) return true;
  }
  return false;
}

std::string listed_name(const Registry::Class& named) {
  return named.server == "Vorlan" ? std::string(named.name()) : named.prog_id();
}

const Registry::Class& class_named(const Registry& registry, const std::string& name) {
  if (const Registry::Class* found = registry.find(name)) return *found;
  constexpr int kFew = 4;
  int alike = 0;
  std::string meant;
  for (const Registry::Class& other : registry.classes()) {
    if (name.empty() || !matches(name, other.name())) continue;
    meant += (alike++ == 0 ? " (did you mean " : ", ") + listed_name(other);
  }
  throw Error(ErrorNumber::CannotCreateObject, "Vorlan", alike > 0 && alike <= kFew ? name + meant + "?)" : name);
}

bool same_member(std::string_view typed, std::string_view member) noexcept {
  return equals_ignoring_case(typed, member) || equals_ignoring_case(typed, bare_name(member));
}

}  // namespace vorlan::cli
