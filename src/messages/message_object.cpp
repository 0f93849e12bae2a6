#include "messages/message_object.hpp"

#include <algorithm>

#include "common/bits.hpp"
#include "common/conversions.hpp"

namespace vorlan {

void read_whole_octets(Object& message, std::string& bits) {
  const std::int16_t length = message.get("Length").to_integer();
  const std::size_t octets = length > 0 ? static_cast<std::size_t>(length) / 8 : 0;
  bits.clear();
  if (const OctetBuffer* buffer = message.octet_buffer()) {
    bits.resize(octets * 8, '0');
    unpack_bits(buffer->octets().data(), std::min(octets, buffer->octets().size()) * 8, bits.data());
    return;
  }
  bits.reserve(octets * 8);
  for (std::size_t i = 0; i < octets; ++i) {
    bits += dec_to_bin(message.get("Octet", static_cast<std::int16_t>(i)), 8);
  }
}

}  // namespace vorlan
