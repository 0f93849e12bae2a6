// What a test script writes to the test report: its header, its parameters, information and its result.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "automation/object.hpp"

namespace vorlan {

/// The test report's member that adds one line of text, unless a laboratory names another.
inline constexpr std::string_view kAddReportLine = "AddText";

/// Writes to a test report object, one call per line. Error 91 if the report is Nothing.
class ScriptLog {
 public:
  explicit ScriptLog(Ref<Object> report, std::string_view add_line = kAddReportLine);

  struct Header {
    std::string_view script;
    std::string_view description;
    std::string started;  ///< date and time
    std::optional<std::string> access_terminal;
    std::optional<std::string> sector;
  };
  void header(const Header& header);
  /// One line "name = value", or one for each element of two arrays of equal length (error 9 if they are not).
  void parameters(const Value& names, const Value& values);
  /// A line for each line of the text.
  void information(std::string_view text);
  /// `result` is one that result_word() gives; `duration` may be empty.
  void result(std::string_view script, std::string_view result, std::string_view finished, std::string_view duration);

  /// "PASS", "FAIL" or "INCONCLUSIVE", from a text in any case or a Boolean; nothing for anything else.
  static std::optional<std::string_view> result_word(const Value& result);

 private:
  void add_line(std::string line);
  void add_labelled(std::string_view label, std::string_view text);

  Ref<Object> report_;
  std::string add_line_;
};

/// "1 Hours, 2 Minutes and 5 Seconds."; error 6 above 32767 minutes.
std::string duration_text(std::int32_t seconds);

}  // namespace vorlan
