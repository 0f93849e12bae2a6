// The classes of this folder that scripts can create.
#pragma once

#include <span>

#include "automation/registry.hpp"

namespace vorlan {

std::span<const ClassEntry> security_classes() noexcept;

}  // namespace vorlan
