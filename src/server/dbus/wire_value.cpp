#include "server/dbus/wire_value.hpp"

#include <limits>

#include "automation/error.hpp"
#include "server/dbus/wire_text.hpp"

namespace vorlan::dbus {

namespace {

constexpr const char* kWriting = "result";
constexpr unsigned kMostArrays = 24;
/// What a value takes at most beside its text: signature, length, and what fills up to eight octets.
constexpr std::size_t kOctetsOfValue = 32;

template <class T>
T read_basic(sd_bus_message* message, char type) {
  T value{};
  check_read(sd_bus_message_read_basic(message, type, &value));
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
  check_read(sd_bus_message_read_array(message, 'y', &octets, &size));
  return std::string_view(static_cast<const char*>(octets), size);
}

Value read_structure(sd_bus_message* message, std::string_view contents, References& references) {
  if (contents != "so" && contents != "d") throw Error(ErrorNumber::TypeMismatch, {}, "a structure");
  const bool object = contents == "so";
  check_read(sd_bus_message_enter_container(message, 'r', object ? "so" : "d"));
  Value value;
  if (object) {
    const char* service = read_basic<const char*>(message, 's');
    value = references.object_of({service, read_basic<const char*>(message, 'o')});
  } else {
    value = Date{read_basic<double>(message, 'd')};
  }
  check_read(sd_bus_message_exit_container(message));
  return value;
}

/// The signature of a variant that holds the value.
const char* variant_signature(const Value& value) noexcept {
  if (value.is(ValueType::Empty) || value.is(ValueType::Null)) return "g";
  if (const auto* text = value.as<std::string>(); text != nullptr && !is_bus_text(*text)) return "ay";
  return signature_of(value.type());
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

Value read_value(sd_bus_message* message, References& references, unsigned arrays) {
  char type = 0;
  const char* contents = nullptr;
  if (check_read(sd_bus_message_peek_type(message, &type, &contents)) == 0) return {};
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
      if (arrays == kMostArrays) throw Error(ErrorNumber::TypeMismatch, {}, "arrays nested too deep");
      check_read(sd_bus_message_enter_container(message, type, contents));
      Value value =
          type == 'v' ? read_value(message, references, arrays) : Value(read_values(message, references, arrays + 1));
      check_read(sd_bus_message_exit_container(message));
      return value;
    }
    default: throw Error(ErrorNumber::TypeMismatch, {}, "a D-Bus type that no value has");
  }
}

Value::Array read_values(sd_bus_message* message, References& references, unsigned arrays) {
  Value::Array values;
  while (check_read(sd_bus_message_at_end(message, 0)) == 0) {
    values.push_back(read_value(message, references, arrays));
  }
  return values;
}

void Writer::append(ValueType type, const Value& value) {
  if (*signature_of(type) == 'v') {
    const char* signature = variant_signature(value);
    check(sd_bus_message_open_container(message_, 'v', signature), kWriting);
    append_as_is(value, std::string_view(signature) == "ay");
    check(sd_bus_message_close_container(message_), kWriting);
    return;
  }
  if (value.is(type)) return append_as_is(value, false);
  append_as_is(value.converted_to(type), false);
}

void Writer::append_all(std::span<const Value> values) {
  check(sd_bus_message_open_container(message_, 'a', "v"), kWriting);
  for (const Value& value : values) append(ValueType::Any, value);
  check(sd_bus_message_close_container(message_), kWriting);
}

void Writer::take(std::size_t octets) {
  if (octets > room_) throw Error(ErrorNumber::Overflow, {}, "more than a message of the bus carries");
  room_ -= octets;
}

void Writer::append_basic(char type, const void* value) {
  check(sd_bus_message_append_basic(message_, type, value), kWriting);
}

void Writer::append_text(const std::string& text, bool as_octets) {
  take(text.size());
  if (as_octets) {
    check(sd_bus_message_append_array(message_, 'y', text.data(), text.size()), kWriting);
    return;
  }
  if (!is_bus_text(text)) throw Error(ErrorNumber::TypeMismatch, {}, "not UTF-8; Vorlan.Object.Invoke gives octets");
  append_basic('s', text.c_str());
}

void Writer::append_as_is(const Value& value, bool as_octets) {
  take(kOctetsOfValue);
  switch (value.type()) {
    case ValueType::Empty:
    case ValueType::Null: return append_basic('g', value.is_empty() ? "" : "v");
    case ValueType::Boolean: {
      const int flag = *value.as<bool>() ? 1 : 0;
      return append_basic('b', &flag);
    }
    case ValueType::Integer: return append_basic('n', value.as<std::int16_t>());
    case ValueType::Long: return append_basic('i', value.as<std::int32_t>());
    case ValueType::Single: {
      const double wide = static_cast<double>(*value.as<float>());
      return append_basic('d', &wide);
    }
    case ValueType::Double: return append_basic('d', value.as<double>());
    case ValueType::Date: check(sd_bus_message_append(message_, "(d)", value.as<Date>()->days), kWriting); return;
    case ValueType::String: return append_text(*value.as<std::string>(), as_octets);
    case ValueType::Array: return append_all(*value.as<Value::Array>());
    case ValueType::Object: {
      const Reference name = references_.name_of(*value.as<Ref<Object>>());
      take(name.service.size() + name.path.size());
      check(sd_bus_message_append(message_, "(so)", name.service.c_str(), name.path.c_str()), kWriting);
      return;
    }
    case ValueType::Any: break;
  }
}

}  // namespace vorlan::dbus
