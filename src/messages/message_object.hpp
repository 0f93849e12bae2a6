// Reading a received test-set message object for decoding.
#pragma once

#include <string>

#include "automation/object.hpp"

namespace vorlan {

/// The bits of a message object's whole octets, each read once; bits of a final partial octet are not read.
std::string read_whole_octets(Object& message);

}  // namespace vorlan
