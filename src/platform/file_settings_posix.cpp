// The settings store in a file. Readers need no lock: they see the file before or after a change, never between.
#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "automation/error.hpp"
#include "platform/platform.hpp"
#include "platform/settings_text.hpp"

namespace vorlan {

namespace {

using std::filesystem::path;
using namespace std::chrono_literals;

/// A process that holds the lock longer than this is stuck: a change takes milliseconds.
constexpr auto kLockTimeout = 5s;

[[noreturn]] void fail(const path& file, std::string_view reason) {
  throw Error(ErrorNumber::FileAccess, {}, "settings file " + file.string() + ": " + std::string(reason));
}
[[noreturn]] void fail_with(const path& file, int error_code) { fail(file, std::strerror(error_code)); }

class Descriptor {
 public:
  Descriptor(const path& file, int flags, mode_t mode = 0) noexcept
      : number_(::open(file.c_str(), flags | O_CLOEXEC, mode)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (is_open()) ::close(number_);
  }
  [[nodiscard]] bool is_open() const noexcept { return number_ >= 0; }
  [[nodiscard]] int number() const noexcept { return number_; }

 private:
  int number_;
};

SettingsText load(const path& file) {
  const Descriptor in(file, O_RDONLY);
  if (!in.is_open()) {
    if (errno == ENOENT) return {};
    fail_with(file, errno);
  }
  std::string text;
  std::array<char, 4096> part;
  for (;;) {
    const ssize_t count = ::read(in.number(), part.data(), part.size());
    if (count == 0) break;
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail_with(file, errno);
    text.append(part.data(), static_cast<std::size_t>(count));
  }
  auto settings = SettingsText::parse(text);
  if (!settings) fail(file, "damaged; it is left as it is");
  return *std::move(settings);
}

/// Held until the descriptor is closed, by a crash at the latest.
void lock(const Descriptor& lock_file, const path& file) {
  const auto deadline = std::chrono::steady_clock::now() + kLockTimeout;
  while (::flock(lock_file.number(), LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) fail_with(file, errno);
    if (std::chrono::steady_clock::now() > deadline) fail(file, "locked by another process");
    std::this_thread::sleep_for(2ms);
  }
}

/// The mode that a changed file keeps; a file that is read only is refused, even to one who could replace it.
mode_t writable_mode(const path& file) {
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0) {
    if (errno == ENOENT) return S_IRUSR | S_IWUSR;
    fail_with(file, errno);
  }
  if ((status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) fail(file, "read only");
  if (::access(file.c_str(), W_OK) != 0) fail_with(file, errno);
  return status.st_mode & 07777;
}

void write_whole(const path& file, std::string_view text, mode_t mode) {
  const Descriptor out(file, O_WRONLY | O_CREAT | O_TRUNC, S_IRUSR | S_IWUSR);
  if (!out.is_open()) fail_with(file, errno);
  while (!text.empty()) {
    const ssize_t count = ::write(out.number(), text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail_with(file, errno);
    text.remove_prefix(static_cast<std::size_t>(count));
  }
  if (::fchmod(out.number(), mode) != 0 || ::fsync(out.number()) != 0) fail_with(file, errno);
}

void replace(const path& file, std::string_view text, mode_t mode) {
  const path fresh = file.string() + ".new";
  try {
    write_whole(fresh, text, mode);
    if (::rename(fresh.c_str(), file.c_str()) != 0) fail_with(file, errno);
  } catch (const Error&) {
    ::unlink(fresh.c_str());
    throw;
  }
  // The new name reaches the disk with the folder; the store is whole either way.
  const Descriptor folder(file.parent_path(), O_RDONLY | O_DIRECTORY);
  if (folder.is_open()) ::fsync(folder.number());
}

class FileSettings final : public SettingsStore {
 public:
  explicit FileSettings(path file) : file_(std::move(file)) {}

  [[nodiscard]] std::optional<std::string> read(std::string_view application, std::string_view section,
                                                std::string_view key) const override {
    return load(file_).read(application, section, key);
  }

  void write(std::string_view application, std::string_view section, std::string_view key,
             std::string_view value) override {
    std::error_code fault;
    // A link stays a link: what it points to is replaced.
    const path file = std::filesystem::weakly_canonical(file_, fault);
    if (fault) fail(file_, fault.message());
    std::filesystem::create_directories(file.parent_path(), fault);
    if (fault) fail(file, fault.message());
    const Descriptor lock_file(file.string() + ".lock", O_RDWR | O_CREAT, S_IRUSR | S_IWUSR);
    if (!lock_file.is_open()) fail_with(file, errno);
    lock(lock_file, file);
    const mode_t mode = writable_mode(file);
    SettingsText settings = load(file);
    if (settings.read(application, section, key) == value) return;
    settings.write(application, section, key, value);
    replace(file, settings.text(), mode);
  }

 private:
  path file_;
};

}  // namespace

std::shared_ptr<SettingsStore> make_file_settings(path file) { return std::make_shared<FileSettings>(std::move(file)); }

path settings_file() {
  const path name = path("vorlan") / "settings.ini";
  const char* const folder = std::getenv("XDG_CONFIG_HOME");
  if (folder != nullptr && path(folder).is_absolute()) return folder / name;
  const char* home = std::getenv("HOME");
  if (home == nullptr || *home == '\0') {
    const passwd* const user = ::getpwuid(::getuid());
    home = user != nullptr ? user->pw_dir : "/";
  }
  return path(home) / ".config" / name;
}

}  // namespace vorlan
