// Errors between the library and COM.
#pragma once

#include "automation/error.hpp"
#include "server/com/com_headers.hpp"

namespace vorlan::com {

/// An object outside, or its process, is no more.
inline constexpr std::int32_t kServerGone = 462;
/// A Variant that is none of the library's types, or cannot become the one that is due.
[[noreturn]] inline void mismatch() { throw Error(ErrorNumber::TypeMismatch); }

/// How an error's number travels: 1 to 65535 under automation's own facility (0x800A0000 and the number), every other
/// as it is. Client and server both keep to it, so a script sees the number that was raised.
SCODE scode_of(std::int32_t number) noexcept;
std::int32_t number_of(SCODE scode) noexcept;

/// The error that a client is told of: its exception information and, for clients that ask the thread, the error
/// object. Returns DISP_E_EXCEPTION.
HRESULT tell(const Error& error, EXCEPINFO* information) noexcept;

/// What a failed call of another object comes to. Frees the texts in the information.
Error error_of(HRESULT result, EXCEPINFO& information, std::string_view source);

/// Error 75, or 429 when something cannot be made, with what was being done and the system's text.
[[noreturn]] void fail(HRESULT result, std::string_view what);
inline void check(HRESULT result, std::string_view what) {
  if (FAILED(result)) fail(result, what);
}
inline void check_status(LSTATUS status, std::string_view what) { check(HRESULT_FROM_WIN32(status), what); }

/// The system's own text, or the number where it has none.
std::string system_text(HRESULT result);

}  // namespace vorlan::com
