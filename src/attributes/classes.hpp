// The attribute classes.
#pragma once

#include <span>

#include "automation/registry.hpp"

namespace vorlan {

std::span<const ClassEntry> simple_attribute_classes() noexcept;

}  // namespace vorlan
