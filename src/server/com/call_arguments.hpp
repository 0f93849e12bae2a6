// The arguments of one call from a client: in, and back again.
#pragma once

#include <vector>

#include "automation/class_info.hpp"
#include "server/com/com_headers.hpp"
#include "server/com/variant.hpp"

namespace vorlan::com {

/// In the member's order, whether given by position or by name; the value of an assignment is the last one. What was
/// left out at the end is not there; what was left out before is Empty. Error 450 for a name that is not a parameter's.
class CallArguments {
 public:
  CallArguments(const MemberInfo& member, const DISPPARAMS& parameters, bool assigns, Objects& objects);

  [[nodiscard]] std::span<Value> values() noexcept { return values_; }
  /// Changed values of by-reference parameters go to the caller's variables.
  void give_back();

 private:
  void place(std::size_t position, VARIANT& given);

  const MemberInfo& member_;
  Objects& objects_;
  std::vector<Value> values_;
  std::vector<VARIANT*> given_;  // beside the values; null: left out
};

}  // namespace vorlan::com
