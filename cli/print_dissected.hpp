// What encode and decode print.
#pragma once

#include <span>
#include <string_view>

#include "codec/field_tree.hpp"

namespace vorlan::cli {

/// The class's name, the octets and the fields; or the same as JSON.
void print_dissected(std::string_view class_name, std::string_view bits, std::span<const DissectedField> tree,
                     bool json);

}  // namespace vorlan::cli
