// What every automation object looks like, wherever it lives.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <span>
#include <string_view>

#include "automation/member_key.hpp"
#include "automation/value.hpp"

namespace vorlan {

class ClassInfo;

enum class Access : std::uint8_t { Get, Let, Set, Call };

/// A message object that lives in this process: its `Length`, and its octets, which are read or written whole where the
/// late-bound `Octet` property takes one call per octet.
class OctetBuffer {
 public:
  /// In bits.
  [[nodiscard]] virtual std::int16_t length() const noexcept = 0;
  virtual void set_length(std::int16_t bits) = 0;
  /// The octets held; a message object answers zero for every octet past them.
  [[nodiscard]] virtual std::span<const std::uint8_t> octets() const noexcept = 0;
  /// Replaces the first octets and leaves those behind them.
  virtual void write_octets(std::span<const std::uint8_t> octets) = 0;

 protected:
  ~OctetBuffer() = default;
};

/// An automation object: one of this library's, a test set's, a script's own, or a stand-in for one in another
/// process. The library never cares which.
class Object {
 public:
  Object() noexcept = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  /// Gets, lets or sets a property or calls a method, found by name without regard to case. Index arguments come
  /// first, the value of Let and Set comes last. Arguments passed by reference are changed in place.
  virtual Value invoke(std::string_view member, Access access, std::span<Value> arguments) = 0;

  /// The description of an object of this library; null for a foreign one.
  [[nodiscard]] virtual const ClassInfo* class_info() const noexcept { return nullptr; }
  /// The octets of an in-process message object; null for every other object.
  [[nodiscard]] virtual OctetBuffer* octet_buffer() noexcept { return nullptr; }

  /// The text that a property of an in-process object holds, without a copy: no arguments, or an empty first one.
  /// Null where there is no such text, or none of a property spelt so, and the property has to be got. It holds until
  /// the object changes.
  [[nodiscard]] virtual const std::string* held_text(const PreparedName&) const noexcept { return nullptr; }

  template <class... Arguments>
  Value get(std::string_view member, Arguments&&... arguments) {
    return with(member, Access::Get, std::forward<Arguments>(arguments)...);
  }
  template <class... Arguments>
  void let(std::string_view member, Arguments&&... arguments) {
    with(member, Access::Let, std::forward<Arguments>(arguments)...);
  }
  template <class... Arguments>
  void set(std::string_view member, Arguments&&... arguments) {
    with(member, Access::Set, std::forward<Arguments>(arguments)...);
  }
  template <class... Arguments>
  Value call(std::string_view member, Arguments&&... arguments) {
    return with(member, Access::Call, std::forward<Arguments>(arguments)...);
  }

  void add_reference() noexcept { references_.fetch_add(1, std::memory_order_relaxed); }
  void release() noexcept {
    if (references_.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
  }

 protected:
  virtual ~Object() = default;

 private:
  template <class... Arguments>
  Value with(std::string_view member, Access access, Arguments&&... arguments) {
    std::array<Value, sizeof...(Arguments)> values{Value(std::forward<Arguments>(arguments))...};
    return invoke(member, access, values);
  }

  std::atomic<std::uint32_t> references_{1};
};

/// The object that a reference must not lack: error 91 with this source for Nothing.
Object& deref(const Ref<Object>& object, std::string_view source);

}  // namespace vorlan
