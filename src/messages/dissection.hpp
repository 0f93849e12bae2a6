// A message taken apart for people: the fields with their bits and what these mean.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "messages/message_class.hpp"

namespace vorlan {

/// A node of a field tree; a record has its fields below it.
struct DissectedField {
  std::string name;       ///< "CloseReason", "Pilot 0"
  std::size_t first = 0;  ///< 1-based position of the first bit
  std::string bits;       ///< empty for a record
  std::string value;      ///< "normal close", "-7 dB"; a plain number where the field has no unit
  std::string note;       ///< "past the end of the message", "reserved"
  std::vector<DissectedField> below;
};

/// Takes a message apart as the class's rows say, whatever its MessageID. `controls` are properties that choose a
/// layout, such as "PRint_NakType", with their values.
std::vector<DissectedField> dissect(const MessageClass& message, std::string_view bits,
                                    std::span<const std::pair<std::string, std::string>> controls = {});

}  // namespace vorlan
