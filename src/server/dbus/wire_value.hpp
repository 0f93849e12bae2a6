// Values as D-Bus types:
//
//   Boolean b, Integer n, Long i, Single and Double d, Date (d) in days since 1899-12-30, String s, Array av,
//   Object (so) with service and path, Nothing ("", "/"); a place that takes any value is v.
//
// In a variant Empty is g "" (the signature of nothing), Null is g "v", and a text that is not UTF-8 is ay. Incoming
// variants may also hold y, q, u, x, t (the first of Integer, Long and Double that holds them), o (an object of this
// worker) and arrays of every type mentioned.
#pragma once

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

/// Reads whatever comes next; error 13 if it is of no type listed above.
Value read_value(sd_bus_message* message, References& references);
/// Appends to a place of a type, converted to it.
void append_value(sd_bus_message* message, ValueType type, const Value& value, References& references);

/// All that is left of the container that has been entered.
Value::Array read_values(sd_bus_message* message, References& references);
void append_values(sd_bus_message* message, std::span<const Value> values, References& references);

}  // namespace vorlan::dbus
