// Values between the library and COM.
#pragma once

#include "automation/value.hpp"
#include "server/com/com_headers.hpp"
#include "server/com/com_pointer.hpp"

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
/// an array of several dimensions an array of arrays. Error 13 for anything else, records among it.
Value to_value(const VARIANT& variant, Objects& objects);

/// What was there is overwritten, not freed.
void to_variant(const Value& value, VARIANT& variant, Objects& objects);

/// Assigns to what a reference refers to: to a Variant as it is, to anything else converted to its type (error 6 or 13
/// if it does not fit). An array that is there keeps its type and lower bound, and stays itself where the number of
/// elements does; error 10 if it is fixed and the number differs. Does nothing for an argument that is no reference.
void assign_to_reference(VARIANT& reference, const Value& value, Objects& objects);

/// Octets of a number of that type; 0: numbers are of other types.
std::size_t number_size(VARTYPE type) noexcept;

/// Converts as automation does, whatever the locale. Error 6 or 13 if the value does not fit.
void change_type(Variant& value, VARTYPE type);

/// What a reference to a Variant refers to in the end; anything else is itself.
inline const VARIANT& referred(const VARIANT& argument) noexcept {
  const VARIANT* found = &argument;
  while (found->vt == (VT_BYREF | VT_VARIANT)) found = found->pvarVal;
  return *found;
}

/// Whether an argument was left out.
inline bool is_left_out(const VARIANT& argument) noexcept {
  const VARIANT& given = referred(argument);
  return given.vt == VT_ERROR && given.scode == DISP_E_PARAMNOTFOUND;
}

}  // namespace vorlan::com
