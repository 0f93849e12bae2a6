#include "common/conversions.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

#include "automation/error.hpp"
#include "automation/object.hpp"
#include "common/bits.hpp"
#include "common/octets.hpp"
#include "common/swar.hpp"

namespace vorlan {

namespace {

/// Wider than any bit string of the air interface by far; a script's slip shall not take the machine's memory.
constexpr std::size_t kMaxWidth = std::size_t{1} << 24U;

/// The octet past the end belongs to the octets that a message object is asked for.
constexpr std::size_t octets_asked_for(std::size_t bits) noexcept { return bits / 8 + 1; }
constexpr std::size_t kMaxOctets = octets_asked_for(kMaxMessageBits);

/// `value`, which fits, in `width` digits.
std::string padded_digits(std::uint64_t value, std::size_t width) {
  constexpr std::size_t kDigits = 64;
  std::array<char, kDigits> text;
  for (unsigned i = 0; i < 8; ++i) {
    swar::store(swar::spread(static_cast<std::uint8_t>(value >> (56 - 8 * i))), text.data() + std::size_t{8} * i);
  }
  if (width <= kDigits) return {text.data() + kDigits - width, width};
  if (width > kMaxWidth) throw Error(ErrorNumber::Overflow);
  return std::string(width - kDigits, '0').append(text.data(), kDigits);
}

constexpr std::uint64_t kMaxLong = 0x7FFFFFFF;

/// The value of a text of up to 63 characters "0" and "1"; a value above every Long for any other.
std::uint64_t plain_value(std::string_view bits) noexcept {
  constexpr std::uint64_t kNone = ~std::uint64_t{0};
  if (bits.size() > 63) return kNone;
  std::uint64_t other = 0;
  std::uint64_t sum = 0;
  for (; bits.size() >= 8; bits.remove_prefix(8)) {
    const std::uint64_t digits = swar::load(bits.data()) ^ (swar::kOnes * '0');
    other |= digits;
    sum = sum << 8U | swar::gather(digits & swar::kOnes);
  }
  for (const char c : bits) {
    const auto digit = static_cast<unsigned char>(c ^ '0');
    other |= digit;
    sum = 2 * sum + (digit & 1U);
  }
  return (other & ~swar::kOnes) == 0 ? sum : kNone;
}

std::size_t rightmost(std::size_t length, int width) {
  if (width < 0) throw Error(ErrorNumber::InvalidCall);
  return length - std::min(length, static_cast<std::size_t>(width));
}

/// The character at this place, whole even if it takes several octets: error texts must stay valid UTF-8.
std::string_view character_at(std::string_view text, std::size_t index) noexcept {
  std::size_t end = index + 1;
  if (static_cast<unsigned char>(text[index]) >= 0xC0) {
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80) ++end;
  }
  return text.substr(index, end - index);
}

[[noreturn]] void raise_invalid_character(std::string_view source, std::string_view text, std::size_t index,
                                          std::string_view kind) {
  std::string description("Invalid character(");
  description.append(character_at(text, index)).append(") in ").append(kind).append(" number: ").append(text);
  raise(source, description);
}

char upper(char c) noexcept { return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c; }

}  // namespace

std::string long_to_bin(std::int32_t value, int width) {
  if (value < 0) {
    const auto rest = static_cast<std::uint32_t>(value) & 0x7FFFFFFFU;
    const auto digits = static_cast<std::size_t>(std::bit_width(rest));
    return padded_digits(rest | std::uint64_t{1} << digits, digits + 1);
  }
  const auto bits = static_cast<std::uint32_t>(value);
  const auto digits = static_cast<int>(std::bit_width(bits));
  if (digits > width) {
    raise("SB_GeneralFunctions.LongToBin", "The given value: " + std::to_string(value) + " cannot be converted into " +
                                               std::to_string(width) + " bit length.");
  }
  return padded_digits(bits, static_cast<std::size_t>(width));
}

std::string dec_to_bin(const Value& value, int width) { return long_to_bin(value.to_long(), width); }

std::int16_t bin_to_dec(std::string_view bits) {
  if (const auto value = plain_value(bits); value <= 0x7FFF) return static_cast<std::int16_t>(value);
  std::uint32_t sum = 0;
  bool too_large = false;
  for (const char c : bits) {
    const unsigned digit = static_cast<unsigned char>(c) - unsigned{'0'};
    if (digit > 9) throw Error(ErrorNumber::TypeMismatch);
    sum = 2 * sum + digit;
    if (sum > 0x7FFF) {
      too_large = true;
      sum = 0;  // the digits behind it are still checked
    }
  }
  if (too_large) throw Error(ErrorNumber::Overflow);
  return static_cast<std::int16_t>(sum);
}

std::int32_t bin_to_long(std::string_view bits) {
  if (const auto value = plain_value(bits); value <= kMaxLong) return static_cast<std::int32_t>(value);
  std::uint64_t sum = 0;
  bool too_large = false;
  for (std::size_t i = 0; i < bits.size(); ++i) {
    const unsigned digit = static_cast<unsigned char>(bits[i]) - unsigned{'0'};
    if (digit > 1) raise_invalid_character("SB_GeneralFunctions.BinToLong", bits, i, "binary");
    sum = 2 * sum + digit;
    if (sum > kMaxLong) {
      too_large = true;
      sum = 0;
    }
  }
  if (too_large) throw Error(ErrorNumber::Overflow);
  return static_cast<std::int32_t>(sum);
}

std::string double_to_bin(double value, int width) {
  if (!(value >= 0 && value < std::ldexp(1.0, width))) return {};
  const double whole = std::nearbyint(value);
  if (whole >= std::ldexp(1.0, 64)) return {};
  const auto bits = static_cast<std::uint64_t>(whole);
  const auto digits = static_cast<int>(std::bit_width(bits));
  if (digits > width) return {};
  return padded_digits(bits, static_cast<std::size_t>(width));
}

std::string hex_to_bin(std::string_view text, int width) {
  text.remove_prefix(std::min(text.find_first_not_of('0'), text.size()));
  std::string bits(text.size() * 4, '0');
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int digit = hex_digit(text[i]);
    if (digit < 0) raise_invalid_character("SB_GeneralFunctions.HexToBin", text, i, "hex");
    for (unsigned bit = 0; bit < 4; ++bit) bits[4 * i + bit] = (digit & (8 >> bit)) != 0 ? '1' : '0';
  }
  // Padding is the same whether or not the first digit's leading zeros are there.
  bits.erase(0, rightmost(bits.size(), width));
  const auto wanted = static_cast<std::size_t>(width);
  if (wanted > kMaxWidth) throw Error(ErrorNumber::Overflow);
  bits.insert(0, wanted - bits.size(), '0');
  return bits;
}

std::string find_2s_complement(std::string_view bits, int width) {
  bits.remove_prefix(rightmost(bits.size(), width));
  const auto wanted = static_cast<std::size_t>(width);
  if (wanted > kMaxWidth) throw Error(ErrorNumber::Overflow);
  std::string result(wanted - bits.size(), '0');
  result.append(bits);
  const auto last_one = result.rfind('1');
  if (last_one == std::string::npos) return result;
  std::transform(result.begin(), result.begin() + static_cast<std::ptrdiff_t>(last_one), result.begin(),
                 [](char c) { return c == '1' ? '0' : '1'; });
  return result;
}

std::int32_t compare_numeric_text(std::string_view a, std::string_view b) {
  const std::size_t length = std::max(a.size(), b.size());
  const auto at = [length](std::string_view text, std::size_t i) {
    const std::size_t padding = length - text.size();
    return static_cast<unsigned char>(i < padding ? '0' : upper(text[i - padding]));
  };
  for (std::size_t i = 0; i < length; ++i) {
    if (at(a, i) != at(b, i)) return at(a, i) < at(b, i) ? -1 : 1;
  }
  return 0;
}

void add_padding(std::string& bits) { bits.resize(octets_for(bits.size()) * 8, '0'); }

std::string message_to_bits(Object& message) {
  const auto length = static_cast<std::size_t>(std::max<std::int16_t>(message.get("Length").to_integer(), 0));
  std::string bits(length, '0');
  std::array<std::uint8_t, kMaxOctets> octets;
  const std::size_t used = octets_for(length);
  if (OctetBuffer* buffer = message.octet_buffer()) {
    const std::span<const std::uint8_t> held = buffer->octets();
    if (held.size() >= used) {
      unpack_bits(held.data(), length, bits.data());
      return bits;
    }
    std::fill(std::copy(held.begin(), held.end(), octets.begin()), octets.begin() + static_cast<std::ptrdiff_t>(used),
              std::uint8_t{0});
  } else {
    for (std::size_t i = 0; i < octets_asked_for(length); ++i) {
      const Value octet = message.get("Octet", static_cast<std::int16_t>(i));
      if (i < used) octets[i] = static_cast<std::uint8_t>(octet.to_long() & 0xFF);
    }
  }
  unpack_bits(octets.data(), length, bits.data());
  return bits;
}

void bits_to_message(std::string_view bits, Object& message) {
  if (bits.size() > kMaxMessageBits) throw Error(ErrorNumber::Overflow);
  std::array<std::uint8_t, kMaxOctets> octets;
  const std::size_t count = octets_asked_for(bits.size());
  octets[count - 1] = 0;
  pack_bits(bits, octets.data());
  if (OctetBuffer* buffer = message.octet_buffer()) {
    buffer->write_octets({octets.data(), count});
    return;
  }
  for (std::size_t i = 0; i < count; ++i) {
    message.let("Octet", static_cast<std::int16_t>(i), static_cast<std::int16_t>(octets[i]));
  }
}

}  // namespace vorlan
