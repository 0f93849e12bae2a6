#include "message_text.hpp"

#include "codec/field_tree.hpp"
#include "messages/dissection.hpp"
#include "messages/message.hpp"

namespace vorlan::python {

std::string received_message_text(const Object& object) {
  const auto* message = dynamic_cast<const Message*>(&object);
  if (message == nullptr || !message->received()) return {};
  const MessageClass& rows = message->message_class();
  // Properties that are not on the air may choose the layout.
  std::vector<std::pair<std::string, std::string>> controls;
  for (std::size_t i = 0; i < rows.fields().size(); ++i) {
    const FieldSpec& field = *rows.field(i).spec;
    if (field.integer || !field.sent) controls.emplace_back(field.name, message->stored(i));
  }
  std::string text(rows.spec().name);
  text.append(" received, ").append(std::to_string(message->message_string().size())).append(" bits");
  text.append("\n").append(field_tree_text(dissect(rows, message->message_string(), controls), "  "));
  text.pop_back();
  return text;
}

}  // namespace vorlan::python
