#include "messages/message_object.hpp"

#include <algorithm>

#include "common/bits.hpp"
#include "common/conversions.hpp"

namespace vorlan {

namespace {

std::size_t whole_octets(std::int16_t length) noexcept { return length > 0 ? static_cast<std::size_t>(length) / 8 : 0; }

}  // namespace

void read_whole_octets(Object& message, std::string& bits) {
  if (const OctetBuffer* buffer = message.octet_buffer()) {
    const std::size_t octets = whole_octets(buffer->length());
    const std::size_t held = std::min(octets, buffer->octets().size());
    bits.resize(octets * 8);
    unpack_bits(buffer->octets().data(), held * 8, bits.data());
    std::fill(bits.begin() + static_cast<std::ptrdiff_t>(held * 8), bits.end(), '0');
    return;
  }
  const std::size_t octets = whole_octets(message.get("Length").to_integer());
  bits.clear();
  bits.reserve(octets * 8);
  for (std::size_t i = 0; i < octets; ++i) {
    bits += dec_to_bin(message.get("Octet", static_cast<std::int16_t>(i)), 8);
  }
}

void fill_message(std::string_view bits, Object& message) {
  const auto length = static_cast<std::int16_t>(bits.size());
  if (OctetBuffer* buffer = message.octet_buffer()) {
    buffer->set_length(length);
  } else {
    message.let("Length", length);
  }
  bits_to_message(bits, message);
}

}  // namespace vorlan
