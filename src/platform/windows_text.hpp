// Texts between this library, which holds UTF-8, and the system.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace vorlan {

inline std::wstring wide_text(std::string_view text, UINT code_page = CP_UTF8) {
  if (text.empty()) return {};
  const int length = MultiByteToWideChar(code_page, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(code_page, 0, text.data(), static_cast<int>(text.size()), wide.data(), length);
  return wide;
}

inline std::string narrow_text(std::wstring_view wide, UINT code_page = CP_UTF8) {
  if (wide.empty()) return {};
  const auto size = static_cast<int>(wide.size());
  const int length = WideCharToMultiByte(code_page, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(code_page, 0, wide.data(), size, text.data(), length, nullptr, nullptr);
  return text;
}

/// The system's single-byte character set.
inline std::string ansi_text(std::string_view text) { return narrow_text(wide_text(text), CP_ACP); }
inline std::string text_from_ansi(std::string_view text) { return narrow_text(wide_text(text, CP_ACP)); }

}  // namespace vorlan
