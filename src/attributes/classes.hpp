// The attribute classes, and those of their values.
#pragma once

#include <span>

#include "automation/registry.hpp"

namespace vorlan {

std::span<const ClassEntry> simple_attribute_classes() noexcept;
std::span<const ClassEntry> complex_attribute_classes() noexcept;
std::span<const ClassEntry> value_classes() noexcept;

}  // namespace vorlan
