// A worker: the process that holds one client's objects and answers the client's calls.
#pragma once

#include <set>
#include <string>

#include "automation/registry.hpp"
#include "platform/platform.hpp"
#include "server/dbus/class_interface.hpp"
#include "server/dbus/client_object.hpp"
#include "server/dbus/object_table.hpp"
#include "server/dbus/pump.hpp"
#include "server/dbus/target.hpp"

namespace vorlan::dbus {

/// Whom a worker works for.
struct Client {
  std::string name;   ///< a unique bus name; or Vorlan.Session.<name>: every caller of the bus's owner
  std::string front;  ///< unique bus name of the front process
};

class Worker final : private Calls, private References {
 public:
  Worker(const Registry& registry, Platform platform, Client client);
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  [[nodiscard]] const std::string& name() const noexcept { return name_; }
  /// What objects are created with: the system's, but its clock lets other calls run in sleep().
  [[nodiscard]] Platform& platform() noexcept { return platform_; }
  [[noreturn]] void run() { pump_.run(); }

 private:
  bool admit(sd_bus_message* call) noexcept override;
  bool answer_at_once(sd_bus_message* call) noexcept override;
  void answer(sd_bus_message* call) noexcept override;

  Reference name_of(const Ref<Object>& object) override;
  Ref<Object> object_of(const Reference& name) override;

  bool dispatch_at_once(const Target& target);
  void dispatch(const Target& target);

  void introspect(const Target& target);
  void call_root(const Target& target);
  void use_root_properties(const Target& target);
  /// Uses a member of an object, by a function that fills the reply. An error that names no source comes from the
  /// member; a call that was cancelled ends with error 18, whatever has become of it.
  template <class Function>
  void use(const Target& target, const Object& object, std::string_view member, Function&& function);
  void use_properties(const Target& target, Object& object);
  void get_all(const PropertyCall& wanted, const Target& target, Object& object);
  void append_readable(sd_bus_message* reply, Writer& writer, const MemberInfo& member, Object& object);
  void call_method(const Target& target, Object& object, const BusMethod& method);
  void invoke(const Target& target, Object& object);
  [[nodiscard]] std::string class_name(const Object& object);

  const Registry& registry_;
  Platform platform_;
  Client client_;
  bool shared_;
  Bus bus_;
  std::string name_;
  unsigned owner_;
  std::set<std::string, std::less<>> admitted_;  ///< callers of a shared worker that are the owner's
  Pump pump_;
  ClassInterfaces interfaces_;
  Clients clients_;
  ObjectTable objects_;
};

}  // namespace vorlan::dbus
