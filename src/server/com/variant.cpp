#include "server/com/variant.hpp"

#include <cmath>
#include <cstring>
#include <limits>

#include "server/com/com_error.hpp"
#include "server/com/com_pointer.hpp"
#include "server/com/safe_array.hpp"
#include "server/com/turn.hpp"

namespace vorlan::com {

namespace {

/// Before 1899-12-30, COM's dates count the days backwards but the time of day forwards.
Date date_of(DATE date) noexcept {
  if (date >= 0) return {date};
  const double whole = std::trunc(date);
  return {whole + (whole - date)};
}
DATE date_from(Date date) noexcept {
  const double whole = std::floor(date.days);
  return whole >= 0 ? date.days : whole - (date.days - whole);
}

template <class T>
Value whole_number(T number) {
  if (number >= std::numeric_limits<std::int32_t>::min() && number <= std::numeric_limits<std::int32_t>::max()) {
    return static_cast<std::int32_t>(number);
  }
  return static_cast<double>(number);
}

/// As a Double, for the types that count decimals.
Value real_number(const VARIANT& variant) {
  Variant real;
  if (FAILED(VariantChangeTypeEx(real.get(), const_cast<VARIANT*>(&variant), LOCALE_INVARIANT, 0, VT_R8))) mismatch();
  return real->dblVal;
}

void assign_typed(VARIANT& reference, Variant& value) {
  const auto type = static_cast<VARTYPE>(reference.vt & ~VT_BYREF);
  change_type(value, type);
  if (const std::size_t size = number_size(type); size != 0) {
    std::memcpy(reference.byref, &value->byref, size);
  } else if (type == VT_DECIMAL) {
    *reference.pdecVal = value->decVal;
    reference.pdecVal->wReserved = 0;
  } else if (type == VT_BSTR) {
    SysFreeString(std::exchange(*reference.pbstrVal, value.detach().bstrVal));
  } else if (type == VT_DISPATCH || type == VT_UNKNOWN) {
    Turn::release_after(ComPointer<IUnknown>(std::exchange(*reference.ppunkVal, value.detach().punkVal)));
  } else {
    mismatch();
  }
}

}  // namespace

std::size_t number_size(VARTYPE type) noexcept {
  switch (type) {
    case VT_I1:
    case VT_UI1: return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL: return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR: return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE: return 8;
    default: return 0;
  }
}

void change_type(Variant& value, VARTYPE type) {
  if (type == VT_VARIANT) return;
  const Pause others_meanwhile;  // an object is asked for its default property
  const HRESULT result = VariantChangeTypeEx(value.get(), value.get(), LOCALE_INVARIANT, VARIANT_ALPHABOOL, type);
  if (FAILED(result)) throw Error(result == DISP_E_OVERFLOW ? ErrorNumber::Overflow : ErrorNumber::TypeMismatch);
}

Value to_value(const VARIANT& variant, Objects& objects) {
  if ((variant.vt & VT_ARRAY) != 0) return read_array(variant, objects);
  if (variant.vt == (VT_BYREF | VT_VARIANT)) return to_value(referred(variant), objects);
  if ((variant.vt & VT_BYREF) != 0) {
    Variant copy;
    if (FAILED(VariantCopyInd(copy.get(), const_cast<VARIANT*>(&variant)))) mismatch();
    return to_value(*copy, objects);
  }
  switch (variant.vt) {
    case VT_EMPTY: return {};
    case VT_NULL: return Null{};
    case VT_BOOL: return variant.boolVal != VARIANT_FALSE;
    case VT_I1: return static_cast<std::int16_t>(static_cast<signed char>(variant.cVal));
    case VT_UI1: return static_cast<std::int16_t>(variant.bVal);
    case VT_I2: return static_cast<std::int16_t>(variant.iVal);
    case VT_UI2: return whole_number(variant.uiVal);
    case VT_I4:
    case VT_INT: return static_cast<std::int32_t>(variant.lVal);
    case VT_UI4:
    case VT_UINT: return whole_number(std::int64_t{variant.ulVal});
    case VT_I8: return whole_number(variant.llVal);
    case VT_UI8:
      return variant.ullVal > INT64_MAX ? Value(static_cast<double>(variant.ullVal))
                                        : whole_number(static_cast<std::int64_t>(variant.ullVal));
    case VT_R4: return variant.fltVal;
    case VT_R8: return variant.dblVal;
    case VT_CY:
    case VT_DECIMAL: return real_number(variant);
    case VT_DATE: return date_of(variant.date);
    case VT_BSTR: return narrow_text(view(variant.bstrVal));
    case VT_DISPATCH: return objects.object_of(variant.pdispVal);
    case VT_UNKNOWN: return objects.object_of(variant.punkVal);
    case VT_ERROR:
      if (is_left_out(variant)) return {};
      break;
    default: break;
  }
  mismatch();
}

void to_variant(const Value& value, VARIANT& variant, Objects& objects) {
  VariantInit(&variant);
  switch (value.type()) {
    case ValueType::Empty:
    case ValueType::Any: break;
    case ValueType::Null: variant.vt = VT_NULL; break;
    case ValueType::Boolean:
      variant.boolVal = *value.as<bool>() ? VARIANT_TRUE : VARIANT_FALSE;
      variant.vt = VT_BOOL;
      break;
    case ValueType::Integer:
      variant.iVal = *value.as<std::int16_t>();
      variant.vt = VT_I2;
      break;
    case ValueType::Long:
      variant.lVal = *value.as<std::int32_t>();
      variant.vt = VT_I4;
      break;
    case ValueType::Single:
      variant.fltVal = *value.as<float>();
      variant.vt = VT_R4;
      break;
    case ValueType::Double:
      variant.dblVal = *value.as<double>();
      variant.vt = VT_R8;
      break;
    case ValueType::Date:
      variant.date = date_from(*value.as<Date>());
      variant.vt = VT_DATE;
      break;
    case ValueType::String:
      variant.bstrVal = new_bstr(*value.as<std::string>());
      variant.vt = VT_BSTR;
      break;
    case ValueType::Array:
      variant.parray = new_array(*value.as<Value::Array>(), objects);
      variant.vt = VT_ARRAY | VT_VARIANT;
      break;
    case ValueType::Object:
      variant.pdispVal = objects.face_of(*value.as<Ref<Object>>());
      variant.vt = VT_DISPATCH;
      break;
  }
}

void assign_to_reference(VARIANT& reference, const Value& value, Objects& objects) {
  if ((reference.vt & VT_BYREF) == 0) return;
  if (reference.vt != (VT_BYREF | VT_VARIANT)) {
    if ((reference.vt & VT_ARRAY) != 0) {
      return assign_array(*reference.pparray, reference.vt & VT_TYPEMASK, value, objects);
    }
    Variant made;
    to_variant(value, *made, objects);
    return assign_typed(reference, made);
  }
  VARIANT& target = *reference.pvarVal;
  // A script's variable may itself refer to another one.
  if ((target.vt & VT_BYREF) != 0) return assign_to_reference(target, value, objects);
  if ((target.vt & VT_ARRAY) != 0 && value.is(ValueType::Array)) {
    return assign_array(target.parray, target.vt & VT_TYPEMASK, value, objects);
  }
  Variant made;
  to_variant(value, *made, objects);
  if (target.vt == VT_DISPATCH || target.vt == VT_UNKNOWN) {
    target.vt = VT_EMPTY;
    Turn::release_after(ComPointer<IUnknown>(target.punkVal));
  }
  VariantClear(&target);
  target = made.detach();
}

}  // namespace vorlan::com
