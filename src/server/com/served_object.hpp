// An object of the library as COM clients see it.
#pragma once

#include <atomic>

#include "automation/registry.hpp"
#include "server/com/com_headers.hpp"
#include "server/com/host.hpp"

namespace vorlan::com {

/// A collection can be gone through: an enumeration is the same object once more, with a place in it.
class ServedObject final : public IDispatch, public ISupportErrorInfo, public IProvideClassInfo, public IEnumVARIANT {
 public:
  /// A new object of a class. It is made by the first call, which tells whose it is: activation comes from the system.
  ServedObject(Host& host, const ClassEntry& entry);
  /// An object that a call gives back; its class is that of info_of().
  ServedObject(Host& host, Client& client, Ref<Object> object, const ClassIds& ids);
  ServedObject(const ServedObject&) = delete;
  ServedObject& operator=(const ServedObject&) = delete;

  static const ClassInfo& info_of(const Object& object);

  /// The object itself; made if it is not there yet, for this client unless another has used it first.
  const Ref<Object>& object(Client& client);
  [[nodiscard]] bool is_of(const Client& client) const noexcept {
    const Client* owner = client_;
    if (owner == nullptr) owner = asked_by_;
    return owner == &client;
  }
  bool add_reference_if_alive() noexcept;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() noexcept override;

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) noexcept override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) noexcept override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD kind, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* information, UINT* bad_argument) noexcept override;

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) noexcept override;
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) noexcept override;

  HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* items, ULONG* given) noexcept override;
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override;
  HRESULT STDMETHODCALLTYPE Reset() noexcept override;
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** enumeration) noexcept override;

 private:
  ~ServedObject();
  Client& client();
  Value call(const MemberInfo& member, WORD kind, DISPPARAMS& parameters, Client& client);
  /// Whether an interface is the one through which the members are called.
  [[nodiscard]] bool is_members(REFIID iid) const noexcept;
  HRESULT enumerate(VARIANT& enumeration) noexcept;

  std::atomic<ULONG> references_{1};
  Host& host_;
  const ClassEntry* entry_ = nullptr;
  const ClassInfo& info_;
  const ClassIds& ids_;
  std::atomic<Client*> client_{nullptr};
  std::atomic<const Client*> asked_by_{nullptr};  ///< who holds it, as far as is known before the first call
  Ref<Object> object_;
  std::int32_t next_ = 0;  ///< of an enumeration: the item that comes next; 0: it is none
};

}  // namespace vorlan::com
