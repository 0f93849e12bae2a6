// A client in C++ does what no scripting host does: typed references, named arguments, a look at the error's parts and
// at the type library, calls from two threads. Prints what fails, and how many.
#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <span>
#include <thread>

#include "late_bound.hpp"
#include "server/com/apartment.hpp"
#include "server/com/guid.hpp"

namespace {

using namespace vorlan;
using namespace vorlan::com;

int checks = 0;
int failures = 0;

void holds(const char* what, bool condition) {
  ++checks;
  if (condition) return;
  ++failures;
  std::printf("FAILED %s\n", what);
}

bool is_text(const VARIANT& value, std::wstring_view wanted) {
  return value.vt == VT_BSTR && view(value.bstrVal) == wanted;
}

/// A negative number lowers the caller's width from 8 to 7, whatever type the caller keeps it in.
void arguments_by_reference(LateBound& functions) {
  const auto call = [&](VARIANT width) {
    return functions.invoke(L"LongToBin", DISPATCH_METHOD, {long_value(-5), width}) == S_OK;
  };
  SHORT small = 8;
  holds("Integer", call(reference(VT_I2, &small)) && small == 7);
  LONG number = 8;
  holds("Long", call(reference(VT_I4, &number)) && number == 7);
  double real = 8;
  holds("Double", call(reference(VT_R8, &real)) && real == 7);
  BYTE octet = 8;
  holds("Byte", call(reference(VT_UI1, &octet)) && octet == 7);
  DECIMAL decimal{};
  VarDecFromI4(8, &decimal);
  LONG whole = 0;
  holds("Decimal", call(reference(VT_DECIMAL, &decimal)) && VarI4FromDec(&decimal, &whole) == S_OK && whole == 7);
  Variant any;
  *any = long_value(8);
  holds("Variant", call(reference(VT_VARIANT, any.get())) && any->vt == VT_I4 && any->lVal == 7);
  holds("plain value", call(long_value(8)));
  BSTR text = SysAllocString(L"8");
  holds("String", call(reference(VT_BSTR, &text)) && view(text) == L"7");
  SysFreeString(text);

  BSTR bits = SysAllocString(L"101");
  holds("text by reference", functions.invoke(L"AddPadding", DISPATCH_METHOD, {reference(VT_BSTR, &bits)}) == S_OK &&
                                 view(bits) == L"10100000" && is_text(*functions.result, L"10100000"));
  SysFreeString(bits);
}

/// What the callee leaves alone stays as it is, of whatever type.
void arguments_left_alone(LateBound& functions) {
  for (const VARTYPE type : {VT_UI1, VT_CY, VT_I8}) {
    Variant width;
    VariantChangeType(width.get(), std::array{long_value(8)}.data(), 0, type);
    holds("positive number", functions.invoke(L"LongToBin", DISPATCH_METHOD,
                                              {long_value(5), reference(VT_VARIANT, width.get())}) == S_OK &&
                                 is_text(*functions.result, L"00000101") && width->vt == type);
  }
  LateBound parameters(L"Vorlan.SB_GlobalParameters");
  const auto initialise = [&](VARIANT array) {
    return parameters.invoke(L"InitialiseArrayForPersonalityCount", DISPATCH_METHOD, {array, long_value(0)}) == S_OK;
  };
  struct Row {
    const char* what;
    LONG first;
    std::vector<SHORT> before;
    std::vector<SHORT> after;
  };
  for (const Row& row : {Row{"array that grows", 0, {}, {-1}}, Row{"array that grows from 1", 1, {}, {-1}},
                         Row{"array that is left alone", 1, {7, 8}, {7, 8}}}) {
    SAFEARRAYBOUND bound{static_cast<ULONG>(row.before.size()), row.first};
    SAFEARRAY* array = row.first == 0 ? nullptr : SafeArrayCreate(VT_I2, 1, &bound);
    if (array != nullptr) std::copy(row.before.begin(), row.before.end(), static_cast<SHORT*>(array->pvData));
    holds(row.what, initialise(reference(VT_ARRAY | VT_I2, &array)) && array != nullptr &&
                        array->rgsabound[0].lLbound == row.first && array->rgsabound[0].cElements == row.after.size() &&
                        std::equal(row.after.begin(), row.after.end(), static_cast<SHORT*>(array->pvData)));
    SafeArrayDestroy(array);
  }
  std::array<SAFEARRAYBOUND, 2> bounds{SAFEARRAYBOUND{2, 1}, SAFEARRAYBOUND{3, 1}};
  Variant matrix;
  matrix->parray = SafeArrayCreate(VT_VARIANT, 2, bounds.data());
  matrix->vt = VT_ARRAY | VT_VARIANT;
  holds("array of two dimensions",
        initialise(reference(VT_VARIANT, matrix.get())) && SafeArrayGetDim(matrix->parray) == 2);
}

void arguments_left_out(LateBound& functions) {
  const auto refused = [&](const char* what, LateBound& object, HRESULT result) {
    holds(what, result == DISP_E_EXCEPTION && object.information.scode == scode_of(450));
  };
  refused("left out in front", functions, functions.invoke(L"LongToBin", DISPATCH_METHOD, {left_out(), long_value(8)}));
  refused("a gap between names", functions, functions.invoke(L"LongToBin", DISPATCH_METHOD, {long_value(8)}, {1}));
  refused("more names than arguments", functions, functions.invoke(L"LongToBin", DISPATCH_METHOD, {}, {0}));
  LateBound sector(L"Vorlan.SB_Sector");
  refused("nothing to assign", sector,
          sector.invoke(L"PRstr_SectorName", DISPATCH_PROPERTYPUT, {left_out()}, {DISPID_PROPERTYPUT}));
}

void names(LateBound& functions) {
  std::array<wchar_t*, 2> asked{const_cast<wchar_t*>(L"CALCULATECENTREFREQUENCY"),
                                const_cast<wchar_t*>(L"channelnumber")};
  std::array<DISPID, 2> ids{};
  IDispatch& object = *functions.object.get();
  holds("member and parameter",
        object.GetIDsOfNames(IID_NULL, asked.data(), 2, LOCALE_USER_DEFAULT, ids.data()) == S_OK &&
            ids[0] == member_id("CalculateCentreFrequency") && ids[1] == 1);
  asked[0] = const_cast<wchar_t*>(L"NoSuchMember");
  holds("unknown name",
        object.GetIDsOfNames(IID_NULL, asked.data(), 1, LOCALE_USER_DEFAULT, ids.data()) == DISP_E_UNKNOWNNAME);
  // The named ones come last here, and first where COM looks for them.
  holds("named arguments", functions.invoke(L"CalculateCentreFrequency", DISPATCH_METHOD,
                                            {long_value(384), long_value(0)}, {0, 1}) == S_OK &&
                               functions.result->vt == VT_R8 && functions.result->dblVal == 881.52);
  holds("named twice", functions.invoke(L"CalculateCentreFrequency", DISPATCH_METHOD, {long_value(384), long_value(0)},
                                        {0, 0}) == DISP_E_EXCEPTION &&
                           functions.information.scode == scode_of(450));
}

void errors() {
  LateBound message(L"Vorlan.SB_Ses_MsgSessionClose.1");
  VARIANT bits;
  bits.vt = VT_BSTR;
  bits.bstrVal = SysAllocString(L"11");
  message.invoke(L"Initialize", DISPATCH_METHOD, {VARIANT{}});
  const HRESULT result = message.invoke(L"PRstr_CloseReason", DISPATCH_PROPERTYPUT, {bits}, {DISPID_PROPERTYPUT});
  holds("error", result == DISP_E_EXCEPTION);
  holds("its number", message.information.scode == static_cast<SCODE>(0x800A0001) && message.information.wCode == 0);
  holds("its source", view(message.information.bstrSource) == L"SB_Ses_MsgSessionClose.PRstr_CloseReason");
  holds("its text", view(message.information.bstrDescription) == L"Length of <CloseReason> field should be 8 bits.");
  SysFreeString(bits.bstrVal);
  const auto supports = message.object.as<ISupportErrorInfo>(IID_ISupportErrorInfo);
  for (const GUID& iid : {IID_IDispatch, guid_of(members_uuid("Vorlan.SB_Ses_MsgSessionClose"))}) {
    holds("error information", supports && supports->InterfaceSupportsErrorInfo(iid) == S_OK);
  }
}

void arrays(LateBound& functions) {
  LateBound report(L"VorlanSim.TestReport");
  SAFEARRAY* names = SafeArrayCreateVector(VT_BSTR, 1, 2);
  for (LONG i = 1; i <= 2; ++i) {
    BSTR name = SysAllocString(i == 1 ? L"First" : L"Second");
    SafeArrayPutElement(names, &i, name);
    SysFreeString(name);
  }
  const VARIANT to = object_value(report.object.get());
  const VARIANT array = reference(VT_ARRAY | VT_BSTR, &names);
  holds("array of texts",
        functions.invoke(L"LogScriptSpecificParameters", DISPATCH_METHOD, {to, array, array}) == S_OK);
  holds("its lines", report.invoke(L"Count", DISPATCH_PROPERTYGET, {}) == S_OK && report.result->lVal >= 2);
  SafeArrayDestroy(names);
}

bool is_named(ITypeInfo& info, std::wstring_view wanted) {
  BSTR name = nullptr;
  info.GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
  const bool is = view(name) == wanted;
  SysFreeString(name);
  return is;
}

/// What a development environment and a compiler take from the library: how the members are called.
void members_in_library() {
  struct Parameter {
    VARTYPE type;
    USHORT flags;
    VARTYPE referred = VT_EMPTY;
    bool operator==(const Parameter&) const = default;
  };
  struct Row {
    std::string_view class_name;
    DISPID member;
    INVOKEKIND kind;
    VARTYPE returns;
    std::vector<Parameter> parameters = {};
    WORD flags = 0;
  };
  constexpr Parameter kByReference{VT_PTR, PARAMFLAG_FIN | PARAMFLAG_FOUT, VT_I4};
  constexpr Parameter kText{VT_BSTR, PARAMFLAG_FIN};
  constexpr Parameter kOptional{VT_VARIANT, PARAMFLAG_FIN | PARAMFLAG_FOPT};
  constexpr WORD kHidden = FUNCFLAG_FRESTRICTED | FUNCFLAG_FHIDDEN;
  const Row rows[] = {
      {"Vorlan.SB_GeneralFunctions", member_id("LongToBin"), INVOKE_FUNC, VT_BSTR, {kByReference, kByReference}},
      {"Vorlan.SB_GeneralFunctions",
       member_id("LogScriptHeader"),
       INVOKE_FUNC,
       VT_VOID,
       {{VT_DISPATCH, PARAMFLAG_FIN}, kText, kText, kOptional, kOptional}},
      {"Vorlan.SB_Ses_MsgSessionClose", member_id("PRstr_CloseReason"), INVOKE_PROPERTYGET, VT_BSTR},
      {"Vorlan.SB_Ses_MsgSessionClose", member_id("PRstr_CloseReason"), INVOKE_PROPERTYPUT, VT_VOID, {{VT_BSTR, 0}}},
      {"Vorlan.SB_Sector", member_id("PRobj_GlobalParameters"), INVOKE_PROPERTYPUTREF, VT_VOID, {{VT_DISPATCH, 0}}},
      {"VorlanSim.ChannelCollection", DISPID_NEWENUM, INVOKE_PROPERTYGET, VT_UNKNOWN, {}, kHidden},
  };
  for (const Row& row : rows) {
    const std::string_view server = row.class_name.substr(0, row.class_name.find('.'));
    ComPointer<ITypeLib> library;
    ComPointer<ITypeInfo> info;
    int found = 0;
    if (LoadRegTypeLib(guid_of(library_uuid(server)), 1, 0, LOCALE_NEUTRAL, library.out()) == S_OK &&
        library->GetTypeInfoOfGuid(guid_of(members_uuid(row.class_name)), info.out()) == S_OK) {
      FUNCDESC* function = nullptr;
      for (UINT i = 0; info->GetFuncDesc(i, &function) == S_OK; ++i) {
        std::vector<Parameter> parameters;
        for (const ELEMDESC& each :
             std::span(function->lprgelemdescParam, static_cast<std::size_t>(function->cParams))) {
          const TYPEDESC& type = each.tdesc;
          parameters.push_back({type.vt, each.paramdesc.wParamFlags, type.vt == VT_PTR ? type.lptdesc->vt : VARTYPE{}});
        }
        found += function->memid == row.member && function->invkind == row.kind &&
                 function->elemdescFunc.tdesc.vt == row.returns && parameters == row.parameters &&
                 function->wFuncFlags == row.flags;
        info->ReleaseFuncDesc(function);
      }
    }
    holds(row.class_name.data(), found == 1);
  }
}

void type_library(LateBound& functions) {
  ComPointer<ITypeLib> library;
  holds("registered", LoadRegTypeLib(guid_of(library_uuid("Vorlan")), 1, 0, LOCALE_NEUTRAL, library.out()) == S_OK);
  holds("two entries for a class",
        library && library->GetTypeInfoCount() > 550 && library->GetTypeInfoCount() % 2 == 0);
  ComPointer<ITypeInfo> info;
  // What was compiled with the type library asks for its interface.
  const auto compiled = functions.object.as<IDispatch>(guid_of(members_uuid("Vorlan.SB_GeneralFunctions")));
  UINT infos = 0;
  holds("by its number", compiled && compiled->GetTypeInfoCount(&infos) == S_OK && infos == 1);
  holds("of an object", functions.object->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.out()) == S_OK);
  if (!info) return;
  holds("its name", is_named(*info.get(), L"_SB_GeneralFunctions"));
  ComPointer<ITypeInfo> created;
  const auto provides = functions.object.as<IProvideClassInfo>(IID_IProvideClassInfo);
  holds("its class",
        provides && provides->GetClassInfo(created.out()) == S_OK && is_named(*created.get(), L"SB_GeneralFunctions"));
  // From the file: its names are not asked for across processes.
  holds("the members",
        library->GetTypeInfoOfGuid(guid_of(members_uuid("Vorlan.SB_GeneralFunctions")), info.out()) == S_OK);
  if (!info) return;
  auto* member = const_cast<wchar_t*>(L"LongToBin");
  MEMBERID id = MEMBERID_NIL;
  std::array<BSTR, 3> members{};
  UINT count = 0;
  holds("a member", info->GetIDsOfNames(&member, 1, &id) == S_OK && id == member_id("LongToBin"));
  holds("its parameters", info->GetNames(id, members.data(), 3, &count) == S_OK && count == 3 &&
                              view(members[1]) == L"value" && view(members[2]) == L"width");
  for (BSTR text : members) SysFreeString(text);
  holds("the class", library->GetTypeInfoOfGuid(guid_of(class_uuid("Vorlan.SB_Sector")), created.out()) == S_OK);
}

/// A call that lasts stops no other thread of the client.
void two_threads() {
  std::atomic<bool> over = false;
  LateBound test_set(L"VorlanSim.TestSet");
  VARIANT yes;
  yes.vt = VT_BOOL;
  yes.boolVal = VARIANT_TRUE;
  holds("real time", test_set.invoke(L"RealTime", DISPATCH_PROPERTYPUT, {yes}, {DISPID_PROPERTYPUT}) == S_OK);
  std::thread sleeper([&] {
    const Apartment apartment;
    holds("sleep", test_set.invoke(L"Sleep", DISPATCH_METHOD, {long_value(3)}) == S_OK);
    over = true;
  });
  LateBound message(L"Vorlan.SB_Ses_MsgSessionClose");
  bool right = true;
  int reads = 0;
  for (; !over; ++reads) {
    right = right && message.invoke(L"PRstr_MessageID", DISPATCH_PROPERTYGET, {}) == S_OK &&
            is_text(*message.result, L"00000001");
  }
  sleeper.join();
  holds("reads beside a call that sleeps", right && reads > 10);
}

/// Has no members. Whatever it is asked, it asks the server something itself, as a wrapper of an object there would.
class Wrapper final : public IDispatch {
 public:
  Wrapper(LateBound& inner, int& answered) : inner_(inner), answered_(answered) {}
  virtual ~Wrapper() = default;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) noexcept override {
    ask();
    const bool known = IsEqualGUID(iid, IID_IUnknown) != 0 || IsEqualGUID(iid, IID_IDispatch) != 0;
    *out = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const ULONG left = --references_;
    if (left == 0) ask();
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) noexcept override { return ask(); }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return ask(); }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override {
    ask();
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) noexcept override {
    ask();
    return DISP_E_MEMBERNOTFOUND;
  }

 private:
  HRESULT ask() noexcept {
    if (inner_.invoke(L"LongToBin", DISPATCH_METHOD, {long_value(5), long_value(8)}) == S_OK) ++answered_;
    return E_NOTIMPL;
  }

  LateBound& inner_;
  int& answered_;
  std::atomic<ULONG> references_{1};
};

/// Knows every name. From a certain call on, or where it is given references, it answers otherwise than with success.
class Peer final : public IDispatch {
 public:
  explicit Peer(HRESULT refusal, SCODE scode = 0, int refuses_from = 1, bool plain_alone = false)
      : refusal_(refusal), scode_(scode), refuses_from_(refuses_from), plain_alone_(plain_alone) {}
  virtual ~Peer() = default;
  [[nodiscard]] int calls() const noexcept { return calls_; }
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) noexcept override {
    const bool known = IsEqualGUID(iid, IID_IUnknown) != 0 || IsEqualGUID(iid, IID_IDispatch) != 0;
    *out = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override { return *count = 0, S_OK; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return DISP_E_BADINDEX; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* id) noexcept override {
    return *id = 1, S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO* information,
                                   UINT*) noexcept override {
    ++calls_;
    const bool refuses = plain_alone_ ? (parameters->rgvarg[0].vt & VT_BYREF) != 0 : calls_ >= refuses_from_;
    if (refuses && information != nullptr) information->scode = scode_;
    return refuses ? refusal_ : S_OK;
  }

 private:
  HRESULT refusal_;
  SCODE scode_;
  int refuses_from_;
  bool plain_alone_;
  std::atomic<int> calls_ = 0;
};

/// The library calls it once for each of two lines.
HRESULT log_to(LateBound& functions, Peer& peer) {
  Variant text;
  text->bstrVal = SysAllocString(L"first\nsecond");
  text->vt = VT_BSTR;
  const HRESULT result = functions.invoke(L"LogInformation", DISPATCH_METHOD, {object_value(&peer), *text});
  CoDisconnectObject(&peer, 0);
  return result;
}

void calls_of_peers(LateBound& functions) {
  for (const HRESULT refusal : {DISP_E_TYPEMISMATCH, DISP_E_BADVARTYPE, DISP_E_MEMBERNOTFOUND}) {
    Peer acts_and_refuses(refusal, 0, 2);
    holds("a call is not made twice",
          log_to(functions, acts_and_refuses) == DISP_E_EXCEPTION && acts_and_refuses.calls() == 2);
  }
  Peer plain(DISP_E_TYPEMISMATCH, 0, 1, true);
  holds("plain values are what it wants from then on", log_to(functions, plain) == S_OK && plain.calls() == 3);
  struct Row {
    HRESULT result;
    SCODE scode;
    SCODE told;
    std::wstring_view text;
  };
  constexpr auto kNumberZero = static_cast<SCODE>(0x800A0000);
  for (const Row& row : {Row{DISP_E_EXCEPTION, 0, DISP_E_EXCEPTION, {}},
                         Row{DISP_E_EXCEPTION, kNumberZero, kNumberZero, L"Automation error"},
                         Row{DISP_E_EXCEPTION, scode_of(9), scode_of(9), L"Subscript out of range"},
                         Row{scode_of(9), 0, scode_of(9), L"Subscript out of range"}}) {
    Peer fails(row.result, row.scode);
    holds("an error keeps its number", log_to(functions, fails) == DISP_E_EXCEPTION &&
                                           functions.information.scode == row.told && functions.information.wCode == 0);
    holds("and has a text", row.text.empty() || view(functions.information.bstrDescription) == row.text);
  }
}

/// The server waits for nobody with the client's turn in its hands.
void calls_back(LateBound& functions) {
  LateBound inner(L"Vorlan.SB_GeneralFunctions");
  LateBound sector(L"Vorlan.SB_Sector");
  int answered = 0;
  ComPointer<IDispatch> wrapper(new Wrapper(inner, answered));
  const VARIANT given = object_value(wrapper.get());
  Variant text;
  text->bstrVal = SysAllocString(L"text");
  text->vt = VT_BSTR;
  holds("a wrapper without the member",
        functions.invoke(L"LogInformation", DISPATCH_METHOD, {given, *text}) == DISP_E_EXCEPTION &&
            functions.information.scode == scode_of(438));
  holds("it asked", answered > 2);
  const auto keep = [&](VARIANT object) {
    return sector.invoke(L"PRobj_TestReport", DISPATCH_PROPERTYPUTREF, {object}, {DISPID_PROPERTYPUT}) == S_OK;
  };
  holds("kept", keep(given));
  wrapper = {};
  const int before = answered;
  holds("let go of", keep(object_value(nullptr)) && answered > before);
}

}  // namespace

int main() try {
  const Apartment apartment;
  LateBound functions(L"Vorlan.SB_GeneralFunctions");
  arguments_by_reference(functions);
  arguments_left_alone(functions);
  arguments_left_out(functions);
  names(functions);
  errors();
  arrays(functions);
  type_library(functions);
  members_in_library();
  two_threads();
  calls_back(functions);
  calls_of_peers(functions);
  std::printf("%d checks, %d failed\n", checks, failures);
  return failures == 0 && checks > 0 ? 0 : 1;
} catch (const Error& error) {
  std::printf("FAILED %s\n", error.description().c_str());
  return 1;
}
