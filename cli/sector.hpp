// A sector that has a configuration and nothing else: enough for building messages.
#pragma once

#include <string>

#include "automation/registry.hpp"
#include "platform/platform.hpp"

namespace vorlan::cli {

/// Loads a sector's configuration from a parameter file into a new SB_GlobalParameters.
Ref<Object> configured_sector(const Registry& registry, Platform& platform, const std::string& parameter_file,
                              const std::string& sector_name);

}  // namespace vorlan::cli
