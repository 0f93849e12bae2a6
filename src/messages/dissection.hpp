// A message taken apart for people: the fields with their bits and what these mean.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "codec/field_tree.hpp"
#include "messages/message_class.hpp"

namespace vorlan {

/// Takes a message apart as the class's rows say, whatever its MessageID. `controls` are properties that choose a
/// layout, such as "PRint_NakType", with their values.
std::vector<DissectedField> dissect(const MessageClass& message, std::string_view bits,
                                    std::span<const std::pair<std::string, std::string>> controls = {});

}  // namespace vorlan
