// Values between the library and COM.
#pragma once

#include "automation/value.hpp"
#include "server/com/com_headers.hpp"

namespace vorlan::com {

/// Objects between the library and COM: the library's own come back as themselves, others through a stand-in.
class Objects {
 public:
  /// Nothing for null.
  virtual Ref<Object> object_of(IUnknown* unknown) = 0;
  /// Counted; null for Nothing.
  virtual IDispatch* face_of(const Ref<Object>& object) = 0;

 protected:
  ~Objects() = default;
};

/// References are followed; an argument left out is Empty. Numbers that no type of the library holds become a Double,
/// an array of several dimensions an array of arrays. Error 13 for anything else.
Value to_value(const VARIANT& variant, Objects& objects);

/// What was there is overwritten, not freed.
void to_variant(const Value& value, VARIANT& variant, Objects& objects);

/// Assigns to what a reference refers to: to a Variant as it is, to anything else converted to its type (error 6 or 13
/// if it does not fit). Does nothing for an argument that is no reference.
void assign_to_reference(VARIANT& reference, const Value& value, Objects& objects);

/// Whether an argument was left out.
inline bool is_left_out(const VARIANT& argument) noexcept {
  return argument.vt == VT_ERROR && argument.scode == DISP_E_PARAMNOTFOUND;
}

}  // namespace vorlan::com
