// The parts of the platform that the Windows registry offers.
#pragma once

#include <memory>

#include "platform/platform.hpp"

namespace vorlan {

/// Under HKEY_CURRENT_USER\Software\VB and VBA Program Settings, where automation clients keep their settings.
std::shared_ptr<SettingsStore> make_registry_settings();
std::shared_ptr<RegistryText> make_registry_text();

}  // namespace vorlan
