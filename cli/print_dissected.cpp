#include "cli/print_dissected.hpp"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "common/bits.hpp"
#include "common/octets.hpp"
#include "nlohmann/json.hpp"

namespace vorlan::cli {

namespace {

using nlohmann::ordered_json;

ordered_json tree_json(std::span<const DissectedField> tree) {
  auto list = ordered_json::array();
  for (const DissectedField& field : tree) {
    ordered_json node{{"name", field.name}, {"first", field.first}};
    if (field.below.empty()) node.update({{"width", field.bits.size()}, {"bits", field.bits}});
    if (field.below.empty() || !field.value.empty()) node["value"] = field.value;
    if (!field.note.empty()) node["note"] = field.note;
    if (!field.below.empty()) node["fields"] = tree_json(field.below);
    list.push_back(std::move(node));
  }
  return list;
}

}  // namespace

void print_dissected(std::string_view class_name, std::string_view bits, std::span<const DissectedField> tree,
                     bool json) {
  const std::string name(class_name);
  std::vector<std::uint8_t> packed(octets_for(bits.size()));
  pack_bits(bits, packed.data());
  const std::span<const std::uint8_t> octets(packed);
  if (json) {
    const ordered_json whole{
        {"class", name}, {"length", bits.size()}, {"octets", octets_text(octets)}, {"fields", tree_json(tree)}};
    std::puts(whole.dump(2).c_str());
    return;
  }
  std::printf("%s, %zu bits\n", name.c_str(), bits.size());
  constexpr std::size_t kOctetsPerLine = 24;
  for (auto left = octets; !left.empty(); left = left.subspan(std::min(kOctetsPerLine, left.size()))) {
    std::printf("  %s\n", octets_text(left.first(std::min(kOctetsPerLine, left.size()))).c_str());
  }
  std::printf("\n%s", field_tree_text(tree, "  ").c_str());
}

}  // namespace vorlan::cli
