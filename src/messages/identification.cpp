#include "messages/identification.hpp"

#include <algorithm>

#include "automation/error.hpp"
#include "common/conversions.hpp"
#include "messages/message.hpp"
#include "platform/platform.hpp"

namespace vorlan {

namespace {

/// The protocols that a name, number or layer stands for.
std::vector<Protocol> protocols_of(std::string_view where) {
  std::vector<Protocol> found;
  const auto type = parse_protocol_type(where);
  for (const ProtocolInfo& info : protocols()) {
    if (equals_ignoring_case(info.name, where) || equals_ignoring_case(info.layer, where) ||
        (type && *type == info.type)) {
      found.push_back(info.protocol);
    }
  }
  if (found.empty()) {
    throw Error(ErrorNumber::InvalidCall, "decode", "no protocol or layer is called " + std::string(where));
  }
  return found;
}

}  // namespace

std::vector<const MessageClass*> message_classes(const Registry& registry) {
  Platform nothing;
  std::vector<const MessageClass*> classes;
  for (const Registry::Class& cls : registry.classes()) {
    // Only these are made: no message needs a platform, but other classes do.
    if (cls.info().find("CreateMessage") < 0 && cls.info().find("PRobj_MessageObject") < 0) continue;
    const Ref<Object> object = cls.entry->create(nothing);
    if (const auto* message = dynamic_cast<const Message*>(object.get())) classes.push_back(&message->message_class());
  }
  return classes;
}

std::string message_id_of(const MessageSpec& message) {
  if (!message.id.empty()) return std::string(message.id);
  return message.has_id_value ? long_to_bin(message.id_value, message.received_id_bits) : std::string();
}

std::vector<const MessageClass*> identify(const Registry& registry, std::string_view where, std::string_view bits) {
  const std::vector<Protocol> wanted = protocols_of(where);
  std::vector<const MessageClass*> found = message_classes(registry);
  std::erase_if(found, [&](const MessageClass* message) {
    const MessageSpec& spec = message->spec();
    const std::string id = message_id_of(spec);
    const bool asked =
        spec.protocol == Protocol::None || std::find(wanted.begin(), wanted.end(), spec.protocol) != wanted.end();
    return !asked || (id.empty() ? spec.received_id_bits != 0 : !bits.starts_with(id));
  });
  return found;
}

}  // namespace vorlan
