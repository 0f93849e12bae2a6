// A registry that was exported as text, for machines that have none.
#include <array>
#include <fstream>

#include "automation/class_info.hpp"
#include "platform/native.hpp"

namespace vorlan {

namespace {

struct RootKey {
  std::uint32_t number;
  std::string_view name;
};
constexpr std::array kRootKeys{RootKey{0x80000000, "HKEY_CLASSES_ROOT"}, RootKey{0x80000001, "HKEY_CURRENT_USER"},
                               RootKey{0x80000002, "HKEY_LOCAL_MACHINE"}, RootKey{0x80000003, "HKEY_USERS"},
                               RootKey{0x80000005, "HKEY_CURRENT_CONFIG"}};

/// Reads a text in quotes from the front of a line, \\ and \" being one character.
std::optional<std::string> take_quoted(std::string_view& line) {
  if (!line.starts_with('"')) return std::nullopt;
  std::string text;
  for (std::size_t i = 1; i < line.size(); ++i) {
    if (line[i] == '"') {
      line.remove_prefix(i + 1);
      return text;
    }
    if (line[i] == '\\' && i + 1 < line.size()) ++i;
    text += line[i];
  }
  return std::nullopt;
}

/// A value's name; the default value of a key, which has none, is written "@".
std::optional<std::string> take_name(std::string_view& line) {
  if (!line.starts_with('@')) return take_quoted(line);
  line.remove_prefix(1);
  return std::string();
}

class RegistryExport final : public RegistryText {
 public:
  explicit RegistryExport(std::filesystem::path file) : file_(std::move(file)) {}

  [[nodiscard]] std::optional<std::string> read(std::int32_t root, const std::string& key_path,
                                                const std::string& value_name) const override {
    std::string key;
    for (const RootKey& known : kRootKeys) {
      if (known.number == static_cast<std::uint32_t>(root)) key = known.name;
    }
    if (key.empty()) return std::nullopt;
    if (!key_path.empty()) key += "\\" + key_path;

    std::optional<std::string> found;
    bool here = false;
    std::ifstream in(file_);
    for (std::string text; std::getline(in, text);) {
      std::string_view line = text;
      if (line.ends_with('\r')) line.remove_suffix(1);
      if (line.starts_with('[') && line.ends_with(']')) {
        const std::string_view name = line.substr(1, line.size() - 2);
        here = equals_ignoring_case(name, key);
        // A key is there as well if only a key below it is listed.
        const bool below = name.size() > key.size() && name[key.size()] == '\\' &&
                           equals_ignoring_case(name.substr(0, key.size()), key);
        if ((here || below) && !found) found = unreadable_registry_text();
      } else if (here) {
        const auto name = take_name(line);
        if (!name || !equals_ignoring_case(*name, value_name) || !line.starts_with('=')) continue;
        line.remove_prefix(1);
        auto value = take_quoted(line);
        if (value && value->size() < kRegistryBuffer) return value->substr(0, value->find('\0'));
      }
    }
    return found;
  }

 private:
  std::filesystem::path file_;
};

}  // namespace

std::shared_ptr<RegistryText> make_registry_export(std::filesystem::path file) {
  return std::make_shared<RegistryExport>(std::move(file));
}

}  // namespace vorlan
