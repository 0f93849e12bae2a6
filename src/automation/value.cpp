#include "automation/value.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <limits>

#include "automation/error.hpp"
#include "automation/object.hpp"

namespace vorlan {

namespace {

constexpr std::array<std::string_view, 12> kTypeNames{"Empty",  "Null", "Boolean", "Integer", "Long",   "Single",
                                                      "Double", "Date", "String",  "Array",   "Object", "Variant"};

[[noreturn]] void mismatch() { throw Error(ErrorNumber::TypeMismatch); }
[[noreturn]] void overflow() { throw Error(ErrorNumber::Overflow); }

template <class T>
T round_to(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= std::numeric_limits<T>::min() && rounded <= std::numeric_limits<T>::max())) overflow();
  return static_cast<T>(rounded);
}

std::string_view trimmed(std::string_view text) noexcept {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// &H1F and &O17; sixteen-bit patterns are negative from &H8000 on, as automation reads them.
std::optional<double> parse_radix(std::string_view digits, int base) noexcept {
  std::uint32_t bits = 0;
  const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), bits, base);
  if (digits.empty() || fault != std::errc{} || end != digits.data() + digits.size()) return std::nullopt;
  if (bits <= 0xFFFF) return static_cast<std::int16_t>(bits);
  return static_cast<std::int32_t>(bits);
}

constexpr std::chrono::sys_days kDayZero = std::chrono::December / 30 / 1899;
constexpr double kFirstDay = -657434;      // 0100-01-01
constexpr double kDayAfterLast = 2958466;  // 10000-01-01
constexpr long kSecondsPerDay = 86400;

std::string date_text(Date date) {
  if (!(date.days >= kFirstDay && date.days < kDayAfterLast)) overflow();
  const double whole = std::floor(date.days);
  long second = std::lround((date.days - whole) * kSecondsPerDay);
  const std::chrono::year_month_day day =
      kDayZero + std::chrono::days(static_cast<long>(whole) + second / kSecondsPerDay);
  second %= kSecondsPerDay;
  std::array<char, 40> text;
  const int length = std::snprintf(text.data(), text.size(), "%d-%02u-%02u %02ld:%02ld:%02ld",
                                   static_cast<int>(day.year()), static_cast<unsigned>(day.month()),
                                   static_cast<unsigned>(day.day()), second / 3600, second / 60 % 60, second % 60);
  return {text.data(), static_cast<std::size_t>(length)};
}

/// "2026-11-05", "2026-11-05 09:07" and what date_text writes.
std::optional<Date> parse_date(std::string_view text) noexcept {
  constexpr std::string_view kSeparators = "-- ::";
  std::array<int, kSeparators.size() + 1> parts{};
  std::size_t count = 0;
  for (bool more = true; more; ++count) {
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), parts[count]);
    if (fault != std::errc{} || parts[count] < 0) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    more = count < kSeparators.size() && text.starts_with(kSeparators[count]);
    if (more) text.remove_prefix(1);
  }
  const auto [year, month, day, hour, minute, second] = parts;
  const std::chrono::year_month_day date(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(day)));
  // What does not fit a month's or a day's octet would be cut off.
  const bool is_date = year >= 100 && year <= 9999 && month <= 12 && day <= 31 && date.ok();
  const bool is_time = hour <= 23 && minute <= 59 && second <= 59;
  if (!text.empty() || count == 4 || count < 3 || !is_date || !is_time) return std::nullopt;
  const auto days = static_cast<double>((std::chrono::sys_days(date) - kDayZero).count());
  return Date{days + (hour * 3600 + minute * 60 + second) / static_cast<double>(kSecondsPerDay)};
}

/// Turns "1.50000e+15" pieces into automation's form: digits without trailing zeros, exponent of two digits or more.
std::string format_number(double value, int digits) {
  if (value == 0) return "0";
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return value < 0 ? "-INF" : "INF";
  std::array<char, 40> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                 std::chars_format::scientific, digits - 1)
                       .ptr;
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const auto mark = text.find('e');
  int exponent = 0;
  const char* exponent_digits = text.data() + mark + (text[mark + 1] == '+' ? 2 : 1);
  std::from_chars(exponent_digits, end, exponent);
  std::string mantissa{text[0]};
  mantissa.append(text.substr(2, mark - 2));
  mantissa.erase(mantissa.find_last_not_of('0') + 1);

  std::string result = value < 0 ? "-" : "";
  const auto length = static_cast<int>(mantissa.size());
  if (exponent >= digits || exponent < -digits || (exponent < 0 && length - exponent - 1 > digits)) {
    result += mantissa.substr(0, 1);
    if (length > 1) result += "." + mantissa.substr(1);
    const std::string magnitude = std::to_string(std::abs(exponent));
    return result + (exponent < 0 ? "E-" : "E+") + (magnitude.size() < 2 ? "0" : "") + magnitude;
  }
  if (exponent < 0) return result + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + mantissa;
  if (length <= exponent + 1)
    return result + mantissa + std::string(static_cast<std::size_t>(exponent + 1 - length), '0');
  return result + mantissa.substr(0, static_cast<std::size_t>(exponent + 1)) + "." +
         mantissa.substr(static_cast<std::size_t>(exponent + 1));
}

}  // namespace

std::string_view type_name(ValueType type) noexcept { return kTypeNames[static_cast<std::size_t>(type)]; }

std::int16_t round_to_integer(double value) { return round_to<std::int16_t>(value); }
std::int32_t round_to_long(double value) { return round_to<std::int32_t>(value); }

std::optional<double> parse_number(std::string_view text) noexcept {
  text = trimmed(text);
  if (text.size() > 2 && text[0] == '&') {
    if (text[1] == 'H' || text[1] == 'h') return parse_radix(text.substr(2), 16);
    if (text[1] == 'O' || text[1] == 'o') return parse_radix(text.substr(2), 8);
  }
  const bool signed_text = !text.empty() && (text[0] == '+' || text[0] == '-');
  const std::string_view unsigned_text = text.substr(signed_text ? 1 : 0);
  if (unsigned_text.empty() || !(unsigned_text[0] == '.' || (unsigned_text[0] >= '0' && unsigned_text[0] <= '9'))) {
    return std::nullopt;
  }
  double number = 0;
  const auto [end, fault] = std::from_chars(unsigned_text.data(), unsigned_text.data() + unsigned_text.size(), number);
  if (fault != std::errc{} || end != unsigned_text.data() + unsigned_text.size()) return std::nullopt;
  return text[0] == '-' ? -number : number;
}

std::string number_text(double value) { return format_number(value, 15); }
std::string number_text(float value) { return format_number(value, 7); }

bool Value::is_numeric() const noexcept {
  switch (type()) {
    case ValueType::Empty:
    case ValueType::Boolean:
    case ValueType::Integer:
    case ValueType::Long:
    case ValueType::Single:
    case ValueType::Double: return true;
    case ValueType::String: return parse_number(*as<std::string>()).has_value();
    default: return false;
  }
}

double Value::to_double() const {
  switch (type()) {
    case ValueType::Empty: return 0;
    case ValueType::Null: throw Error(ErrorNumber::InvalidUseOfNull);
    case ValueType::Boolean: return *as<bool>() ? -1 : 0;
    case ValueType::Integer: return *as<std::int16_t>();
    case ValueType::Long: return *as<std::int32_t>();
    case ValueType::Single: return *as<float>();
    case ValueType::Double: return *as<double>();
    case ValueType::Date: return as<Date>()->days;
    case ValueType::String:
      if (const auto number = parse_number(*as<std::string>())) return *number;
      mismatch();
    default: mismatch();
  }
}

std::int16_t Value::to_integer() const {
  if (const auto* exact = as<std::int16_t>()) return *exact;
  return round_to_integer(to_double());
}

std::int32_t Value::to_long() const {
  if (const auto* exact = as<std::int32_t>()) return *exact;
  return round_to_long(to_double());
}

float Value::to_single() const {
  if (const auto* exact = as<float>()) return *exact;
  const double number = to_double();
  if (std::isfinite(number) && std::abs(number) > static_cast<double>(std::numeric_limits<float>::max())) overflow();
  return static_cast<float>(number);
}

bool Value::to_boolean() const {
  if (const auto* exact = as<bool>()) return *exact;
  if (const auto* text = as<std::string>()) {
    const auto equals = [text](std::string_view word) {
      return std::equal(text->begin(), text->end(), word.begin(), word.end(),
                        [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a + ('a' - 'A') : a) == b; });
    };
    if (equals("true")) return true;
    if (equals("false")) return false;
  }
  return to_double() != 0;
}

Date Value::to_date() const {
  if (const auto* exact = as<Date>()) return *exact;
  if (const auto* text = as<std::string>()) {
    if (const auto date = parse_date(trimmed(*text))) return *date;
  }
  return {to_double()};
}

std::string Value::to_text() const {
  switch (type()) {
    case ValueType::Empty: return {};
    case ValueType::Null: throw Error(ErrorNumber::InvalidUseOfNull);
    case ValueType::Boolean: return *as<bool>() ? "True" : "False";
    case ValueType::Integer: return std::to_string(*as<std::int16_t>());
    case ValueType::Long: return std::to_string(*as<std::int32_t>());
    case ValueType::Single: return number_text(*as<float>());
    case ValueType::Double: return number_text(*as<double>());
    case ValueType::Date: return date_text(*as<Date>());
    case ValueType::String: return *as<std::string>();
    default: mismatch();
  }
}

Ref<Object> Value::to_object() const {
  if (const auto* object = as<Ref<Object>>()) return *object;
  if (is_empty()) return {};
  mismatch();
}

Value Value::converted_to(ValueType wanted) const {
  if (wanted == type() || wanted == ValueType::Any) return *this;
  switch (wanted) {
    case ValueType::Boolean: return to_boolean();
    case ValueType::Integer: return to_integer();
    case ValueType::Long: return to_long();
    case ValueType::Single: return to_single();
    case ValueType::Double: return to_double();
    case ValueType::Date: return to_date();
    case ValueType::String: return to_text();
    case ValueType::Object: return to_object();
    default: mismatch();
  }
}

Object& deref(const Ref<Object>& object, std::string_view source) {
  if (!object) throw Error(ErrorNumber::ObjectNotSet, source);
  return *object;
}

}  // namespace vorlan
