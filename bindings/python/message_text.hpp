// A received message as text.
#pragma once

#include <string>

#include "automation/object.hpp"

namespace vorlan::python {

/// The class and the field tree of a message object that has received a message; the empty text for any other object.
std::string received_message_text(const Object& object);

}  // namespace vorlan::python
