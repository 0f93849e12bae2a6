#include "server/com/safe_array.hpp"

#include <new>

#include "server/com/com_error.hpp"
#include "server/com/com_pointer.hpp"
#include "server/com/turn.hpp"

namespace vorlan::com {

namespace {

/// Octets of what an array may consist of; 0: it may not.
UINT element_size(VARTYPE type) noexcept {
  switch (type) {
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN: return sizeof(void*);
    case VT_VARIANT: return sizeof(VARIANT);
    case VT_DECIMAL: return sizeof(DECIMAL);
    default: return static_cast<UINT>(number_size(type));
  }
}

/// An array's elements, from its outermost dimension inwards.
class ArrayReader {
 public:
  ArrayReader(SAFEARRAY* array, VARTYPE type, Objects& objects)
      : array_(array), type_(type), objects_(objects), index_(SafeArrayGetDim(array)) {}

  Value::Array read(UINT dimension = 1) {
    LONG first = 0;
    LONG last = -1;
    if (FAILED(SafeArrayGetLBound(array_, dimension, &first)) || FAILED(SafeArrayGetUBound(array_, dimension, &last))) {
      mismatch();
    }
    Value::Array values;
    for (LONG i = first; i <= last; ++i) {
      index_[dimension - 1] = i;
      values.push_back(dimension < index_.size() ? Value(read(dimension + 1)) : element());
    }
    return values;
  }

 private:
  Value element() {
    Variant held;
    void* place = &held->byref;
    if (type_ == VT_VARIANT) place = held.get();
    if (type_ == VT_DECIMAL) place = &held->decVal;
    if (FAILED(SafeArrayGetElement(array_, index_.data(), place))) mismatch();
    if (type_ != VT_VARIANT) held->vt = type_;
    return to_value(*held, objects_);
  }

  SAFEARRAY* array_;
  VARTYPE type_;
  Objects& objects_;
  std::vector<LONG> index_;
};

/// Of one dimension. It can be resized, as one made by SafeArrayCreateVector may not.
SAFEARRAY* new_array(VARTYPE type, LONG first, ULONG size) {
  SAFEARRAYBOUND bound{size, first};
  SAFEARRAY* array = SafeArrayCreate(type, 1, &bound);
  if (array == nullptr) throw std::bad_alloc();
  return array;
}

void put_element(SAFEARRAY& array, VARTYPE type, LONG index, const Value& value, Objects& objects) {
  Variant element;
  to_variant(value, *element, objects);
  const Pause others_meanwhile;  // what was there is released
  change_type(element, type);
  void* place = &element->byref;
  if (type == VT_VARIANT) place = element.get();
  if (type == VT_DECIMAL) place = &element->decVal;
  // Texts and objects are passed themselves.
  if (type == VT_BSTR || type == VT_DISPATCH || type == VT_UNKNOWN) place = element->byref;
  if (FAILED(SafeArrayPutElement(&array, &index, place))) mismatch();
}

}  // namespace

Value::Array read_array(const VARIANT& variant, Objects& objects) {
  SAFEARRAY* array = (variant.vt & VT_BYREF) != 0 ? *variant.pparray : variant.parray;
  if (array == nullptr || SafeArrayGetDim(array) == 0) return {};
  const VARTYPE type = variant.vt & VT_TYPEMASK;
  if (element_size(type) == 0 || SafeArrayGetElemsize(array) != element_size(type)) mismatch();
  return ArrayReader(array, type, objects).read();
}

SAFEARRAY* new_array(const Value::Array& values, Objects& objects) {
  SAFEARRAY* array = new_array(VT_VARIANT, 0, static_cast<ULONG>(values.size()));
  auto* elements = static_cast<VARIANT*>(array->pvData);
  try {
    for (const Value& value : values) to_variant(value, *elements++, objects);
  } catch (...) {
    SafeArrayDestroy(array);
    throw;
  }
  return array;
}

void assign_array(SAFEARRAY*& array, VARTYPE type, const Value& value, Objects& objects) {
  const auto* values = value.as<Value::Array>();
  if (values == nullptr || element_size(type) == 0) mismatch();
  LONG first = 0;
  const bool is_row = array != nullptr && SafeArrayGetDim(array) == 1;
  if (is_row && FAILED(SafeArrayGetLBound(array, 1, &first))) mismatch();
  const auto size = static_cast<ULONG>(values->size());
  SAFEARRAY* target = array;
  if (!is_row || array->rgsabound[0].cElements != size) {
    constexpr std::int32_t kFixedArray = 10;
    if (array != nullptr && (array->fFeatures & (FADF_FIXEDSIZE | FADF_STATIC)) != 0) {
      throw Error(kFixedArray, {}, "This array is fixed or temporarily locked");
    }
    target = new_array(type, first, size);
  }
  try {
    for (ULONG i = 0; i < size; ++i) put_element(*target, type, first + static_cast<LONG>(i), (*values)[i], objects);
    const Pause others_meanwhile;
    if (target != array && array != nullptr && FAILED(SafeArrayDestroy(array))) mismatch();
  } catch (...) {
    if (target != array) SafeArrayDestroy(target);
    throw;
  }
  array = target;
}

}  // namespace vorlan::com
