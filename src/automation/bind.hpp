// Binds the typed member functions of a hand-written class to names: one table per class, arguments converted here.
#pragma once

#include <array>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

#include "automation/class_info.hpp"
#include "automation/error.hpp"

namespace vorlan {

namespace binding {

/// How a C++ parameter type is read from a Value, and written back when it is a reference.
template <class T>
struct Convert;

template <>
struct Convert<bool> {
  static constexpr ValueType type = ValueType::Boolean;
  static bool read(const Value& value) { return value.to_boolean(); }
};
template <>
struct Convert<std::int16_t> {
  static constexpr ValueType type = ValueType::Integer;
  static std::int16_t read(const Value& value) { return value.to_integer(); }
};
template <>
struct Convert<std::int32_t> {
  static constexpr ValueType type = ValueType::Long;
  static std::int32_t read(const Value& value) { return value.to_long(); }
};
template <>
struct Convert<float> {
  static constexpr ValueType type = ValueType::Single;
  static float read(const Value& value) { return value.to_single(); }
};
template <>
struct Convert<double> {
  static constexpr ValueType type = ValueType::Double;
  static double read(const Value& value) { return value.to_double(); }
};
template <>
struct Convert<Date> {
  static constexpr ValueType type = ValueType::Date;
  static Date read(const Value& value) { return value.to_date(); }
};
template <>
struct Convert<std::string> {
  static constexpr ValueType type = ValueType::String;
  static std::string read(const Value& value) { return value.to_text(); }
};
template <>
struct Convert<Ref<Object>> {
  static constexpr ValueType type = ValueType::Object;
  static Ref<Object> read(const Value& value) { return value.to_object(); }
};
template <>
struct Convert<Value> {
  static constexpr ValueType type = ValueType::Any;
};
template <>
struct Convert<void> {
  static constexpr ValueType type = ValueType::Empty;
};
/// An argument that may be left out.
template <class T>
struct Convert<std::optional<T>> {
  static constexpr ValueType type = Convert<T>::type;
  static std::optional<T> read(const Value& value) {
    if (value.is_empty()) return std::nullopt;
    return Convert<T>::read(value);
  }
};

template <class T>
inline constexpr bool is_optional = false;
template <class T>
inline constexpr bool is_optional<std::optional<T>> = true;

template <class P>
inline constexpr bool is_by_reference = std::is_lvalue_reference_v<P> && !std::is_const_v<std::remove_reference_t<P>>;

/// One argument of a call: where it stands in the caller's arguments, if it was given at all.
struct Slot {
  std::span<Value> arguments;
  std::size_t index;
  [[nodiscard]] Value* value() const noexcept { return index < arguments.size() ? &arguments[index] : nullptr; }
};

/// Holds one converted argument during a call. A by-reference one goes back to the caller when the call ends, however
/// it ends: a raised error leaves it as far as it was changed. A number keeps the caller's own type where it fits.
template <class P>
class Argument {
 public:
  using T = std::remove_cvref_t<P>;

  explicit Argument(Slot slot) : value_(slot.value()), held_(Convert<T>::read(value_ != nullptr ? *value_ : Value())) {
    if constexpr (is_by_reference<P>) before_ = held_;
  }
  Argument(const Argument&) = delete;
  Argument& operator=(const Argument&) = delete;
  ~Argument() {
    if constexpr (is_by_reference<P>) {
      if (value_ != nullptr && !(held_ == before_)) write_back();
    }
  }
  T& get() noexcept { return held_; }

 private:
  struct Nothing {};

  void write_back() noexcept {
    Value changed(held_);
    if (value_->is_numeric() && !value_->is_empty()) {
      for (const ValueType type : {value_->type(), ValueType::Long}) {
        try {
          changed = changed.converted_to(type);
          break;
        } catch (const Error&) {  // NOLINT(bugprone-empty-catch)
          // Does not fit: the caller gets a wider type.
        }
      }
    }
    *value_ = std::move(changed);
  }

  Value* value_;
  T held_;
  [[no_unique_address]] std::conditional_t<is_by_reference<P>, T, Nothing> before_{};
};

/// A value of any type: the callee works on the caller's own.
template <class P>
requires std::is_same_v<std::remove_cvref_t<P>, Value>
class Argument<P> {
 public:
  explicit Argument(Slot slot) : value_(slot.value()) {}
  Value& get() noexcept { return value_ != nullptr ? *value_ : missing_; }

 private:
  Value* value_;
  Value missing_;
};

/// A text: a caller's text is used in place, so that a long bit string is not copied; anything else is converted.
template <class P>
requires std::is_same_v<std::remove_cvref_t<P>, std::string>
class Argument<P> {
 public:
  explicit Argument(Slot slot) : value_(slot.value()), text_(value_ != nullptr ? value_->as<std::string>() : nullptr) {
    if (text_ != nullptr) return;
    if (value_ != nullptr) converted_ = value_->to_text();
    if constexpr (is_by_reference<P>) before_ = converted_;
  }
  Argument(const Argument&) = delete;
  Argument& operator=(const Argument&) = delete;
  ~Argument() {
    if constexpr (is_by_reference<P>) {
      if (text_ == nullptr && value_ != nullptr && converted_ != before_) *value_ = std::move(converted_);
    }
  }
  std::string& get() noexcept { return text_ != nullptr ? *text_ : converted_; }

 private:
  Value* value_;
  std::string* text_;
  std::string converted_;
  std::string before_;
};

struct Parameter {
  ValueType type;
  bool by_reference;
  bool optional;
};

template <class P>
constexpr Parameter parameter() {
  using T = std::remove_cvref_t<P>;
  return {Convert<T>::type, is_by_reference<P>, is_optional<T>};
}

template <class R, class C, class... Ps>
struct SignatureBase {
  using Class = C;
  using Result = std::remove_cvref_t<R>;
  static constexpr std::array<Parameter, sizeof...(Ps)> parameters{parameter<Ps>()...};
  /// Whether a member function may change its object.
  template <class Function>
  static constexpr bool changes = !std::is_invocable_v<Function, const C&, Ps...>;

  template <auto Function>
  static Value call(ClassObject& object, std::span<Value> arguments) {
    return call_with<Function>(static_cast<C&>(object), arguments, std::index_sequence_for<Ps...>{});
  }

 private:
  template <auto Function, std::size_t... I>
  static Value call_with(C& object, [[maybe_unused]] std::span<Value> arguments, std::index_sequence<I...>) {
    std::tuple<Argument<Ps>...> held{Slot{arguments, I}...};
    if constexpr (std::is_void_v<R>) {
      (object.*Function)(std::get<I>(held).get()...);
      return {};
    } else {
      return Value((object.*Function)(std::get<I>(held).get()...));
    }
  }
};

template <class F>
struct Signature;
template <class R, class C, class... Ps>
struct Signature<R (C::*)(Ps...)> : SignatureBase<R, C, Ps...> {};
template <class R, class C, class... Ps>
struct Signature<R (C::*)(Ps...) const> : SignatureBase<R, C, Ps...> {};
template <class R, class C, class... Ps>
struct Signature<R (C::*)(Ps...) const noexcept> : SignatureBase<R, C, Ps...> {};
template <class R, class C, class... Ps>
struct Signature<R (C::*)(Ps...) noexcept> : SignatureBase<R, C, Ps...> {};

}  // namespace binding

/// One row of a class's member table.
struct BoundMember {
  using Call = Value (*)(ClassObject&, std::span<Value>);

  std::string_view name;
  std::string_view parameter_names;  ///< "value, width"
  std::string_view summary;
  std::span<const binding::Parameter> parameters;
  ValueType type;
  Call get = nullptr;  ///< or call, of a method
  Call let = nullptr;  ///< Let and Set
  bool method = false;
  bool get_changes = false;
};

template <auto Function>
constexpr BoundMember method(std::string_view name, std::string_view parameter_names, std::string_view summary) {
  using S = binding::Signature<decltype(Function)>;
  return {name,
          parameter_names,
          summary,
          S::parameters,
          binding::Convert<typename S::Result>::type,
          &S::template call<Function>,
          nullptr,
          true};
}

/// A read-only property. Its getter is const, unless reading it changes something.
template <auto Getter>
constexpr BoundMember property(std::string_view name, std::string_view summary, std::string_view parameter_names = {}) {
  using S = binding::Signature<decltype(Getter)>;
  return {name,
          parameter_names,
          summary,
          S::parameters,
          binding::Convert<typename S::Result>::type,
          &S::template call<Getter>,
          nullptr,
          false,
          S::template changes<decltype(Getter)>};
}

/// A property that can be read and written; the setter takes the getter's parameters and the value.
template <auto Getter, auto Setter>
constexpr BoundMember property(std::string_view name, std::string_view summary, std::string_view parameter_names = {}) {
  BoundMember member = property<Getter>(name, summary, parameter_names);
  member.let = &binding::Signature<decltype(Setter)>::template call<Setter>;
  return member;
}

/// Makes the members of a class from its table.
std::vector<MemberInfo> describe(std::span<const BoundMember> table);

/// A hand-written class: members(), a constexpr table, and texts(), the class's name and summary, are static members
/// of T.
template <class T>
class BoundObject : public ClassObject {
 public:
  static const ClassInfo& info() {
    static const ClassInfo kInfo{T::texts(), describe(T::members()), {}, T::errors()};
    return kInfo;
  }
  /// A class that lists errors has its own.
  static std::vector<ErrorInfo> errors() { return {}; }

 protected:
  BoundObject() : ClassObject(info()) {}

  Value invoke_member(int member, Access access, std::span<Value> arguments) override {
    const BoundMember& row = T::members()[static_cast<std::size_t>(member)];
    const bool assigns = access == Access::Let || access == Access::Set;
    return (assigns ? row.let : row.get)(*this, arguments);
  }
};

}  // namespace vorlan
