#include "server/dbus/wire_value.hpp"

#include <limits>

#include "automation/error.hpp"
#include "server/dbus/wire_text.hpp"

namespace vorlan::dbus {

namespace {

constexpr const char* kReading = "argument";
constexpr const char* kWriting = "result";

template <class T>
T read_basic(sd_bus_message* message, char type) {
  T value{};
  check(sd_bus_message_read_basic(message, type, &value), kReading);
  return value;
}

template <class T>
Value read_integer(sd_bus_message* message, char type) {
  const auto number = read_basic<T>(message, type);
  if (std::in_range<std::int16_t>(number)) return static_cast<std::int16_t>(number);
  if (std::in_range<std::int32_t>(number)) return static_cast<std::int32_t>(number);
  return static_cast<double>(number);
}

Value read_marker(sd_bus_message* message) {
  const std::string_view signature = read_basic<const char*>(message, 'g');
  if (signature.empty()) return {};
  if (signature == "v") return Null{};
  throw Error(ErrorNumber::TypeMismatch, {}, "a signature");
}

Value read_octets(sd_bus_message* message) {
  const void* octets = nullptr;
  std::size_t size = 0;
  check(sd_bus_message_read_array(message, 'y', &octets, &size), kReading);
  return std::string_view(static_cast<const char*>(octets), size);
}

Value read_structure(sd_bus_message* message, std::string_view contents, References& references) {
  if (contents != "so" && contents != "d") throw Error(ErrorNumber::TypeMismatch, {}, "a structure");
  const bool object = contents == "so";
  check(sd_bus_message_enter_container(message, 'r', object ? "so" : "d"), kReading);
  Value value;
  if (object) {
    const char* service = read_basic<const char*>(message, 's');
    value = references.object_of({service, read_basic<const char*>(message, 'o')});
  } else {
    value = Date{read_basic<double>(message, 'd')};
  }
  check(sd_bus_message_exit_container(message), kReading);
  return value;
}

/// The signature of a variant that holds the value.
const char* variant_signature(const Value& value) noexcept {
  if (value.is(ValueType::Empty) || value.is(ValueType::Null)) return "g";
  if (const auto* text = value.as<std::string>(); text != nullptr && !is_bus_text(*text)) return "ay";
  return signature_of(value.type());
}

void append_basic(sd_bus_message* message, char type, const void* value) {
  check(sd_bus_message_append_basic(message, type, value), kWriting);
}

void append_text(sd_bus_message* message, const std::string& text, bool as_octets) {
  if (as_octets) {
    check(sd_bus_message_append_array(message, 'y', text.data(), text.size()), kWriting);
    return;
  }
  if (!is_bus_text(text)) throw Error(ErrorNumber::TypeMismatch, {}, "not UTF-8; Vorlan.Object.Invoke gives octets");
  append_basic(message, 's', text.c_str());
}

/// Appends a value as it is. `octets`: a text goes as octets.
void append_as_is(sd_bus_message* message, const Value& value, bool octets, References& references) {
  switch (value.type()) {
    case ValueType::Empty:
    case ValueType::Null: return append_basic(message, 'g', value.is_empty() ? "" : "v");
    case ValueType::Boolean: {
      const int flag = *value.as<bool>() ? 1 : 0;
      return append_basic(message, 'b', &flag);
    }
    case ValueType::Integer: return append_basic(message, 'n', value.as<std::int16_t>());
    case ValueType::Long: return append_basic(message, 'i', value.as<std::int32_t>());
    case ValueType::Single: {
      const double wide = static_cast<double>(*value.as<float>());
      return append_basic(message, 'd', &wide);
    }
    case ValueType::Double: return append_basic(message, 'd', value.as<double>());
    case ValueType::Date: check(sd_bus_message_append(message, "(d)", value.as<Date>()->days), kWriting); return;
    case ValueType::String: return append_text(message, *value.as<std::string>(), octets);
    case ValueType::Array: return append_values(message, *value.as<Value::Array>(), references);
    case ValueType::Object: {
      const Reference name = references.name_of(*value.as<Ref<Object>>());
      check(sd_bus_message_append(message, "(so)", name.service.c_str(), name.path.c_str()), kWriting);
      return;
    }
    case ValueType::Any: break;
  }
}

}  // namespace

const char* signature_of(ValueType type) noexcept {
  switch (type) {
    case ValueType::Empty: return "";
    case ValueType::Boolean: return "b";
    case ValueType::Integer: return "n";
    case ValueType::Long: return "i";
    case ValueType::Single:
    case ValueType::Double: return "d";
    case ValueType::Date: return "(d)";
    case ValueType::String: return "s";
    case ValueType::Array: return "av";
    case ValueType::Object: return "(so)";
    case ValueType::Null:
    case ValueType::Any: break;
  }
  return "v";
}

Value read_value(sd_bus_message* message, References& references) {
  char type = 0;
  const char* contents = nullptr;
  if (check(sd_bus_message_peek_type(message, &type, &contents), kReading) == 0) return {};
  switch (type) {
    case 'b': return read_basic<int>(message, type) != 0;
    case 'n': return read_basic<std::int16_t>(message, type);
    case 'i': return read_basic<std::int32_t>(message, type);
    case 'd': return read_basic<double>(message, type);
    case 's': return read_basic<const char*>(message, type);
    case 'y': return read_integer<std::uint8_t>(message, type);
    case 'q': return read_integer<std::uint16_t>(message, type);
    case 'u': return read_integer<std::uint32_t>(message, type);
    case 'x': return read_integer<std::int64_t>(message, type);
    case 't': return read_integer<std::uint64_t>(message, type);
    case 'o': return references.object_of({"", read_basic<const char*>(message, type)});
    case 'g': return read_marker(message);
    case 'r': return read_structure(message, contents, references);
    case 'a':
      if (std::string_view(contents) == "y") return read_octets(message);
      [[fallthrough]];
    case 'v': {
      check(sd_bus_message_enter_container(message, type, contents), kReading);
      Value value = type == 'v' ? read_value(message, references) : Value(read_values(message, references));
      check(sd_bus_message_exit_container(message), kReading);
      return value;
    }
    default: throw Error(ErrorNumber::TypeMismatch, {}, "a D-Bus type that no value has");
  }
}

Value::Array read_values(sd_bus_message* message, References& references) {
  Value::Array values;
  while (check(sd_bus_message_at_end(message, 0), kReading) == 0) values.push_back(read_value(message, references));
  return values;
}

void append_value(sd_bus_message* message, ValueType type, const Value& value, References& references) {
  if (*signature_of(type) == 'v') {
    const char* signature = variant_signature(value);
    check(sd_bus_message_open_container(message, 'v', signature), kWriting);
    append_as_is(message, value, std::string_view(signature) == "ay", references);
    check(sd_bus_message_close_container(message), kWriting);
    return;
  }
  if (value.is(type)) return append_as_is(message, value, false, references);
  append_as_is(message, value.converted_to(type), false, references);
}

void append_values(sd_bus_message* message, std::span<const Value> values, References& references) {
  check(sd_bus_message_open_container(message, 'a', "v"), kWriting);
  for (const Value& value : values) append_value(message, ValueType::Any, value, references);
  check(sd_bus_message_close_container(message), kWriting);
}

}  // namespace vorlan::dbus
