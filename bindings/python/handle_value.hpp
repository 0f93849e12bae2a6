// What an indexed property is where Python asks for a value: in a condition, a comparison, a text, a number.
#pragma once

#include <span>

#include "state.hpp"

namespace vorlan::python {

/// Every index may be left out: the property without one is the value, read anew each time. What merely looks, such as
/// help() and inspect, does not read it.
std::span<const PyType_Slot> slots_of_optional_index();

/// An index is needed: a TypeError says so, instead of a handle that is always true and equal to nothing.
std::span<const PyType_Slot> slots_of_needed_index();

}  // namespace vorlan::python
