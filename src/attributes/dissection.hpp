// Attribute and value records taken apart for people.
#pragma once

#include <string_view>
#include <vector>

#include "attributes/values/record_class.hpp"
#include "codec/field_tree.hpp"

namespace vorlan {

/// The fields of the record that stands at a place of `whole`, and what follows them there.
std::vector<DissectedField> dissect(const RecordClass& record, std::string_view whole, Extent place);

}  // namespace vorlan
