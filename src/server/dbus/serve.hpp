// The out-of-process server on D-Bus, as the command line starts it.
#pragma once

#include <functional>
#include <string>

#include "automation/registry.hpp"
#include "platform/platform.hpp"

namespace vorlan::dbus {

struct ServeOptions {
  std::string worker;     ///< the client to work for; empty: be the front process
  std::string front;      ///< of a worker: unique bus name of the front process
  int front_process = 0;  ///< of a worker: the process that the front is
  /// What a worker's platform is given beside the system's own; it may be left out.
  std::function<void(Platform&)> prepare;
};

/// Serves until a signal ends it, the bus is gone or, as a worker, the front or the client is.
void serve(const Registry& registry, const ServeOptions& options);

}  // namespace vorlan::dbus
