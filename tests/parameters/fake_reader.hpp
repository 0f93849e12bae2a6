// A parameter-file object that needs no file: every key holds the same number unless a test says otherwise.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "automation/class_info.hpp"
#include "automation/error.hpp"

namespace vorlan::test {

class FakeReader final : public Object {
 public:
  Value invoke(std::string_view member, Access, std::span<Value> arguments) override {
    std::string call(member);
    for (const Value& argument : arguments) call += "|" + argument.to_text();
    calls.push_back(call);
    if (fails.contains(call)) throw Error(ErrorNumber::TypeMismatch, "reader", "fails");
    if (member == "SetParameterValue") return {};
    const std::string key = arguments.size() == 2 ? arguments[0].to_text() : arguments[1].to_text();
    const auto found = values.find(key);
    return found == values.end() ? Value(1) : found->second;
  }

  /// The last call without the file: "GetInteger|SECTOR 0|ColorCode".
  [[nodiscard]] std::string last() const { return calls.back().substr(0, calls.back().rfind('|')); }

  std::map<std::string, Value> values{{"SessionKeyLength", 768}, {"AsyncRate", 4}};  // by key or expression
  std::set<std::string> fails;                                                       // calls, as recorded
  std::vector<std::string> calls;
};

}  // namespace vorlan::test
