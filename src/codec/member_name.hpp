// Names of members that are checked when they are compiled.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace vorlan {

/// A member's name as a template argument.
template <std::size_t N>
struct MemberName {
  char text[N]{};
  constexpr MemberName(const char (&name)[N]) { std::copy_n(name, N, text); }  // NOLINT: a name given as it is
  [[nodiscard]] constexpr std::string_view view() const noexcept { return {text, N - 1}; }
};

}  // namespace vorlan
