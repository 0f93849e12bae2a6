#include "messages/dissection.hpp"

#include "automation/value.hpp"
#include "codec/meanings.hpp"
#include "messages/walk.hpp"

namespace vorlan {

std::vector<DissectedField> dissect(const MessageClass& message, std::string_view bits,
                                    std::span<const std::pair<std::string, std::string>> controls) {
  std::vector<std::string> stored = message.initial_texts();
  for (const auto& [name, value] : controls) {
    for (const MessageClass::Field& field : message.fields()) {
      if (equals_ignoring_case(field.spec->name, name)) stored[static_cast<std::size_t>(field.slot)] = value;
    }
  }
  Layout layout;
  layout.find(message, bits, stored);

  std::vector<DissectedField> tree;
  const auto id_bits = static_cast<std::uint32_t>(message.id_bits());
  if (id_bits != 0) {
    DissectedField id = dissected_leaf("MessageID", &kHex, bits, {0, id_bits, true});
    const MessageSpec& spec = message.spec();
    const std::string_view wanted = spec.id;
    const bool other = wanted.empty() ? spec.has_id_value && small_value(id.bits) != spec.id_value : id.bits != wanted;
    if (other && id.note.empty()) id.note = "not the MessageID of " + std::string(spec.name);
    tree.push_back(std::move(id));
  }
  for (const MessageClass::Group& group : message.groups()) {
    const std::size_t count = layout.count(group.first);
    const bool record = group.repeated && group.end - group.first > 1;
    for (std::size_t index = 0; index < count; ++index) {
      std::vector<DissectedField> fields;
      for (std::size_t i = group.first; i < group.end; ++i) {
        const FieldSpec& spec = *message.field(i).spec;
        const Extent extent = layout.extent(i, index);
        if (!spec.sent || spec.integer || !extent.present) continue;
        DissectedField field = dissected_leaf(spec.name, spec.meaning, bits, extent);
        if (group.repeated && !record) field.name += "[" + std::to_string(index) + "]";
        fields.push_back(std::move(field));
      }
      if (record && !fields.empty()) {
        const std::size_t first = fields.front().first;
        tree.push_back({.name = "[" + std::to_string(index) + "]", .first = first, .below = std::move(fields)});
      } else {
        for (DissectedField& field : fields) tree.push_back(std::move(field));
      }
    }
  }
  if (layout.end() < bits.size()) {
    DissectedField rest = dissected_leaf(
        "Reserved", nullptr, bits,
        {static_cast<std::uint32_t>(layout.end()), static_cast<std::uint32_t>(bits.size() - layout.end()), true});
    if (rest.bits.size() >= 8 || rest.bits.find('1') != std::string::npos) {
      rest.name = "Trailing";
      rest.note = "not a field of this message";
    }
    tree.push_back(std::move(rest));
  }
  return tree;
}

}  // namespace vorlan
