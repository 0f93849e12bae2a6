// A trace as a ladder: every message with its direction, its name and its fields.
#pragma once

#include <span>
#include <string>

#include "automation/registry.hpp"
#include "simulator/trace/trace.hpp"

namespace vorlan::simulator {

/// The whole trace, with a line per message and its fields indented below it. A message's class is found in the
/// registry by protocol, MessageID and direction; so are the attributes that it carries.
std::string ladder_text(std::span<const TraceEntry> entries, const Registry& registry);

}  // namespace vorlan::simulator
