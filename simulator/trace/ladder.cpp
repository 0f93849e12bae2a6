#include "simulator/trace/ladder.hpp"

#include <algorithm>
#include <cstdio>

#include "attributes/negotiation/dissection.hpp"
#include "automation/error.hpp"
#include "codec/protocol.hpp"
#include "common/bits.hpp"
#include "common/octets.hpp"
#include "messages/dissection.hpp"
#include "messages/identification.hpp"

namespace vorlan::simulator {

namespace {

/// A message as the ladder shows it; without fields where nobody knows its layout.
struct Rung {
  std::string name;  ///< "SB_Ses_MsgSessionClose", or "message 07" where it is unknown
  std::vector<DissectedField> fields;
};

/// The classes of a protocol's messages that begin like this one and go its way, those that several protocols share
/// among them; none for a protocol that is not known.
std::vector<const MessageClass*> candidates(const TraceEntry& entry, const std::string& where, const std::string& bits,
                                            const Registry& registry) {
  try {
    auto found = identify(registry, where, bits);
    std::erase_if(found, [&](const MessageClass* message) {
      const MessageSpec& spec = message->spec();
      return spec.protocol != Protocol::None && !(entry.forward ? spec.builds() : spec.parses());
    });
    return found;
  } catch (const Error&) {
    return {};
  }
}

std::vector<const MessageClass*> candidates(const TraceEntry& entry, const std::string& bits,
                                            const Registry& registry) {
  if (!is_stream_type(entry.protocol)) {
    return candidates(entry, std::to_string(entry.protocol), bits, registry);
  }
  // Which application a stream has, the trace does not tell.
  auto found = candidates(entry, "testapp", bits, registry);
  return found.empty() ? candidates(entry, "application", bits, registry) : found;
}

std::string protocol_text(int type) {
  const std::string name = protocol_name(type);
  return name.empty() ? "protocol " + std::to_string(type) : name + " (" + std::to_string(type) + ")";
}

std::string seconds_text(std::chrono::milliseconds time) {
  char text[32];
  std::snprintf(text, sizeof text, "%9.3f s", std::chrono::duration<double>(time).count());
  return text;
}

Rung rung_of(const TraceEntry& entry, const Registry& registry, const AttributeCatalogue& attributes) {
  if (entry.octets.empty()) return {"empty message", {}};
  const std::string bits = bits_of(entry.octets);
  if (const NegotiationClass* carrier = carrier_of_records(bits)) {
    return {std::string(carrier->spec().name), dissect(*carrier, bits, attributes, entry.protocol)};
  }
  const auto found = candidates(entry, bits, registry);
  if (found.size() == 1) return {std::string(found.front()->info().name()), dissect(*found.front(), bits)};
  Rung rung;
  for (const MessageClass* message : found) {
    rung.name.append(rung.name.empty() ? "" : " or ").append(message->info().name());
  }
  if (rung.name.empty()) rung.name = "message " + octets_text(std::span(entry.octets).first(1));
  return rung;
}

}  // namespace

std::string ladder_text(std::span<const TraceEntry> entries, const Registry& registry) {
  constexpr std::string_view kIndent = "                 ";
  constexpr std::size_t kShown = 24;
  const AttributeCatalogue attributes(registry);
  std::string text;
  for (const TraceEntry& entry : entries) {
    const Rung rung = rung_of(entry, registry, attributes);
    text.append(seconds_text(entry.time)).append(entry.forward ? "  AN --> AT  " : "  AN <-- AT  ").append(rung.name);
    text.append("  ").append(protocol_text(entry.protocol));
    if (!entry.label.empty()) text.append("  \"").append(entry.label).append("\"");
    text += '\n';
    if (!entry.note.empty()) text.append(kIndent).append("! ").append(entry.note).append("\n");
    const auto head = std::span(entry.octets).first(std::min(kShown, entry.octets.size()));
    text.append(kIndent).append(octets_text(head));
    if (head.size() < entry.octets.size()) {
      text.append(" ... (").append(std::to_string(entry.octets.size())).append(" octets)");
    }
    text += '\n';
    text += field_tree_text(rung.fields, kIndent);
  }
  return text;
}

}  // namespace vorlan::simulator
