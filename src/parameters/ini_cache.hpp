// Parameter files in memory, as long as they do not change.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>

#include "parameters/ini_file.hpp"
#include "platform/file_stamp.hpp"

namespace vorlan {

/// A file is read once; every further look at it costs one question to the system whether it changed.
class IniCache {
 public:
  /// The file as it is now; the path is UTF-8. Error 53 if there is none, 75 if it cannot be read or is malformed.
  /// The reference holds until the next call.
  const IniFile& open(const std::string& path);

  /// Writes another text of a file beside it and renames it into place: on error 75 the file is what it was. Refuses a
  /// text that does not parse and a file that is read only; a link stays a link.
  void replace(const std::string& path, const std::string& text);

 private:
  struct Held {
    FileStamp stamp;
    bool settled;  ///< the stamp can be trusted
    std::unique_ptr<IniFile> file;
  };
  std::unordered_map<std::string, Held> held_;  // by path
};

}  // namespace vorlan
