#include "server/dbus/wire_error.hpp"

#include <algorithm>
#include <charconv>
#include <optional>

#include "server/dbus/names.hpp"
#include "server/dbus/wire_text.hpp"

namespace vorlan::dbus {

namespace {

constexpr std::string_view kMinus = "Minus";
/// Of source and description each: an error that quotes what it was given still fits a message.
constexpr std::size_t kLongest = 16U << 20U;

std::string error_name(std::int32_t number) {
  std::string digits = std::to_string(number);
  if (number < 0) digits.replace(0, 1, kMinus);
  return kErrorPrefix + digits;
}

std::optional<std::int32_t> error_number(std::string_view name) {
  if (!name.starts_with(kErrorPrefix)) return std::nullopt;
  std::string digits(name.substr(std::string_view(kErrorPrefix).size()));
  if (digits.starts_with(kMinus)) digits.replace(0, kMinus.size(), "-");
  std::int32_t number = 0;
  const char* end = digits.data() + digits.size();
  const auto [stopped, failed] = std::from_chars(digits.data(), end, number);
  if (failed != std::errc{} || stopped != end) return std::nullopt;
  return number;
}

}  // namespace

Message new_error(sd_bus_message* call, const Error& error) {
  const std::string name = error_name(error.number());
  std::string source = to_bus_text(std::string_view(error.source()).substr(0, kLongest));
  std::replace(source.begin(), source.end(), '\n', ' ');
  const std::string text = source + "\n" + to_bus_text(std::string_view(error.description()).substr(0, kLongest));
  const sd_bus_error parts{name.c_str(), text.c_str(), 0};
  sd_bus_message* made = nullptr;
  check(sd_bus_message_new_method_error(call, &made, &parts), "error");
  return Message(made);
}

Error read_error(sd_bus_message* reply, const std::string& source) {
  const sd_bus_error* error = sd_bus_message_get_error(reply);
  const std::string_view name = error->name != nullptr ? error->name : "";
  const std::string text = error->message != nullptr ? error->message : "";
  const auto number = error_number(name);
  if (!number) return {kAutomationError, source, "Automation error: " + std::string(name) + ": " + text};
  const auto end = text.find('\n');
  if (end == std::string::npos) return {*number, source, text};
  return {*number, text.substr(0, end), text.substr(end + 1)};
}

}  // namespace vorlan::dbus
