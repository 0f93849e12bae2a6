// The rows from which the classes of simple configuration attributes are made. The zero value of every part is the
// usual case: a fixed 16-bit AttributeID, an 8-bit value of all zeros, a record of 32 bits.
#pragma once

#include <string_view>

#include "attributes/flow_defaults.hpp"
#include "attributes/short_bits.hpp"
#include "codec/meaning.hpp"

namespace vorlan {

/// The families of texts. Scripts compare texts, so each class keeps those that it was born with.
enum class AttributeTexts : std::uint8_t {
  Usual,
  UsualInBits,   ///< the usual ones, ending in " bits."
  Early,         ///< "The length of argument passed ..."
  EarlySession,  ///< the same, of a session attribute
  Variable,      ///< of values up to a width
};

/// One class. An attribute record is Length (8 bits, the octets behind it), AttributeID and value.
struct SimpleAttributeSpec {
  std::string_view name;             ///< "SB_Mac_AttrFRABlow"
  std::string_view summary;          ///< one line
  std::string_view clause;           ///< of C.S0024, or behind another document's name
  const Meaning* meaning = nullptr;  ///< unit or codes of the value, for listings and dissection

  std::uint16_t id;             ///< of a per-flow attribute: the one of flow 0
  std::uint8_t id_bits = 16;    ///< 8 or 16
  std::uint16_t wide_id = 0;    ///< a second, 16-bit AttributeID, asked for by a boolean argument; 0: none
  bool id_settable = false;     ///< the script names the flow, or the attribute, by the whole AttributeID
  std::uint8_t value_bits = 8;  ///< 8 or 16
  bool up_to = false;           ///< value_bits is the upper bound; an empty value builds no record

  std::string_view initial = "00000000";  ///< value of a new object
  std::uint8_t length = 3;                ///< what a new object's Length says, in octets; never encoded
  std::uint8_t record_bits = 32;          ///< checked when a record is received; 0: any is taken
  /// Initial value, initial Length or checked record length do not agree with the widths. Kept so: scripts know them.
  bool disagrees_on_purpose = false;

  AttributeTexts texts = AttributeTexts::Usual;
  std::string_view wrong_record = {};  ///< where it is not the family's text
  std::string_view wrong_length = {};
  std::string_view wrong_value = {};
  std::string_view wrong_high_octet = {};         ///< the AttributeID must keep its high octet; else this text
  std::string_view source = {};                   ///< class part of error sources; none: the name
  bool empty_source = false;                      ///< errors name no source at all
  std::string_view id_member = "PRstr_AttribID";  ///< member part of the source, when the AttributeID is refused
};

/// The first fault of a row as text; the empty text if there is none. Checked when the rows are compiled.
constexpr std::string_view fault(const SimpleAttributeSpec& row) {
  const auto is_width = [](std::size_t bits) { return bits == 8 || bits == 16; };
  if (!row.name.starts_with("SB_") || !row.name.substr(6).starts_with("_Attr")) {
    return "a class name begins with SB_, three letters and _Attr";
  }
  if (row.summary.empty() || row.clause.empty()) return "no summary or no clause";
  if (!is_width(row.id_bits) || !is_width(row.value_bits)) return "a width is 8 or 16";
  if ((row.id >> row.id_bits) != 0) return "an AttributeID wider than its width";
  if (row.wide_id != 0 && row.id_settable) return "of two AttributeIDs neither can be set";
  if (row.initial.size() > ShortBits::kCapacity || row.initial.find_first_not_of("01") != std::string_view::npos) {
    return "an initial value that is no bit string of up to 16 bits";
  }
  const std::size_t bits = std::size_t{row.id_bits} + row.value_bits;
  const bool value_agrees = row.up_to ? row.initial.size() <= row.value_bits : row.initial.size() == row.value_bits;
  const bool agrees =
      value_agrees && std::size_t{row.length} * 8 == bits && (row.record_bits == 0 || row.record_bits == 8 + bits);
  if (agrees == row.disagrees_on_purpose) return "widths that disagree, or that agree where the row says otherwise";
  const bool early = row.texts == AttributeTexts::Early || row.texts == AttributeTexts::EarlySession;
  if (early != (row.record_bits == 0)) return "the early attributes, and no others, take any record";
  if (early && row.id_settable) return "the early attributes have no text for a wrong AttributeID";
  if (row.up_to && row.texts != AttributeTexts::Variable)
    return "only the variable family has a text for an upper bound";

  const auto defaults = flow_defaults(row.name);
  const bool per_flow = !defaults.empty() || !row.wrong_high_octet.empty();
  if (per_flow && (!row.id_settable || row.id_bits != 16 || (row.id & 0xFFU) != 0)) {
    return "a per-flow AttributeID is set by the script, and is 16 bits with NN = 0 at first";
  }
  for (std::size_t i = 0; i < defaults.size(); ++i) {
    if (defaults[i].value.size() != row.value_bits) return "a flow's value that is not as wide as the attribute's";
    if ((defaults[i].flow == FlowDefault::kOtherFlows) != (i + 1 == defaults.size())) {
      return "other flows have the last row";
    }
  }
  return {};
}

}  // namespace vorlan
