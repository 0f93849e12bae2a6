#include "server/com/type_library.hpp"

#include <vector>

#include "server/com/com_error.hpp"
#include "server/com/guid.hpp"

namespace vorlan::com {

namespace {

VARTYPE type_of(ValueType type) noexcept {
  switch (type) {
    case ValueType::Boolean: return VT_BOOL;
    case ValueType::Integer: return VT_I2;
    case ValueType::Long: return VT_I4;
    case ValueType::Single: return VT_R4;
    case ValueType::Double: return VT_R8;
    case ValueType::Date: return VT_DATE;
    case ValueType::String: return VT_BSTR;
    case ValueType::Object: return VT_DISPATCH;
    default: return VT_VARIANT;
  }
}

/// One function of an interface: the types of its parameters, and the names, its own first.
class Function {
 public:
  Function(const MemberInfo& member, INVOKEKIND kind) : names_{wide_text(member.name)} {
    const bool assigns = kind == INVOKE_PROPERTYPUT || kind == INVOKE_PROPERTYPUTREF;
    const std::size_t given = member.parameters.size();
    types_.resize(given);
    parameters_.resize(given + (assigns ? 1 : 0));
    for (std::size_t i = 0; i < given; ++i) add(i, member.parameters[i]);
    // The value that is assigned has no name.
    if (assigns) parameters_.back().tdesc.vt = type_of(member.type);
    description_.memid = member_id(member.name);
    description_.funckind = FUNC_DISPATCH;
    description_.invkind = kind;
    description_.callconv = CC_STDCALL;
    description_.cParams = static_cast<SHORT>(parameters_.size());
    description_.lprgelemdescParam = parameters_.data();
    const bool returns = !assigns && member.type != ValueType::Empty;
    description_.elemdescFunc.tdesc.vt = returns ? type_of(member.type) : static_cast<VARTYPE>(VT_VOID);
  }
  Function(const Function&) = delete;
  Function& operator=(const Function&) = delete;

  void add_to(ICreateTypeInfo& info, UINT index, const std::string& summary) {
    check(info.AddFuncDesc(index, &description_), "member");
    std::vector<LPOLESTR> names;
    for (std::wstring& name : names_) names.push_back(name.data());
    check(info.SetFuncAndParamNames(index, names.data(), static_cast<UINT>(names.size())), "names");
    // An empty text is not always taken.
    if (!summary.empty()) check(info.SetFuncDocString(index, wide_text(summary).data()), "text");
  }

 private:
  void add(std::size_t i, const ParameterInfo& parameter) {
    names_.push_back(wide_text(parameter.name));
    ELEMDESC& description = parameters_[i];
    TYPEDESC& type = types_[i];
    // Whether an optional one was given shows in a Variant alone.
    type.vt = parameter.optional ? static_cast<VARTYPE>(VT_VARIANT) : type_of(parameter.type);
    if (parameter.by_reference) {
      description.tdesc.vt = VT_PTR;
      description.tdesc.lptdesc = &type;
    } else {
      description.tdesc = type;
    }
    const int direction = parameter.by_reference ? PARAMFLAG_FIN | PARAMFLAG_FOUT : PARAMFLAG_FIN;
    description.paramdesc.wParamFlags = static_cast<USHORT>(direction | (parameter.optional ? PARAMFLAG_FOPT : 0));
    if (parameter.optional) ++description_.cParamsOpt;
  }

  std::vector<std::wstring> names_;
  std::vector<TYPEDESC> types_;
  std::vector<ELEMDESC> parameters_;
  FUNCDESC description_{};
};

ComPointer<ICreateTypeInfo> new_info(ICreateTypeLib2& library, const std::string& name, TYPEKIND kind, const Uuid& uuid,
                                     const std::string& summary) {
  ComPointer<ICreateTypeInfo> info;
  check(library.CreateTypeInfo(wide_text(name).data(), kind, info.out()), name);
  check(info->SetGuid(guid_of(uuid)), name);
  check(info->SetVersion(kLibraryMajor, kLibraryMinor), name);
  if (!summary.empty()) check(info->SetDocString(wide_text(summary).data()), name);
  return info;
}

HREFTYPE refer(ICreateTypeInfo& info, ITypeInfo& other) {
  HREFTYPE reference = 0;
  check(info.AddRefTypeInfo(&other, &reference), "reference");
  return reference;
}

/// What For Each asks for, in what was compiled with the library.
void add_enumeration(ICreateTypeInfo& info, UINT index) {
  FUNCDESC description{};
  description.memid = DISPID_NEWENUM;
  description.funckind = FUNC_DISPATCH;
  description.invkind = INVOKE_PROPERTYGET;
  description.callconv = CC_STDCALL;
  description.elemdescFunc.tdesc.vt = VT_UNKNOWN;
  description.wFuncFlags = FUNCFLAG_FRESTRICTED | FUNCFLAG_FHIDDEN;
  check(info.AddFuncDesc(index, &description), "enumeration");
  std::wstring name = L"_NewEnum";
  LPOLESTR names = name.data();
  check(info.SetFuncAndParamNames(index, &names, 1), "names");
}

void add_members(ICreateTypeInfo& info, const ClassInfo& cls) {
  UINT index = 0;
  for (const MemberInfo& member : cls.members()) {
    const auto add = [&](INVOKEKIND kind) { Function(member, kind).add_to(info, index++, member.summary); };
    if (member.calls) add(INVOKE_FUNC);
    if (member.gets) add(INVOKE_PROPERTYGET);
    if (member.lets) add(INVOKE_PROPERTYPUT);
    if (member.sets) add(INVOKE_PROPERTYPUTREF);
  }
  if (is_collection(cls)) add_enumeration(info, index);
}

void add_class(ICreateTypeLib2& library, const Registry::Class& cls, ITypeInfo& dispatch) {
  const std::string name(cls.name());
  const std::string summary(cls.info().summary());
  const auto members = new_info(library, "_" + name, TKIND_DISPATCH, members_uuid(cls.prog_id()), summary);
  check(members->SetTypeFlags(TYPEFLAG_FDISPATCHABLE | TYPEFLAG_FHIDDEN), name);
  check(members->AddImplType(0, refer(*members.get(), dispatch)), name);
  add_members(*members.get(), cls.info());
  check(members->LayOut(), name);
  const auto made = new_info(library, name, TKIND_COCLASS, class_uuid(cls.prog_id()), summary);
  check(made->SetTypeFlags(TYPEFLAG_FCANCREATE), name);
  const auto readable = members.as<ITypeInfo>(IID_ITypeInfo);
  check(made->AddImplType(0, refer(*made.get(), *readable.get())), name);
  check(made->SetImplTypeFlags(0, IMPLTYPEFLAG_FDEFAULT), name);
  check(made->LayOut(), name);
}

}  // namespace

void write_type_library(const std::filesystem::path& file, std::string_view server,
                        std::span<const Registry::Class> classes) {
  ComPointer<ITypeLib> standard;
  ComPointer<ITypeInfo> dispatch;
  constexpr GUID kStandard{0x00020430, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
  check(LoadRegTypeLib(kStandard, 2, 0, LOCALE_NEUTRAL, standard.out()), "OLE Automation's own type library");
  check(standard->GetTypeInfoOfGuid(IID_IDispatch, dispatch.out()), "IDispatch");

  const std::string path = narrow_text(file.wstring());
  ComPointer<ICreateTypeLib2> library;
  check(CreateTypeLib2(SYS_WIN64, file.wstring().c_str(), library.out()), path);
  check(library->SetGuid(guid_of(library_uuid(server))), "library");
  check(library->SetVersion(kLibraryMajor, kLibraryMinor), "library");
  check(library->SetLcid(LOCALE_NEUTRAL), "library");
  check(library->SetName(wide_text(server).data()), "library");
  check(library->SetDocString(wide_text(std::string(server) + " 1.0 Type Library").data()), "library");
  for (const Registry::Class& cls : classes) {
    if (cls.server == server) add_class(*library.get(), cls, *dispatch.get());
  }
  check(library->SaveAllChanges(), path);
}

ComPointer<ITypeLib> registered_type_library(std::string_view server) {
  ComPointer<ITypeLib> library;
  if (FAILED(
          LoadRegTypeLib(guid_of(library_uuid(server)), kLibraryMajor, kLibraryMinor, LOCALE_NEUTRAL, library.out()))) {
    return {};
  }
  return library;
}

}  // namespace vorlan::com
