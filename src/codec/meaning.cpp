#include "codec/meaning.hpp"

#include <algorithm>

#include "automation/value.hpp"
#include "codec/meanings.hpp"

namespace vorlan {

namespace {

std::uint64_t unsigned_value(std::string_view bits) noexcept {
  std::uint64_t value = 0;
  for (const char bit : bits) value = (value << 1U) | (bit == '1' ? 1U : 0U);
  return value;
}

std::int64_t signed_value(std::string_view bits) noexcept {
  auto value = static_cast<std::int64_t>(unsigned_value(bits));
  if (!bits.empty() && bits.front() == '1' && bits.size() < 64) value -= std::int64_t{1} << bits.size();
  return value;
}

std::string two_digits(std::int64_t number) { return (number < 10 ? "0" : "") + std::to_string(number); }

}  // namespace

std::string value_text(const Meaning& meaning, std::string_view bits) {
  constexpr std::size_t kNumberBits = 53;
  if (bits.empty()) return {};
  if (meaning.text != nullptr) return meaning.text(bits);
  if (bits.size() > kNumberBits) return {};
  if (!meaning.codes.empty()) {
    const auto value = unsigned_value(bits);
    const auto code =
        std::find_if(meaning.codes.begin(), meaning.codes.end(), [&](const Code& c) { return c.value == value; });
    return code == meaning.codes.end() ? "reserved" : std::string(code->text);
  }
  const auto value =
      static_cast<double>(meaning.is_signed ? signed_value(bits) : static_cast<std::int64_t>(unsigned_value(bits)));
  std::string text = number_text(value * meaning.scale);
  if (!meaning.unit.empty()) text.append(" ").append(meaning.unit);
  return text;
}

std::string channel_record_text(std::string_view bits) {
  constexpr std::size_t kBits = 24;
  if (bits.size() != kBits) return {};
  return "SystemType " + std::to_string(unsigned_value(bits.substr(0, 8))) + ", BandClass " +
         std::to_string(unsigned_value(bits.substr(8, 5))) + ", ChannelNumber " +
         std::to_string(unsigned_value(bits.substr(13)));
}

std::string arc_text(std::string_view bits) {
  std::int64_t quarters = signed_value(bits);
  const bool negative = quarters < 0;
  quarters = negative ? -quarters : quarters;
  constexpr std::int64_t kQuartersPerMinute = 240;
  const std::int64_t minutes = quarters / kQuartersPerMinute;
  const std::int64_t rest = quarters % kQuartersPerMinute;
  constexpr std::string_view kFractions[] = {"00", "25", "50", "75"};
  return (negative ? "-" : "") + std::to_string(minutes / 60) + " deg " + two_digits(minutes % 60) + "' " +
         two_digits(rest / 4) + "." + std::string(kFractions[rest % 4]) + "\"";
}

std::string pilot_phase_text(std::string_view bits) {
  constexpr std::uint64_t kChipsPerOffset = 64;
  const std::uint64_t chips = unsigned_value(bits);
  return std::to_string(chips) + " chips (PN " + std::to_string(chips / kChipsPerOffset) + " + " +
         std::to_string(chips % kChipsPerOffset) + " chips)";
}

std::string hex_text(std::string_view bits) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text = "0x";
  std::size_t group = bits.size() % 4 == 0 ? 4 : bits.size() % 4;
  while (!bits.empty()) {
    text += kDigits[unsigned_value(bits.substr(0, group))];
    bits.remove_prefix(group);
    group = 4;
  }
  return text;
}

std::string bcd_text(std::string_view bits) {
  std::string text;
  for (; bits.size() >= 4; bits.remove_prefix(4)) {
    const std::uint64_t digit = unsigned_value(bits.substr(0, 4));
    if (digit > 9) return "not decimal";
    text += static_cast<char>('0' + digit);
  }
  return text;
}

}  // namespace vorlan
