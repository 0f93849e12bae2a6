#include "parameters/ini_number.hpp"

#include <algorithm>
#include <array>
#include <charconv>

#include "automation/class_info.hpp"
#include "automation/value.hpp"

namespace vorlan {

namespace {

constexpr std::array<std::string_view, 3> kOn{"True", "Yes", "On"};
constexpr std::array<std::string_view, 3> kOff{"False", "No", "Off"};

bool is_one_of(const std::array<std::string_view, 3>& words, std::string_view text) noexcept {
  return std::any_of(words.begin(), words.end(), [text](auto word) { return equals_ignoring_case(word, text); });
}

}  // namespace

std::optional<double> parse_ini_number(std::string_view text) noexcept {
  const std::string_view prefix = text.substr(0, 2);
  if (!equals_ignoring_case(prefix, "0x") && !equals_ignoring_case(prefix, "&H")) return parse_number(text);
  std::uint32_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, fault] = std::from_chars(text.data() + 2, end, number, 16);
  if (fault != std::errc{} || stop != end) return std::nullopt;
  return number;
}

std::optional<bool> parse_ini_switch(std::string_view text) noexcept {
  if (is_one_of(kOn, text)) return true;
  if (is_one_of(kOff, text)) return false;
  if (const auto number = parse_ini_number(text)) return *number != 0;
  return std::nullopt;
}

}  // namespace vorlan
