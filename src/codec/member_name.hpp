// Names of members: as people see them, and as they are checked when they are compiled.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace vorlan {

/// "CloseReason" of PRstr_CloseReason; a name without a property's prefix as it is.
constexpr std::string_view bare_name(std::string_view name) noexcept {
  return name.starts_with("PR") && name.find('_') != std::string_view::npos ? name.substr(name.find('_') + 1) : name;
}

/// A member's name as a template argument.
template <std::size_t N>
struct MemberName {
  char text[N]{};
  constexpr MemberName(const char (&name)[N]) { std::copy_n(name, N, text); }  // NOLINT: a name given as it is
  [[nodiscard]] constexpr std::string_view view() const noexcept { return {text, N - 1}; }
};

}  // namespace vorlan
