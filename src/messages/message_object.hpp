// Test-set message objects: read for decoding, filled with what was encoded.
#pragma once

#include <string>
#include <string_view>

#include "automation/object.hpp"

namespace vorlan {

/// Replaces `bits` by those of a message object's whole octets, each read once; bits of a final partial octet are not
/// read.
void read_whole_octets(Object& message, std::string& bits);

/// Sets a message object's `Length`, then its octets; kMaxMessageBits at most.
void fill_message(std::string_view bits, Object& message);

}  // namespace vorlan
