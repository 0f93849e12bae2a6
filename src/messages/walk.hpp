// The one walk over a message's rows. Encoding walks over stored values, decoding over received bits; which fields are
// there, how often and how wide is decided here for both.
#pragma once

#include "codec/extent.hpp"
#include "messages/message_class.hpp"

namespace vorlan {

/// Whether a flag's value is this one; anything but a single character is neither.
constexpr bool is_flag(std::string_view bits, char value) noexcept { return bits.size() == 1 && bits.front() == value; }

/// How wide a field is, in bits.
///   std::string_view value(std::size_t field): of the earlier field that a width is counted by
///   std::size_t rest(): what is left of the message, for a field that takes it all
template <class Value, class Rest>
std::size_t width_of(const MessageClass::Field& field, Value&& value, Rest&& rest) {
  const WidthRule& rule = field.spec->width;
  const auto counted = [&] { return small_value(value(static_cast<std::size_t>(field.width_field))); };
  switch (rule.kind) {
    case WidthRule::Kind::Fixed: return field.spec->bits;
    case WidthRule::Kind::OctetsCountedBy: return 8 * counted();
    case WidthRule::Kind::ValuePlus: return counted() + rule.addend;
    case WidthRule::Kind::Rest: return rest();
  }
  return 0;
}

/// Walks the rows. A side gives values and takes visits:
///   std::string_view value(std::size_t field, std::size_t index): of an earlier field, in the same record if repeated
///   bool tail_is_there(std::size_t field): whether a flag of an optional chain, or a tail, is there at all
///   std::size_t rest(): what is left of the message, for a field that takes it all
///   bool begin(const MessageClass::Group& group, std::size_t count): the next group and its number of repetitions;
///     true if the side has taken it whole
///   void visit(std::size_t field, std::size_t index, Width&& width): the next field; width() tells how wide it is
///   void skip(std::size_t field, std::size_t index): a field that is not there
///   bool done(): nothing is left to be repeated
template <class Side>
void walk(const MessageClass& message, Side& side) {
  const auto fields = message.fields();
  const auto value = [&](std::int16_t field, std::size_t index) {
    return side.value(static_cast<std::size_t>(field), index);
  };
  const auto is_there = [&](const MessageClass::Field& field, std::size_t i, std::size_t index) {
    if (field.also_one != MessageClass::kNone && !is_flag(value(field.also_one, index), '1')) return false;
    if (field.spec->present.also_in_tail && !side.tail_is_there(message.tail())) return false;
    switch (field.spec->present.kind) {
      case PresenceRule::Kind::Always: return true;
      case PresenceRule::Kind::IsOne: return is_flag(value(field.present_field, index), '1');
      case PresenceRule::Kind::IsZero: return is_flag(value(field.present_field, index), '0');
      case PresenceRule::Kind::IsAboveZero: return small_value(value(field.present_field, index)) != 0;
      case PresenceRule::Kind::InChain:
      case PresenceRule::Kind::AnyIsOne: return side.tail_is_there(i);
    }
    return true;
  };
  for (const MessageClass::Group& group : message.groups()) {
    std::size_t count = 1;
    if (group.times != 0) {
      count = group.times;
    } else if (group.repeated) {
      count = small_value(value(group.count, 0));
      if (group.added_count != MessageClass::kNone) {
        const auto added = static_cast<std::size_t>(group.added_count);
        if (is_there(fields[added], added, 0)) count += small_value(side.value(added, 0));
      }
      if (group.at_least_one && count == 0) count = 1;
    }
    if (side.begin(group, count)) continue;
    for (std::size_t index = 0; index < count && !(group.repeated && side.done()); ++index) {
      for (std::size_t i = group.first; i < group.end; ++i) {
        const MessageClass::Field& field = fields[i];
        if (!field.on_air) continue;
        if (field.always || is_there(field, i, index)) {
          side.visit(i, index, [&] {
            return width_of(
                field, [&](std::size_t earlier) { return side.value(earlier, index); }, [&] { return side.rest(); });
          });
        } else {
          side.skip(i, index);
        }
      }
    }
  }
}

/// Where every field of a received message stands: found in one pass, whatever is read afterwards.
class Layout {
 public:
  struct Visit {
    std::uint16_t field;
    std::uint16_t index;
    Extent extent;
  };

  Layout() = default;
  /// `stored` gives the values of layout-selecting integers and of fields that are not sent, by slot.
  void find(const MessageClass& message, std::string_view bits, std::span<const std::string> stored);

  [[nodiscard]] Extent extent(std::size_t field, std::size_t index = 0) const noexcept {
    return extents_[places_[field].first + index * places_[field].stride];
  }
  /// How many elements of a field the message promises.
  [[nodiscard]] std::size_t count(std::size_t field) const noexcept { return places_[field].count; }
  /// Where the last field ends; past the end of a message that is too short.
  [[nodiscard]] std::size_t end() const noexcept { return position_; }

  // The decoding side of walk().
  [[nodiscard]] std::string_view value(std::size_t field, std::size_t index) const noexcept;
  [[nodiscard]] bool tail_is_there(std::size_t field) noexcept;
  [[nodiscard]] std::size_t rest() const noexcept { return done() ? 0 : bits_.size() - position_; }
  bool begin(const MessageClass::Group& group, std::size_t count);
  template <class Width>
  void visit(std::size_t field, std::size_t index, Width&& width) {
    place(field, index, width());
  }
  void skip(std::size_t field, std::size_t index) noexcept;
  [[nodiscard]] bool done() const noexcept { return position_ >= bits_.size(); }

 private:
  /// The elements of a field stand `stride` extents apart: those of a record side by side.
  struct Place {
    std::uint32_t first = 0;
    std::uint32_t stride = 0;
    std::uint32_t count = 0;
  };

  void place(std::size_t field, std::size_t index, std::size_t width) noexcept;

  const MessageClass* message_ = nullptr;
  std::string_view bits_;
  std::span<const std::string> stored_;
  std::size_t position_ = 0;
  enum class Tail : std::uint8_t { Unknown, There, Absent } tail_ = Tail::Unknown;
  std::vector<Place> places_;
  std::vector<Extent> extents_;
};

}  // namespace vorlan
