// The rows from which value records are made: one RecordField per field, in air-interface order. The zero value of
// every part is the usual case.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "codec/field_tree.hpp"

namespace vorlan {

class Record;

/// When a field is in a record at all. Inside a repeated group, the field asked is the one of the same repetition.
struct OnlyIf {
  enum class Kind : std::uint8_t { Always, One, Zero, NotZero };
  Kind kind = Kind::Always;
  std::string_view field = {};
};
constexpr OnlyIf if_one(std::string_view field) { return {OnlyIf::Kind::One, field}; }
constexpr OnlyIf if_zero(std::string_view field) { return {OnlyIf::Kind::Zero, field}; }
constexpr OnlyIf if_not_zero(std::string_view field) { return {OnlyIf::Kind::NotZero, field}; }

/// How wide a field is when RecordField::bits does not say it. `field` is an earlier field's name.
struct RecordWidth {
  enum class Kind : std::uint8_t { Fixed, OctetsOf, BitsOf, ToOctet };
  Kind kind = Kind::Fixed;
  std::string_view field = {};
};
/// 8 bits for each unit of an earlier field's value.
constexpr RecordWidth octets_of(std::string_view field) { return {RecordWidth::Kind::OctetsOf, field}; }
/// As many bits as an earlier field's value.
constexpr RecordWidth as_many_bits_as(std::string_view field) { return {RecordWidth::Kind::BitsOf, field}; }
/// What the record lacks to a whole octet.
constexpr RecordWidth to_octet() { return {RecordWidth::Kind::ToOctet}; }

/// How often a field is repeated. With one count it is a list. With two it is a table: of rows and columns that are
/// counted before, or, where the second count is a field of the same repetition, of rows of their own length.
struct Repeated {
  std::string_view count = {};
  std::string_view inner = {};
  /// Adjacent rows of the same number other than 0 are one group: all fields of the first repetition come before those
  /// of the second. 0 is a list or table of its own.
  std::uint8_t group = 0;
  /// Other than 0: the object always holds so many elements, and the counts only say how many are sent. Otherwise
  /// setting a count makes the elements.
  std::uint8_t places = 0;
  std::uint8_t inner_places = 0;
  /// Properties of single elements: "PRstr_T2PAxis##" stands for PRstr_T2PAxis00, PRstr_T2PAxis01 and so on.
  std::string_view elements = {};
  /// Methods that read and write an element by index: Get_ and Set_ before this name.
  std::string_view accessors = {};
};
constexpr Repeated list_by(std::string_view count, std::uint8_t group = 0) { return {.count = count, .group = group}; }
constexpr Repeated table_by(std::string_view count, std::string_view inner, std::uint8_t group = 0) {
  return {.count = count, .inner = inner, .group = group};
}

/// One field. A name that begins with "PR" is a property; any other is on the air only.
struct RecordField {
  std::string_view name;
  std::uint16_t bits = 0;         ///< width where it is fixed
  std::string_view initial = {};  ///< none: all "0"
  RecordWidth width = {};
  OnlyIf only = {};
  Repeated repeat = {};
  bool settable = true;  ///< false: can be read from a received record only, and is sent as zeros
  bool sent = true;      ///< false: a property that is not on the air

  /// A property made of others: what it reads, and what setting it does. It is not on the air itself.
  std::string_view (*view)(const Record& record, std::size_t index) = nullptr;
  void (*let)(Record& record, std::size_t index, std::string_view value) = nullptr;

  // Texts; none: the family's.
  std::string_view wrong_length = {};
  std::string_view not_received = {};   ///< getter of what only a received record has
  std::string_view absent = {};         ///< getter, when the received record does not carry the field
  std::string_view not_settable = {};   ///< setter, when a flag says that the record has no such field
  std::string_view source = {};         ///< class part of its errors' sources; none: the class's
  std::string_view source_member = {};  ///< member part; none: the name

  const Meaning* meaning = nullptr;  ///< unit or codes, for listings and dissection
  std::string_view summary = {};
  /// Takes apart what the field holds, for dissection; the value of an earlier field says of which kind that is.
  std::vector<DissectedField> (*inside)(std::size_t kind, std::string_view whole, Extent place) = nullptr;
  std::string_view kind = {};
};

constexpr bool is_property(const RecordField& field) noexcept {
  return field.name.starts_with("PR") && field.repeat.elements.empty();
}
constexpr bool is_list(const RecordField& field) noexcept { return !field.repeat.count.empty(); }
constexpr bool is_table(const RecordField& field) noexcept { return !field.repeat.inner.empty(); }
constexpr bool is_on_air(const RecordField& field) noexcept { return field.sent && field.view == nullptr; }

/// The index of a field; the number of fields if there is none.
constexpr std::size_t find_field(std::span<const RecordField> fields, std::string_view name) noexcept {
  std::size_t index = 0;
  while (index < fields.size() && fields[index].name != name) ++index;
  return index;
}

/// The first fault of a record's rows as text; the empty text if there is none. Checked when the rows are compiled.
constexpr std::string_view fault(std::span<const RecordField> fields) {
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const RecordField& field = fields[i];
    const auto earlier = [&](std::string_view name) { return name.empty() || find_field(fields, name) < i; };
    if (find_field(fields, field.name) != i) return "a field is listed twice";
    if (!earlier(field.width.field)) return "a width depends on a later field";
    if (!earlier(field.only.field)) return "a condition on a later field";
    if (!earlier(field.kind)) return "insides that depend on a later field";
    if (!earlier(field.repeat.count) || !earlier(field.repeat.inner)) return "a count comes after its list";
    if (field.bits == 0 && field.width.kind == RecordWidth::Kind::Fixed && field.view == nullptr) return "no width";
    if (!field.initial.empty() && field.bits != 0 && field.initial.size() != field.bits) {
      return "an initial value that is not as wide as its field";
    }
    if ((field.repeat.places != 0 && is_table(field)) != (field.repeat.inner_places != 0)) {
      return "a table has places in both directions or in none";
    }
  }
  return {};
}

}  // namespace vorlan
