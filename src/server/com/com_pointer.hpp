// Counted references to COM's interfaces, and its texts.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "platform/windows_text.hpp"
#include "server/com/com_headers.hpp"

namespace vorlan::com {

template <class T>
class ComPointer {
 public:
  ComPointer() noexcept = default;
  explicit ComPointer(T* counted_already) noexcept : pointer_(counted_already) {}
  static ComPointer sharing(T* pointer) noexcept {
    if (pointer != nullptr) pointer->AddRef();
    return ComPointer(pointer);
  }
  ComPointer(const ComPointer& other) noexcept : ComPointer(sharing(other.pointer_)) {}
  ComPointer(ComPointer&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
  ComPointer& operator=(ComPointer other) noexcept {
    std::swap(pointer_, other.pointer_);
    return *this;
  }
  ~ComPointer() {
    if (pointer_ != nullptr) pointer_->Release();
  }

  [[nodiscard]] T* get() const noexcept { return pointer_; }
  [[nodiscard]] T* detach() noexcept { return std::exchange(pointer_, nullptr); }
  /// For functions that give back an interface.
  [[nodiscard]] T** out() noexcept {
    *this = ComPointer();
    return &pointer_;
  }
  [[nodiscard]] void** out_void() noexcept { return reinterpret_cast<void**>(out()); }
  T* operator->() const noexcept { return pointer_; }
  explicit operator bool() const noexcept { return pointer_ != nullptr; }

  /// Another interface of the object; empty if it has none.
  template <class U>
  [[nodiscard]] ComPointer<U> as(REFIID iid) const noexcept {
    ComPointer<U> other;
    if (pointer_ == nullptr || FAILED(pointer_->QueryInterface(iid, other.out_void()))) return {};
    return other;
  }

 private:
  T* pointer_ = nullptr;
};

inline std::wstring_view view(const BSTR& text) noexcept { return {text != nullptr ? text : L"", SysStringLen(text)}; }

/// The caller frees it.
inline BSTR new_bstr(std::string_view text) {
  const std::wstring wide = wide_text(text);
  return SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
}

/// A value that COM frees when it goes.
class Variant {
 public:
  Variant() noexcept { VariantInit(&held_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() { VariantClear(&held_); }
  VARIANT& operator*() noexcept { return held_; }
  VARIANT* operator->() noexcept { return &held_; }
  VARIANT* get() noexcept { return &held_; }
  /// Gives the contents away.
  [[nodiscard]] VARIANT detach() noexcept {
    const VARIANT given = held_;
    VariantInit(&held_);
    return given;
  }

 private:
  VARIANT held_;
};

}  // namespace vorlan::com
