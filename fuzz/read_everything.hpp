// Reads every property of an object, and of the objects that these return.
#pragma once

#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "automation/class_info.hpp"
#include "automation/error.hpp"

namespace vorlan::fuzz {

/// A value or one automation error with a text; anything else ends the program.
template <class F>
void expect_value_or_error(F&& call) {
  try {
    call();
  } catch (const Error& error) {
    if (error.description().empty()) std::abort();
  }
}

/// Indexed properties are read at the edges of their indices; `text` is what those take that want one.
inline void read_everything(Object& object, std::string_view text = {}, int depth = 2) {
  constexpr std::int16_t kIndices[] = {0, 1, 14, -1};
  for (const MemberInfo& member : object.class_info()->members()) {
    if (!member.gets) continue;
    for (const std::int16_t index : kIndices) {
      expect_value_or_error([&] {
        std::vector<Value> arguments;
        for (const ParameterInfo& parameter : member.parameters) {
          arguments.push_back(parameter.type == ValueType::String ? Value(text) : Value(index));
        }
        const Value value = object.invoke(member.name, Access::Get, arguments);
        if (depth > 1 && value.is(ValueType::Object) && value.to_object() &&
            value.to_object()->class_info() != nullptr) {
          read_everything(*value.to_object(), text, depth - 1);
        }
      });
      if (member.parameters.empty()) break;
    }
  }
}

}  // namespace vorlan::fuzz
