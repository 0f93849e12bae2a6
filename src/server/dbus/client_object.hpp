// An object that lives with a client, or with any other service on the bus.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "server/dbus/pump.hpp"
#include "server/dbus/wire_value.hpp"

namespace vorlan::dbus {

/// What the objects of one worker's clients share: the bus, and which of them there are.
struct Clients {
  sd_bus* bus;
  Pump& pump;
  References& references;
  /// Those in use: the same service and path are the same object.
  std::map<std::pair<std::string, std::string>, Object*> objects;
};

/// Every access is one call of the object's Vorlan.Object.Invoke (member, access, arguments), answered with the result
/// and the arguments as they have become. Other calls run until the answer comes; nothing limits how long that takes,
/// but an answer never fails to come once the other side has left the bus.
class ClientObject final : public Object {
 public:
  static Ref<Object> of(Clients& clients, const Reference& name);

  Value invoke(std::string_view member, Access access, std::span<Value> arguments) override;
  [[nodiscard]] const Reference& name() const noexcept { return name_; }

 private:
  ClientObject(Clients& clients, const Reference& name);
  ~ClientObject() override;

  Value ask(const std::string& member, Access access, std::span<Value> arguments);
  [[nodiscard]] std::string source_of(const std::string& member) const { return name_.path + "." + member; }

  Clients& clients_;
  Reference name_;
};

/// "Get", "Let", "Set" or "Call".
const char* text_of(Access access) noexcept;

}  // namespace vorlan::dbus
