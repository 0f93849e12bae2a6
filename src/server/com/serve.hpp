// The server process while the system runs it for its clients.
#pragma once

#include "automation/registry.hpp"
#include "server/com/client.hpp"

namespace vorlan::com {

/// Offers all classes until the last object is released, or until twenty seconds have passed without any.
void serve(const Registry& registry, const Client::MakePlatform& make_platform);

}  // namespace vorlan::com
