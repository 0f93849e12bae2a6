#include "simulator/message_object.hpp"

#include <algorithm>

#include "automation/error.hpp"

namespace vorlan::simulator {

namespace {

constexpr std::int16_t kHighestIndex = 4096;

constexpr BoundMember kMembers[] = {
    property<&MessageObject::length, &MessageObject::set_length>("Length", "Length of the message, in bits."),
    property<&MessageObject::octet, &MessageObject::set_octet>("Octet", "One octet, bit 7 first on the air.", "Index"),
    property<&MessageObject::hex, &MessageObject::set_hex>("Hex",
                                                           "The octets as hexadecimal text; sets Length as well."),
};

int hex_digit(char c) noexcept {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

std::span<const BoundMember> MessageObject::members() { return kMembers; }

MessageObject::MessageObject(std::span<const std::uint8_t> octets)
    : length_(static_cast<std::int16_t>(octets.size() * 8)), octets_(octets.begin(), octets.end()) {}

void MessageObject::set_length(std::int16_t bits) {
  if (bits < 0) throw Error(ErrorNumber::InvalidCall, {}, "a message has no negative length");
  length_ = bits;
}

std::int16_t MessageObject::octet(std::int16_t index) const {
  if (index < 0 || index > kHighestIndex) throw Error(ErrorNumber::SubscriptOutOfRange);
  const auto i = static_cast<std::size_t>(index);
  return i < octets_.size() ? octets_[i] : std::int16_t{0};
}

void MessageObject::set_octet(std::int16_t index, std::int16_t value) {
  if (index < 0 || index > kHighestIndex) throw Error(ErrorNumber::SubscriptOutOfRange);
  if (value < 0 || value > 0xFF) throw Error(ErrorNumber::Overflow, {}, "an octet is 0 to 255");
  const auto i = static_cast<std::size_t>(index);
  if (i >= octets_.size()) octets_.resize(i + 1);
  octets_[i] = static_cast<std::uint8_t>(value);
}

void MessageObject::write_octets(std::span<const std::uint8_t> octets) {
  if (octets.size() > octets_.size()) octets_.resize(octets.size());
  std::copy(octets.begin(), octets.end(), octets_.begin());
}

std::string MessageObject::hex() const {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (int i = 0; i < (length_ + 7) / 8; ++i) {
    const auto value = static_cast<std::size_t>(octet(static_cast<std::int16_t>(i)));
    if (i > 0) text += ' ';
    text += kDigits[value >> 4U];
    text += kDigits[value & 0xFU];
  }
  return text;
}

void MessageObject::set_hex(const std::string& text) {
  std::vector<std::uint8_t> octets;
  int high = -1;
  for (const char c : text) {
    if (c == ' ') continue;
    const int digit = hex_digit(c);
    if (digit < 0) throw Error(ErrorNumber::TypeMismatch, {}, "hexadecimal digits wanted");
    if (high < 0) {
      high = digit;
    } else {
      octets.push_back(static_cast<std::uint8_t>(high * 16 + digit));
      high = -1;
    }
  }
  if (high >= 0) throw Error(ErrorNumber::TypeMismatch, {}, "an even number of hexadecimal digits wanted");
  if (octets.size() > kHighestIndex - 1) throw Error(ErrorNumber::Overflow);
  length_ = static_cast<std::int16_t>(octets.size() * 8);
  octets_ = std::move(octets);
}

std::span<const ClassEntry> classes() noexcept {
  static constexpr ClassEntry kClasses[] = {
      {"MessageObject", &MessageObject::info, [](Platform&) -> Ref<Object> { return make<MessageObject>(); }},
  };
  return kClasses;
}

}  // namespace vorlan::simulator
