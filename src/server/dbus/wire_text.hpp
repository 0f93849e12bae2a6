// Texts as the bus can carry them.
#pragma once

#include <string>
#include <string_view>

namespace vorlan::dbus {

/// UTF-8 without NUL and noncharacters. The bus throws out a connection that sends anything else as a string.
bool is_bus_text(std::string_view text) noexcept;

/// The text with a question mark for each octet that the bus cannot carry.
std::string to_bus_text(std::string_view text);

}  // namespace vorlan::dbus
