// Tables of rows, each of which is made a class: rows found by the name of their class, and all classes listed.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "automation/registry.hpp"

namespace vorlan {

/// The index of the row of a class; the number of rows if there is none.
template <const auto& Rows>
constexpr std::size_t row_of(std::string_view name) noexcept {
  std::size_t index = 0;
  while (index < std::size(Rows) && Rows[index].name != name) ++index;
  return index;
}

/// One entry for each row: Class<Rows, 0>, Class<Rows, 1> and so on.
template <template <const auto&, std::size_t> class Class, const auto& Rows>
constexpr auto entries_of() {
  return []<std::size_t... kIndex>(std::index_sequence<kIndex...>) {
    return std::array{ClassEntry{Rows[kIndex].name, &Class<Rows, kIndex>::info, &Class<Rows, kIndex>::create}...};
  }
  (std::make_index_sequence<std::size(Rows)>());
}

template <std::size_t... kSizes>
constexpr auto joined(const std::array<ClassEntry, kSizes>&... tables) {
  std::array<ClassEntry, (kSizes + ...)> all{};
  auto* end = all.data();
  ((end = std::copy(tables.begin(), tables.end(), end)), ...);
  return all;
}

}  // namespace vorlan
