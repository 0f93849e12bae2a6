// Counted references to automation objects.
#pragma once

#include <cstddef>
#include <utility>

namespace vorlan {

/// A counted reference; the empty reference is what scripts call Nothing.
/// T offers add_reference() and release().
template <class T>
class Ref {
 public:
  Ref() noexcept = default;
  Ref(std::nullptr_t) noexcept {}
  explicit Ref(T* object) noexcept : object_(object) {
    if (object_ != nullptr) object_->add_reference();
  }
  Ref(const Ref& other) noexcept : Ref(other.object_) {}
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  template <class U>
  Ref(const Ref<U>& other) noexcept : Ref(static_cast<T*>(other.get())) {}
  template <class U>
  Ref(Ref<U>&& other) noexcept : object_(other.detach()) {}
  Ref& operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Ref() {
    if (object_ != nullptr) object_->release();
  }

  /// Takes over a reference that is counted already.
  static Ref adopt(T* object) noexcept {
    Ref result;
    result.object_ = object;
    return result;
  }

  [[nodiscard]] T* get() const noexcept { return object_; }
  /// Gives the reference away without releasing it.
  [[nodiscard]] T* detach() noexcept { return std::exchange(object_, nullptr); }
  T& operator*() const noexcept { return *object_; }
  T* operator->() const noexcept { return object_; }
  explicit operator bool() const noexcept { return object_ != nullptr; }
  friend bool operator==(const Ref& a, const Ref& b) noexcept { return a.object_ == b.object_; }

 private:
  T* object_ = nullptr;
};

/// Creates an object on the heap; a new object starts with the one reference returned here.
template <class T, class... Arguments>
Ref<T> make(Arguments&&... arguments) {
  return Ref<T>::adopt(new T(std::forward<Arguments>(arguments)...));
}

}  // namespace vorlan
