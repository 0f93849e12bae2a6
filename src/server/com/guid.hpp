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

/// IDispatchEx, {a6ef9860-c720-11d0-9337-00a0c90dcaa9}; not every compiler's libraries have it.
inline constexpr IID kExtendedDispatch{0xA6EF9860, 0xC720, 0x11D0, {0x93, 0x37, 0x00, 0xA0, 0xC9, 0x0D, 0xCA, 0xA9}};

/// "{886313e1-3b8a-5372-9b90-0c9aee199e5d}"
inline std::string registry_text(const Uuid& uuid) { return "{" + uuid_text(uuid) + "}"; }

}  // namespace vorlan::com
