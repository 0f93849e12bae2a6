// A trace as a ladder: every message with its direction, its name and its fields.
#pragma once

#include <optional>

#include "automation/registry.hpp"
#include "codec/field_tree.hpp"
#include "simulator/trace/trace.hpp"

namespace vorlan::simulator {

/// A message as the ladder shows it; without fields where nobody knows its layout.
struct LadderRung {
  std::string name;  ///< "SessionClose", or "message 07" where it is unknown
  std::vector<DissectedField> fields;
};

/// Takes apart a message that carries attribute records or keys; nothing if it is another message.
using CarrierDissector = std::optional<LadderRung> (*)(const Registry& registry, int protocol,
                                                       std::span<const std::uint8_t> octets);

/// Finds the message's class in the registry by protocol, MessageID and direction. Messages that carry attribute
/// records or keys are known without a class, by `carriers` first.
LadderRung ladder_rung(const TraceEntry& entry, const Registry& registry, CarrierDissector carriers);

/// The whole trace, with a line per message and its fields indented below it.
std::string ladder_text(std::span<const TraceEntry> entries, const Registry& registry,
                        CarrierDissector carriers = nullptr);

}  // namespace vorlan::simulator
