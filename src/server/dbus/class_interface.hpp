// A class of the registry as a D-Bus interface.
//
// A property that can be used without arguments is a D-Bus property. One that takes arguments is a method of its name
// that reads it, and a method "Set_" and its name that takes the value behind the arguments. A method is a method; its
// results are its own, if it has one, and then what its by-reference arguments became, in their order. An optional
// argument is a variant, which may hold Empty; those at the end may also be left away.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "automation/registry.hpp"

namespace vorlan::dbus {

struct BusArgument {
  std::string_view name;
  ValueType type = ValueType::Any;
  std::optional<ValueType> optional = {};  ///< of an optional argument: what the variant is converted to
};

/// A D-Bus method of a class, and what it does to the member behind it.
struct BusMethod {
  const MemberInfo* member = nullptr;
  std::string name;
  bool assigns = false;  ///< the last argument is the value
  std::vector<BusArgument> in;
  std::string signature;     ///< of all arguments
  std::size_t optional = 0;  ///< how many arguments at the end may be left away
  bool has_result = false;
  std::vector<std::size_t> by_reference;  ///< arguments that are results too

  /// Whether the arguments of a call have this signature.
  [[nodiscard]] bool accepts(std::string_view given) const noexcept;
  /// The signature for people, with what may be left away in brackets: "n[vv]".
  [[nodiscard]] std::string expected() const;
};

/// A property of a class that is one on the bus.
[[nodiscard]] bool is_bus_property(const MemberInfo& member) noexcept;
/// Whether GetAll shows a property: not if reading it has an effect, such as handing out an object.
[[nodiscard]] bool is_shown(const MemberInfo& member) noexcept;
/// How a value is assigned: objects by Set where the property can be set, anything else by Let.
[[nodiscard]] Access assignment_of(const MemberInfo& member, const Value& value) noexcept;

class ClassInterface {
 public:
  ClassInterface(std::string name, const ClassInfo& info);
  ClassInterface(const ClassInterface&) = delete;
  ClassInterface& operator=(const ClassInterface&) = delete;

  /// "Vorlan.SB_Ses_MsgSessionClose"
  [[nodiscard]] const std::string& name() const noexcept { return name_; }
  [[nodiscard]] std::span<const MemberInfo* const> properties() const noexcept { return properties_; }
  /// Names as the class spells them; null if there is none.
  [[nodiscard]] const MemberInfo* property(std::string_view name) const noexcept;
  [[nodiscard]] const BusMethod* method(std::string_view name) const noexcept;
  /// The interface in introspection data.
  [[nodiscard]] std::string xml() const;

 private:
  void add_method(const MemberInfo& member, bool assigns);

  std::string name_;
  std::string_view summary_;
  std::vector<const MemberInfo*> properties_;
  std::vector<std::unique_ptr<BusMethod>> methods_;
  std::unordered_map<std::string_view, const MemberInfo*> properties_by_name_;
  std::unordered_map<std::string_view, const BusMethod*> methods_by_name_;
};

/// The interfaces of all classes, made on first use.
class ClassInterfaces {
 public:
  explicit ClassInterfaces(const Registry& registry) : registry_(registry) {}
  const ClassInterface& of(const ClassInfo& info);

 private:
  const Registry& registry_;
  std::map<const ClassInfo*, ClassInterface> made_;
};

}  // namespace vorlan::dbus
