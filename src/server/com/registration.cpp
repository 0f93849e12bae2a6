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
  explicit ClassesKey(Scope scope) : root_(scope == Scope::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE) {
    check_status(RegCreateKeyExW(root_, L"Software\\Classes", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr),
                 "registry, Software\\Classes (an administrator's, without /user)");
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
  [[nodiscard]] HKEY root() const noexcept { return root_; }
  [[nodiscard]] static bool exists(HKEY root, const std::string& path) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root, wide_text("Software\\Classes\\" + path).c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) {
      return false;
    }
    RegCloseKey(opened);
    return true;
  }
  /// The own value of a key below Software\Classes; empty if there is none.
  [[nodiscard]] static std::string read(HKEY root, const std::string& path) {
    std::wstring text;
    LSTATUS status = ERROR_MORE_DATA;
    for (DWORD octets = 1024; status == ERROR_MORE_DATA;) {
      text.resize(octets / sizeof(wchar_t) + 1);
      octets = static_cast<DWORD>(text.size() * sizeof(wchar_t));
      status = RegGetValueW(root, wide_text("Software\\Classes\\" + path).c_str(), nullptr, RRF_RT_REG_SZ, nullptr,
                            text.data(), &octets);
    }
    return status == ERROR_SUCCESS ? narrow_text(text.c_str()) : std::string();
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
  HKEY root_;
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

/// Whether a programmatic identifier stands for our class there.
bool is_ours(HKEY root, const Names& names, const std::string& prog_id) {
  return equals_ignoring_case(ClassesKey::read(root, prog_id + "\\CLSID"), names.class_id);
}
/// Whether it is another's where we would hide that one, or be hidden by it.
bool is_taken(Scope scope, const Names& names, const std::string& prog_id) {
  const auto is_anothers = [&](HKEY root) {
    return ClassesKey::exists(root, prog_id) && !is_ours(root, names, prog_id);
  };
  return is_anothers(HKEY_LOCAL_MACHINE) || (scope == Scope::User && is_anothers(HKEY_CURRENT_USER));
}

/// False if the name is another's.
bool enter_class(ClassesKey& key, const Registry::Class& cls, const Registration& registration) {
  const Names names(cls);
  const std::string summary(cls.info().summary());
  const std::string program = narrow_text(registration.program.wstring());
  if (is_taken(registration.scope, names, names.prog_id) || is_taken(registration.scope, names, names.versioned)) {
    return false;
  }
  // The number first: it tells whose the name is.
  key.write(names.prog_id + "\\CLSID", "", names.class_id);
  key.write(names.prog_id, "", summary);
  key.write(names.prog_id + "\\CurVer", "", names.versioned);
  key.write(names.versioned + "\\CLSID", "", names.class_id);
  key.write(names.versioned, "", summary);
  key.write(names.class_key, "", summary);
  key.write(names.class_key + "\\LocalServer32", "", "\"" + program + "\"");
  key.write(names.class_key + "\\LocalServer32", "ServerExecutable", program);
  key.write(names.class_key + "\\ProgID", "", names.versioned);
  key.write(names.class_key + "\\VersionIndependentProgID", "", names.prog_id);
  key.write(names.class_key + "\\TypeLib", "", registry_text(library_uuid(cls.server)));
  key.write(names.class_key + "\\Version", "", "1.0");
  key.write(names.class_key + "\\Programmable", "", "");
  return true;
}

void take_out_class(ClassesKey& key, const Registry::Class& cls) {
  const Names names(cls);
  for (const std::string& prog_id : {names.prog_id, names.versioned}) {
    if (is_ours(key.root(), names, prog_id)) key.remove(prog_id);
  }
  key.remove(names.class_key);
  key.remove("Interface\\" + registry_text(members_uuid(names.prog_id)));  // which stay if their library is gone
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

/// The name that a library has unless programs hold the one that had it before: then it has one of the others.
std::filesystem::path library_file(const Registration& registration, const std::string& server, int other = 0) {
  return library_folder(registration) / (server + (other == 0 ? "" : "-" + std::to_string(other)) + ".tlb");
}
constexpr int kOtherNames = 9;

/// Whether a file is a library of ours, of this version or another.
bool is_library(const std::filesystem::path& file, const std::string& server) {
  ComPointer<ITypeLib> library;
  TLIBATTR* attributes = nullptr;
  if (FAILED(LoadTypeLibEx(file.wstring().c_str(), REGKIND_NONE, library.out()))) return false;
  if (FAILED(library->GetLibAttr(&attributes))) return false;
  const bool is_it = IsEqualGUID(attributes->guid, guid_of(library_uuid(server))) != 0;
  library->ReleaseTLibAttr(attributes);
  return is_it;
}
void remove_library(const std::filesystem::path& file, const std::string& server) {
  std::error_code ignored;  // in use
  if (is_library(file, server)) std::filesystem::remove(file, ignored);
}

/// A library that is written, but not at its place yet. Goes with this.
class NewLibrary {
 public:
  NewLibrary(const Registry& registry, const Registration& registration, std::string server)
      : registration_(registration), server_(std::move(server)), file_(library_file(registration, server_)) {
    file_ += ".new";
    std::filesystem::create_directories(file_.parent_path());
    try {
      write_type_library(file_, server_, registry.classes());
    } catch (const Error&) {
      remove();
      throw;
    }
  }
  NewLibrary(NewLibrary&& other) noexcept
      : registration_(other.registration_), server_(std::move(other.server_)), file_(std::exchange(other.file_, {})) {}
  NewLibrary& operator=(NewLibrary&&) = delete;
  ~NewLibrary() { remove(); }
  [[nodiscard]] const std::string& server() const noexcept { return server_; }
  std::filesystem::path put_in_place() {
    auto fault = std::make_error_code(std::errc::file_exists);
    for (int other = 0; other <= kOtherNames; ++other) {
      const auto place = library_file(registration_, server_, other);
      std::error_code unknown;
      if (std::filesystem::exists(place, unknown) && !is_library(place, server_)) continue;
      std::filesystem::rename(file_, place, fault);
      if (!fault) return place;
    }
    throw std::filesystem::filesystem_error("type library", file_, fault);
  }

 private:
  void remove() noexcept {
    std::error_code ignored;
    if (!file_.empty()) std::filesystem::remove(file_, ignored);
  }

  const Registration& registration_;
  std::string server_;
  std::filesystem::path file_;
};

std::string library_key(const std::string& server) { return "TypeLib\\" + registry_text(library_uuid(server)); }
std::string library_version() { return std::to_string(kLibraryMajor) + "." + std::to_string(kLibraryMinor); }

/// What RegisterTypeLib does for the machine. Its like for a user is not to be trusted everywhere: Wine's takes the
/// machine's entries out.
void enter_library_for_user(ClassesKey& key, const Registry& registry, const std::string& server,
                            const std::filesystem::path& file) {
  const std::string path = library_key(server) + "\\" + library_version();
  key.write(path, "", server + " 1.0 Type Library");
  key.write(path + "\\FLAGS", "", "0");
  key.write(path + "\\0\\win64", "", narrow_text(file.wstring()));
  key.write(path + "\\HELPDIR", "", narrow_text(file.parent_path().wstring()));
  for (const Registry::Class& cls : registry.classes()) {
    if (cls.server != server) continue;
    const std::string members = "Interface\\" + registry_text(members_uuid(cls.prog_id()));
    key.write(members, "", "_" + std::string(cls.name()));
    key.write(members + "\\ProxyStubClsid32", "", "{00020420-0000-0000-C000-000000000046}");  // of IDispatch
    key.write(members + "\\TypeLib", "", registry_text(library_uuid(server)));
    key.write(members + "\\TypeLib", "Version", library_version());
  }
}

void enter_library(ClassesKey& key, const Registry& registry, const Registration& registration, NewLibrary& made) {
  const auto file = made.put_in_place();
  if (registration.scope == Scope::User) return enter_library_for_user(key, registry, made.server(), file);
  ComPointer<ITypeLib> library;
  check(LoadTypeLibEx(file.wstring().c_str(), REGKIND_NONE, library.out()), "type library");
  std::wstring path = file.wstring();
  std::wstring folder = file.parent_path().wstring();
  check(RegisterTypeLib(library.get(), path.data(), folder.data()), "type library");
}

void take_out_library(ClassesKey& key, const Registration& registration, const std::string& server) {
  // The program may have been moved since.
  const std::string file = ClassesKey::read(key.root(), library_key(server) + "\\" + library_version() + "\\0\\win64");
  // It fails where the file is gone; what it leaves is taken out by hand.
  if (registration.scope == Scope::Machine) {
    UnRegisterTypeLib(guid_of(library_uuid(server)), kLibraryMajor, kLibraryMinor, LOCALE_NEUTRAL, SYS_WIN64);
  }
  key.remove(library_key(server));
  if (!file.empty()) remove_library(wide_text(file), server);
  for (int other = 0; other <= kOtherNames; ++other) remove_library(library_file(registration, server, other), server);
}

}  // namespace

std::vector<std::string> servers_of(const Registry& registry) {
  std::vector<std::string> servers;
  for (const Registry::Class& cls : registry.classes()) {
    if (std::find(servers.begin(), servers.end(), cls.server) == servers.end()) servers.emplace_back(cls.server);
  }
  return servers;
}

std::vector<std::string> register_server(const Registry& registry, const Registration& registration) {
  ClassesKey key(registration.scope);  // first: who may not open it is to change nothing
  // What is most likely to fail comes before an earlier registration goes: where no file can be written, it stays.
  std::vector<NewLibrary> libraries;
  for (const std::string& server : servers_of(registry)) libraries.emplace_back(registry, registration, server);
  unregister_server(registry, registration);
  try {
    std::vector<std::string> left_out;
    for (const Registry::Class& cls : registry.classes()) {
      if (!enter_class(key, cls, registration)) left_out.push_back(cls.prog_id());
    }
    for (NewLibrary& library : libraries) enter_library(key, registry, registration, library);
    return left_out;
  } catch (const std::exception&) {
    const auto cause = std::current_exception();
    try {
      unregister_server(registry, registration);
    } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch)
      // Why it could not be registered is what people want to know.
    }
    std::rethrow_exception(cause);
  }
}

void unregister_server(const Registry& registry, const Registration& registration) {
  ClassesKey key(registration.scope);  // first: who may not open it is to change nothing
  for (const std::string& server : servers_of(registry)) take_out_library(key, registration, server);
  for (const Registry::Class& cls : registry.classes()) take_out_class(key, cls);
  // A user who had no classes before has none now.
  for (const wchar_t* shared : {L"CLSID", L"TypeLib", L"Interface"}) key.remove_if_empty(shared);
  if (registration.scope == Scope::User) {
    std::error_code ignored;  // something else in it
    std::filesystem::remove(library_folder(registration), ignored);
  }
}

}  // namespace vorlan::com
