#include "server/com/kept_interfaces.hpp"

#include <algorithm>
#include <array>

namespace vorlan::com {

namespace {

constexpr std::array kKept{&IID_IClassFactory, &IID_IDispatch, &IID_IEnumVARIANT, &IID_IProvideClassInfo,
                           &IID_ISupportErrorInfo};

/// Has these interfaces, and is never called: nobody gets to see what it is marshalled to. It lives as long as the
/// process.
class NeverCalled final : public IUnknown {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) noexcept override {
    const auto is_it = [&](const IID* kept) { return IsEqualGUID(*kept, iid) != 0; };
    const bool known = is_it(&IID_IUnknown) || std::any_of(kKept.begin(), kKept.end(), is_it);
    *out = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
};

constinit NeverCalled never_called;

}  // namespace

KeptInterfaces::KeptInterfaces() {
  for (const IID* iid : kKept) {
    ComPointer<IStream> stream;
    // The server does without where a system cannot hand out one of them at all.
    if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, stream.out())) ||
        FAILED(CoMarshalInterface(stream.get(), *iid, &never_called, MSHCTX_LOCAL, nullptr, MSHLFLAGS_TABLESTRONG))) {
      continue;
    }
    marshalled_.push_back(std::move(stream));
  }
}

KeptInterfaces::~KeptInterfaces() {
  for (const auto& stream : marshalled_) {
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    CoReleaseMarshalData(stream.get());
  }
}

}  // namespace vorlan::com
