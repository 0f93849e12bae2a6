#include "simulator/trace/trace_object.hpp"

#include <fstream>

#include "attributes/classes.hpp"
#include "messages/classes.hpp"
#include "simulator/trace/ladder.hpp"

namespace vorlan::simulator {

namespace {

using T = TraceObject;

constexpr BoundMember kMembers[] = {
    property<&T::count>("Count", "How many messages there are."),
    property<&T::time>("Time", "Milliseconds since the test set was made.", "Index"),
    property<&T::direction>("Direction", "\"forward\" to the terminal, or \"reverse\".", "Index"),
    property<&T::protocol>("ProtocolType", "Protocol type.", "Index"),
    property<&T::label>("Label", "Under which it was sent or taken; empty for one that nobody took.", "Index"),
    property<&T::octets>("Octets", "Its octets in hexadecimal.", "Index"),
    property<&T::note>("Note", "What was remarkable about it.", "Index"),
    property<&T::ladder>("Ladder", "All messages taken apart, as text."),
    property<&T::json_lines>("JsonLines", "All messages, a line of JSON each."),
    method<&T::write_json_lines>("WriteJsonLines", "Path", "Writes JsonLines to a file, for \"vorlan ladder\"."),
    method<&T::clear>("Clear", "", "Drops all messages."),
};

/// The classes of all messages, and of the attributes that they carry.
const Registry& known_classes() {
  static const ClassTable kTables[] = {
      {"Vorlan", security_message_classes()},    {"Vorlan", session_message_classes()},
      {"Vorlan", connection_message_classes()},  {"Vorlan", mac_message_classes()},
      {"Vorlan", application_message_classes()}, {"Vorlan", stream_message_classes()},
      {"Vorlan", testapp_message_classes()},     {"Vorlan", simple_attribute_classes()},
      {"Vorlan", complex_attribute_classes()},
  };
  static const Registry kRegistry(kTables);
  return kRegistry;
}

}  // namespace

std::span<const BoundMember> TraceObject::members() { return kMembers; }

const TraceEntry& TraceObject::at(std::int16_t index) const {
  if (index < 0 || index >= count()) throw Error(ErrorNumber::SubscriptOutOfRange);
  return simulation_->trace[static_cast<std::size_t>(index)];
}

std::int32_t TraceObject::time(std::int16_t index) const { return static_cast<std::int32_t>(at(index).time.count()); }

std::string TraceObject::ladder() const { return ladder_text(simulation_->trace.copy(), known_classes()); }

std::string TraceObject::json_lines() const {
  std::string lines;
  for (const TraceEntry& entry : simulation_->trace.copy()) lines.append(json_line(entry)).append("\n");
  return lines;
}

void TraceObject::write_json_lines(const std::string& path) const {
  std::ofstream file(path, std::ios::binary);
  file << json_lines() << std::flush;
  if (!file) throw Error(ErrorNumber::FileAccess, {}, path);
}

}  // namespace vorlan::simulator
