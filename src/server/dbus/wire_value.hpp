// Values as D-Bus types:
//
//   Boolean b, Integer n, Long i, Single and Double d, Date (d) in days since 1899-12-30, String s, Array av,
//   Object (so) with service and path, Nothing ("", "/"); a place that takes any value is v.
//
// In a variant Empty is g "" (the signature of nothing), Null is g "v", and a text that is not UTF-8 is ay. Incoming
// variants may also hold y, q, u, x, t (the first of Integer, Long and Double that holds them), o (an object of this
// worker) and arrays of every type mentioned.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "automation/value.hpp"
#include "server/dbus/bus.hpp"

namespace vorlan::dbus {

/// How an object is named on the bus.
struct Reference {
  std::string service;
  std::string path;
};

/// Turns objects into names and back.
class References {
 public:
  virtual Reference name_of(const Ref<Object>& object) = 0;
  virtual Ref<Object> object_of(const Reference& name) = 0;

 protected:
  ~References() = default;
};

/// The signature of a place for values of a type; none for Empty.
const char* signature_of(ValueType type) noexcept;

/// Reads whatever comes next; error 13 if it is of no type listed above, or lies in more than 24 arrays: the bus
/// carries 64 levels at most, and a variant is one, too. `arrays`: in how many it lies.
Value read_value(sd_bus_message* message, References& references, unsigned arrays = 0);
/// All that is left of the container that has been entered.
Value::Array read_values(sd_bus_message* message, References& references, unsigned arrays = 0);

/// Appends values to a message; error 6 where they become more than it can carry. The bus library does not look after
/// that, and the bus closes the connection that sends an array of more than 64 MiB, or a message of more than 128.
class Writer {
 public:
  Writer(sd_bus_message* message, References& references) noexcept : message_(message), references_(references) {}

  /// Octets of texts that still go in.
  [[nodiscard]] std::size_t room() const noexcept { return room_; }
  /// Appends to a place of a type, converted to it.
  void append(ValueType type, const Value& value);
  /// Appends an array of any values.
  void append_all(std::span<const Value> values);

 private:
  void append_as_is(const Value& value, bool as_octets);
  void append_text(const std::string& text, bool as_octets);
  void append_basic(char type, const void* value);
  void take(std::size_t octets);

  sd_bus_message* message_;
  References& references_;
  std::size_t room_ = 60U << 20U;
};

}  // namespace vorlan::dbus
