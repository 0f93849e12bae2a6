// Attribute records as the terminal reads and writes them: Length, AttributeID, value.
#pragma once

#include <optional>

#include "simulator/octets.hpp"

namespace vorlan::simulator {

/// What the terminal knows of an attribute (C.S0024-A, configuration attributes of each protocol).
struct AttributeRule {
  int protocol;
  int first_id;
  int last_id;
  bool complex;      ///< its values are records that begin with a ValueID
  int value_octets;  ///< of one offered value of a simple attribute
};

/// The rule for an attribute; a simple attribute of one octet where nothing else is known.
AttributeRule attribute_rule(int protocol, int subtype, int id) noexcept;

/// Octets of the protocol's AttributeIDs: 1 or 2.
int attribute_id_octets(int protocol, int subtype) noexcept;

struct AttributeRecord {
  int id;
  Octets value;  ///< everything behind the AttributeID
};

/// Nothing if a record runs past the end or has no room for its AttributeID.
std::optional<std::vector<AttributeRecord>> parse_records(std::span<const std::uint8_t> octets, int id_octets);

void append_record(Octets& octets, int id, int id_octets, std::span<const std::uint8_t> value);

/// What an answer says to accept a proposed attribute: its first value, or the ValueID of its first value record.
/// Empty if the proposal is too short to hold one.
std::span<const std::uint8_t> accepted_value(const AttributeRule& rule, const AttributeRecord& proposed) noexcept;

/// Whether an answer picks something that was proposed.
bool picks_from(const AttributeRule& rule, const AttributeRecord& proposed, std::span<const std::uint8_t> answer);

}  // namespace vorlan::simulator
