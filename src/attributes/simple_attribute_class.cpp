#include "attributes/simple_attribute_class.hpp"

namespace vorlan {

namespace {

/// A text with a width in it.
struct AroundWidth {
  std::string_view front;
  std::string_view back;
};

struct FamilyTexts {
  AroundWidth record;
  std::string_view length;
  AroundWidth id;
  AroundWidth value;
};

/// In the order of AttributeTexts. Doubled blanks and missing stops are part of them.
constexpr FamilyTexts kFamilies[] = {
    {.record = {"Error: Length of Attribute String should be ", "."},
     .length = "Length of Attribute Length field should be 8.",
     .id = {"Length of Attribute ID field should be ", "."},
     .value = {"Length of Attribute Value field should be ", "."}},
    {.record = {"Error: Length of Attribute String should be ", " bits."},
     .length = "Length of Attribute Length field should be 8 bits.",
     .id = {"Length of Attribute ID field should be ", " bits."},
     .value = {"Length of Attribute Value field should be ", " bits."}},
    {.length = "Length of <Length> field should be 8 bits.",
     .value = {"The length of argument passed should be equal to the length of Attribute value field (length=",
               ").  "}},
    {.length = "The length of <Length> field should be 8 bits.  ",
     .value = {"The length of argument passed should be equal to the length of AttrValue (length=", ").  "}},
    {.record = {"Length of attribute string should be ", " bits ."},
     .length = "Length of attribute string should be 8 bits .",
     .id = {"Length of <AttributeId> field should be ", " bits ."},
     .value = {"Length of Attribute Value should not be more than ", " bits ."}},
};

std::string with_width(const AroundWidth& text, std::size_t bits) {
  return std::string(text.front).append(std::to_string(bits)).append(text.back);
}

}  // namespace

SimpleAttributeClass::SimpleAttributeClass(const SimpleAttributeSpec& spec)
    : spec_(spec),
      flows_([&] {
        std::vector<Flow> flows;
        for (const FlowDefault& row : flow_defaults(spec.name)) {
          const bool other = row.flow == FlowDefault::kOtherFlows;
          const auto id = static_cast<std::uint32_t>(spec.id + row.flow);
          flows.push_back({other ? ShortBits() : ShortBits(id, 16), ShortBits(row.value)});
        }
        return flows;
      }()),
      length_(spec.length, 8),
      id_(spec.id, spec.id_bits),
      wide_id_(spec.wide_id, 16),
      value_(spec.initial),
      info_({spec.name, spec.summary, spec.clause}, list_members(), list_fields(), list_errors()) {}

const ShortBits* SimpleAttributeClass::flow_value(std::string_view id) const noexcept {
  for (const Flow& flow : flows_) {
    if (flow.id.view().empty() || flow.id.view() == id) return &flow.value;
  }
  return nullptr;
}

std::string SimpleAttributeClass::text(AttributeMember member) const {
  const FamilyTexts& family = kFamilies[static_cast<std::size_t>(spec_.texts)];
  switch (member) {
    case AttributeMember::Attribute:
      return spec_.wrong_record.empty() ? with_width(family.record, spec_.record_bits)
                                        : std::string(spec_.wrong_record);
    case AttributeMember::Length: return std::string(spec_.wrong_length.empty() ? family.length : spec_.wrong_length);
    case AttributeMember::AttribId: return with_width(family.id, spec_.id_bits);
    case AttributeMember::AttrValue:
      return spec_.wrong_value.empty() ? with_width(family.value, spec_.value_bits) : std::string(spec_.wrong_value);
    case AttributeMember::BuildAttribute: break;
  }
  return {};
}

std::string SimpleAttributeClass::source(AttributeMember member) const {
  if (spec_.empty_source) return {};
  std::string source(spec_.source.empty() ? spec_.name : spec_.source);
  const bool of_id = member == AttributeMember::AttribId;
  return source.append(".").append(of_id ? spec_.id_member : member_name(member));
}

}  // namespace vorlan
