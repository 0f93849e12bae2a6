#include "cli/record_codec.hpp"

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

#include "attributes/complex/complex_attribute.hpp"
#include "attributes/dissection.hpp"
#include "attributes/negotiation/dissection.hpp"
#include "attributes/simple_attribute.hpp"
#include "automation/error.hpp"
#include "cli/assignment.hpp"
#include "cli/commands.hpp"
#include "cli/field_value.hpp"
#include "cli/names.hpp"
#include "cli/print_dissected.hpp"
#include "codec/protocol.hpp"
#include "common/bits.hpp"
#include "platform/platform.hpp"

namespace vorlan::cli {

namespace {

/// A property to set, on the object or on its value object.
struct Setting {
  ClassObject* object;
  int member;
  Assignment assignment;
  std::vector<Value> indices;
  Access access = Access::Let;
};

std::vector<Value> indices_of(const Assignment& assignment) {
  std::vector<Value> indices;
  const std::string typed = assignment.index.value_or("");
  for (std::string_view rest = typed; !rest.empty();) {
    const std::size_t comma = std::min(rest.find(','), rest.size());
    indices.emplace_back(rest.substr(0, comma));
    rest.remove_prefix(std::min(comma + 1, rest.size()));
  }
  return indices;
}

std::string source_of(const ClassObject& object, std::string_view member) {
  return std::string(object.class_info()->name()).append(".").append(member);
}

/// In bits; 0 where the member has no width of its own.
std::size_t width_of(const ClassObject& object, int member, std::string_view name) {
  constexpr std::size_t kOctet = 8;
  if (const auto* value = dynamic_cast<const AttributeValue*>(&object)) {
    const ValueClass::Member& row = value->value_class().member(static_cast<std::size_t>(member));
    const bool of_field = row.action == ValueClass::Action::Field || row.action == ValueClass::Action::Element ||
                          row.action == ValueClass::Action::LetElement;
    return of_field ? value->record().width(row.field) : 0;
  }
  if (name == "PRstr_Length" || name == "PRstr_TransactionId") return kOctet;
  if (const auto* attribute = dynamic_cast<const ComplexAttribute*>(&object)) {
    const auto& row = attribute->attribute_class().member(static_cast<std::size_t>(member));
    if (row.action == ComplexAttributeClass::Action::Field) return attribute->fields().width(row.field);
    return name == "PRstr_AttribId" ? attribute->attribute_class().spec().id_bits : 0;
  }
  if (const auto* attribute = dynamic_cast<const SimpleAttribute*>(&object)) {
    const SimpleAttributeSpec& spec = attribute->attribute_class().spec();
    return name == "PRstr_AttribId" ? spec.id_bits : name == "PRstr_AttrValue" ? spec.value_bits : 0;
  }
  return 0;
}

/// How "FIELD[i]" or "FIELD[i,j]" is set by a member of a value class: by the property of that element, or by the
/// method that writes elements; nothing if the member does neither. Error 13 for an index that is no number.
std::optional<Access> element_access(const ValueClass& value, const ValueClass::Member& member,
                                     const Assignment& assignment, std::span<const Value> indices) {
  const bool writes = member.action == ValueClass::Action::LetElement;
  if (!writes && member.action != ValueClass::Action::Element) return std::nullopt;
  const RecordField& field = *value.record().field(member.field).spec;
  if (!same_member(assignment.name, field.name) || indices.size() != (is_table(field) ? 2 : 1)) return std::nullopt;
  if (writes) return Access::Call;
  const bool here = std::cmp_equal(indices.front().to_integer(), member.at.index) &&
                    (!is_table(field) || std::cmp_equal(indices.back().to_integer(), member.at.inner));
  return here ? std::optional(Access::Let) : std::nullopt;
}

/// The member that an assignment sets; of a method's argument, -1.
std::optional<Setting> find_setting(std::span<ClassObject* const> objects, Assignment assignment,
                                    std::string_view argument) {
  if (!argument.empty() && same_member(assignment.name, argument)) {
    return Setting{nullptr, -1, std::move(assignment), {}};
  }
  std::vector<Value> indices = indices_of(assignment);
  for (ClassObject* object : objects) {
    const auto* value = dynamic_cast<const AttributeValue*>(object);
    const auto members = object->class_info()->members();
    for (std::size_t i = 0; i < members.size(); ++i) {
      const int member = static_cast<int>(i);
      if (members[i].lets && same_member(assignment.name, members[i].name)) {
        return Setting{object, member, std::move(assignment), std::move(indices)};
      }
      if (value == nullptr) continue;
      const auto access = element_access(value->value_class(), value->value_class().member(i), assignment, indices);
      if (access == Access::Call) return Setting{object, member, std::move(assignment), std::move(indices), *access};
      if (access == Access::Let) {
        assignment.index.reset();  // the element's own property has none
        return Setting{object, member, std::move(assignment), {}};
      }
    }
  }
  return std::nullopt;
}

/// Sets what the words say, counts before their lists; returns the text of the argument, if it is given.
std::optional<std::string> assign(std::span<ClassObject* const> objects, const std::vector<std::string>& words,
                                  std::string_view argument) {
  std::vector<Setting> settings;
  for (const std::string& word : words) {
    Assignment assignment = parse_assignment(word);
    const std::string typed = word.substr(0, word.find('='));
    auto setting = find_setting(objects, std::move(assignment), argument);
    if (!setting) throw Error(ErrorNumber::MemberNotFound, objects.front()->class_info()->name(), typed);
    settings.push_back(std::move(*setting));
  }
  const auto key = [](const Setting& s) { return std::tuple(s.object, s.member, s.assignment.index.value_or("")); };
  std::stable_sort(settings.begin(), settings.end(), [&](const auto& a, const auto& b) {
    return std::tuple(a.object, a.member) < std::tuple(b.object, b.member);
  });
  const auto twice = std::adjacent_find(settings.begin(), settings.end(),
                                        [&](const auto& a, const auto& b) { return key(a) == key(b); });
  if (twice != settings.end()) throw UsageError(twice->assignment.name + " is given twice");

  std::optional<std::string> given;
  for (const Setting& setting : settings) {
    if (setting.object == nullptr) {
      given = field_bits(setting.assignment.value, 0, source_of(*objects.front(), argument));
      continue;
    }
    const std::string_view name =
        setting.object->class_info()->members()[static_cast<std::size_t>(setting.member)].name;
    const std::size_t width = width_of(*setting.object, setting.member, name);
    std::vector<Value> arguments = setting.indices;
    arguments.emplace_back(field_bits(setting.assignment.value, width, source_of(*setting.object, name)));
    setting.object->invoke(name, setting.access, arguments);
  }
  return given;
}

Extent whole(std::string_view bits) { return {0, static_cast<std::uint32_t>(bits.size())}; }

/// The protocol type that a name or a number stands for; of a stream's application, that of stream 0.
std::optional<int> protocol_type(const std::string& where) {
  if (where.empty()) return std::nullopt;
  if (const auto type = parse_protocol_type(where)) return type;
  bool is_layer = false;
  for (const ProtocolInfo& info : protocols()) {
    if (equals_ignoring_case(info.name, where)) return info.type >= 0 ? info.type : kStream0Type;
    is_layer = is_layer || equals_ignoring_case(info.layer, where);
  }
  throw Error(ErrorNumber::InvalidCall, "decode",
              is_layer ? where + " names a layer; a protocol is wanted" : "no protocol is called " + where);
}

void print_record(const Registry& registry, const ClassObject& object, std::string_view bits, const std::string& where,
                  bool json) {
  std::vector<DissectedField> tree;
  if (const auto* message = dynamic_cast<const NegotiationMessage*>(&object)) {
    tree = dissect(message->message_class(), bits, AttributeCatalogue(registry), protocol_type(where));
  } else if (const auto* attribute = dynamic_cast<const Attribute*>(&object)) {
    tree = attribute->dissect(bits, whole(bits));
  } else if (const auto* value = dynamic_cast<const AttributeValue*>(&object)) {
    tree = dissect(value->value_class().record(), bits, whole(bits));
  }
  print_dissected(object.class_info()->name(), bits, tree, json);
}

}  // namespace

bool encode_record(const Registry& registry, const Ref<Object>& object, const std::vector<std::string>& words,
                   bool json) {
  std::string bits;
  if (auto* simple = dynamic_cast<SimpleAttribute*>(object.get())) {
    ClassObject* const objects[] = {simple};
    assign(objects, words, {});
    bits = simple->build();
  } else if (auto* attribute = dynamic_cast<ComplexAttribute*>(object.get())) {
    const ComplexAttributeSpec& spec = attribute->attribute_class().spec();
    const Ref<AttributeValue> value =
        spec.values != nullptr ? make<AttributeValue>(spec.values()) : Ref<AttributeValue>();
    std::vector<ClassObject*> objects{attribute};
    if (value) objects.push_back(value.get());
    const auto given = assign(objects, words, spec.form == AttributeForm::Fields ? "" : "ValueRecords");
    bits = attribute->build(given ? *given : value ? value->build() : std::string());
  } else if (auto* value = dynamic_cast<AttributeValue*>(object.get())) {
    ClassObject* const objects[] = {value};
    assign(objects, words, {});
    bits = value->build();
  } else if (auto* message = dynamic_cast<NegotiationMessage*>(object.get())) {
    ClassObject* const objects[] = {message};
    message->initialize();
    bits = message->encode(assign(objects, words, "AttributeRecords").value_or(""));
  } else {
    return false;
  }
  print_record(registry, *static_cast<ClassObject*>(object.get()), bits, {}, json);
  return true;
}

bool decode_record(const Registry& registry, const Ref<Object>& object, std::span<const std::uint8_t> octets,
                   const std::vector<std::string>& assignments, const std::string& where, bool json) {
  const auto* known = dynamic_cast<const ClassObject*>(object.get());
  const bool carries = dynamic_cast<const NegotiationMessage*>(known) != nullptr;
  if (!carries && dynamic_cast<const Attribute*>(known) == nullptr &&
      dynamic_cast<const AttributeValue*>(known) == nullptr) {
    return false;
  }
  if (!assignments.empty()) throw no_layout(known->class_info()->name(), parse_assignment(assignments.front()));
  print_record(registry, *known, bits_of(octets), where, json);
  return true;
}

}  // namespace vorlan::cli
