#include "server/com/registration.hpp"

#include <shlobj.h>

#include <algorithm>

#include "server/com/com_error.hpp"
#include "server/com/guid.hpp"
#include "server/com/type_library.hpp"

namespace vorlan::com {

namespace {

constexpr const char* kVersion = "1";

/// Below Software\Classes of the machine or the user.
class ClassesKey {
 public:
  explicit ClassesKey(Scope scope) {
    const HKEY root = scope == Scope::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
    check_status(RegCreateKeyExW(root, L"Software\\Classes", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr),
                 "registry, Software\\Classes");
  }
  ClassesKey(const ClassesKey&) = delete;
  ClassesKey& operator=(const ClassesKey&) = delete;
  ~ClassesKey() { RegCloseKey(key_); }

  /// An empty name is the key's own value.
  void write(const std::string& path, const std::string& name, const std::string& text) {
    const std::wstring wide = wide_text(text);
    check_status(RegSetKeyValueW(key_, wide_text(path).c_str(), name.empty() ? nullptr : wide_text(name).c_str(),
                                 REG_SZ, wide.c_str(), static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t))),
                 "registry, " + path);
  }
  /// The key's own value; empty if there is none.
  [[nodiscard]] std::string read(const std::string& path) const {
    std::wstring text(1024, L'\0');
    auto octets = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    if (RegGetValueW(key_, wide_text(path).c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &octets) !=
        ERROR_SUCCESS) {
      return {};
    }
    text.resize(octets / sizeof(wchar_t) - 1);
    return narrow_text(text);
  }
  void remove(const std::string& path) {
    const LSTATUS status = RegDeleteTreeW(key_, wide_text(path).c_str());
    if (status != ERROR_FILE_NOT_FOUND) check_status(status, "registry, " + path);
  }
  void remove_if_empty(const wchar_t* path) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(key_, path, 0, KEY_READ, &opened) != ERROR_SUCCESS) return;
    DWORD keys = 1;
    DWORD values = 1;
    RegQueryInfoKeyW(opened, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr, nullptr,
                     nullptr);
    RegCloseKey(opened);
    if (keys == 0 && values == 0) RegDeleteKeyW(key_, path);
  }

 private:
  HKEY key_ = nullptr;
};

/// The names and numbers of one class.
struct Names {
  explicit Names(const Registry::Class& cls)
      : prog_id(cls.prog_id()),
        versioned(prog_id + "." + kVersion),
        class_id(registry_text(class_uuid(prog_id))),
        class_key("CLSID\\" + class_id) {}
  std::string prog_id;
  std::string versioned;
  std::string class_id;
  std::string class_key;
};

/// Whether a programmatic identifier is free, or stands for our class already.
bool is_ours(const ClassesKey& key, const Names& names, const std::string& prog_id) {
  const std::string there = key.read(prog_id + "\\CLSID");
  return there.empty() || equals_ignoring_case(there, names.class_id);
}

void enter_class(ClassesKey& key, const Registry::Class& cls, const std::filesystem::path& program) {
  const Names names(cls);
  const std::string summary(cls.info().summary());
  if (!is_ours(key, names, names.prog_id) || !is_ours(key, names, names.versioned)) return;
  key.write(names.prog_id, "", summary);
  key.write(names.prog_id + "\\CLSID", "", names.class_id);
  key.write(names.prog_id + "\\CurVer", "", names.versioned);
  key.write(names.versioned, "", summary);
  key.write(names.versioned + "\\CLSID", "", names.class_id);
  key.write(names.class_key, "", summary);
  key.write(names.class_key + "\\LocalServer32", "", "\"" + narrow_text(program.wstring()) + "\"");
  key.write(names.class_key + "\\LocalServer32", "ServerExecutable", narrow_text(program.wstring()));
  key.write(names.class_key + "\\ProgID", "", names.versioned);
  key.write(names.class_key + "\\VersionIndependentProgID", "", names.prog_id);
  key.write(names.class_key + "\\TypeLib", "", registry_text(library_uuid(cls.server)));
  key.write(names.class_key + "\\Version", "", "1.0");
  key.write(names.class_key + "\\Programmable", "", "");
}

void take_out_class(ClassesKey& key, const Registry::Class& cls) {
  const Names names(cls);
  for (const std::string& prog_id : {names.prog_id, names.versioned}) {
    if (is_ours(key, names, prog_id)) key.remove(prog_id);
  }
  key.remove(names.class_key);
}

/// Beside the program; for one user in the folder where programs keep a user's data.
std::filesystem::path library_folder(const Registration& registration) {
  if (registration.scope == Scope::Machine) return registration.program.parent_path();
  PWSTR found = nullptr;
  check(SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &found), "the user's folder");
  const std::filesystem::path folder(found);
  CoTaskMemFree(found);
  return folder / "Vorlan";
}

std::filesystem::path library_file(const Registration& registration, const std::string& server) {
  return library_folder(registration) / (server + ".tlb");
}

void enter_library(const Registry& registry, const Registration& registration, const std::string& server) {
  const auto file = library_file(registration, server);
  std::filesystem::create_directories(file.parent_path());
  write_type_library(file, server, registry.classes());
  ComPointer<ITypeLib> library;
  check(LoadTypeLibEx(file.wstring().c_str(), REGKIND_NONE, library.out()), "type library");
  std::wstring path = file.wstring();
  std::wstring folder = file.parent_path().wstring();
  check(registration.scope == Scope::User ? RegisterTypeLibForUser(library.get(), path.data(), folder.data())
                                          : RegisterTypeLib(library.get(), path.data(), folder.data()),
        "type library");
}

void take_out_library(const Registration& registration, const std::string& server) {
  const GUID id = guid_of(library_uuid(server));
  const HRESULT result = registration.scope == Scope::User
                             ? UnRegisterTypeLibForUser(id, kLibraryMajor, kLibraryMinor, LOCALE_NEUTRAL, SYS_WIN64)
                             : UnRegisterTypeLib(id, kLibraryMajor, kLibraryMinor, LOCALE_NEUTRAL, SYS_WIN64);
  if (result == E_ACCESSDENIED) fail(result, "type library");
  std::error_code ignored;  // in use, or not there
  std::filesystem::remove(library_file(registration, server), ignored);
}

}  // namespace

std::vector<std::string> servers_of(const Registry& registry) {
  std::vector<std::string> servers;
  for (const Registry::Class& cls : registry.classes()) {
    if (std::find(servers.begin(), servers.end(), cls.server) == servers.end()) servers.emplace_back(cls.server);
  }
  return servers;
}

void enter(const Registry& registry, const Registration& registration) {
  take_out(registry, registration);
  try {
    ClassesKey key(registration.scope);
    for (const Registry::Class& cls : registry.classes()) enter_class(key, cls, registration.program);
    for (const std::string& server : servers_of(registry)) enter_library(registry, registration, server);
  } catch (const std::exception&) {
    take_out(registry, registration);
    throw;
  }
}

void take_out(const Registry& registry, const Registration& registration) {
  for (const std::string& server : servers_of(registry)) take_out_library(registration, server);
  ClassesKey key(registration.scope);
  for (const Registry::Class& cls : registry.classes()) take_out_class(key, cls);
  // A user who had no classes before has none now.
  for (const wchar_t* shared : {L"CLSID", L"TypeLib", L"Interface"}) key.remove_if_empty(shared);
  if (registration.scope == Scope::User) {
    std::error_code ignored;  // something else in it
    std::filesystem::remove(library_folder(registration), ignored);
  }
}

}  // namespace vorlan::com
