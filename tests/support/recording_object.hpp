// A foreign object that takes every call and records it.
#pragma once

#include <string>
#include <vector>

#include "automation/object.hpp"

namespace vorlan::test {

/// Records "AddText(a line)", arguments separated by "|". Answers Empty.
class RecordingObject : public Object {
 public:
  Value invoke(std::string_view member, Access, std::span<Value> arguments) override {
    std::string entry(member);
    entry += "(";
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      if (i > 0) entry += "|";
      entry += arguments[i].is(ValueType::Object) ? "object" : arguments[i].to_text();
    }
    calls.push_back(entry + ")");
    return {};
  }

  std::vector<std::string> calls;
};

}  // namespace vorlan::test
