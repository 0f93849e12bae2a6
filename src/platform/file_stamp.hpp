// What tells two states of a file apart without reading it.
#pragma once

#include <cstdint>
#include <string>

namespace vorlan {

/// Times are nanoseconds since 1970. Two equal stamps mean an unchanged file, unless it changed moments ago: then the
/// system's clock ticks may be too coarse to show a second change.
struct FileStamp {
  std::int64_t modified = 0;
  std::int64_t changed = 0;       ///< of contents, name or owner; where the system keeps it
  std::uint64_t size = 0;         ///< octets
  std::uint64_t file_number = 0;  ///< differs for a file renamed into place; where the system has one
  friend bool operator==(const FileStamp&, const FileStamp&) noexcept = default;
};

/// The path is UTF-8. Error 53 if there is no such file, 75 if it cannot be looked at or is no file.
FileStamp file_stamp(const std::string& path);

}  // namespace vorlan
