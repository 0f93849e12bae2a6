// A late-bound object as a C++ program uses it.
#pragma once

#include <initializer_list>
#include <vector>

#include "server/com/com_error.hpp"
#include "server/com/com_pointer.hpp"

namespace vorlan::com {

struct LateBound {
  explicit LateBound(const wchar_t* prog_id) {
    CLSID id;
    check(CLSIDFromProgID(prog_id, &id), "class");
    check(CoCreateInstance(id, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch, object.out_void()), "object");
  }
  [[nodiscard]] DISPID id(const wchar_t* name) const {
    DISPID found = DISPID_UNKNOWN;
    auto* text = const_cast<wchar_t*>(name);
    check(object->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &found), "name");
    return found;
  }
  /// The result of the call; `result` and `information` are what it gave.
  HRESULT invoke(const wchar_t* name, WORD kind, std::initializer_list<VARIANT> arguments,
                 std::vector<DISPID> names = {}) {
    std::vector<VARIANT> passed(std::rbegin(arguments), std::rend(arguments));
    DISPPARAMS parameters{passed.data(), names.data(), static_cast<UINT>(passed.size()),
                          static_cast<UINT>(names.size())};
    information = {};
    VariantClear(result.get());
    constexpr WORD kAssigns = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;
    return object->Invoke(id(name), IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                          (kind & kAssigns) != 0 ? nullptr : result.get(), &information, nullptr);
  }

  ComPointer<IDispatch> object;
  Variant result;
  EXCEPINFO information{};
};

inline VARIANT long_value(LONG value) {
  VARIANT made;
  made.vt = VT_I4;
  made.lVal = value;
  return made;
}
inline VARIANT object_value(IDispatch* object) {
  VARIANT made;
  made.vt = VT_DISPATCH;
  made.pdispVal = object;
  return made;
}
inline VARIANT left_out() {
  VARIANT made;
  made.vt = VT_ERROR;
  made.scode = DISP_E_PARAMNOTFOUND;
  return made;
}
inline VARIANT reference(VARTYPE type, void* place) {
  VARIANT made;
  made.vt = static_cast<VARTYPE>(VT_BYREF | type);
  made.byref = place;
  return made;
}

}  // namespace vorlan::com
