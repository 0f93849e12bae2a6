// What an attribute gives that is not a plain property: a method to call, or an indexed property to subscript.
#pragma once

#include "class_type.hpp"

namespace vorlan::python {

/// Makes the two types.
void add_member_types(State& state);

/// A new reference: the member of an object, or of the class itself if `self` is null. Null if an exception is set.
PyObject* make_handle(const ClassType& cls, const Member& member, PyObject* self) noexcept;

}  // namespace vorlan::python
