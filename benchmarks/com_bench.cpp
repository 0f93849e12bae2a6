// A property read through Vorlan.exe beside that of the least that a COM server can be, by turns. Both are registered
// for the machine: the bench enters its own server, and takes it out again.
//
//   vorlan_com_bench [ROUNDS]    prints "name  nanoseconds ns" for each, medians of the rounds
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "server/com/apartment.hpp"
#include "server/com/guid.hpp"
#include "windows/late_bound.hpp"

namespace {

using namespace vorlan::com;

constexpr const wchar_t* kProgId = L"Vorlan.Bench.Least";
constexpr int kCallsPerRound = 500;

/// One property of number 1, whatever it is called.
class Least final : public IDispatch, public IClassFactory {
 public:
  explicit Least(HANDLE end) : end_(end) {}
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    *out = nullptr;
    if (IsEqualGUID(iid, IID_IUnknown) || IsEqualGUID(iid, IID_IDispatch)) *out = static_cast<IDispatch*>(this);
    if (IsEqualGUID(iid, IID_IClassFactory)) *out = static_cast<IClassFactory*>(this);
    return *out != nullptr ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID iid, void** out) override {
    return QueryInterface(iid, out);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return *count = 0, S_OK; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return DISP_E_BADINDEX; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* id) override { return *id = 1, S_OK; }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD kind, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                   UINT*) override {
    // A method call, which no reader makes, ends it.
    if (kind == DISPATCH_METHOD) SetEvent(end_);
    if (result == nullptr) return S_OK;
    result->vt = VT_BSTR;
    result->bstrVal = SysAllocString(L"00000001");
    return S_OK;
  }

 private:
  HANDLE end_;
};

GUID least_id() { return guid_of(class_uuid("Vorlan.Bench.Least")); }

int serve_least() {
  HANDLE end = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  Least least(end);
  const Apartment apartment;
  DWORD cookie = 0;
  check(CoRegisterClassObject(least_id(), static_cast<IClassFactory*>(&least), CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE,
                              &cookie),
        "class");
  WaitForSingleObject(end, INFINITE);
  CoRevokeClassObject(cookie);
  return 0;
}

class LeastRegistered {
 public:
  LeastRegistered() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    write(class_key_ + L"\\LocalServer32", L"\"" + std::wstring(path) + L"\"");
    write(prog_id_key_ + L"\\CLSID", vorlan::wide_text(registry_text(class_uuid("Vorlan.Bench.Least"))));
  }
  LeastRegistered(const LeastRegistered&) = delete;
  LeastRegistered& operator=(const LeastRegistered&) = delete;
  ~LeastRegistered() {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, class_key_.c_str());
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, prog_id_key_.c_str());
  }

 private:
  static void write(const std::wstring& key, const std::wstring& text) {
    check_status(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), nullptr, REG_SZ, text.c_str(),
                                 static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
                 "registry");
  }
  std::wstring prog_id_key_ = std::wstring(L"Software\\Classes\\") + kProgId;
  std::wstring class_key_ =
      L"Software\\Classes\\CLSID\\" + vorlan::wide_text(registry_text(class_uuid("Vorlan.Bench.Least")));
};

double nanoseconds_each(LateBound& object, DISPID property) {
  const auto begin = std::chrono::steady_clock::now();
  for (int i = 0; i < kCallsPerRound; ++i) {
    DISPPARAMS none{};
    Variant result;
    check(object.object->Invoke(property, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, result.get(),
                                nullptr, nullptr),
          "read");
  }
  return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - begin).count() / kCallsPerRound;
}

double median(std::vector<double> figures) {
  std::sort(figures.begin(), figures.end());
  return figures[figures.size() / 2];
}

void measure(int rounds) {
  const LeastRegistered registered;
  LateBound least(kProgId);
  LateBound message(L"Vorlan.SB_Ses_MsgSessionClose");
  const DISPID property = message.id(L"PRstr_MessageID");
  std::vector<double> leasts;
  std::vector<double> reads;
  std::vector<double> ratios;
  for (int round = 0; round < rounds; ++round) {
    leasts.push_back(nanoseconds_each(least, 1));
    reads.push_back(nanoseconds_each(message, property));
    ratios.push_back(reads.back() / leasts.back());
  }
  std::printf("COM property  %.0f ns\nCOM least  %.0f ns\nCOM ratio  %.2f\n", median(reads), median(leasts),
              median(ratios));
  least.invoke(L"End", DISPATCH_METHOD, {});
}

}  // namespace

int main(int count, char** words) try {
  if (count > 1 && std::string_view(words[1]).ends_with("Embedding")) return serve_least();
  const Apartment apartment;
  measure(count > 1 ? std::atoi(words[1]) : 21);
  return 0;
} catch (const vorlan::Error& error) {
  std::fprintf(stderr, "%s\n", error.description().c_str());
  return 1;
}
