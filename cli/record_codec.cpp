#include "cli/record_codec.hpp"

#include <algorithm>
#include <optional>
#include <tuple>

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
#include "common/conversions.hpp"
#include "platform/platform.hpp"

namespace vorlan::cli {

namespace {

/// A property to set, on the object or on its value object.
struct Setting {
  ClassObject* object;
  int member;
  Assignment assignment;
  std::vector<Value> indices;
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

/// In bits; 0 where the member has no width of its own.
std::size_t width_of(const ClassObject& object, int member, std::string_view name) {
  constexpr std::size_t kOctet = 8;
  if (const auto* value = dynamic_cast<const AttributeValue*>(&object)) {
    const ValueClass::Member& row = value->value_class().member(static_cast<std::size_t>(member));
    const bool of_field = row.action == ValueClass::Action::Field || row.action == ValueClass::Action::Element;
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

/// The member that an assignment sets; of a method's argument, -1.
std::optional<Setting> find_setting(std::span<ClassObject* const> objects, Assignment assignment,
                                    std::string_view argument) {
  if (!argument.empty() && same_member(assignment.name, argument))
    return Setting{nullptr, -1, std::move(assignment), {}};
  for (ClassObject* object : objects) {
    const auto members = object->class_info()->members();
    const auto found = std::find_if(members.begin(), members.end(), [&](const MemberInfo& member) {
      return member.lets && same_member(assignment.name, member.name);
    });
    if (found == members.end()) continue;
    std::vector<Value> indices = indices_of(assignment);
    return Setting{object, static_cast<int>(found - members.begin()), std::move(assignment), std::move(indices)};
  }
  return std::nullopt;
}

/// Sets what the words say, counts before their lists; returns the text of the argument, if it is given.
std::optional<std::string> assign(std::span<ClassObject* const> objects, const std::vector<std::string>& words,
                                  std::string_view argument) {
  std::vector<Setting> settings;
  for (const std::string& word : words) {
    Assignment assignment = parse_assignment(word);
    const std::string name = assignment.name;
    auto setting = find_setting(objects, std::move(assignment), argument);
    if (!setting) throw Error(ErrorNumber::MemberNotFound, objects.front()->class_info()->name(), name);
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
      given = field_bits(setting.assignment.value, 0, argument);
      continue;
    }
    const std::string_view name =
        setting.object->class_info()->members()[static_cast<std::size_t>(setting.member)].name;
    const std::size_t width = width_of(*setting.object, setting.member, name);
    std::vector<Value> arguments = setting.indices;
    arguments.emplace_back(field_bits(setting.assignment.value, width, name));
    setting.object->invoke(name, Access::Let, arguments);
  }
  return given;
}

Extent whole(std::string_view bits) { return {0, static_cast<std::uint32_t>(bits.size())}; }

std::optional<int> type_number(const std::string& where) {
  if (where.empty()) return std::nullopt;
  for (const ProtocolInfo& info : protocols()) {
    if (info.type >= 0 && equals_ignoring_case(info.name, where)) return info.type;
  }
  const bool is_hex = where.starts_with("0x") || where.starts_with("0X");
  const auto number = parse_number(is_hex ? "&H" + where.substr(2) : where);
  if (!number) throw Error(ErrorNumber::InvalidCall, {}, "no protocol is called " + where);
  return static_cast<int>(*number);
}

void print_record(const Registry& registry, const ClassObject& object, std::string_view bits, const std::string& where,
                  bool json) {
  std::vector<DissectedField> tree;
  if (const auto* message = dynamic_cast<const NegotiationMessage*>(&object)) {
    tree = dissect(message->message_class(), bits, AttributeCatalogue(registry), type_number(where));
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
  std::string bits(octets.size() * 8, '0');
  unpack_bits(octets.data(), bits.size(), bits.data());
  print_record(registry, *known, bits, where, json);
  return true;
}

std::optional<std::pair<std::string, std::vector<DissectedField>>> dissect_carrier(const Registry& registry,
                                                                                   int protocol_type,
                                                                                   std::string_view bits) {
  const Registry::Class* carrier = carrier_of_records(registry, bits);
  if (carrier == nullptr) return std::nullopt;
  Platform nothing;
  const Ref<Object> object = carrier->entry->create(nothing);
  const auto& message = dynamic_cast<const NegotiationMessage&>(*object);
  static const AttributeCatalogue kCatalogue(registry);
  return std::pair(std::string(carrier->name()), dissect(message.message_class(), bits, kCatalogue, protocol_type));
}

const Registry::Class* carrier_of_records(const Registry& registry, std::string_view bits) {
  constexpr std::string_view kCarriers[] = {"SB_MsgConfigurationRequest", "SB_MsgConfigurationResponse",
                                            "SB_MsgAttributeUpdateRequest"};
  Platform nothing;
  for (const std::string_view name : kCarriers) {
    const Ref<Object> object = registry.create(name, nothing);
    const auto* message = dynamic_cast<const NegotiationMessage*>(object.get());
    if (message != nullptr && bits.starts_with(message->message_class().spec().id)) return registry.find(name);
  }
  return nullptr;
}

}  // namespace vorlan::cli
