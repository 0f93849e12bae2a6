// The front process: owns the server's name on the bus, and gives each client a worker of its own.
#pragma once

#include <systemd/sd-event.h>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "automation/registry.hpp"
#include "server/dbus/bus.hpp"
#include "server/dbus/class_interface.hpp"
#include "server/dbus/target.hpp"
#include "server/dbus/worker_process.hpp"

namespace vorlan::dbus {

using Loop = std::unique_ptr<sd_event, Dropper<&sd_event_unref>>;
using Source = std::unique_ptr<sd_event_source, Dropper<&sd_event_source_disable_unref>>;

/// The front executes nothing of the library, so that no call can keep it from its one duty: when a client leaves the
/// bus its worker is killed at once, in whatever it is doing. Workers end with the front, too (see serve.cpp).
class Front {
 public:
  /// `program` is what workers run; it is given the words that WorkerProcess tells.
  Front(const Registry& registry, std::string program);
  Front(const Front&) = delete;
  Front& operator=(const Front&) = delete;
  ~Front();

  /// Answers calls until it is told to end by a signal or the bus is gone.
  void run();

 private:
  struct Session;
  struct PassedOn;

  int on_call(sd_bus_message* call) noexcept;
  void dispatch(sd_bus_message* call);
  void introspect(const Target& target);
  void use_properties(const Target& target);
  /// The class that a path below the root shows; null at the root and above, refused anywhere else.
  const ClassInterface* class_at(std::string_view path);
  void list_classes(sd_bus_message* call);
  void create(sd_bus_message* call);
  void open_session(sd_bus_message* call);
  void close_session(sd_bus_message* call);
  void require_owner(sd_bus_message* call);

  /// A session whose worker is about to be ready. It is nobody's until it is added: whatever fails before ends it.
  std::unique_ptr<Session> start(const std::string& client);
  Session& add(std::unique_ptr<Session> session);
  template <void (Front::*Then)(Session&)>
  Source watch(const Descriptor& descriptor, Session& session);
  void pass_on(Session& session, Message call);
  /// A worker's answer to the call that was passed on to it goes back to the client as it is.
  void return_answer(sd_bus_message* answer, const PassedOn& passed_on) noexcept;
  void on_ready(Session& session);
  void on_worker_end(Session& session);
  void on_holder_end(Session& session);
  void on_client_left(std::string_view client) noexcept;

  const Registry& registry_;
  std::string program_;
  ClassInterfaces interfaces_;
  Loop loop_;
  Bus bus_;
  std::string name_;
  unsigned owner_;
  std::set<std::string, std::less<>> admitted_;  ///< clients on the bus that are the owner's
  std::map<std::string, std::unique_ptr<Session>, std::less<>> sessions_;
};

}  // namespace vorlan::dbus
