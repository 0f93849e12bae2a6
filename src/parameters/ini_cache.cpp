#include "parameters/ini_cache.hpp"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>

#include "automation/error.hpp"

namespace vorlan {

namespace {

namespace fs = std::filesystem;

/// A second change within this time of the first may leave the stamp as it is.
constexpr std::chrono::milliseconds kClockTick{100};

fs::path path_of(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

[[noreturn]] void fail(const std::string& path, std::string_view reason) {
  throw Error(ErrorNumber::FileAccess, {}, path + ": " + std::string(reason));
}

bool is_settled(const FileStamp& stamp) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return now - std::chrono::nanoseconds(std::max(stamp.modified, stamp.changed)) > kClockTick;
}

std::string read_whole(const std::string& path, std::uint64_t expected_size) {
  std::ifstream in(path_of(path), std::ios::binary);
  std::string text(expected_size + 1, '\0');
  std::size_t size = 0;
  while (in.read(text.data() + size, static_cast<std::streamsize>(text.size() - size))) {
    size = text.size();
    text.resize(2 * size);
  }
  if (!in.eof()) fail(path, "cannot be read");
  text.resize(size + static_cast<std::size_t>(in.gcount()));
  return text;
}

void write_whole(const fs::path& file, const std::string& text, const fs::path& model) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out << text;
  out.close();
  if (!out) throw fs::filesystem_error("cannot be written", file, std::make_error_code(std::errc::io_error));
  fs::permissions(file, fs::status(model).permissions());
}

}  // namespace

const IniFile& IniCache::open(const std::string& path) {
  const auto found = held_.find(path);
  Held* const held = found == held_.end() ? nullptr : &found->second;
  // Taken before the file is read: a change in between shows the next time.
  const FileStamp stamp = file_stamp(path);
  if (held != nullptr && held->settled && held->stamp == stamp) return *held->file;
  const bool settled = is_settled(stamp);
  std::string text = read_whole(path, stamp.size);
  if (held != nullptr && held->file->text() == text) {
    held->stamp = stamp;
    held->settled = settled;
    return *held->file;
  }
  auto file = std::make_unique<IniFile>(path, std::move(text));
  return *(held_[path] = {stamp, settled, std::move(file)}).file;
}

void IniCache::replace(const std::string& path, const std::string& text) {
  const IniFile parsed(path, text);
  try {
    const fs::path file = fs::canonical(path_of(path));
    using enum fs::perms;
    if ((fs::status(file).permissions() & (owner_write | group_write | others_write)) == none) fail(path, "read only");
    fs::path fresh = file;
    fresh += "." + std::to_string(std::random_device{}()) + ".new";
    try {
      write_whole(fresh, text, file);
      fs::rename(fresh, file);
    } catch (const fs::filesystem_error&) {
      std::error_code ignored;
      fs::remove(fresh, ignored);
      throw;
    }
  } catch (const fs::filesystem_error& error) {
    fail(path, error.code().message());
  }
}

}  // namespace vorlan
