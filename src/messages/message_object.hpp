// Reading a received test-set message object for decoding.
#pragma once

#include <string>

#include "automation/object.hpp"

namespace vorlan {

/// Replaces `bits` by those of a message object's whole octets, each read once; bits of a final partial octet are not
/// read.
void read_whole_octets(Object& message, std::string& bits);

}  // namespace vorlan
