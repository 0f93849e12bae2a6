// The answer to the access terminal's ConfigurationRequest when everything that it proposes is accepted.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "attributes/negotiation/negotiation_message.hpp"

namespace vorlan {

/// How the attributes of a protocol are numbered and how wide their simple values are, in bits.
struct AttributeNumbering {
  std::size_t id_bits;            ///< 8 or 16
  std::size_t simple_value_bits;  ///< 8 or 16
  /// Whether an attribute has one plain value; else it has value records, each with a ValueID.
  bool (*is_simple)(std::string_view id);
};

/// `later_mac`: the reverse traffic channel MAC is of subtype 3, whose AttributeIDs are 16 bits wide.
const AttributeNumbering& attribute_numbering(std::int16_t protocol_type, bool later_mac);

/// Of each attribute record of a ConfigurationRequest the first proposal: its AttributeID with the first value, or with
/// the ValueID of the first value record. Error 13 for a record that is cut short.
std::string accepted_records(const NegotiationMessage& request, const AttributeNumbering& numbering);

}  // namespace vorlan
