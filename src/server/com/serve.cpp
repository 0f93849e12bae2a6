#include "server/com/serve.hpp"

#include <deque>

#include "server/com/apartment.hpp"
#include "server/com/com_error.hpp"
#include "server/com/guid.hpp"
#include "server/com/kept_interfaces.hpp"
#include "server/com/served_object.hpp"

namespace vorlan::com {

namespace {

/// Makes the objects of one class. It lives as long as the process.
class Factory final : public IClassFactory {
 public:
  Factory(Host& host, const Registry::Class& cls) noexcept : host_(host), class_(cls) {}
  virtual ~Factory() = default;

  void offer() {
    constexpr DWORD kMany = REGCLS_MULTIPLEUSE | REGCLS_SUSPENDED;
    check(CoRegisterClassObject(guid_of(class_uuid(class_.prog_id())), this, CLSCTX_LOCAL_SERVER, kMany, &cookie_),
          class_.prog_id());
  }
  void withdraw() noexcept { CoRevokeClassObject(cookie_); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) noexcept override {
    if (out == nullptr) return E_POINTER;
    const bool known = IsEqualGUID(iid, IID_IUnknown) != 0 || IsEqualGUID(iid, IID_IClassFactory) != 0;
    *out = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** out) noexcept override {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    try {
      const ComPointer<IDispatch> made(new ServedObject(host_, *class_.entry));
      return made->QueryInterface(iid, out);
    } catch (const std::bad_alloc&) {
      return E_OUTOFMEMORY;
    } catch (const std::exception&) {
      return E_UNEXPECTED;
    }
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override {
    if (lock != FALSE) {
      CoAddRefServerProcess();
    } else {
      host_.release_process();
    }
    return S_OK;
  }

 private:
  Host& host_;
  const Registry::Class& class_;
  DWORD cookie_ = 0;
};

// The server has a reference of its own to its process: as long as it has it, COM does not stop taking activations.

/// Whether objects or locks keep the process, too.
bool is_in_use() noexcept {
  CoAddRefServerProcess();
  return CoReleaseServerProcess() > 1;
}

/// Gives the server's own reference up if it is the last. COM takes no more activations then.
bool gave_up_the_last() noexcept {
  if (CoReleaseServerProcess() == 0) return true;
  CoAddRefServerProcess();
  return false;
}

/// Waits until nobody has used the server for a while: a script often lets go of its last object right before it
/// creates the next one.
void wait_for_the_last(Host& host, DWORD patience) {
  constexpr DWORD kLinger = 2'000;  // ms
  CoAddRefServerProcess();
  for (;; patience = is_in_use() ? INFINITE : kLinger) {
    const bool woken = WaitForSingleObject(host.wake(), patience) == WAIT_OBJECT_0;
    host.clear_up();
    if (!woken && !is_in_use() && gave_up_the_last()) return;
  }
}

}  // namespace

void serve(const Registry& registry, const Client::MakePlatform& make_platform) {
  Host host(registry, make_platform);
  std::deque<Factory> factories;
  const Apartment apartment;  // left first: nothing comes in then
  const KeptInterfaces interfaces;
  for (const Registry::Class& cls : registry.classes()) factories.emplace_back(host, cls).offer();
  check(CoResumeClassObjects(), "classes");
  constexpr DWORD kFirstWait = 20'000;  // ms; whoever started us may have died since
  wait_for_the_last(host, kFirstWait);
  for (Factory& factory : factories) factory.withdraw();
  // Where the system does not hold activations back, one may have come in meanwhile.
  wait_for_the_last(host, 0);
}

}  // namespace vorlan::com
