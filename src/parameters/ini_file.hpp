// The text of a parameter file: sections of keys and values.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vorlan {

/// [Section] above lines of Key = Value, in UTF-8 with or without a byte order mark, lines ended by LF or CR LF.
/// - Sections and keys are found without regard to case. Blanks around names and values do not count.
/// - A line that starts with ; or # is a comment. So is what follows a blank and ; behind a value, or a blank and #
///   behind a value that is not empty: a value may start with #, as dial strings do.
/// - A value in double quotes is kept as it is, comments' characters and outer blanks included; "" stands for one
///   quote. A key may stand in quotes as well, and then keeps its outer blanks.
/// - A key asked for with blanks at its end is also answered by the key without them.
class IniFile {
 public:
  struct Section {
    std::string name;
    std::size_t line;
    std::size_t again = 0;  ///< the line where it begins a second time; 0: nowhere
    std::size_t end;        ///< behind the line of its last key: where another may be inserted
  };
  struct Entry {
    std::string key;
    std::string value;
    std::size_t section;  ///< index
    std::size_t line;
    std::size_t again = 0;  ///< the line where the key stands a second time; 0: nowhere
    std::size_t begin;      ///< of the value as it is written, quotes included
    std::size_t end;
  };

  /// The path names the file in errors. Error 75, with the line, for a line that is none of the above.
  IniFile(std::string path, std::string text);

  [[nodiscard]] const std::string& path() const noexcept { return path_; }
  [[nodiscard]] const std::string& text() const noexcept { return text_; }

  /// Null if there is no such key. Error 75 if it stands there twice, or its section does: both lines are named.
  [[nodiscard]] const Entry* find(std::string_view section, std::string_view key) const;
  /// As find(), but error 5 if there is no such key.
  [[nodiscard]] const Entry& at(std::string_view section, std::string_view key) const;
  /// "Key=Value" for each key, in order. Error 5 if there is no such section, 75 if there are two.
  [[nodiscard]] std::vector<std::string> section_strings(std::string_view section) const;
  /// The text with another value of a key, added (with its section) where there is none; every other octet is kept.
  /// Error 5 for what cannot be written in one line.
  [[nodiscard]] std::string with_value(std::string_view section, std::string_view key, std::string_view value) const;

 private:
  void parse();
  void parse_line(std::string_view line);
  void parse_section(std::string_view line);
  void parse_entry(std::string_view line);
  [[nodiscard]] std::size_t offset_of(std::string_view part) const noexcept;
  [[noreturn]] void fail(const std::string& reason) const;
  [[noreturn]] void malformed(std::string_view reason) const;
  [[nodiscard]] const Section* find_section(std::string_view section) const;
  void check_single(const Section& section) const;

  std::string path_;
  std::string text_;
  std::vector<Section> sections_;
  std::vector<Entry> entries_;
  std::unordered_map<std::string, std::size_t> section_index_;  // folded name
  std::unordered_map<std::string, std::size_t> entry_index_;    // folded section and key
  std::size_t line_ = 0;                                        // being parsed
};

}  // namespace vorlan
