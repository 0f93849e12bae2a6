// Feeds arbitrary octets to every class that decodes, reads every property, and takes them apart as every class's
// rows say. Whatever comes: a value or one automation error, and nothing outside the message is read.
#include <cstdlib>

#include "automation/error.hpp"
#include "messages/dissection.hpp"
#include "messages/message.hpp"
#include "platform/platform.hpp"
#include "server/classes.hpp"
#include "simulator/message_object.hpp"

namespace {

using namespace vorlan;

void read_everything(Object& object, const ClassInfo& info) {
  for (const MemberInfo& member : info.members()) {
    if (!member.gets) continue;
    const std::size_t indices = member.parameters.empty() ? 1 : 4;
    constexpr std::int16_t kIndices[] = {0, 1, 14, -1};
    for (std::size_t i = 0; i < indices; ++i) {
      try {
        if (member.parameters.empty()) {
          object.get(member.name);
        } else {
          object.get(member.name, kIndices[i]);
        }
      } catch (const Error& error) {
        if (error.description().empty()) std::abort();
      }
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Registry kRegistry(class_tables());
  static Platform platform;
  constexpr std::size_t kMaxOctets = 4095;
  if (size < 2 || size > kMaxOctets) return 0;
  // Two octets choose: the class, and a bit more or less than whole octets with a layout.
  const auto& cls = kRegistry.classes()[data[0] % kRegistry.classes().size()];
  const Ref<Object> object = cls.entry->create(platform);
  auto* message = dynamic_cast<Message*>(object.get());
  if (message == nullptr) return 0;
  const auto octets = make<simulator::MessageObject>(std::span(data + 2, size - 2));
  if ((data[1] & 1U) != 0 && octets->length() > 3) octets->set_length(static_cast<std::int16_t>(octets->length() - 3));
  if (message->message_class().spec().parses()) {
    object->set("PRobj_MessageObject", Ref<Object>(octets));
    for (const FieldSpec& field : message->message_class().spec().fields) {
      if (field.integer) object->let(field.name, static_cast<std::int16_t>((data[1] >> 1U) & 1U));
    }
    read_everything(*object, message->message_class().info());
  }
  std::string bits((size - 2) * 8, '0');
  for (std::size_t i = 0; i < bits.size(); ++i) {
    if ((data[2 + i / 8] >> (7 - i % 8) & 1) != 0) bits[i] = '1';
  }
  static_cast<void>(dissect(message->message_class(), bits));
  return 0;
}
