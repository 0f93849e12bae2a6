#include "automation/error.hpp"
#include "platform/file_stamp.hpp"
#include "platform/windows_text.hpp"

namespace vorlan {

FileStamp file_stamp(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!GetFileAttributesExW(wide_text(path).c_str(), GetFileExInfoStandard, &data)) {
    const DWORD fault = GetLastError();
    const bool missing = fault == ERROR_FILE_NOT_FOUND || fault == ERROR_PATH_NOT_FOUND || fault == ERROR_INVALID_NAME;
    throw Error(missing ? ErrorNumber::FileNotFound : ErrorNumber::FileAccess, {}, path);
  }
  if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    throw Error(ErrorNumber::FileAccess, {}, path + ": is a folder");
  }
  // FILETIME counts 100 ns from 1601.
  constexpr std::int64_t kTicksTo1970 = 116'444'736'000'000'000;
  const std::int64_t ticks =
      std::int64_t{data.ftLastWriteTime.dwHighDateTime} << 32 | data.ftLastWriteTime.dwLowDateTime;
  return {(ticks - kTicksTo1970) * 100, 0, std::uint64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow, 0};
}

}  // namespace vorlan
