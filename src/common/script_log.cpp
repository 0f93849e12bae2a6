#include "common/script_log.hpp"

#include <algorithm>
#include <array>

#include "automation/class_info.hpp"
#include "automation/error.hpp"

namespace vorlan {

namespace {

constexpr std::string_view kRule = "----------------------------------------------------------------------";
constexpr std::string_view kIndent = "    ";
constexpr std::array<std::string_view, 3> kResults{"PASS", "FAIL", "INCONCLUSIVE"};

}  // namespace

ScriptLog::ScriptLog(Ref<Object> report, std::string_view add_line) : report_(std::move(report)), add_line_(add_line) {
  if (!report_) throw Error(ErrorNumber::ObjectNotSet);
}

void ScriptLog::add_line(std::string line) { report_->call(add_line_, std::move(line)); }

void ScriptLog::add_labelled(std::string_view label, std::string_view text) {
  std::string line(label);
  line.append(": ").append(text);
  add_line(std::move(line));
}

void ScriptLog::header(const Header& header) {
  add_line(std::string(kRule));
  add_labelled("Script", header.script);
  add_labelled("Description", header.description);
  add_labelled("Started", header.started);
  if (header.access_terminal) add_labelled("Access terminal", *header.access_terminal);
  if (header.sector) add_labelled("Sector", *header.sector);
  add_line(std::string(kRule));
}

void ScriptLog::parameters(const Value& names, const Value& values) {
  const auto line = [](const Value& name, const Value& value) {
    return std::string(kIndent) + name.to_text() + " = " + value.to_text();
  };
  const auto* name_list = names.as<Value::Array>();
  const auto* value_list = values.as<Value::Array>();
  if (name_list == nullptr && value_list == nullptr) return add_line(line(names, values));
  if (name_list == nullptr || value_list == nullptr) throw Error(ErrorNumber::TypeMismatch);
  if (name_list->size() != value_list->size()) throw Error(ErrorNumber::SubscriptOutOfRange);
  // All of them are made before the first is written: bad input leaves the report as it was.
  std::vector<std::string> lines(name_list->size());
  std::transform(name_list->begin(), name_list->end(), value_list->begin(), lines.begin(), line);
  for (std::string& text : lines) add_line(std::move(text));
}

void ScriptLog::information(std::string_view text) {
  for (;;) {
    const auto end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    add_line(std::string(line));
    if (end == text.size()) return;
    text.remove_prefix(end + 1);
    if (text.empty()) return;
  }
}

void ScriptLog::result(std::string_view script, std::string_view result, std::string_view finished,
                       std::string_view duration) {
  add_line(std::string(kRule));
  add_labelled("Script", script);
  add_labelled("Result", result);
  if (!duration.empty()) add_labelled("Duration", duration);
  add_labelled("Finished", finished);
  add_line(std::string(kRule));
}

std::optional<std::string_view> ScriptLog::result_word(const Value& result) {
  if (const bool* passed = result.as<bool>()) return kResults[*passed ? 0 : 1];
  const auto* text = result.as<std::string>();
  if (text == nullptr) return std::nullopt;
  const auto word = std::find_if(kResults.begin(), kResults.end(),
                                 [text](std::string_view known) { return equals_ignoring_case(known, *text); });
  if (word == kResults.end()) return std::nullopt;
  return *word;
}

std::string duration_text(std::int32_t seconds) {
  const std::int16_t minutes = Value(seconds / 60).to_integer();
  return std::to_string(minutes / 60) + " Hours, " + std::to_string(minutes % 60) + " Minutes and " +
         std::to_string(seconds % 60) + " Seconds.";
}

}  // namespace vorlan
