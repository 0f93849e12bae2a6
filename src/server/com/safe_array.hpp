// Arrays between the library and COM.
#pragma once

#include "server/com/variant.hpp"

namespace vorlan::com {

/// Of an array or a reference to one; empty for one that has no elements yet. Error 13 for records and the like.
Value::Array read_array(const VARIANT& variant, Objects& objects);

/// Of Variants, from 0 on. The caller destroys it.
SAFEARRAY* new_array(const Value::Array& values, Objects& objects);

/// In place where the number of elements allows that, else an array of the same type and lower bound takes the place.
/// Error 10 if that may not be, 6 or 13 if an element does not fit.
void assign_array(SAFEARRAY*& array, VARTYPE type, const Value& value, Objects& objects);

}  // namespace vorlan::com
