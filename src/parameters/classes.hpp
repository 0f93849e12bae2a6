// The classes of this folder that scripts can create.
#pragma once

#include <span>

#include "automation/registry.hpp"

namespace vorlan {

std::span<const ClassEntry> parameter_classes() noexcept;
/// Those of the server "ReadINI".
std::span<const ClassEntry> parameter_file_classes() noexcept;

}  // namespace vorlan
