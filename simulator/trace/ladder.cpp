#include "simulator/trace/ladder.hpp"

#include <algorithm>
#include <cstdio>

#include "automation/error.hpp"
#include "common/bits.hpp"
#include "messages/dissection.hpp"
#include "messages/identification.hpp"
#include "simulator/trace/carrier_messages.hpp"

namespace vorlan::simulator {

namespace {

std::string bits_of(const Octets& octets) {
  std::string bits(octets.size() * 8, '0');
  unpack_bits(octets.data(), bits.size(), bits.data());
  return bits;
}

/// The classes of a protocol's messages that begin like this one and go its way; none for a protocol that has none.
std::vector<const MessageClass*> candidates(const TraceEntry& entry, const std::string& where, const std::string& bits,
                                            const Registry& registry) {
  try {
    auto found = identify(registry, where, bits);
    std::erase_if(found, [&](const MessageClass* message) {
      return message->spec().protocol == Protocol::None ||
             !(entry.forward ? message->spec().builds() : message->spec().parses());
    });
    return found;
  } catch (const Error&) {
    return {};
  }
}

std::vector<const MessageClass*> candidates(const TraceEntry& entry, const std::string& bits,
                                            const Registry& registry) {
  constexpr int kStream0 = 20;
  constexpr int kStream3 = 23;
  if (entry.protocol < kStream0 || entry.protocol > kStream3) {
    return candidates(entry, std::to_string(entry.protocol), bits, registry);
  }
  // Which application a stream has, the trace does not tell.
  auto found = candidates(entry, "testapp", bits, registry);
  return found.empty() ? candidates(entry, "application", bits, registry) : found;
}

std::string protocol_text(int type) {
  for (const ProtocolInfo& info : protocols()) {
    if (info.type == type) return std::string(info.name) + " (" + std::to_string(type) + ")";
  }
  return "protocol " + std::to_string(type);
}

std::string seconds_text(std::chrono::milliseconds time) {
  char text[32];
  std::snprintf(text, sizeof text, "%9.3f s", std::chrono::duration<double>(time).count());
  return text;
}

}  // namespace

LadderRung ladder_rung(const TraceEntry& entry, const Registry& registry, CarrierDissector carriers) {
  if (entry.octets.empty()) return {"empty message", {}};
  if (carriers != nullptr) {
    if (auto rung = carriers(registry, entry.protocol, entry.octets)) return std::move(*rung);
  }
  if (auto carrier = carrier_message(entry.protocol, entry.octets)) return std::move(*carrier);
  const std::string bits = bits_of(entry.octets);
  const auto found = candidates(entry, bits, registry);
  if (found.size() == 1) return {std::string(found.front()->info().name()), dissect(*found.front(), bits)};
  LadderRung rung;
  for (const MessageClass* message : found) {
    rung.name.append(rung.name.empty() ? "" : " or ").append(message->info().name());
  }
  if (rung.name.empty()) rung.name = "message " + hex_text(std::span(entry.octets).first(1));
  return rung;
}

std::string ladder_text(std::span<const TraceEntry> entries, const Registry& registry, CarrierDissector carriers) {
  constexpr std::string_view kIndent = "                 ";
  constexpr std::size_t kShown = 24;
  std::string text;
  for (const TraceEntry& entry : entries) {
    const LadderRung rung = ladder_rung(entry, registry, carriers);
    text.append(seconds_text(entry.time)).append(entry.forward ? "  AN --> AT  " : "  AN <-- AT  ").append(rung.name);
    text.append("  ").append(protocol_text(entry.protocol));
    if (!entry.label.empty()) text.append("  \"").append(entry.label).append("\"");
    text += '\n';
    if (!entry.note.empty()) text.append(kIndent).append("! ").append(entry.note).append("\n");
    const auto head = std::span(entry.octets).first(std::min(kShown, entry.octets.size()));
    text.append(kIndent).append(hex_text(head));
    if (head.size() < entry.octets.size()) {
      text.append(" ... (").append(std::to_string(entry.octets.size())).append(" octets)");
    }
    text += '\n';
    text += field_tree_text(rung.fields, kIndent);
  }
  return text;
}

}  // namespace vorlan::simulator
