#include "messages/connection/system_time.hpp"

#include <chrono>

namespace vorlan {

namespace {

std::int64_t number(std::string_view bits) {
  std::int64_t value = 0;
  for (const char bit : bits) value = 2 * value + (bit == '1' ? 1 : 0);
  return value;
}

std::string digits(std::int64_t value, std::size_t width) {
  const std::string text = std::to_string(value);
  return std::string(text.size() < width ? width - text.size() : 0, '0') + text;
}

std::string date_text(std::chrono::milliseconds since_start) {
  using namespace std::chrono;
  const auto time = sys_days(year(1980) / January / 6) + since_start;
  const auto day = floor<days>(time);
  const year_month_day date(day);
  const hh_mm_ss clock(time - day);
  return digits(static_cast<int>(date.year()), 4) + "-" + digits(static_cast<unsigned>(date.month()), 2) + "-" +
         digits(static_cast<unsigned>(date.day()), 2) + " " + digits(clock.hours().count(), 2) + ":" +
         digits(clock.minutes().count(), 2) + ":" + digits(clock.seconds().count(), 2) + "." +
         digits(clock.subseconds().count(), 3);
}

constexpr std::size_t kTimeBits = 40;

}  // namespace

std::string frames_text(std::string_view bits) {
  return bits.size() > kTimeBits ? std::string() : date_text(std::chrono::milliseconds(number(bits) * 80 / 3));
}

std::string units_of_80_ms_text(std::string_view bits) {
  return bits.size() > kTimeBits ? std::string() : date_text(std::chrono::milliseconds(number(bits) * 80));
}

}  // namespace vorlan
