// Going through a collection, as For Each does.
#include <new>

#include "automation/error.hpp"
#include "server/com/com_error.hpp"
#include "server/com/served_object.hpp"
#include "server/com/turn.hpp"

namespace vorlan::com {

HRESULT ServedObject::enumerate(VARIANT& enumeration) noexcept {
  IEnumVARIANT* made = nullptr;
  const HRESULT result = Clone(&made);
  if (FAILED(result)) return result;
  made->Reset();
  enumeration.punkVal = made;
  enumeration.vt = VT_UNKNOWN;
  return S_OK;
}

HRESULT ServedObject::Clone(IEnumVARIANT** enumeration) noexcept {
  if (enumeration == nullptr) return E_POINTER;
  *enumeration = nullptr;
  try {
    Client& owner = client();
    const Turn turn(owner.turns());
    auto* made = new ServedObject(host_, owner, object(owner), ids_);
    made->next_ = next_;
    host_.add(*made);
    *enumeration = made;
    return S_OK;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (const std::exception&) {
    return E_UNEXPECTED;
  }
}

HRESULT ServedObject::Next(ULONG count, VARIANT* items, ULONG* given) noexcept {
  if (items == nullptr) return E_POINTER;
  ULONG made = 0;
  HRESULT result = S_OK;
  try {
    Client& owner = client();
    const Turn turn(owner.turns());
    const std::int32_t last = object_->get("Count").to_long();
    for (; made < count && next_ <= last; ++made, ++next_) {
      to_variant(object_->get("Item", next_), items[made], owner);
    }
    if (made < count) result = S_FALSE;
  } catch (const Error& error) {
    result = scode_of(error.number());
    if (SUCCEEDED(result)) result = E_FAIL;
  } catch (const std::exception&) {
    result = E_OUTOFMEMORY;
  }
  if (FAILED(result)) {
    for (; made > 0; --made) VariantClear(&items[made - 1]);
  }
  if (given != nullptr) *given = made;
  return result;
}

HRESULT ServedObject::Skip(ULONG count) noexcept {
  VARIANT item;
  for (; count > 0; --count) {
    if (const HRESULT result = Next(1, &item, nullptr); result != S_OK) return result;
    VariantClear(&item);
  }
  return S_OK;
}

HRESULT ServedObject::Reset() noexcept {
  next_ = 1;
  return S_OK;
}

}  // namespace vorlan::com
