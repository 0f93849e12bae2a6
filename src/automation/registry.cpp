#include "automation/registry.hpp"

#include <algorithm>
#include <stdexcept>

#include "automation/error.hpp"

namespace vorlan {

namespace {

bool less_ignoring_case(std::string_view a, std::string_view b) noexcept {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : static_cast<int>(c); };
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [&](char x, char y) { return lower(x) < lower(y); });
}

}  // namespace

Registry::Registry(std::span<const ClassTable> tables) {
  for (const ClassTable& table : tables) {
    for (const ClassEntry& entry : table.classes) classes_.push_back({table.server, &entry});
  }
  std::sort(classes_.begin(), classes_.end(),
            [](const Class& a, const Class& b) { return less_ignoring_case(a.name(), b.name()); });
  const auto twice = std::adjacent_find(classes_.begin(), classes_.end(), [](const Class& a, const Class& b) {
    return equals_ignoring_case(a.name(), b.name());
  });
  if (twice != classes_.end()) throw std::logic_error("class listed twice: " + std::string(twice->name()));
}

const Registry::Class* Registry::find(std::string_view name) const noexcept {
  const auto dot = name.find('.');
  const std::string_view server = dot == std::string_view::npos ? std::string_view{} : name.substr(0, dot);
  const std::string_view bare = dot == std::string_view::npos ? name : name.substr(dot + 1);
  const auto found = std::lower_bound(classes_.begin(), classes_.end(), bare, [](const Class& c, std::string_view n) {
    return less_ignoring_case(c.name(), n);
  });
  if (found == classes_.end() || !equals_ignoring_case(found->name(), bare)) return nullptr;
  if (!server.empty() && !equals_ignoring_case(found->server, server)) return nullptr;
  return &*found;
}

const Registry::Class& Registry::at(std::string_view name) const {
  if (const Class* found = find(name)) return *found;
  throw Error(ErrorNumber::CannotCreateObject, "Vorlan", name);
}

Ref<Object> Registry::create(std::string_view name, Platform& platform) const {
  return at(name).entry->create(platform);
}

}  // namespace vorlan
