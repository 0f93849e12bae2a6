// One dynamically typed value, as it crosses the boundary between a script and the library.
#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "automation/ref.hpp"

namespace vorlan {

class Object;

struct Empty {
  friend bool operator==(Empty, Empty) noexcept = default;
};
struct Null {
  friend bool operator==(Null, Null) noexcept = default;
};
/// Local date and time: days since 1899-12-30 00:00, the fraction being the time of day.
struct Date {
  double days = 0;
  friend bool operator==(const Date&, const Date&) noexcept = default;
};

/// In the order of Value's alternatives.
enum class ValueType : std::uint8_t {
  Empty,
  Null,
  Boolean,
  Integer,  ///< 16 bits, signed
  Long,     ///< 32 bits, signed
  Single,
  Double,
  Date,
  String,
  Array,
  Object,
  Any,  ///< of a parameter or property only: takes a value of every type
};

std::string_view type_name(ValueType type) noexcept;

/// A value of the automation world. Conversions follow its rules: out of range is error 6, not convertible is 13,
/// Null is 94, a real number is rounded half to even, text never depends on the locale.
class Value {
 public:
  using Array = std::vector<Value>;

  Value() noexcept = default;
  Value(Null) noexcept : data_(Null{}) {}
  template <std::same_as<bool> T>
  Value(T value) noexcept : data_(value) {}
  Value(std::int16_t value) noexcept : data_(value) {}
  Value(std::int32_t value) noexcept : data_(value) {}
  Value(float value) noexcept : data_(value) {}
  Value(double value) noexcept : data_(value) {}
  Value(Date value) noexcept : data_(value) {}
  Value(std::string value) noexcept : data_(std::move(value)) {}
  Value(std::string_view value) : data_(std::in_place_type<std::string>, value) {}
  Value(const char* value) : data_(std::in_place_type<std::string>, value) {}
  Value(Array value) noexcept : data_(std::move(value)) {}
  Value(Ref<Object> value) noexcept : data_(std::move(value)) {}
  template <std::derived_from<Object> T>
  Value(Ref<T> value) noexcept : data_(Ref<Object>(std::move(value))) {}

  [[nodiscard]] ValueType type() const noexcept { return static_cast<ValueType>(data_.index()); }
  [[nodiscard]] bool is(ValueType wanted) const noexcept { return type() == wanted; }
  [[nodiscard]] bool is_empty() const noexcept { return is(ValueType::Empty); }
  [[nodiscard]] bool is_numeric() const noexcept;

  /// The alternative itself, if the value is of that type; nothing is converted.
  template <class T>
  [[nodiscard]] const T* as() const noexcept {
    return std::get_if<T>(&data_);
  }
  template <class T>
  [[nodiscard]] T* as() noexcept {
    return std::get_if<T>(&data_);
  }

  [[nodiscard]] bool to_boolean() const;
  [[nodiscard]] std::int16_t to_integer() const;
  [[nodiscard]] std::int32_t to_long() const;
  [[nodiscard]] float to_single() const;
  [[nodiscard]] double to_double() const;
  [[nodiscard]] Date to_date() const;
  [[nodiscard]] std::string to_text() const;
  /// The object; Empty and the empty reference give Nothing, anything else is error 13.
  [[nodiscard]] Ref<Object> to_object() const;
  /// The same value as another type; Any and its own type leave it unchanged.
  [[nodiscard]] Value converted_to(ValueType type) const;

  friend bool operator==(const Value&, const Value&) noexcept = default;

 private:
  std::variant<Empty, Null, bool, std::int16_t, std::int32_t, float, double, Date, std::string, Array, Ref<Object>>
      data_;
};

/// Rounds half to even and checks the range: error 6 outside.
std::int16_t round_to_integer(double value);
std::int32_t round_to_long(double value);

/// Reads a number as automation does: blanks around it, a sign, decimals, an exponent, &H and &O numbers.
std::optional<double> parse_number(std::string_view text) noexcept;

/// Writes a number as automation does: 15 (7) significant digits, no trailing zeros, "1E+15" for large ones.
std::string number_text(double value);
std::string number_text(float value);

}  // namespace vorlan

// A Value may hold an Object, so whoever handles one needs both.
#include "automation/object.hpp"
