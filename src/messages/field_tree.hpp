// A dissected message as lines of text, for people: the command line and the scripts' console show it.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "messages/dissection.hpp"

namespace vorlan {

/// One line per field: name, position of its first bit, its bits in groups of four, what they mean. Every line begins
/// with the indent and ends with a newline; records have their fields indented below them.
std::string field_tree_text(std::span<const DissectedField> tree, std::string_view indent = {});

/// "10 0101": groups of four as hexadecimal digits have them, counted from the last bit.
std::string grouped_bits(std::string_view bits);

}  // namespace vorlan
