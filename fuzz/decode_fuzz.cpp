// Feeds arbitrary octets to every class that decodes, reads every property, and takes them apart as every class's
// rows say. Whatever comes: a value or one automation error, and nothing outside the message is read.
#include "messages/dissection.hpp"
#include "messages/identification.hpp"
#include "messages/message.hpp"
#include "platform/platform.hpp"
#include "read_everything.hpp"
#include "server/classes.hpp"
#include "simulator/message_object.hpp"

using namespace vorlan;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Registry kRegistry(class_tables());
  static const auto kClasses = message_classes(kRegistry);
  static Platform platform;
  constexpr std::size_t kMaxOctets = 4095;
  if (size < 2 || size > kMaxOctets) return 0;
  // Two octets choose: the class, and a bit more or less than whole octets with a layout.
  const Ref<Object> object = kRegistry.create(kClasses[data[0] % kClasses.size()]->spec().name, platform);
  auto* message = dynamic_cast<Message*>(object.get());
  const auto octets = make<simulator::MessageObject>(std::span(data + 2, size - 2));
  if ((data[1] & 1U) != 0 && octets->length() > 3) octets->set_length(static_cast<std::int16_t>(octets->length() - 3));
  if (message->message_class().spec().parses()) {
    object->set("PRobj_MessageObject", Ref<Object>(octets));
    for (const FieldSpec& field : message->message_class().spec().fields) {
      if (field.integer) object->let(field.name, static_cast<std::int16_t>((data[1] >> 1U) & 1U));
    }
    fuzz::read_everything(*object);
  }
  std::string bits((size - 2) * 8, '0');
  for (std::size_t i = 0; i < bits.size(); ++i) {
    if ((data[2 + i / 8] >> (7 - i % 8) & 1) != 0) bits[i] = '1';
  }
  static_cast<void>(dissect(message->message_class(), bits));
  return 0;
}
