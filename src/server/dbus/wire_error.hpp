// Automation errors as D-Bus errors, in both directions.
//
// The name is "Vorlan.Error.Number" and the number, as in Vorlan.Error.Number438 (a minus sign is the word Minus). The
// message is the source, a line feed and the description: a source has no line feed, so the first one divides the two
// whatever the description holds. Nothing follows the message: many clients see no more of an error than these two,
// and some garble the message when there is more. The help file stays behind.
#pragma once

#include "automation/error.hpp"
#include "server/dbus/bus.hpp"

namespace vorlan::dbus {

/// Number of an error that an object of a client raised in words of its own.
inline constexpr std::int32_t kAutomationError = 440;

Message new_error(sd_bus_message* call, const Error& error);

/// The automation error that an error reply of a client's object stands for. Any other error of the bus becomes
/// number 440 with the source given here.
Error read_error(sd_bus_message* reply, const std::string& source);

}  // namespace vorlan::dbus
