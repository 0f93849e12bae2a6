#include "server/com/served_object.hpp"

#include <algorithm>
#include <new>

#include "automation/error.hpp"
#include "server/com/call_arguments.hpp"
#include "server/com/com_error.hpp"
#include "server/com/turn.hpp"

namespace vorlan::com {

const ClassInfo& ServedObject::info_of(const Object& object) {
  static const ClassInfo kPlain{{"Object", "An object that can be handed on.", {}}, {}};
  const ClassInfo* info = object.class_info();
  return info != nullptr ? *info : kPlain;
}

ServedObject::ServedObject(Host& host, const ClassEntry& entry)
    : host_(host), entry_(&entry), info_(entry.info()), ids_(host.ids_of(info_)) {
  host.add(*this);
  CoAddRefServerProcess();
}

ServedObject::ServedObject(Host& host, Client& client, Ref<Object> object, const ClassIds& ids)
    : host_(host), info_(info_of(*object)), ids_(ids), client_(&client), object_(std::move(object)) {
  CoAddRefServerProcess();
}

ServedObject::~ServedObject() { host_.release_process(); }

bool ServedObject::add_reference_if_alive() noexcept {
  ULONG count = references_;
  while (count != 0 && !references_.compare_exchange_weak(count, count + 1)) {
  }
  return count != 0;
}

ULONG ServedObject::Release() noexcept {
  const ULONG left = --references_;
  if (left == 0) {
    host_.remove(*this, object_.get());
    if (Client* owner = client_) {
      // What the object holds may be in use elsewhere.
      const Turn turn(owner->turns());
      object_ = {};
    }
    delete this;
  }
  return left;
}

HRESULT ServedObject::QueryInterface(REFIID iid, void** out) noexcept {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  if (IsEqualGUID(iid, IID_IUnknown) != 0 || is_members(iid)) {
    *out = static_cast<IDispatch*>(this);
  } else if (IsEqualGUID(iid, IID_ISupportErrorInfo) != 0) {
    *out = static_cast<ISupportErrorInfo*>(this);
  } else if (IsEqualGUID(iid, IID_IProvideClassInfo) != 0) {
    *out = static_cast<IProvideClassInfo*>(this);
  } else if (IsEqualGUID(iid, IID_IEnumVARIANT) != 0 && next_ != 0) {
    *out = static_cast<IEnumVARIANT*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  try {
    if (client_ == nullptr) asked_by_ = &host_.clients().of_this_call();
  } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch)
    // Not known then; the first call will tell.
  }
  return S_OK;
}

bool ServedObject::is_members(REFIID iid) const noexcept {
  return IsEqualGUID(iid, IID_IDispatch) != 0 ||
         (IsEqualGUID(iid, ids_.interface_id) != 0 && IsEqualGUID(iid, IID_NULL) == 0);
}

HRESULT ServedObject::InterfaceSupportsErrorInfo(REFIID iid) noexcept { return is_members(iid) ? S_OK : S_FALSE; }

HRESULT ServedObject::GetClassInfo(ITypeInfo** info) noexcept {
  if (info == nullptr) return E_POINTER;
  *info = host_.type_info(info_, &class_uuid).detach();
  return *info != nullptr ? S_OK : E_NOTIMPL;
}

Client& ServedObject::client() {
  if (client_ == nullptr) {
    Client* none = nullptr;
    client_.compare_exchange_strong(none, &host_.clients().of_this_call());
  }
  return *client_;
}

const Ref<Object>& ServedObject::object(Client& client) {
  Client* owner = nullptr;
  if (client_.compare_exchange_strong(owner, &client)) owner = &client;
  // Another client may use the object that it was handed at the same time: who owns it makes it once.
  const Turn turn(owner->turns());
  if (!object_) {
    object_ = entry_->create(owner->platform());
    host_.add_object(*this, *object_);
  }
  return object_;
}

HRESULT ServedObject::GetTypeInfoCount(UINT* count) noexcept {
  if (count == nullptr) return E_POINTER;
  *count = host_.type_info(info_, &members_uuid) ? 1 : 0;
  return S_OK;
}

HRESULT ServedObject::GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept {
  if (info == nullptr) return E_POINTER;
  *info = index == 0 ? host_.type_info(info_, &members_uuid).detach() : nullptr;
  return *info != nullptr ? S_OK : DISP_E_BADINDEX;
}

HRESULT ServedObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept {
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  std::fill_n(ids, count, DISPID_UNKNOWN);
  try {
    client();
    const int member = info_.find(PreparedName(narrow_text(names[0])));
    if (member < 0) return DISP_E_UNKNOWNNAME;
    ids[0] = ids_.members.id(member);
    const auto& parameters = info_.members()[static_cast<std::size_t>(member)].parameters;
    HRESULT result = S_OK;
    for (UINT i = 1; i < count; ++i) {
      const std::string name = narrow_text(names[i]);
      const auto found = std::find_if(parameters.begin(), parameters.end(),
                                      [&](const auto& p) { return equals_ignoring_case(p.name, name); });
      if (found == parameters.end()) {
        result = DISP_E_UNKNOWNNAME;
      } else {
        ids[i] = static_cast<DISPID>(found - parameters.begin());
      }
    }
    return result;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (const std::exception&) {
    return E_UNEXPECTED;
  }
}

Value ServedObject::call(const MemberInfo& member, WORD kind, DISPPARAMS& parameters, Client& caller) {
  const bool assigns = CallArguments::assigns(kind);
  const Ref<Object> target = object(caller);
  CallArguments arguments(member, parameters, kind, caller);
  const std::span<Value> values = arguments.values();
  // As in `Channels("FC_SECTOR 0")`: a property without parameters gives an object, whose default member is meant.
  const bool may_give_object = member.type == ValueType::Object || member.type == ValueType::Any;
  if (!assigns && !member.is_method() && may_give_object && member.parameters.empty() && !values.empty()) {
    const Ref<Object> inner = target->invoke(member.name, Access::Get, {}).to_object();
    return deref(inner, member.name).invoke("Item", Access::Get, values);
  }
  const bool sets =
      (kind & DISPATCH_PROPERTYPUTREF) != 0 || (member.sets && !values.empty() && values.back().is(ValueType::Object));
  const Access access = assigns ? (sets ? Access::Set : Access::Let) : member.is_method() ? Access::Call : Access::Get;
  try {
    Value result = target->invoke(member.name, access, values);
    arguments.give_back();
    return result;
  } catch (const Error&) {
    try {
      arguments.give_back();
    } catch (const Error&) {  // NOLINT(bugprone-empty-catch)
      // What was raised first is what the caller wants to know.
    }
    throw;
  }
}

HRESULT ServedObject::Invoke(DISPID id, REFIID iid, LCID, WORD kind, DISPPARAMS* parameters, VARIANT* result,
                             EXCEPINFO* information, UINT*) noexcept {
  if (IsEqualGUID(iid, IID_NULL) == 0) return DISP_E_UNKNOWNINTERFACE;
  if (parameters == nullptr) return E_INVALIDARG;
  const int index = ids_.members.member(id);
  if (id == DISPID_NEWENUM && result != nullptr && is_collection(info_)) return enumerate(*result);
  if (index < 0) return DISP_E_MEMBERNOTFOUND;
  const MemberInfo& member = info_.members()[static_cast<std::size_t>(index)];
  try {
    Client& owner = client();
    const Turn turn(owner.turns());
    const Value answer = call(member, kind, *parameters, owner);
    if (result != nullptr) to_variant(answer, *result, owner);
    return S_OK;
  } catch (Error& error) {
    if (!error.is(ErrorNumber::Failed)) {
      error.set_source_if_empty(std::string(info_.name()).append(".").append(member.name));
    }
    return tell(error, information);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (const std::exception& error) {
    return tell(Error(E_UNEXPECTED, info_.name(), error.what()), information);
  }
}

}  // namespace vorlan::com
