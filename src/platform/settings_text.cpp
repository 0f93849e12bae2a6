#include "platform/settings_text.hpp"

#include <algorithm>

#include "automation/class_info.hpp"

namespace vorlan {

namespace {

bool is_control(char c) noexcept { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

/// Escapes what would be read as something else: controls, "%", the characters named, and blanks at either end.
std::string escaped(std::string_view text, std::string_view also) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const bool outer_blank = c == ' ' && (i == 0 || i + 1 == text.size());
    if (is_control(c) || c == '%' || outer_blank || also.find(c) != std::string_view::npos) {
      const auto octet = static_cast<unsigned char>(c);
      result.append({'%', kDigits[octet >> 4U], kDigits[octet & 15U]});
    } else {
      result += c;
    }
  }
  return result;
}

int digit(char c) noexcept {
  if (c >= '0' && c <= '9') return c - '0';
  return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

std::optional<std::string> unescaped(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%') {
      result += text[i];
      continue;
    }
    if (i + 2 >= text.size() || digit(text[i + 1]) < 0 || digit(text[i + 2]) < 0) return std::nullopt;
    result += static_cast<char>(digit(text[i + 1]) * 16 + digit(text[i + 2]));
    i += 2;
  }
  return result;
}

std::string header_of(std::string_view application, std::string_view section) {
  return "[" + escaped(application, "\\]") + "\\" + escaped(section, "\\]") + "]";
}

std::string key_of(std::string_view key) { return escaped(key, "=[;"); }

bool is_header(std::string_view line) noexcept { return line.starts_with('[') && line.ends_with(']'); }
bool is_comment(std::string_view line) noexcept { return line.empty() || line.starts_with(';'); }

}  // namespace

std::optional<SettingsText> SettingsText::parse(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  SettingsText result;
  bool in_section = false;
  while (!text.empty()) {
    const auto end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (std::any_of(line.begin(), line.end(), is_control)) return std::nullopt;
    if (!is_comment(line)) {
      const bool header = is_header(line);
      const bool setting = in_section && line.find('=') != std::string_view::npos;
      if ((!header && !setting) || !unescaped(line)) return std::nullopt;
      in_section = true;
    }
    result.lines_.emplace_back(line);
  }
  return result;
}

SettingsText::Place SettingsText::find(std::string_view header, std::string_view key) const {
  Place place{lines_.size(), false, false};
  bool here = false;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const std::string_view line = lines_[i];
    if (is_comment(line)) continue;
    if (is_header(line)) {
      here = equals_ignoring_case(line, header);
      if (here) place = {i + 1, true, false};
    } else if (here) {
      if (equals_ignoring_case(line.substr(0, line.find('=')), key)) return {i, true, true};
      place.line = i + 1;
    }
  }
  return place;
}

std::optional<std::string> SettingsText::read(std::string_view application, std::string_view section,
                                              std::string_view key) const {
  const Place place = find(header_of(application, section), key_of(key));
  if (!place.key_found) return std::nullopt;
  const std::string_view line = lines_[place.line];
  return unescaped(line.substr(line.find('=') + 1));
}

void SettingsText::write(std::string_view application, std::string_view section, std::string_view key,
                         std::string_view value) {
  const std::string header = header_of(application, section);
  const std::string name = key_of(key);
  const Place place = find(header, name);
  std::string line = name + "=" + escaped(value, {});
  if (place.key_found) {
    lines_[place.line] = std::move(line);
    return;
  }
  if (!place.section_found) {
    lines_.push_back(header);
    lines_.push_back(std::move(line));
    return;
  }
  lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(place.line), std::move(line));
}

std::string SettingsText::text() const {
  std::string result;
  for (const std::string& line : lines_) result.append(line).append("\n");
  return result;
}

}  // namespace vorlan
