#include "parameters/ini_file.hpp"

#include <algorithm>

#include "automation/class_info.hpp"
#include "automation/error.hpp"

namespace vorlan {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool is_blank(char c) noexcept { return c == ' ' || c == '\t'; }
bool is_control(char c) noexcept { return (static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == 0x7F; }

std::string_view without_blanks_behind(std::string_view text) noexcept {
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

std::string_view trimmed(std::string_view text) noexcept {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return without_blanks_behind(text);
}

void append_folded(std::string& folded, std::string_view name) {
  for (const char c : name) folded += c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

std::string fold(std::string_view section) {
  std::string folded;
  append_folded(folded, section);
  return folded;
}

std::string fold(std::string_view section, std::string_view key) {
  std::string folded;
  folded.reserve(section.size() + key.size() + 1);
  append_folded(folded, section);
  folded += '\n';
  append_folded(folded, key);
  return folded;
}

bool is_comment(std::string_view text) noexcept { return text.empty() || text[0] == ';' || text[0] == '#'; }

/// Takes a text in quotes off the front of a line: its length, 0 if no quote closes it.
std::size_t quoted_length(std::string_view text) noexcept {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] != '"') continue;
    if (i + 1 == text.size() || text[i + 1] != '"') return i + 1;
    ++i;
  }
  return 0;
}

std::string unquoted(std::string_view quoted) {
  std::string text;
  for (std::size_t i = 1; i + 1 < quoted.size(); ++i) {
    text += quoted[i];
    if (quoted[i] == '"') ++i;
  }
  return text;
}

std::string in_quotes(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + "\"";
}

/// The part of an unquoted value in front of a comment.
std::string_view without_comment(std::string_view value) noexcept {
  for (std::size_t i = 0; i < value.size(); ++i) {
    const bool after_blank = i == 0 || is_blank(value[i - 1]);
    if (after_blank && (value[i] == ';' || (value[i] == '#' && i > 0)))
      return without_blanks_behind(value.substr(0, i));
  }
  return value;
}

}  // namespace

IniFile::IniFile(std::string path, std::string text) : path_(std::move(path)), text_(std::move(text)) { parse(); }

void IniFile::fail(const std::string& reason) const { throw Error(ErrorNumber::FileAccess, {}, path_ + reason); }

void IniFile::malformed(std::string_view reason) const {
  fail(", line " + std::to_string(line_) + ": " + std::string(reason));
}

std::size_t IniFile::offset_of(std::string_view part) const noexcept {
  return static_cast<std::size_t>(part.data() - text_.data());
}

void IniFile::parse() {
  std::string_view rest = text_;
  if (rest.starts_with("\xFF\xFE") || rest.starts_with("\xFE\xFF")) fail(": is UTF-16; UTF-8 is wanted");
  if (rest.starts_with(kByteOrderMark)) rest.remove_prefix(kByteOrderMark.size());
  for (line_ = 1; !rest.empty(); ++line_) {
    const auto end = std::min(rest.find('\n'), rest.size());
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (std::any_of(line.begin(), line.end(), is_control)) malformed("holds a control character");
    const std::string_view content = trimmed(line);
    if (is_comment(content)) continue;
    parse_line(content);
    sections_.back().end = text_.size() - rest.size();
  }
}

void IniFile::parse_line(std::string_view line) {
  if (line.starts_with('[')) {
    parse_section(line);
  } else {
    parse_entry(line);
  }
}

void IniFile::parse_section(std::string_view line) {
  const auto close = line.find(']');
  if (close == std::string_view::npos) malformed("a section without its ]");
  if (!is_comment(trimmed(line.substr(close + 1)))) malformed("something follows the section");
  const std::string_view name = trimmed(line.substr(1, close - 1));
  Section section{.name = std::string(name), .line = line_, .end = 0};
  const auto [found, fresh] = section_index_.try_emplace(fold(name), sections_.size());
  if (!fresh) {
    Section& first = sections_[found->second];
    first.again = line_;
    section.line = first.line;
    section.again = line_;
  }
  sections_.push_back(std::move(section));
}

void IniFile::parse_entry(std::string_view line) {
  std::string key;
  std::string_view rest = line;
  if (line.starts_with('"')) {
    const std::size_t length = quoted_length(line);
    key = unquoted(line.substr(0, length));
    rest = line.substr(length);
    rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
    if (length == 0 || !rest.starts_with('=')) malformed("a key in quotes without = behind it");
  } else {
    rest.remove_prefix(std::min(line.find('='), line.size()));
    if (rest.empty()) malformed("neither a section nor key = value");
    key = without_blanks_behind(line.substr(0, line.size() - rest.size()));
  }
  if (key.empty()) malformed("no key in front of =");
  if (sections_.empty()) malformed("a key in front of the first section");
  rest.remove_prefix(1);

  Entry entry{.key = std::move(key), .value = {}, .section = sections_.size() - 1, .line = line_, .begin = 0, .end = 0};
  std::string_view written = trimmed(rest);
  if (written.starts_with('"')) {
    const std::size_t length = quoted_length(written);
    if (length == 0) malformed("a value without its closing quote");
    if (!is_comment(trimmed(written.substr(length)))) malformed("something follows the value in quotes");
    written = written.substr(0, length);
    entry.value = unquoted(written);
  } else {
    written = without_comment(written);
    entry.value = written;
    // A value may come to stand here: right behind =, in front of the blank that a comment needs.
    if (written.empty()) written = rest.substr(0, 0);
  }
  entry.begin = offset_of(written);
  entry.end = entry.begin + written.size();

  const auto [found, fresh] = entry_index_.try_emplace(fold(sections_[entry.section].name, entry.key), entries_.size());
  if (!fresh && entries_[found->second].again == 0) entries_[found->second].again = line_;
  entries_.push_back(std::move(entry));
}

const IniFile::Section* IniFile::find_section(std::string_view section) const {
  const auto found = section_index_.find(fold(section));
  return found == section_index_.end() ? nullptr : &sections_[found->second];
}

void IniFile::check_single(const Section& section) const {
  if (section.again == 0) return;
  fail(": section [" + section.name + "] begins in line " + std::to_string(section.line) + " and again in line " +
       std::to_string(section.again));
}

const IniFile::Entry* IniFile::find(std::string_view section, std::string_view key) const {
  auto found = entry_index_.find(fold(section, key));
  if (found == entry_index_.end() && !key.empty() && is_blank(key.back())) {
    found = entry_index_.find(fold(section, without_blanks_behind(key)));
  }
  if (found == entry_index_.end()) {
    if (const Section* const there = find_section(section)) check_single(*there);
    return nullptr;
  }
  const Entry& entry = entries_[found->second];
  check_single(sections_[entry.section]);
  if (entry.again != 0) {
    fail(": key " + entry.key + " of section [" + sections_[entry.section].name + "] stands in line " +
         std::to_string(entry.line) + " and again in line " + std::to_string(entry.again));
  }
  return &entry;
}

const IniFile::Entry& IniFile::at(std::string_view section, std::string_view key) const {
  if (const Entry* const entry = find(section, key)) return *entry;
  std::string reason = path_ + ": no ";
  if (find_section(section) != nullptr) reason.append("key ").append(key).append(" in ");
  throw Error(ErrorNumber::InvalidCall, {}, reason.append("section [").append(section).append("]"));
}

std::vector<std::string> IniFile::section_strings(std::string_view section) const {
  const Section* const there = find_section(section);
  if (there == nullptr)
    throw Error(ErrorNumber::InvalidCall, {}, path_ + ": no section [" + std::string(section) + "]");
  check_single(*there);
  const auto index = static_cast<std::size_t>(there - sections_.data());
  std::vector<std::string> strings;
  for (const Entry& entry : entries_) {
    if (entry.section == index) strings.push_back(entry.key + "=" + entry.value);
  }
  return strings;
}

std::string IniFile::with_value(std::string_view section, std::string_view key, std::string_view value) const {
  const auto refuse = [](std::string_view what) {
    throw Error(ErrorNumber::InvalidCall, {}, std::string(what) + " that no line of a parameter file can hold");
  };
  if (std::any_of(value.begin(), value.end(), is_control)) refuse("a value");
  const bool plain = value == trimmed(value) && value == without_comment(value) && !value.starts_with('"');
  const std::string written = plain ? std::string(value) : in_quotes(value);
  std::string text = text_;
  if (const Entry* const entry = find(section, key)) {
    return text.replace(entry->begin, entry->end - entry->begin, written);
  }

  if (key.empty() || std::any_of(key.begin(), key.end(), is_control)) refuse("a key");
  if (section.find_first_of("]\r\n") != std::string_view::npos || section != trimmed(section)) refuse("a section");
  const std::string line_end = text.find("\r\n") != std::string::npos ? "\r\n" : "\n";
  const bool plain_key = key == trimmed(key) && key.find('=') == std::string_view::npos && !key.starts_with('[') &&
                         !key.starts_with('"') && !is_comment(key);
  std::string line = (plain_key ? std::string(key) : in_quotes(key)) + " = " + written + line_end;
  const Section* const there = find_section(section);
  std::size_t place = text.size();
  if (there != nullptr) {
    place = there->end;
  } else {
    line.insert(0, "[" + std::string(section) + "]" + line_end);
  }
  if (place > 0 && text[place - 1] != '\n' && place == text.size()) line.insert(0, line_end);
  return text.insert(place, line);
}

}  // namespace vorlan
