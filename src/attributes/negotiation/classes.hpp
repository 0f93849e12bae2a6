// The messages that carry attribute records.
#pragma once

#include <span>

#include "automation/registry.hpp"

namespace vorlan {

std::span<const ClassEntry> negotiation_classes() noexcept;

}  // namespace vorlan
