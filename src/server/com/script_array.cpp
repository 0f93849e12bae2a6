#include "server/com/script_array.hpp"

#include <dispex.h>

#include <string>

#include "server/com/com_error.hpp"
#include "server/com/guid.hpp"
#include "server/com/turn.hpp"

namespace vorlan::com {

namespace {

std::optional<DISPID> id_of(IDispatchEx& object, const std::wstring& name) {
  DISPID id = DISPID_UNKNOWN;
  const BSTR text = SysAllocString(name.c_str());
  const HRESULT result = object.GetDispID(text, fdexNameCaseSensitive, &id);
  SysFreeString(text);
  return SUCCEEDED(result) ? std::optional(id) : std::nullopt;
}

Value read(IDispatchEx& object, DISPID id, Objects& objects) {
  Variant result;
  EXCEPINFO information{};
  DISPPARAMS none{};
  const HRESULT status =
      object.InvokeEx(id, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, result.get(), &information, nullptr);
  if (FAILED(status)) throw error_of(status, information, "Array");
  return to_value(*result, objects);
}

}  // namespace

std::optional<Value::Array> script_array(IDispatch& object, Objects& objects) {
  constexpr std::int32_t kLongest = 65536;
  const Pause others_meanwhile;
  const auto array = ComPointer<IDispatch>::sharing(&object).as<IDispatchEx>(kExtendedDispatch);
  if (!array) return {};
  const auto length_id = id_of(*array.get(), L"length");
  // Other objects of a script may have a length, too.
  if (!length_id || !id_of(*array.get(), L"push") || !id_of(*array.get(), L"splice")) return {};
  const Value length = read(*array.get(), *length_id, objects);
  if (!length.is_numeric() || length.to_double() > kLongest) return {};
  Value::Array elements;
  for (std::int32_t i = 0, size = length.to_long(); i < size; ++i) {
    const auto id = id_of(*array.get(), std::to_wstring(i));
    elements.push_back(id ? read(*array.get(), *id, objects) : Value());
  }
  return elements;
}

}  // namespace vorlan::com
