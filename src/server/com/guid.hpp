// Identifiers as COM takes them.
#pragma once

#include <cstring>

#include "server/com/com_headers.hpp"
#include "server/com/ids.hpp"

namespace vorlan::com {

inline GUID guid_of(const Uuid& uuid) noexcept {
  GUID guid;
  guid.Data1 = static_cast<unsigned long>(uuid[0]) << 24U | static_cast<unsigned long>(uuid[1]) << 16U |
               static_cast<unsigned long>(uuid[2]) << 8U | uuid[3];
  guid.Data2 = static_cast<unsigned short>(uuid[4] << 8 | uuid[5]);
  guid.Data3 = static_cast<unsigned short>(uuid[6] << 8 | uuid[7]);
  std::memcpy(guid.Data4, uuid.data() + 8, sizeof guid.Data4);
  return guid;
}

/// "{886313e1-3b8a-5372-9b90-0c9aee199e5d}"
inline std::string registry_text(const Uuid& uuid) { return "{" + uuid_text(uuid) + "}"; }

}  // namespace vorlan::com
