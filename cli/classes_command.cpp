// vorlan classes
#include <cstdio>

#include "cli/commands.hpp"
#include "cli/names.hpp"
#include "cli/table.hpp"
#include "nlohmann/json.hpp"

namespace vorlan::cli {

void list_classes(const Registry& registry, const std::string& pattern, bool json) {
  Table table;
  auto list = nlohmann::ordered_json::array();
  for (const Registry::Class& listed : registry.classes()) {
    const std::string name = listed_name(listed);
    if (!pattern.empty() && !matches(pattern, name)) continue;
    const std::string summary(listed.info().summary());
    if (json) {
      list.push_back({{"name", name}, {"summary", summary}});
    } else {
      table.add({name, summary});
    }
  }
  if (json) {
    std::puts(list.dump(2).c_str());
    return;
  }
  const std::string text = table.text();
  std::fputs(text.c_str(), stdout);
  if (text.empty()) std::fprintf(stderr, "vorlan: no class matches \"%s\"\n", pattern.c_str());
}

}  // namespace vorlan::cli
