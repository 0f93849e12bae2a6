#include "server/com/foreign_object.hpp"

#include <dispex.h>

#include <memory>
#include <vector>

#include "server/com/com_error.hpp"
#include "server/com/guid.hpp"
#include "server/com/turn.hpp"

namespace vorlan::com {

namespace {

/// Arguments as COM takes them, last one first, and the result. By reference, each is a Variant that refers to another.
class Arguments {
 public:
  Arguments(std::span<const Value> values, bool by_reference, Objects& objects) : Arguments(values.size(), objects) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      VARIANT& passed = passed_[values.size() - 1 - i];
      VARIANT& held = *held_[i];
      to_variant(values[i], held, objects);
      passed = held;
      if (!by_reference) continue;
      passed.vt = VT_BYREF | VT_VARIANT;
      passed.pvarVal = &held;
    }
  }
  Arguments(const Arguments&) = delete;
  Arguments& operator=(const Arguments&) = delete;
  ~Arguments() {
    const Pause others_meanwhile;
    held_.reset();
    VariantClear(result_.get());
  }
  std::vector<VARIANT>& passed() noexcept { return passed_; }
  Variant& result() noexcept { return result_; }
  void take_back(std::span<Value> values) {
    for (std::size_t i = 0; i < values.size(); ++i) values[i] = to_value(*held_[i], objects_);
  }

 private:
  /// Complete with this, so that the destructor lets go of what is held when one of the values cannot be passed.
  Arguments(std::size_t count, Objects& objects)
      : objects_(objects), held_(std::make_unique<Variant[]>(count)), passed_(count) {}

  Objects& objects_;
  std::unique_ptr<Variant[]> held_;
  std::vector<VARIANT> passed_;
  Variant result_;
};

std::string class_of(IDispatch& dispatch) {
  const Pause others_meanwhile;
  ComPointer<ITypeInfo> info;
  BSTR name = nullptr;
  if (FAILED(dispatch.GetTypeInfo(0, LOCALE_USER_DEFAULT, info.out())) || !info ||
      FAILED(info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr))) {
    return "Object";
  }
  std::string text = narrow_text(view(name));
  SysFreeString(name);
  return text;
}

}  // namespace

ForeignObject::ForeignObject(ComPointer<IDispatch> dispatch, Objects& objects) noexcept
    : dispatch_(std::move(dispatch)), objects_(objects) {}
ForeignObject::~ForeignObject() { Turn::release_after(ComPointer<IUnknown>(dispatch_.detach())); }

ComPointer<IDispatchEx> ForeignObject::extended() const { return dispatch_.as<IDispatchEx>(kExtendedDispatch); }

HRESULT ForeignObject::ask_for(const std::wstring& name, Member& member) {
  const Pause others_meanwhile;
  auto* names = const_cast<wchar_t*>(name.c_str());
  const HRESULT result = dispatch_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &member.id);
  if (SUCCEEDED(result)) return result;
  // Some script engines answer names here alone, and others are particular about capitals there.
  const auto other = extended();
  if (!other) return result;
  member.extended = true;
  const BSTR text = SysAllocString(names);
  const HRESULT other_result = other->GetDispID(text, fdexNameCaseInsensitive, &member.id);
  SysFreeString(text);
  return other_result;
}

ForeignObject::Member ForeignObject::find(std::string_view name) {
  {
    const std::scoped_lock guard(mutex_);
    const auto known = members_.find(name);
    if (known != members_.end()) return known->second;
  }
  Member member;
  const HRESULT result = ask_for(wide_text(name), member);
  // The default member is known by its number, whatever it is called.
  if (FAILED(result) && equals_ignoring_case(name, "Item")) {
    member = {.id = DISPID_VALUE};
  } else if (FAILED(result)) {
    EXCEPINFO none{};
    if (result == DISP_E_UNKNOWNNAME || result == E_NOTIMPL || result == DISP_E_MEMBERNOTFOUND) {
      throw Error(ErrorNumber::MemberNotFound, class_of(*dispatch_.get()), name);
    }
    throw error_of(result, none, name);
  }
  const std::scoped_lock guard(mutex_);
  return members_.emplace(name, member).first->second;
}

void ForeignObject::settle(std::string_view name, const Member& member) {
  const std::scoped_lock guard(mutex_);
  takes_references_ = takes_references_ || member.by_reference == true;
  members_.insert_or_assign(std::string(name), member);
}

HRESULT ForeignObject::call(const Member& member, WORD kind, DISPPARAMS& parameters, Variant& result,
                            EXCEPINFO& information, UINT& bad_argument) {
  const bool assigns = (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  VARIANT* answer = assigns ? nullptr : result.get();
  const Pause others_meanwhile;
  if (member.extended) {
    const auto other = extended();
    if (!other) return E_NOINTERFACE;
    return other->InvokeEx(member.id, LOCALE_USER_DEFAULT, kind, &parameters, answer, &information, nullptr);
  }
  return dispatch_->Invoke(member.id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, answer, &information,
                           &bad_argument);
}

HRESULT ForeignObject::try_kinds(Member& member, Access access, DISPPARAMS& parameters, Variant& result,
                                 EXCEPINFO& information, UINT& bad_argument) {
  const auto kinds = [&]() -> Kinds {
    constexpr WORD kEither = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    switch (access) {
      case Access::Let: return {DISPATCH_PROPERTYPUT, DISPATCH_PROPERTYPUTREF};
      case Access::Set: return {DISPATCH_PROPERTYPUTREF, DISPATCH_PROPERTYPUT};
      case Access::Call: return {kEither, DISPATCH_METHOD};
      case Access::Get: break;
    }
    // Asked for either, a script's own object would call the value that a property holds.
    if (parameters.cArgs == 0) return {DISPATCH_PROPERTYGET, kEither};
    return {kEither, DISPATCH_PROPERTYGET};
  }();
  const bool by_index = access == Access::Get && parameters.cArgs > 0;
  std::optional<int>& settled = by_index ? member.indexed_get : member.kind[static_cast<std::size_t>(access)];
  const auto with = [&](int kind) {
    return call(member, kinds[static_cast<std::size_t>(kind)], parameters, result, information, bad_argument);
  };
  if (settled) return with(*settled);
  settled = 0;
  const HRESULT first = with(0);
  if (first != DISP_E_MEMBERNOTFOUND) return first;
  const HRESULT second = with(1);
  if (second != DISP_E_MEMBERNOTFOUND) settled = 1;
  return second;
}

Value ForeignObject::invoke(std::string_view member, Access access, std::span<Value> arguments) {
  Member found = find(member);
  const Member before = found;
  const bool assigns = access == Access::Let || access == Access::Set;
  EXCEPINFO information{};
  DISPID value_name = DISPID_PROPERTYPUT;
  for (bool by_reference = access == Access::Call && !arguments.empty() && found.by_reference != false;;) {
    Arguments passed(arguments, by_reference, objects_);
    DISPPARAMS parameters{passed.passed().data(), assigns ? &value_name : nullptr, static_cast<UINT>(arguments.size()),
                          assigns ? 1U : 0U};
    UINT bad_argument = UINT_MAX;
    const HRESULT status = try_kinds(found, access, parameters, passed.result(), information, bad_argument);
    const bool refused = status == DISP_E_TYPEMISMATCH || status == DISP_E_BADVARTYPE;
    if (by_reference && !found.by_reference) {
      if (SUCCEEDED(status) || status == DISP_E_EXCEPTION) found.by_reference = true;
      if (refused && !found.extended && (bad_argument != UINT_MAX || !takes_references())) {
        found.by_reference = by_reference = false;
        continue;
      }
    } else if (found.by_reference == false && before.by_reference != false) {
      found.by_reference = refused;  // whichever way: that is not what it refuses
    }
    if (!(found == before)) settle(member, found);
    if (by_reference) passed.take_back(arguments);
    if (SUCCEEDED(status)) return to_value(*passed.result(), objects_);
    throw error_of(status, information, class_of(*dispatch_.get()).append(".").append(member));
  }
}

std::optional<Value> ForeignObject::default_value() {
  Arguments none({}, false, objects_);
  EXCEPINFO information{};
  DISPPARAMS parameters{};
  Member value{.id = DISPID_VALUE};
  UINT bad_argument = 0;
  const HRESULT status = try_kinds(value, Access::Get, parameters, none.result(), information, bad_argument);
  if (SUCCEEDED(status)) return to_value(*none.result(), objects_);
  for (const HRESULT none_there :
       {DISP_E_MEMBERNOTFOUND, DISP_E_UNKNOWNNAME, DISP_E_BADPARAMCOUNT, DISP_E_PARAMNOTOPTIONAL, E_NOTIMPL}) {
    if (status == none_there) return {};
  }
  throw error_of(status, information, class_of(*dispatch_.get()));
}

Ref<Object> foreign_object_of(IUnknown& unknown, Objects& objects) {
  const Pause others_meanwhile;
  auto dispatch = ComPointer<IUnknown>::sharing(&unknown).as<IDispatch>(IID_IDispatch);
  if (!dispatch) throw Error(ErrorNumber::TypeMismatch, {}, "the object is not for automation");
  return make<ForeignObject>(std::move(dispatch), objects);
}

Ref<Object> create_foreign_object(std::string_view prog_id, Objects& objects) {
  const Pause others_meanwhile;
  CLSID id;
  if (FAILED(CLSIDFromProgID(wide_text(prog_id).c_str(), &id)) || IsEqualGUID(id, guid_of(class_uuid(prog_id))) != 0) {
    return {};
  }
  ComPointer<IDispatch> made;
  const HRESULT result =
      CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch, made.out_void());
  // Registered for programs of another kind, such as 32-bit ones.
  if (result == REGDB_E_CLASSNOTREG) return {};
  if (FAILED(result)) {
    throw Error(ErrorNumber::CannotCreateObject, "Vorlan", std::string(prog_id) + ": " + system_text(result));
  }
  return make<ForeignObject>(std::move(made), objects);
}

}  // namespace vorlan::com
