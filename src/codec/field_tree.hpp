// A message or an attribute taken apart for people, and its lines of text: the command line and the scripts' console
// show it.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "codec/extent.hpp"
#include "codec/meaning.hpp"

namespace vorlan {

/// A node of a field tree; a record has its fields below it.
struct DissectedField {
  std::string name;       ///< "CloseReason", "Pilot 0"
  std::size_t first = 0;  ///< 1-based position of the first bit
  std::string bits;       ///< empty for a record
  std::string value;      ///< "normal close", "-7 dB"; a plain number where the field has no unit
  std::string note;       ///< "past the end", "reserved"
  std::vector<DissectedField> below;
};

/// The node of a single field: its bits in the whole, and what they mean. A property's prefix is dropped from its name.
DissectedField dissected_leaf(std::string_view name, const Meaning* meaning, std::string_view whole, Extent extent);

/// One line per field: name, position of its first bit, its bits in groups of four, what they mean. Every line begins
/// with the indent and ends with a newline; records have their fields indented below them. Bits go on in lines of 32,
/// and beside them the digits of a long hexadecimal value.
std::string field_tree_text(std::span<const DissectedField> tree, std::string_view indent = {});

/// "10 0101": groups of four as hexadecimal digits have them, counted from the last bit.
std::string grouped_bits(std::string_view bits);

}  // namespace vorlan
