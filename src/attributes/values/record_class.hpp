// A record's rows, made ready for use: names resolved to indices, groups found. Made once per class, on first use.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "attributes/values/record_field.hpp"
#include "automation/class_info.hpp"
#include "automation/error.hpp"
#include "codec/extent.hpp"

namespace vorlan {

/// The families of texts. Scripts compare texts, so each class keeps those that it was born with.
enum class RecordTexts : std::uint8_t {
  Named,       ///< "Length of <ValueId> field should be 8 bits."
  OfArgument,  ///< "The length of argument passed should be equal to the length of ValueId (length=8).  "
  WithError,   ///< "Error: Length of ValueId should be 8 bits."
};

/// Where a field stands among repeated ones: the repetition, and the column of a table.
struct At {
  std::size_t index = 0;
  std::size_t inner = 0;
};

class RecordClass {
 public:
  struct Texts {
    std::string_view source;  ///< class part of error sources
    RecordTexts family = RecordTexts::Named;
    std::string_view not_received = {};  ///< getters of what only a received record has
  };

  RecordClass(std::span<const RecordField> rows, const Texts& texts);
  RecordClass(const RecordClass&) = delete;
  RecordClass& operator=(const RecordClass&) = delete;

  static constexpr std::int16_t kNone = -1;

  struct Field {
    const RecordField* spec;
    std::int16_t width = kNone;
    std::int16_t only = kNone;
    std::int16_t inner = kNone;
    std::uint16_t group = 0;
    std::uint16_t slot = 0;  ///< among the single fields, or among the lists
    bool counts = false;     ///< lists have as many elements as it says
    std::string initial;
  };
  /// Adjacent fields that are repeated together; single fields are one group, sent once.
  struct Group {
    std::uint16_t first;
    std::uint16_t end;
    std::int16_t count;  ///< kNone: once
  };

  [[nodiscard]] std::span<const Field> fields() const noexcept { return fields_; }
  [[nodiscard]] const Field& field(std::size_t index) const noexcept { return fields_[index]; }
  [[nodiscard]] std::span<const Group> groups() const noexcept { return groups_; }
  [[nodiscard]] std::size_t lists() const noexcept { return lists_; }
  [[nodiscard]] std::size_t singles() const noexcept { return singles_; }
  [[nodiscard]] std::size_t find(std::string_view name) const noexcept;
  /// The width of a record in whole octets, where no field varies; 0 otherwise.
  [[nodiscard]] std::size_t fixed_bits() const noexcept { return fixed_bits_; }
  /// The width in bits of the record at the start of `bits`, its last octet filled up; 0 if the bits end before it
  /// does.
  [[nodiscard]] std::size_t length_at(std::string_view bits) const;

  [[nodiscard]] std::string wrong_length(std::size_t field, At at, std::size_t width) const;
  [[nodiscard]] std::string wrong_length(std::size_t field, At at, std::string_view width) const;
  [[nodiscard]] std::string source(std::size_t field, At at) const;
  [[nodiscard]] Error beyond_count(std::size_t field, At at) const;
  [[nodiscard]] Error no_bit_string(std::size_t field, At at) const;
  [[nodiscard]] const Texts& texts() const noexcept { return texts_; }

  /// What listings show of the rows: the fields that are on the air, and the errors that their properties raise.
  [[nodiscard]] std::vector<FieldInfo> list_fields() const;
  void list_errors(std::vector<ErrorInfo>& errors) const;

 private:
  [[nodiscard]] std::size_t too_many(std::size_t field) const;

  Texts texts_;
  std::vector<Field> fields_;
  std::vector<Group> groups_;
  std::size_t singles_ = 0;
  std::size_t lists_ = 0;
  std::size_t fixed_bits_ = 0;
};

/// "PRstr_T2PAxis02" from "PRstr_T2PAxis##": the first run of # takes the index, the second the column.
std::string element_name(std::string_view pattern, At at);

/// The one walk over a record's rows: building goes over stored values, taking apart over received bits; which fields
/// are there, how often and how wide is decided here for both. (Record::width tells the width of a single field before
/// it is set.) A side gives
///   std::string_view value(std::size_t field, std::size_t index): the value of an earlier field
///   std::size_t position(): bits so far
///   bool done(): nothing is left to be repeated
///   void visit(std::size_t field, At at, std::size_t width): the next field
template <class Side>
void walk(const RecordClass& record, Side& side) {
  const auto number = [&](std::int16_t field, std::size_t index) {
    return small_value(side.value(static_cast<std::size_t>(field), index));
  };
  const auto is_there = [&](const RecordClass::Field& field, std::size_t index) {
    switch (field.spec->only.kind) {
      case OnlyIf::Kind::Always: return true;
      case OnlyIf::Kind::One: return number(field.only, index) == 1;
      case OnlyIf::Kind::Zero: return number(field.only, index) == 0;
      case OnlyIf::Kind::NotZero: return number(field.only, index) != 0;
    }
    return true;
  };
  const auto width_of = [&](const RecordClass::Field& field, std::size_t index) -> std::size_t {
    switch (field.spec->width.kind) {
      case RecordWidth::Kind::Fixed: return field.spec->bits;
      case RecordWidth::Kind::OctetsOf: return 8 * number(field.width, index);
      case RecordWidth::Kind::BitsOf: return number(field.width, index);
      case RecordWidth::Kind::ToOctet: return (8 - side.position() % 8) % 8;
    }
    return 0;
  };
  for (const RecordClass::Group& group : record.groups()) {
    const bool repeated = group.count != RecordClass::kNone;
    const std::size_t count = repeated ? number(group.count, 0) : 1;
    for (std::size_t index = 0; index < count && !(repeated && side.done()); ++index) {
      for (std::size_t i = group.first; i < group.end; ++i) {
        const RecordClass::Field& field = record.field(i);
        if (!is_on_air(*field.spec) || !is_there(field, index)) continue;
        const bool table = field.inner != RecordClass::kNone;
        const std::size_t columns = table ? number(field.inner, index) : 1;
        for (std::size_t inner = 0; inner < columns && !(table && side.done()); ++inner) {
          side.visit(i, {index, inner}, width_of(field, index));
        }
      }
    }
  }
}

/// Where every field of a received record stands, found in one pass.
class RecordLayout {
 public:
  struct Visit {
    std::uint16_t field;
    std::uint16_t group;  ///< of the field
    At at;
    Extent extent;
  };

  RecordLayout() = default;
  RecordLayout(const RecordClass& record, std::string_view bits);

  /// Null if the record does not carry the field there.
  [[nodiscard]] const Extent* find(std::size_t field, At at = {}) const noexcept;
  [[nodiscard]] std::span<const Visit> visits() const noexcept { return visits_; }
  /// Where the last field ends; past the end of the bits if the record is cut off.
  [[nodiscard]] std::size_t end() const noexcept { return position_; }
  /// Every field lies within the bits; whether the last octet is filled up does not count.
  [[nodiscard]] bool is_whole() const noexcept { return whole_; }

  // The side of walk().
  [[nodiscard]] std::string_view value(std::size_t field, std::size_t index) const noexcept;
  [[nodiscard]] std::size_t position() const noexcept { return position_; }
  [[nodiscard]] bool done() noexcept;
  void visit(std::size_t field, At at, std::size_t width);

 private:
  const RecordClass* record_ = nullptr;
  std::string_view bits_;  // during the walk
  std::size_t position_ = 0;
  bool whole_ = true;
  std::vector<Visit> visits_;  // in the order of the walk
};

}  // namespace vorlan
