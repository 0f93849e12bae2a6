// vorlan encode and vorlan decode
#include <algorithm>

#include "attributes/negotiation/dissection.hpp"
#include "automation/error.hpp"
#include "cli/assignment.hpp"
#include "cli/commands.hpp"
#include "cli/field_value.hpp"
#include "cli/names.hpp"
#include "cli/octets.hpp"
#include "cli/print_dissected.hpp"
#include "cli/record_codec.hpp"
#include "cli/sector.hpp"
#include "cli/table.hpp"
#include "codec/protocol.hpp"
#include "common/bits.hpp"
#include "common/octets.hpp"
#include "messages/dissection.hpp"
#include "messages/identification.hpp"
#include "messages/message.hpp"
#include "simulator/message_object.hpp"

namespace vorlan::cli {

namespace {

using Controls = std::vector<std::pair<std::string, std::string>>;

/// What an assignment sets: a field of the message, or an argument of CreateMessage.
struct Target {
  Assignment assignment;
  std::size_t row;  ///< one past the last row: an argument
  std::size_t argument;
};

/// The message behind an object of the registry; error 438 if it is an object of another kind.
Message& message_behind(const Ref<Object>& object, std::string_view class_name, std::string_view wanted) {
  auto* const message = dynamic_cast<Message*>(object.get());
  if (message == nullptr) throw Error(ErrorNumber::MemberNotFound, class_name, wanted);
  return *message;
}

void print_message(const MessageClass& message, std::span<const std::uint8_t> octets, std::size_t length,
                   const Controls& controls, bool json) {
  std::string bits(length, '0');
  unpack_bits(octets.data(), length, bits.data());
  print_dissected(message.info().name(), bits, dissect(message, bits, controls), json);
}

Target resolve(const MessageClass& message, Assignment assignment) {
  const auto fields = message.fields();
  const auto arguments = message.spec().arguments;
  const auto named = [&](std::string_view member) { return same_member(assignment.name, member); };
  const auto row = std::find_if(fields.begin(), fields.end(), [&](const MessageClass::Field& field) {
    return is_property(*field.spec) && named(field.spec->name);
  });
  const auto argument = std::find_if(arguments.begin(), arguments.end(), named);
  if (row == fields.end() && argument == arguments.end()) {
    const bool on_air = std::any_of(fields.begin(), fields.end(), [&](const auto& f) { return named(f.spec->name); });
    throw Error(ErrorNumber::MemberNotFound, message.info().name(),
                assignment.name + (on_air ? " (a script cannot set it)" : ""));
  }
  return {std::move(assignment), static_cast<std::size_t>(row - fields.begin()),
          static_cast<std::size_t>(argument - arguments.begin())};
}

/// In the order of the rows, so that counts come before their lists; a usage error if something is set twice.
std::vector<Target> resolve(const MessageClass& message, const std::vector<std::string>& words) {
  std::vector<Target> targets;
  targets.reserve(words.size());
  for (const std::string& word : words) targets.push_back(resolve(message, parse_assignment(word)));
  const auto key = [](const Target& t) { return std::tuple(t.row, t.argument, t.assignment.index_number()); };
  std::stable_sort(targets.begin(), targets.end(), [&](const auto& a, const auto& b) { return key(a) < key(b); });
  const auto twice = std::adjacent_find(targets.begin(), targets.end(), [&](const auto& a, const auto& b) {
    return key(a) == key(b) && a.assignment.index == b.assignment.index;
  });
  if (twice != targets.end()) throw UsageError(twice->assignment.name + " is given twice");
  return targets;
}

void assign(Message& message, const Target& target) {
  const FieldSpec& field = *message.message_class().field(target.row).spec;
  const Assignment& given = target.assignment;
  const std::string source = source_of(message.message_class().spec(), field.name);
  const std::string value =
      field.integer ? given.value : field_bits(given.value, message.accepted_width(target.row), source);
  if (given.index) {
    message.Object::let(field.name, *given.index, value);
  } else {
    message.Object::let(field.name, value);
  }
}

Value argument(const MessageClass& message, const Target& target) {
  const std::string_view name = message.spec().arguments[target.argument];
  const auto fields = message.fields();
  const auto field =
      std::find_if(fields.begin(), fields.end(), [&](const auto& f) { return same_member(name, f.spec->name); });
  if (target.assignment.index) throw UsageError(target.assignment.name + " has no index");
  return field_bits(target.assignment.value, field == fields.end() ? 0 : field->spec->bits,
                    source_of(message.spec(), "CreateMessage"));
}

Controls layout_controls(const Message& message) {
  Controls controls;
  const auto fields = message.message_class().fields();
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].spec->integer) controls.emplace_back(fields[i].spec->name, message.stored(i));
  }
  return controls;
}

}  // namespace

void encode(const Registry& registry, const EncodeOptions& options, bool json) {
  const Registry::Class& named = class_named(registry, options.class_name);
  Platform platform = native_platform();
  const Ref<Object> object = named.entry->create(platform);
  const auto* known = dynamic_cast<const Message*>(object.get());
  const bool takes_sector = known != nullptr && known->message_class().spec().takes_sector;
  if (!options.parameter_file.empty() && !takes_sector) {
    throw UsageError(std::string(named.name()) + " takes no values from a sector's configuration: leave out --config");
  }
  if (encode_record(registry, object, options.assignments, json)) return;
  Message& message = message_behind(object, named.name(), "CreateMessage");
  const MessageSpec& spec = message.message_class().spec();
  if (!spec.builds()) throw Error(ErrorNumber::MemberNotFound, spec.name, "CreateMessage (it is only received)");
  const std::vector<Target> targets = resolve(message.message_class(), options.assignments);

  Ref<Object> sector;
  if (takes_sector) {
    if (options.parameter_file.empty()) {
      throw UsageError(std::string(spec.name) + " takes values from a sector's configuration: give --config FILE");
    }
    sector = configured_sector(registry, platform, options.parameter_file, options.sector);
  }
  message.initialize(std::move(sector), {}, {});
  std::vector<Value> arguments(spec.arguments.size());
  for (const Target& target : targets) {
    if (target.row < message.message_class().fields().size()) {
      assign(message, target);
    } else {
      arguments[target.argument] = argument(message.message_class(), target);
    }
  }
  const auto built = make<simulator::MessageObject>();
  message.create_message(built, arguments);
  // A message object may hold octets past the end of its message.
  const auto length = static_cast<std::size_t>(built->length());
  print_message(message.message_class(), built->octets().first(octets_for(length)), length, layout_controls(message),
                json);
}

namespace {

/// The class of this name; if octets stand in its place, the error says what is missing.
const Registry::Class& class_to_decode(const Registry& registry, const std::string& name) {
  const bool is_octets = name.find_first_not_of("0123456789ABCDEFabcdefXx:") == std::string::npos;
  if (is_octets) throw Error(ErrorNumber::CannotCreateObject, "decode", name + " (a CLASS or --protocol is wanted)");
  return class_named(registry, name);
}

/// The one class whose message begins with these octets; an error that names them all if there are several.
const Registry::Class& class_of(const Registry& registry, const std::string& where,
                                const std::vector<std::uint8_t>& octets) {
  const std::string bits = bits_of(octets);
  const auto found = identify(registry, where, bits);
  if (found.size() == 1) return registry.at(found.front()->info().name());
  if (const NegotiationClass* carrier = found.empty() ? carrier_of_records(bits) : nullptr) {
    return registry.at(carrier->info().name());
  }
  std::string names;
  for (const MessageClass* message : found) {
    names.append(names.empty() ? "" : ", ").append(message->info().name());
  }
  const std::string id = octets_text(std::span(octets).first(1));
  throw Error(ErrorNumber::InvalidCall, "decode",
              found.empty() ? "no message of " + where + " begins with " + id
                            : id + " begins several messages of " + where + ": " + names);
}

}  // namespace

void decode(const Registry& registry, const std::string& where, const std::vector<std::string>& words, bool json) {
  std::vector<std::string> digits;
  std::vector<std::string> assignments;
  // Records do not tell which protocol they belong to: it may be named beside the class.
  const bool class_is_named = where.empty() || registry.find(words.front()) != nullptr;
  for (const std::string& word : std::span(words).subspan(class_is_named ? 1 : 0)) {
    (word.find('=') == std::string::npos ? digits : assignments).push_back(word);
  }
  const Registry::Class* named = class_is_named ? &class_to_decode(registry, words.front()) : nullptr;
  const std::vector<std::uint8_t> octets = parse_octets(digits);
  if (octets.empty()) throw UsageError("no octets given");

  if (named == nullptr) named = &class_of(registry, where, octets);
  Platform platform = native_platform();
  const Ref<Object> object = named->entry->create(platform);
  if (decode_record(registry, object, octets, assignments, where, json)) return;
  if (class_is_named && !where.empty()) throw UsageError("a class or a protocol, not both, finds a message");
  Message& message = message_behind(object, named->name(), "PRobj_MessageObject");
  for (const Target& target : resolve(message.message_class(), assignments)) {
    const auto fields = message.message_class().fields();
    if (target.row == fields.size() || !fields[target.row].spec->integer) {
      throw no_layout(named->name(), target.assignment);
    }
    assign(message, target);
  }
  print_message(message.message_class(), octets, octets.size() * 8, layout_controls(message), json);
}

std::string protocol_list() {
  std::vector<std::vector<std::string>> layers;
  for (const ProtocolInfo& info : protocols()) {
    if (layers.empty() || layers.back().front() != info.layer) layers.push_back({std::string(info.layer), {}});
    std::string& names = layers.back().back();
    names.append(names.empty() ? "" : ", ").append(info.name);
    if (info.type >= 0) names.append(" (").append(std::to_string(info.type)).append(")");
  }
  Table table;
  for (auto& layer : layers) table.add(std::move(layer));
  return "Protocols, by layer:\n" + table.text("  ", kWidestCell);
}

}  // namespace vorlan::cli
