// The rows from which the classes of complex configuration attributes are made: one per class.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "attributes/values/value.hpp"
#include "codec/protocol.hpp"

namespace vorlan {

enum class AttributeForm : std::uint8_t {
  RecordList,  ///< builds from value records, and takes a received record apart into them
  Builder,     ///< only builds
  Fields,      ///< has no value records: the fields are its own
};

class ComplexAttribute;
using ValueClassGetter = const ValueClass& (*)();

// Texts that several classes share; blanks and missing stops are part of them.
inline constexpr std::string_view kWrongRecord = "Length of Attribute is not correct.";
inline constexpr std::string_view kWrongConnectionRecord = "Length of attribute string incorrect .";
inline constexpr std::string_view kNotReceivedProperty =
    "Property <PRstr_Attribute> has not been set. Please set this first. ";
inline constexpr std::string_view kWrongOldLength = "The length of <Length> field should be equal to 8 bits.";

/// A method that searches the received value records.
struct AttributeSearch {
  std::string_view name;
  std::span<const std::string_view> arguments;  ///< texts; all but the first may be left out
  std::string (*run)(ComplexAttribute& attribute, std::span<const Value> arguments);
  std::string_view summary;
};

/// One class. An attribute record is Length (8 bits, the octets behind it), AttributeID and value records, or fields.
struct ComplexAttributeSpec {
  std::string_view name;     ///< "SB_Mac_AttrDRCLock"
  std::string_view summary;  ///< one line
  std::string_view clause;   ///< of C.S0024
  AttributeForm form = AttributeForm::RecordList;

  std::uint16_t id = 0;      ///< of a per-flow or per-reservation attribute: the one of a new object
  std::uint8_t id_bits = 8;  ///< 8 or 16
  /// The low octet of the AttributeID is a flow or a reservation label, which the script sets with the whole ID.
  bool id_settable = false;

  ValueClassGetter values = nullptr;         ///< of its value records
  std::span<const RecordField> fields = {};  ///< Fields
  const AttributeSearch* search = nullptr;   ///< RecordList: in place of PRstr_Length and PRstr_AttribId

  std::string_view wrong_record = {};  ///< a received record that is no whole number of value records
  std::string_view not_received = "<PRstr_Attribute> has not been set. Please set this first.";
  std::string_view wrong_length = "Length of Attribute Length field should be 8.";
  std::string_view wrong_id = "Length of Attribute ID field should be 16.";
  std::string_view source = {};  ///< class part of error sources; none: the name
};

/// The first fault of a row as text; the empty text if there is none. Checked when the rows are compiled.
constexpr std::string_view fault(const ComplexAttributeSpec& row) {
  // Not find(), nor a question to `values` below: with sanitizers GCC does not take their addresses for constants.
  if (!row.name.starts_with("SB_") || !row.name.substr(6).starts_with("_Attr")) {
    return "a class name begins with SB_, three letters and _Attr";
  }
  if (row.summary.empty() || row.clause.empty()) return "no summary or no clause";
  if (row.id_bits != 8 && row.id_bits != 16) return "an AttributeID has 8 or 16 bits";
  if ((row.id >> row.id_bits) != 0) return "an AttributeID wider than its width";
  if (row.id_settable && row.id_bits != 16) return "an AttributeID that can be set has 16 bits";
  if ((row.form == AttributeForm::Fields) == row.fields.empty()) return "value records or fields, not both";
  if ((row.form == AttributeForm::Builder) != row.wrong_record.empty()) return "a text for what cannot be received";
  return fault(row.fields);
}

}  // namespace vorlan
