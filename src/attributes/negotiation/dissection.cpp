#include "attributes/negotiation/dissection.hpp"

#include <algorithm>

#include "attributes/negotiation/configuration_messages.hpp"
#include "codec/meanings.hpp"
#include "codec/protocol.hpp"
#include "platform/platform.hpp"

namespace vorlan {

namespace {

constexpr std::uint32_t kOctet = 8;

/// The protocol types that a clause of C.S0024-A, where an attribute is defined, belongs to. A test sees that every
/// attribute's clause stands here.
struct ClauseTypes {
  std::string_view clause;
  int first;
  int last;
};
constexpr ClauseTypes kClauseTypes[] = {
    {"10.3", 0x01, 0x01},      {"10.4", 0x02, 0x02},      {"10.6", 0x03, 0x03},    {"10.7", 0x03, 0x03},
    {"10.8", 0x04, 0x04},      {"10.11.7", 0x04, 0x04},   {"8.5", 0x0C, 0x0C},     {"8.7", 0x0E, 0x0E},
    {"5.2.7", 0x10, 0x10},     {"5.4.7", 0x12, 0x12},     {"6", 0x13, 0x13},       {"3.5", 0x14, 0x17},
    {"4", 0x14, 0x17},         {"C.S0063-A", 0x14, 0x17}, {"C.S0029", 0x14, 0x17}, {"400-C 2.6", 0x05, 0x05},
    {"400-C 2.8", 0x06, 0x06},
};

/// Attributes of the session configuration that no class is made for.
constexpr int kSessionConfiguration = 0x12;
constexpr Code kSessionAttributes[] = {
    {0x0102, "SupportConfigurationLock"}, {0x0110, "PersonalityCount"}, {0x1001, "ATSupportedApplicationSubtypes"}};

bool belongs_to(const Attribute& attribute, int protocol_type) {
  const std::string_view clause = attribute.class_info()->clause();
  return std::any_of(std::begin(kClauseTypes), std::end(kClauseTypes), [&](const ClauseTypes& row) {
    return row.clause == clause && row.first <= protocol_type && protocol_type <= row.last;
  });
}

/// All but the Length, which says nothing about the attribute.
bool takes(std::span<const DissectedField> tree) {
  return std::all_of(tree.begin() + 1, tree.end(), [](const auto& field) { return field.note.empty(); });
}

DissectedField dissect_record(std::string_view bits, Extent place, bool names_accepted, bool of_session,
                              std::span<const AttributeCatalogue::Candidate> candidates) {
  DissectedField node{.name = "Unknown attribute", .first = place.offset + std::size_t{1}};
  const std::size_t id = small_value(slice(bits, {place.offset + kOctet, 2 * kOctet}));
  if (candidates.empty()) {
    for (const Code& attribute : kSessionAttributes) {
      if (of_session && attribute.value == id) node.name = attribute.text;
    }
    node.below = {dissected_leaf("Length", &kOctets, bits, {place.offset, kOctet}),
                  dissected_leaf("Octets", &kHex, bits, {place.offset + kOctet, place.width - kOctet})};
    return node;
  }
  const auto& [attribute, id_bits] = candidates.front();
  node.name = attribute_name(attribute->class_info()->name());
  node.value = attribute->class_info()->name();
  // Of the session's ProtocolType the AttributeID is the protocol whose subtype is proposed.
  if (const std::string name = protocol_name(static_cast<int>(id)); of_session && !name.empty()) {
    node.value.append(", ").append(name);
  }
  for (const auto& other : candidates.subspan(1)) {
    node.note.append(node.note.empty() ? "ambiguous: or " : ", ").append(other.attribute->class_info()->name());
  }
  node.below = attribute->dissect(bits, place);
  if (names_accepted) {
    const auto header = kOctet + static_cast<std::uint32_t>(id_bits);
    // What is accepted is a ValueID, or the value itself.
    const bool is_value = !attribute->has_value_records() && node.below.size() == 3;
    node.below.resize(std::min<std::size_t>(node.below.size(), is_value ? 3 : 2));
    if (is_value) {
      node.below.back().name = "Accepted";
    } else if (place.width > header) {
      node.below.push_back(dissected_leaf("Accepted", nullptr, bits, {place.offset + header, place.width - header}));
    }
  }
  return node;
}

}  // namespace

AttributeCatalogue::AttributeCatalogue(const Registry& registry) {
  Platform nothing;
  for (const Registry::Class& cls : registry.classes()) {
    // Only these are made: no attribute needs a platform, but other classes do.
    if (cls.info().find("BuildAttribute") < 0) continue;
    const Ref<Object> object = cls.entry->create(nothing);
    if (auto* attribute = dynamic_cast<Attribute*>(object.get())) attributes_.emplace_back(attribute);
  }
}

std::vector<AttributeCatalogue::Candidate> AttributeCatalogue::candidates(std::string_view record,
                                                                          std::optional<int> protocol_type,
                                                                          bool accepted) const {
  std::vector<Candidate> taken;
  std::vector<Candidate> refused;
  for (const Ref<Attribute>& attribute : attributes_) {
    if (protocol_type && !belongs_to(*attribute, *protocol_type)) continue;
    for (const std::size_t id_bits : {kOctet, 2 * kOctet}) {
      const std::size_t header = kOctet + id_bits;
      if (record.size() <= header || !attribute->has_id(record.substr(kOctet, id_bits))) continue;
      const auto tree = attribute->dissect(record, {0, static_cast<std::uint32_t>(record.size())});
      if (tree[1].bits.size() != id_bits) continue;  // of a class with two AttributeIDs: the other one
      const bool fits = accepted && attribute->has_value_records() ? record.size() == header + kOctet : takes(tree);
      (fits ? taken : refused).push_back({attribute.get(), id_bits});
    }
  }
  return taken.empty() ? refused : taken;
}

const NegotiationClass* carrier_of_records(std::string_view bits) {
  for (const NegotiationClass* carrier :
       {&SB_MsgConfigurationRequest::shared_class(), &SB_MsgConfigurationResponse::shared_class(),
        &SB_MsgAttributeUpdateRequest::shared_class()}) {
    if (bits.starts_with(carrier->spec().id)) return carrier;
  }
  return nullptr;
}

std::vector<DissectedField> dissect(const NegotiationClass& message, std::string_view bits,
                                    const AttributeCatalogue& catalogue, std::optional<int> protocol_type) {
  std::vector<DissectedField> tree{dissected_leaf("MessageID", &kHex, bits, {0, kOctet}),
                                   dissected_leaf("TransactionID", nullptr, bits, {kOctet, kOctet})};
  if (tree.front().note.empty() && tree.front().bits != message.spec().id) {
    tree.front().note = "not the MessageID of " + std::string(message.spec().name);
  }
  const AttributeRecordIndex index(bits);
  for (const Extent& place : index.records()) {
    const auto candidates = catalogue.candidates(slice(bits, place), protocol_type, message.spec().names_accepted);
    tree.push_back(
        dissect_record(bits, place, message.spec().names_accepted, protocol_type == kSessionConfiguration, candidates));
    if (place.offset + place.width > bits.size()) tree.back().note = "past the end";
  }
  return tree;
}

}  // namespace vorlan
