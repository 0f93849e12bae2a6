// Arrays of a script engine that makes objects of them, as JScript does.
#pragma once

#include <optional>

#include "server/com/variant.hpp"

namespace vorlan::com {

/// The elements of such an array; none if the object is another, or has more than 65,536.
std::optional<Value::Array> script_array(IDispatch& object, Objects& objects);

}  // namespace vorlan::com
