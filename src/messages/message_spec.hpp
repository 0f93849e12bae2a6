// The rows from which message classes are made: one FieldSpec per field, in air-interface order, and one MessageSpec
// per message. The zero value of every part is the usual case.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "automation/error.hpp"
#include "automation/member_key.hpp"
#include "automation/value.hpp"
#include "codec/meaning.hpp"
#include "codec/protocol.hpp"

namespace vorlan {

class BitBuffer;
class Configuration;
class Message;

/// How wide a field is when FieldSpec::bits does not say it. `field` is an earlier field's name.
struct WidthRule {
  enum class Kind : std::uint8_t { Fixed, OctetsCountedBy, ValuePlus, Rest };
  Kind kind = Kind::Fixed;
  std::string_view field = {};
  std::uint16_t addend = 0;
};
/// 8 bits for each unit of an earlier field's value.
constexpr WidthRule octets_counted_by(std::string_view field) { return {WidthRule::Kind::OctetsCountedBy, field}; }
/// As many bits as an earlier field's value, and some.
constexpr WidthRule value_plus(std::string_view field, std::uint16_t addend) {
  return {WidthRule::Kind::ValuePlus, field, addend};
}
/// Everything up to the end of the message.
constexpr WidthRule rest_of_message() { return {WidthRule::Kind::Rest}; }

/// When a field is in the message at all. Inside a record, the field asked is the one of the same record.
struct PresenceRule {
  enum class Kind : std::uint8_t { Always, IsOne, IsZero, IsAboveZero, InChain, AnyIsOne };
  Kind kind = Kind::Always;
  std::string_view field = {};
  std::string_view other = {};
  std::string_view also_one = {};  ///< this field must be "1" as well
  bool also_in_tail = false;       ///< and the message's tail must be there
};
constexpr PresenceRule is_one(std::string_view field) { return {PresenceRule::Kind::IsOne, field}; }
constexpr PresenceRule is_zero(std::string_view field) { return {PresenceRule::Kind::IsZero, field}; }
constexpr PresenceRule is_above_zero(std::string_view field) { return {PresenceRule::Kind::IsAboveZero, field}; }
/// A flag of an optional chain: sent when it or a later flag of the chain is "1". In a received message the chain goes
/// on while anything but zeros is left.
constexpr PresenceRule in_chain() { return {PresenceRule::Kind::InChain}; }
/// Part of an optional tail: sent whole when one of two flags is "1". A received message has it when anything but
/// zeros is left where the tail begins.
constexpr PresenceRule any_is_one(std::string_view flag, std::string_view other) {
  return {PresenceRule::Kind::AnyIsOne, flag, other};
}

/// Both: the rule, and a flag that is "1".
constexpr PresenceRule both(PresenceRule rule, std::string_view flag) {
  rule.also_one = flag;
  return rule;
}
/// The rule, within the optional tail.
constexpr PresenceRule in_tail(PresenceRule rule) {
  rule.also_in_tail = true;
  return rule;
}

/// How often a field is repeated: a fixed number of times, or as often as one count, or the sum of two, says.
struct Repetition {
  std::string_view count = {};
  std::string_view added_count = {};
  std::uint8_t times = 0;
  bool at_least_one = false;  ///< sent once even if the count says 0
  /// Adjacent rows of the same number other than 0 are one record: all fields of the first repetition come before
  /// those of the second. 0 is a list of its own.
  std::uint8_t record = 0;
};
constexpr Repetition list_of(std::string_view count, std::string_view added_count = {}) {
  return {.count = count, .added_count = added_count};
}
constexpr Repetition list_of_at_least_one(std::string_view count) { return {.count = count, .at_least_one = true}; }
constexpr Repetition in_record(std::uint8_t record, std::string_view count, std::string_view added_count = {}) {
  return {.count = count, .added_count = added_count, .record = record};
}
/// Repeated a number of times that the standard fixes.
constexpr Repetition times(std::uint8_t number) { return {.times = number}; }

/// What the elements of a repeated field become when its count is set.
enum class OnResize : std::uint8_t {
  StartAfresh,  ///< every element starts with its initial value
  KeepOld,      ///< elements within the new count stay
  /// Those beyond a smaller count go. Elements come one by one, by being set, even before the count is;
  /// CreateMessage checks that there are as many as the count says.
  GrowByIndex,
};

/// What a setter accepts besides the field's own width.
enum class Accepts : std::uint8_t { OwnWidth, WholeOctets, OctetsAndSixBits };

/// A value of the sector's configuration: its text as it stands (bits 0), or its number in so many bits.
struct Configured {
  PreparedName property = {};
  std::uint8_t bits = 0;
  /// Where it takes more than one property: makes the text.
  std::string (*read)(Configuration& configuration) = nullptr;
  /// When it is read: joined by CreateMessage; or an initial value, at Initialize (of the first element) and when the
  /// count is set (of every new element).
  bool at_create = false;
  bool at_initialize = false;
  bool at_count = false;
  [[nodiscard]] constexpr bool exists() const noexcept { return at_create || at_initialize || at_count; }
};
/// Joined by CreateMessage; the script cannot set it.
constexpr Configured configured(const PreparedName& property, std::uint8_t bits = 0) {
  return {.property = property, .bits = bits, .at_create = true};
}

/// The arguments of CreateMessage behind the message object, and the object that is being built.
struct BuildContext {
  Message& message;
  std::span<const Value> arguments;
  /// The n-th of these arguments as text; empty if it was left out.
  [[nodiscard]] std::string argument(std::size_t n) const;
};

enum class Exposure : std::uint8_t {
  GetAndLet,  ///< read only in classes that only parse
  GetOnly,
  LetOnly,
};

/// One field. A name that begins with "PR" is a property; any other is on the air only.
struct FieldSpec {
  std::string_view name;
  std::uint16_t bits = 0;         ///< width where it is fixed
  std::string_view initial = {};  ///< of a settable field; none: all "0", in the field's width
  bool starts_empty = false;      ///< the usual initial value is not there: nothing is sent until the script sets it
  bool constant = false;          ///< always `initial`; the property, if any, is read only

  WidthRule width = {};
  PresenceRule present = {};
  Repetition repeat = {};
  OnResize on_resize = OnResize::StartAfresh;
  bool first_stays = false;  ///< the first element can be set whatever the count says, which alone decides what is sent
  Configured from = {};
  /// Makes what CreateMessage joins, where it is neither the stored value nor a value of the configuration.
  void (*build)(const BuildContext& context, BitBuffer& bits) = nullptr;
  /// Makes a property's value from other stored values: it is joined and read so; a setter only checks.
  std::string (*view)(const Message& message, std::size_t index) = nullptr;

  bool sent = true;               ///< false: a property that is not on the air itself
  bool integer = false;           ///< a 16-bit integer property, 0 or 1, that selects a layout; never sent
  bool read_stored = false;       ///< the getter returns the stored value even when a message has been received
  std::string_view same_as = {};  ///< another name for, or a second place of, an earlier field's value
  Exposure exposure = Exposure::GetAndLet;
  bool index_optional = false;  ///< an index left out means the first element
  Accepts accepts = Accepts::OwnWidth;
  /// A further check of a value that has the right width; raises.
  void (*check)(const Message& message, std::size_t index, std::string_view value) = nullptr;

  bool get_to_end = false;  ///< the getter of a received field returns everything up to the message's end
  /// A check of a received value, by its getter; raises.
  void (*check_received)(const Message& message, std::string_view value) = nullptr;

  // Texts. What a row leaves out comes from the message's row; what that leaves out is the family's.
  std::string_view wrong_length = {};
  std::string_view wrong_length_help = {};  ///< the help file of that error
  std::string_view in_encoder_mode = {};
  std::string_view beyond_count = {};      ///< setter; none there either: error 9
  std::string_view get_beyond_count = {};  ///< getter; none there either: error 9
  std::string_view not_set = {};           ///< getter, before a message is received
  std::string_view absent = {};            ///< getter, when the received message does not carry the field
  std::string_view too_few = {};           ///< CreateMessage, a list with less elements than its count says: this
                                           ///< text, the count, MessageSpec::too_few_end (a fixed list: this alone).
                                           ///< With two names, that of the name last used

  // Sources; none: class, full stop, name.
  std::string_view source = {};         ///< of every error of the row
  std::string_view length_source = {};  ///< of the wrong-length error alone, and so on
  std::string_view encoder_source = {};
  std::string_view index_source = {};

  const Meaning* meaning = nullptr;  ///< unit or codes, for listings and dissection
  std::string_view summary = {};
};

enum class Direction : std::uint8_t { Built, Parsed, Both };

/// One message class.
struct MessageSpec {
  std::string_view name;     ///< "SB_Ses_MsgSessionClose"
  std::string_view summary;  ///< one line
  std::string_view clause;   ///< of C.S0024
  Protocol protocol = Protocol::None;
  Direction direction = Direction::Built;
  std::string_view id = {};           ///< the constant MessageID, "00000001"; none: not held by the class
  std::uint8_t received_id_bits = 8;  ///< width of the MessageID in a received message; 0: the message has none
  std::uint8_t id_value = 0;          ///< what the air interface defines, for classes that hold none
  bool has_id_value = false;
  std::span<const FieldSpec> fields = {};
  bool takes_sector = false;  ///< Initialize(Sector, TestSet, EncoderString)
  bool padded = false;        ///< up to whole octets
  /// Names of the arguments that CreateMessage takes behind the message object; all may be left out.
  std::span<const std::string_view> arguments = {};
  /// Replaces the joining of the fields (and runs in encoder mode too); message.compose() is the usual way.
  void (*create)(const BuildContext& context, BitBuffer& bits) = nullptr;
  std::string_view received_flag = {};  ///< a boolean property that tells whether a message was received

  std::string_view not_initialized = {};
  std::string_view in_encoder_mode = "Encoder and this property cannot be used simultaneously.";
  std::string_view beyond_count = {};      ///< setters of lists, with an index beyond the count
  bool names_highest_index = false;        ///< the highest valid index follows that text
  std::string_view get_beyond_count = {};  ///< getters of lists
  std::string_view too_few_end = {};
  std::string_view not_set = {};         ///< every getter, before a message is received
  std::string_view id_not_set = {};      ///< PRstr_MessageID; none: not_set
  std::string_view string_not_set = {};  ///< PRstr_MessageString; none: not_set
  bool string_unchecked = false;         ///< PRstr_MessageString gives the empty text instead

  std::string_view source = {};  ///< the class part of sources; none: the name
  std::string_view create_source = {};
  std::string_view check_source = {};  ///< of CreateMessage's count checks; none: create_source
  std::string_view id_source = {};
  std::string_view string_source = {};

  std::span<const ErrorRow> further_errors = {};  ///< that functions named by these rows raise

  [[nodiscard]] constexpr bool builds() const noexcept { return direction != Direction::Parsed; }
  [[nodiscard]] constexpr bool parses() const noexcept { return direction != Direction::Built; }
};

constexpr bool is_property(const FieldSpec& field) noexcept { return field.name.starts_with("PR"); }
constexpr bool is_repeated(const FieldSpec& field) noexcept {
  return !field.repeat.count.empty() || field.repeat.times != 0;
}
/// The script sets it, and the object stores it.
constexpr bool is_stored(const FieldSpec& field) noexcept {
  return is_property(field) && !field.constant && field.same_as.empty() && field.build == nullptr &&
         !field.from.at_create;
}

/// The index of a field; the number of fields if there is none.
constexpr std::size_t find_field(std::span<const FieldSpec> fields, std::string_view name) noexcept {
  std::size_t index = 0;
  while (index < fields.size() && fields[index].name != name) ++index;
  return index;
}

/// The first fault of a message's rows as text; the empty text if there is none. Checked when the rows are compiled.
constexpr std::string_view fault(const MessageSpec& message) {
  if (!message.name.starts_with("SB_")) return "a class name begins with SB_";
  if (message.summary.empty()) return "no summary";
  if (message.builds() && message.not_initialized.empty()) return "no text for a missing Initialize";
  for (std::size_t i = 0; i < message.fields.size(); ++i) {
    const FieldSpec& field = message.fields[i];
    const auto earlier = [&](std::string_view name) { return name.empty() || find_field(message.fields, name) < i; };
    const auto known = [&](std::string_view name) {
      return name.empty() || find_field(message.fields, name) < message.fields.size();
    };
    if (find_field(message.fields, field.name) != i) return "a field is listed twice";
    if (!earlier(field.width.field)) return "a width depends on a later field";
    if (!earlier(field.repeat.count) || !earlier(field.repeat.added_count)) return "a count comes after its list";
    if (!earlier(field.same_as)) return "a second name comes before the first";
    if (!known(field.present.field) || !known(field.present.other) || !known(field.present.also_one)) {
      return "a condition on an unknown field";
    }
    if (!field.initial.empty() && field.bits != 0 && field.initial.size() != field.bits) {
      return "an initial value that is not as wide as its field";
    }
    if (message.builds() && is_stored(field) && field.exposure != Exposure::GetOnly && !field.integer &&
        field.wrong_length.empty()) {
      return "a settable field without a text for a wrong width";
    }
  }
  return {};
}

}  // namespace vorlan
