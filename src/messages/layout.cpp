#include "messages/walk.hpp"

namespace vorlan {

void Layout::find(const MessageClass& message, std::string_view bits, std::span<const std::string> stored) {
  message_ = &message;
  bits_ = bits;
  stored_ = stored;
  position_ = message.id_bits();
  tail_ = Tail::Unknown;
  places_.assign(message.fields().size(), {});
  extents_.clear();
  walk(message, *this);
}

std::string_view Layout::value(std::size_t field, std::size_t index) const noexcept {
  const MessageClass::Field& row = message_->field(field);
  if (!row.on_air) return stored_[static_cast<std::size_t>(row.slot)];
  const Place& place = places_[field];
  if (place.count == 0) return {};
  const Extent found = extent(field, place.count > 1 ? index : 0);
  return found.present ? slice(bits_, found) : std::string_view{};
}

bool Layout::tail_is_there(std::size_t field) noexcept {
  const auto something_is_left = [this] { return !done() && bits_.find('1', position_) != std::string_view::npos; };
  if (message_->field(field).spec->present.kind == PresenceRule::Kind::InChain) return something_is_left();
  if (tail_ == Tail::Unknown) tail_ = something_is_left() ? Tail::There : Tail::Absent;
  return tail_ == Tail::There;
}

bool Layout::begin(const MessageClass::Group& group, std::size_t count) {
  const auto first = static_cast<std::uint32_t>(extents_.size());
  const auto rows = static_cast<std::uint32_t>(group.end - group.first);
  for (std::uint32_t row = 0; row < rows; ++row) {
    places_[group.first + row] = {first + row, rows, static_cast<std::uint32_t>(count)};
  }
  extents_.resize(first + rows * count, Extent{.offset = static_cast<std::uint32_t>(bits_.size())});
  return false;
}

void Layout::place(std::size_t field, std::size_t index, std::size_t width) noexcept {
  const Place& place = places_[field];
  extents_[place.first + index * place.stride] = {static_cast<std::uint32_t>(position_),
                                                  static_cast<std::uint32_t>(width), true};
  position_ += width;
}

void Layout::skip(std::size_t field, std::size_t index) noexcept {
  const Place& place = places_[field];
  extents_[place.first + index * place.stride].present = false;
}

}  // namespace vorlan
