#include "attributes/dissection.hpp"

#include <string>

#include "attributes/complex/complex_attribute.hpp"
#include "attributes/simple_attribute.hpp"
#include "codec/meanings.hpp"

namespace vorlan {

namespace {

constexpr std::uint32_t kLengthBits = 8;

std::string bracketed(std::size_t index) { return "[" + std::to_string(index) + "]"; }

/// Length and AttributeID, and what is left behind them.
Extent dissect_header(const Attribute& attribute, std::string_view whole, Extent record, std::size_t id_bits,
                      std::vector<DissectedField>& tree) {
  const auto header = static_cast<std::uint32_t>(kLengthBits + id_bits);
  tree.push_back(dissected_leaf("Length", &kOctets, whole, {record.offset, kLengthBits}));
  if (tree[0].note.empty() && kLengthBits * (1 + small_value(tree[0].bits)) != record.width) {
    tree[0].note = "not the octets that follow";
  }
  tree.push_back(
      dissected_leaf("AttributeID", &kHex, whole, {record.offset + kLengthBits, static_cast<std::uint32_t>(id_bits)}));
  if (tree[1].note.empty() && !attribute.has_id(tree[1].bits)) {
    tree[1].note = "not the AttributeID of " + std::string(attribute.class_info()->name());
  }
  return {record.offset + header, record.width > header ? record.width - header : 0};
}

}  // namespace

std::vector<DissectedField> dissect(const RecordClass& record, std::string_view whole, Extent place) {
  std::vector<DissectedField> tree;
  const RecordLayout layout(record, slice(whole, place));
  const auto shifted = [&](Extent extent) {
    extent.offset += place.offset;
    return extent;
  };
  std::size_t open = 0;  // the repetition whose fields are being gathered, and its group, from 1
  std::size_t open_group = 0;
  for (const RecordLayout::Visit& visit : layout.visits()) {
    const RecordClass::Field& field = record.field(visit.field);
    DissectedField node = dissected_leaf(field.spec->name, field.spec->meaning, whole, shifted(visit.extent));
    if (field.spec->inside != nullptr) {
      const Extent* kind = layout.find(record.find(field.spec->kind), visit.at);
      const std::size_t value = kind != nullptr ? small_value(slice(whole, shifted(*kind))) : 0;
      node.below = field.spec->inside(value, whole, shifted(visit.extent));
      if (!node.below.empty()) node.bits.clear();
    }
    const RecordClass::Group& group = record.groups()[field.group];
    if (is_table(*field.spec) && group.end - group.first > 1) {
      node.name += bracketed(visit.at.inner);
    } else if (is_list(*field.spec) && group.end - group.first == 1) {
      node.name += bracketed(visit.at.index);
      if (is_table(*field.spec)) node.name += bracketed(visit.at.inner);
    }
    if (!is_list(*field.spec) || group.end - group.first == 1) {
      open_group = 0;
      tree.push_back(std::move(node));
      continue;
    }
    if (open_group != field.group + std::size_t{1} || open != visit.at.index) {
      tree.push_back({.name = bracketed(visit.at.index), .first = node.first});
      open_group = field.group + std::size_t{1};
      open = visit.at.index;
    }
    tree.back().below.push_back(std::move(node));
  }
  if (layout.end() < place.width) {
    const auto end = static_cast<std::uint32_t>(layout.end());
    tree.push_back(dissected_leaf("Reserved", nullptr, whole, shifted({end, place.width - end})));
  }
  return tree;
}

std::vector<DissectedField> SimpleAttribute::dissect(std::string_view whole, Extent record) const {
  std::vector<DissectedField> tree;
  const SimpleAttributeSpec& spec = class_.spec();
  constexpr std::uint32_t kWideBits = 16;
  const bool is_wide = spec.wide_id != 0 && record.width == kLengthBits + kWideBits + spec.value_bits;
  const Extent value = dissect_header(*this, whole, record, is_wide ? kWideBits : spec.id_bits, tree);
  // A proposal of several subtypes: the class takes records of one, the air interface allows more.
  if (spec.up_to && spec.value_bits == kWideBits && value.width > kWideBits && value.width % kWideBits == 0) {
    for (std::uint32_t at = 0; at < value.width; at += kWideBits) {
      tree.push_back(
          dissected_leaf("AttrValue" + bracketed(at / kWideBits), nullptr, whole, {value.offset + at, kWideBits}));
    }
    return tree;
  }
  tree.push_back(dissected_leaf("AttrValue", spec.meaning, whole, value));
  if (value.width != spec.value_bits) tree.back().note = "not as wide as the class says";
  return tree;
}

std::vector<DissectedField> ComplexAttribute::dissect(std::string_view whole, Extent record) const {
  std::vector<DissectedField> tree;
  const ComplexAttributeSpec& spec = class_.spec();
  Extent rest = dissect_header(*this, whole, record, spec.id_bits, tree);
  if (spec.form == AttributeForm::Fields) {
    for (DissectedField& field : vorlan::dissect(class_.fields(), whole, rest)) tree.push_back(std::move(field));
    return tree;
  }
  const std::vector<std::size_t> lengths = spec.values().split(slice(whole, rest));
  for (std::size_t i = 0; i < lengths.size(); ++i) {
    const auto width = static_cast<std::uint32_t>(lengths[i]);
    tree.push_back({.name = "Value " + std::to_string(i), .first = rest.offset + std::size_t{1}});
    tree.back().below = vorlan::dissect(spec.values().record(), whole, {rest.offset, width});
    rest = {rest.offset + width, rest.width - width};
  }
  if (rest.width > 0) {
    tree.push_back(dissected_leaf("Values", &kHex, whole, rest));
    tree.back().note = "no whole number of value records";
  }
  return tree;
}

}  // namespace vorlan
