// encode and decode for attributes, their values, and the messages that carry them.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "automation/registry.hpp"

namespace vorlan::cli {

/// Builds from assignments and prints. A complex attribute takes the fields of one value record, too, and builds with
/// it unless ValueRecords is given. False if the object is of another kind.
bool encode_record(const Registry& registry, const Ref<Object>& object, const std::vector<std::string>& assignments,
                   bool json);
/// Takes octets apart and prints. `where` names the protocol over which a message with attribute records travels; it
/// may be empty. There are no layouts to choose: error 438 for an assignment. False if the object is of another kind.
bool decode_record(const Registry& registry, const Ref<Object>& object, std::span<const std::uint8_t> octets,
                   const std::vector<std::string>& assignments, const std::string& where, bool json);

}  // namespace vorlan::cli
