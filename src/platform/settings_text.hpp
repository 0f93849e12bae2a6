// The text of a settings file: [application\section] above lines of key=value. Comments and order are kept.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorlan {

/// Any text goes in and comes out as it was: what has a meaning of its own in the file is written as %XX. Sections and
/// keys are found without regard to case, as in the registry.
class SettingsText {
 public:
  /// Nothing for a text that no settings file can be, such as one damaged on the disk.
  static std::optional<SettingsText> parse(std::string_view text);

  [[nodiscard]] std::optional<std::string> read(std::string_view application, std::string_view section,
                                                std::string_view key) const;
  void write(std::string_view application, std::string_view section, std::string_view key, std::string_view value);
  [[nodiscard]] std::string text() const;

 private:
  struct Place {
    std::size_t line;  ///< of the setting; where to insert it if there is none
    bool section_found;
    bool key_found;
  };
  [[nodiscard]] Place find(std::string_view header, std::string_view key) const;

  std::vector<std::string> lines_;
};

}  // namespace vorlan
