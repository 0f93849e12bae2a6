#include "platform/registry_windows.hpp"

#include <array>

#include "automation/error.hpp"
#include "platform/native.hpp"
#include "platform/windows_text.hpp"

namespace vorlan {

namespace {

class Key {
 public:
  Key() noexcept = default;
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (handle_ != nullptr) RegCloseKey(handle_);
  }
  [[nodiscard]] HKEY get() const noexcept { return handle_; }
  [[nodiscard]] HKEY* out() noexcept { return &handle_; }

 private:
  HKEY handle_ = nullptr;
};

class RegistrySettings final : public SettingsStore {
 public:
  [[nodiscard]] std::optional<std::string> read(std::string_view application, std::string_view section,
                                                std::string_view key) const override {
    const std::string path = path_of(application, section);
    Key opened;
    LSTATUS status = RegOpenKeyExW(HKEY_CURRENT_USER, wide_text(path).c_str(), 0, KEY_READ, opened.out());
    if (status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND) return std::nullopt;
    check(status, path);
    const std::wstring name = wide_text(key);
    std::wstring value;
    DWORD octets = 0;
    do {  // another process may lengthen the value in between
      value.resize(octets / sizeof(wchar_t) + 1);
      octets = static_cast<DWORD>(value.size() * sizeof(wchar_t));
      status = RegGetValueW(opened.get(), nullptr, name.c_str(), RRF_RT_REG_SZ, nullptr, value.data(), &octets);
    } while (status == ERROR_MORE_DATA);
    if (status == ERROR_FILE_NOT_FOUND) return std::nullopt;
    check(status, path);
    value.resize(octets / sizeof(wchar_t) - 1);  // without its NUL
    return narrow_text(value);
  }

  void write(std::string_view application, std::string_view section, std::string_view key,
             std::string_view value) override {
    const std::string path = path_of(application, section);
    Key opened;
    check(RegCreateKeyExW(HKEY_CURRENT_USER, wide_text(path).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_WRITE,
                          nullptr, opened.out(), nullptr),
          path);
    const std::wstring text = wide_text(value);
    check(RegSetValueExW(opened.get(), wide_text(key).c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                         static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
          path);
  }

 private:
  static std::string path_of(std::string_view application, std::string_view section) {
    std::string path = "Software\\VB and VBA Program Settings\\";
    path.append(application).append("\\").append(section);
    return path;
  }

  static void check(LSTATUS status, const std::string& path) {
    if (status == ERROR_SUCCESS) return;
    throw Error(ErrorNumber::FileAccess, {},
                "registry key HKEY_CURRENT_USER\\" + path + ": system error " + std::to_string(status));
  }
};

class SystemRegistryText final : public RegistryText {
 public:
  [[nodiscard]] std::optional<std::string> read(std::int32_t root, const std::string& key_path,
                                                const std::string& value_name) const override {
    // For reading and writing, without the standard rights: a key that only an administrator may write does not open.
    constexpr REGSAM kAccess = 0x3F;
    const auto root_key = reinterpret_cast<HKEY>(static_cast<std::intptr_t>(root));
    Key opened;
    if (RegOpenKeyExA(root_key, ansi_text(key_path).c_str(), 0, kAccess, opened.out()) != ERROR_SUCCESS) {
      return std::nullopt;
    }
    std::array<char, kRegistryBuffer> buffer{};
    auto octets = static_cast<DWORD>(buffer.size());
    if (RegQueryValueExA(opened.get(), ansi_text(value_name).c_str(), nullptr, nullptr,
                         reinterpret_cast<BYTE*>(buffer.data()), &octets) != ERROR_SUCCESS) {
      return unreadable_registry_text();
    }
    const std::string_view text(buffer.data(), octets);
    return text_from_ansi(text.substr(0, text.find('\0')));
  }
};

}  // namespace

std::shared_ptr<SettingsStore> make_registry_settings() { return std::make_shared<RegistrySettings>(); }
std::shared_ptr<RegistryText> make_registry_text() { return std::make_shared<SystemRegistryText>(); }

}  // namespace vorlan
