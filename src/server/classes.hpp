// The one visible list of all classes that scripts can create.
#pragma once

#include <span>

#include "automation/registry.hpp"

namespace vorlan {

/// The tables of all folders, under the names of the servers that offer them.
std::span<const ClassTable> class_tables();

}  // namespace vorlan
