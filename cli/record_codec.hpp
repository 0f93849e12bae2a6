// encode and decode for attributes, their values, and the messages that carry them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "automation/registry.hpp"
#include "codec/field_tree.hpp"

namespace vorlan::cli {

/// Builds from assignments and prints. A complex attribute takes the fields of one value record, too, and builds with
/// it unless ValueRecords is given. False if the object is of another kind.
bool encode_record(const Registry& registry, const Ref<Object>& object, const std::vector<std::string>& assignments,
                   bool json);
/// Takes octets apart and prints. `where` names the protocol over which a message with attribute records travels; it
/// may be empty. There are no layouts to choose: error 438 for an assignment. False if the object is of another kind.
bool decode_record(const Registry& registry, const Ref<Object>& object, std::span<const std::uint8_t> octets,
                   const std::vector<std::string>& assignments, const std::string& where, bool json);
/// A message that carries attribute records taken apart, and its class; nothing if it is another message.
std::optional<std::pair<std::string, std::vector<DissectedField>>> dissect_carrier(const Registry& registry,
                                                                                   int protocol_type,
                                                                                   std::string_view bits);
/// The class of a message that carries attribute records, by its MessageID, which is the same in all protocols; null if
/// it is another message.
const Registry::Class* carrier_of_records(const Registry& registry, std::string_view bits);

}  // namespace vorlan::cli
