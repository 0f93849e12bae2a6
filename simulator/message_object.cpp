#include "simulator/message_object.hpp"

#include <algorithm>

#include "automation/error.hpp"
#include "common/bits.hpp"
#include "common/octets.hpp"

namespace vorlan::simulator {

namespace {

constexpr std::int16_t kHighestIndex = 4096;

constexpr BoundMember kMembers[] = {
    property<&MessageObject::length, &MessageObject::set_length>("Length", "Length of the message, in bits."),
    property<&MessageObject::octet, &MessageObject::set_octet>("Octet", "One octet, bit 7 first on the air.", "Index"),
    property<&MessageObject::hex, &MessageObject::set_hex>("Hex",
                                                           "The octets as hexadecimal text; sets Length as well."),
};

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
  Octets octets = octets_;
  octets.resize(static_cast<std::size_t>((length_ + 7) / 8));
  return octets_text(octets);
}

void MessageObject::set_hex(const std::string& text) {
  Octets octets = parse_hex(text);
  if (octets.size() > kHighestIndex - 1) throw Error(ErrorNumber::Overflow);
  length_ = static_cast<std::int16_t>(octets.size() * 8);
  octets_ = std::move(octets);
}

Octets octets_of(Object& message) {
  const auto length = message.get("Length").to_integer();
  if (length < 0) throw Error(ErrorNumber::InvalidCall, {}, "a message has no negative length");
  Octets octets(octets_for(static_cast<std::size_t>(length)));
  if (OctetBuffer* const buffer = message.octet_buffer()) {
    const auto held = buffer->octets();
    std::copy_n(held.begin(), std::min(held.size(), octets.size()), octets.begin());
    return octets;
  }
  for (std::size_t i = 0; i < octets.size(); ++i) {
    octets[i] = static_cast<std::uint8_t>(message.get("Octet", static_cast<std::int16_t>(i)).to_integer());
  }
  return octets;
}

}  // namespace vorlan::simulator
