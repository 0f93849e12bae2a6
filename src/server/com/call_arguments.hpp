// The arguments of one call from a client: in, and back again.
#pragma once

#include <vector>

#include "automation/class_info.hpp"
#include "server/com/com_headers.hpp"
#include "server/com/variant.hpp"

namespace vorlan::com {

/// In the member's order, whether given by position or by name; the value of an assignment is the last one. What was
/// left out at the end is not there; what was left out before is Empty if it is optional. Error 450 for another one
/// left out, and for a name that is not a parameter's.
///
/// Where an object is due, Null is Nothing; where a number, date or text is, the default property of an object outside
/// is meant, and where anything is, the elements of a script engine's own array.
class CallArguments {
 public:
  CallArguments(const MemberInfo& member, const DISPPARAMS& parameters, WORD kind, Objects& objects);

  static bool assigns(WORD kind) noexcept { return (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0; }

  [[nodiscard]] std::span<Value> values() noexcept { return values_; }
  /// Changed values of by-reference parameters go to the caller's variables; the others' stay as they are.
  void give_back();

 private:
  void take(const DISPPARAMS& parameters, bool assigns);
  void check_left_out() const;
  [[nodiscard]] bool goes_back(std::size_t position) const noexcept;
  Value value_of(const VARIANT& given, ValueType due);

  const MemberInfo& member_;
  Objects& objects_;
  std::size_t indices_ = 0;      // all but the value of an assignment
  std::vector<VARIANT*> given_;  // null: left out
  std::vector<Value> values_;    // beside them
  std::vector<Value> before_;    // those that may go back, as they came
};

}  // namespace vorlan::com
