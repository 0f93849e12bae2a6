#include <sys/stat.h>

#include <cerrno>
#include <cstring>

#include "automation/error.hpp"
#include "platform/file_stamp.hpp"

namespace vorlan {

namespace {

std::int64_t nanoseconds(const timespec& time) noexcept {
  return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

}  // namespace

FileStamp file_stamp(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) {
    if (errno == ENOENT) throw Error(ErrorNumber::FileNotFound, {}, path);
    throw Error(ErrorNumber::FileAccess, {}, path + ": " + std::strerror(errno));
  }
  if (S_ISDIR(status.st_mode)) throw Error(ErrorNumber::FileAccess, {}, path + ": is a folder");
  return {nanoseconds(status.st_mtim), nanoseconds(status.st_ctim), static_cast<std::uint64_t>(status.st_size),
          status.st_ino};
}

}  // namespace vorlan
