// The rows from which value classes are made: one ValueSpec per class.
#pragma once

#include <span>
#include <string_view>

#include "attributes/values/record_class.hpp"

namespace vorlan {

/// PRstr_ValString and GetValLengthAt: of a record that ends before its last field.
inline constexpr std::string_view kWrongValString = "Length of ValString is not correct.";

/// An error of a method: the text of error 1, or what is said behind the standard description of another one.
struct Refusal {
  std::string_view text;
  std::string_view when;
  ErrorNumber number = ErrorNumber::Failed;

  [[nodiscard]] Error error(std::string_view source) const {
    return number == ErrorNumber::Failed ? Error(1, source, text) : Error(number, source, text);
  }
};

/// A method that a class has of its own. It takes no arguments.
struct ValueOperation {
  std::string_view name;
  void (*run)(Record& record);
  std::string_view summary;
  std::span<const Refusal> refusals = {};
};

/// One class. Its record begins with the 8-bit ValueID.
struct ValueSpec {
  std::string_view name;     ///< "SB_Mac_ValDRCLock"
  std::string_view summary;  ///< one line
  std::string_view clause;   ///< of C.S0024
  std::span<const RecordField> fields = {};
  RecordTexts texts = RecordTexts::Named;
  std::string_view source = {};  ///< class part of error sources; none: the name
  std::string_view not_received = "Value String has not been set. Please set <PRstr_ValString> property first";
  std::string_view set_operation = {};  ///< the method that takes all fields at once
  /// BuildValueRecord takes a boolean that asks for the ValueID alone.
  bool builds_id_alone = false;
  bool tells_length = false;  ///< GetValLengthAt
  bool has_flag = false;      ///< PRbln_ValFlag: whether the getters read the received record
  bool has_initialize = false;
  bool has_flow_number = false;  ///< PRint_FlowNN: PRstr_FlowNN as a number
  /// Older access terminals send records that end after fewer fields, in so many bits.
  std::span<const std::size_t> shorter_records = {};
  std::span<const ValueOperation> operations = {};
};

constexpr std::string_view fault(const ValueSpec& value) {
  if (!value.name.starts_with("SB_")) return "a class name begins with SB_";
  if (value.summary.empty() || value.clause.empty()) return "no summary or no clause";
  if (value.fields.empty()) return "no fields";
  const std::size_t id = find_field(value.fields, "PRstr_ValueId");
  if (id == value.fields.size() || value.fields[id].bits != 8) return "a record begins with an 8-bit ValueID";
  for (std::size_t i = 0; i < id; ++i) {
    if (value.fields[i].sent) return "the ValueID is the first field on the air";
  }
  if (value.has_flow_number && find_field(value.fields, "PRstr_FlowNN") == value.fields.size())
    return "no PRstr_FlowNN";
  return fault(value.fields);
}

}  // namespace vorlan
