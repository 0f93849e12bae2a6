// What a call is for, as the front process and the workers look at it.
#pragma once

#include <string>
#include <string_view>

#include "server/dbus/bus.hpp"

namespace vorlan::dbus {

/// Where a call goes.
struct Target {
  explicit Target(sd_bus_message* called) noexcept;

  sd_bus_message* call;
  std::string_view path;
  std::string_view interface;  ///< may be missing
  std::string_view member;

  [[nodiscard]] bool is_for(std::string_view wanted) const noexcept { return interface.empty() || interface == wanted; }
  [[nodiscard]] bool introspects() const noexcept;
  [[nodiscard]] bool uses_properties() const noexcept;
  [[noreturn]] void refuse_method() const;
};

/// A call of the standard interface for properties; its arguments are refused if they do not fit. The value of a Set
/// is left to be read.
struct PropertyCall {
  explicit PropertyCall(const Target& target);

  bool all;
  bool sets;
  std::string interface;
  std::string name;  ///< none in a call for all

  /// Refuses the property: as one that cannot be set, or that there is none.
  [[noreturn]] void refuse(bool read_only) const;
  [[noreturn]] void refuse_interface() const;
};

}  // namespace vorlan::dbus
