// Calls the members of a test set's objects by their role.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "automation/class_info.hpp"
#include "sector/test_set_members.hpp"

namespace vorlan {

/// The number of the error that a wait ends with when it is cancelled.
inline constexpr std::int32_t kCancelled = 18;

/// The names that the members have in this laboratory. What the test set raises passes through; a call on Nothing is
/// error 91 and names the object that is missing.
class TestSetAccess {
 public:
  /// Every name as it stands in kTestSetMembers.
  TestSetAccess() = default;
  /// With the names of [TestSetMembers] in the configuration's parameter file; none if there is no such section or
  /// file. Error 75 for a file that cannot be read, 1 for a role that does not exist or whose name is fixed.
  static TestSetAccess named_by(Object& configuration);
  /// Adds what its calls raise to the errors of a class that makes them.
  static void list_errors(std::vector<ErrorInfo>& list, std::string_view class_name);

  [[nodiscard]] std::string_view name(Role role) const noexcept;

  /// Calls a method or gets a property.
  template <class... Arguments>
  Value call(Role role, const Ref<Object>& object, Arguments&&... arguments) const {
    std::array<Value, sizeof...(Arguments)> values{Value(std::forward<Arguments>(arguments))...};
    return invoke(role, object, test_set_member(role).use == Use::Call ? Access::Call : Access::Get, values);
  }
  /// The same where an object is wanted: error 91 for Nothing.
  template <class... Arguments>
  [[nodiscard]] Ref<Object> object(Role role, const Ref<Object>& from, Arguments&&... arguments) const {
    return existing(role, call(role, from, std::forward<Arguments>(arguments)...));
  }
  /// The value is converted to the member's type first.
  void let(Role role, const Ref<Object>& object, const Value& value) const;

 private:
  Value invoke(Role role, const Ref<Object>& object, Access access, std::span<Value> arguments) const;
  static Ref<Object> existing(Role role, const Value& object);
  void rename(std::string_view line);

  std::vector<std::pair<Role, std::string>> names_;  // those that differ
};

}  // namespace vorlan
