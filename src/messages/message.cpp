#include "messages/message.hpp"

#include <algorithm>

#include "automation/error.hpp"
#include "common/bits.hpp"
#include "common/conversions.hpp"
#include "messages/message_object.hpp"

namespace vorlan {

namespace {

/// The encoding side of walk(): stored values in, bits out.
class Encoder {
 public:
  Encoder(const BuildContext& context, BitBuffer& bits) : context_(context), message_(context.message), bits_(bits) {}

  [[nodiscard]] std::string_view value(std::size_t field, std::size_t index) const noexcept {
    return message_.stored(field, index);
  }
  [[nodiscard]] bool tail_is_there(std::size_t field) const noexcept {
    const auto fields = message_.message_class().fields();
    const MessageClass::Field& row = fields[field];
    if (row.spec->present.kind == PresenceRule::Kind::AnyIsOne) {
      return is_flag(value(static_cast<std::size_t>(row.present_field), 0), '1') ||
             is_flag(value(static_cast<std::size_t>(row.present_other), 0), '1');
    }
    for (std::size_t later = field; later < fields.size(); ++later) {
      if (fields[later].spec->present.kind == PresenceRule::Kind::InChain && is_flag(value(later, 0), '1')) return true;
    }
    return false;
  }
  [[nodiscard]] static std::size_t rest() noexcept { return 0; }
  [[nodiscard]] static bool done() noexcept { return false; }
  bool begin(const MessageClass::Group& group, std::size_t count) {
    if (!group.stored_list) return false;
    for (const std::string& element : message_.stored_list(group.first, count)) bits_ += element;
    return true;
  }
  void skip(std::size_t, std::size_t) noexcept {}

  template <class Width>
  void visit(std::size_t field, std::size_t index, Width&&) {
    const MessageClass::Field& row = message_.message_class().field(field);
    switch (row.joins) {
      case MessageClass::Joins::Stored: bits_ += message_.stored(field, index); break;
      case MessageClass::Joins::Built: row.spec->build(context_, bits_); break;
      case MessageClass::Joins::Viewed: bits_ += row.spec->view(message_, index); break;
      case MessageClass::Joins::ConfiguredText: message_.configuration().append(row.spec->from.property, bits_); break;
      case MessageClass::Joins::Configured: bits_ += message_.configured_text(row.spec->from); break;
    }
  }

 private:
  const BuildContext& context_;
  Message& message_;
  BitBuffer& bits_;
};

/// What a list's count can say at most.
std::size_t largest_count(const MessageSpec& message, const FieldSpec& list) noexcept {
  return (std::size_t{1} << message.fields[find_field(message.fields, list.repeat.count)].bits) - 1;
}

}  // namespace

std::string BuildContext::argument(std::size_t n) const { return n < arguments.size() ? arguments[n].to_text() : ""; }

Message::Message(const MessageClass& message_class)
    : ClassObject(message_class.info()),
      class_(message_class),
      texts_(message_class.initial_texts()),
      lists_(message_class.lists()) {
  if (lists_.empty()) return;
  for (std::size_t i = 0; i < class_.fields().size(); ++i) {
    const MessageClass::Field& field = class_.field(i);
    if (field.spec->repeat.times != 0) {
      lists_[static_cast<std::size_t>(field.slot)].assign(field.spec->repeat.times, field.initial);
    }
    resize_lists(i);
  }
}

void Message::raise(const FieldSpec& spec, Fault fault, std::string_view appended) const {
  const std::string_view help = fault == Fault::WrongLength ? spec.wrong_length_help : std::string_view{};
  vorlan::raise(source_of(class_.spec(), spec, fault),
                std::string(text_of(class_.spec(), spec, fault)).append(appended), help);
}

Object& Message::existing(const Ref<Object>& object, std::string_view member) const {
  if (!object) throw Error(ErrorNumber::ObjectNotSet, source_of(class_.spec(), member));
  return *object;
}

// --- building

void Message::initialize(Ref<Object> sector, Ref<Object> test_set, std::string_view encoder_string) {
  Ref<Object> parameters;
  if (class_.spec().takes_sector) {
    parameters = existing(sector, "Initialize").get("PRobj_GlobalParameters").to_object();
  }
  std::swap(sector_, sector);
  std::swap(parameters_, parameters);
  try {
    take_initial_configuration();
  } catch (...) {
    std::swap(sector_, sector);
    std::swap(parameters_, parameters);
    throw;
  }
  test_set_ = std::move(test_set);
  if (!encoder_string.empty()) {
    encoder_mode_ = true;
    encoder_string_ = encoder_string;
  }
  initialized_ = true;
}

std::string Message::configured_text(const Configured& from) const {
  Configuration values = configuration();
  if (from.read != nullptr) return from.read(values);
  return from.bits != 0 ? values.bits(from.property.text, from.bits) : values.text(from.property);
}

void Message::take_initial_configuration() {
  // The configuration may be a script's object and call back: places are looked up when all values are there.
  std::vector<std::pair<const MessageClass::Field*, std::string>> taken;
  for (const MessageClass::Field& field : class_.fields()) {
    if (!field.spec->from.at_initialize) continue;
    if (field.repeated && lists_[static_cast<std::size_t>(field.slot)].empty()) continue;
    taken.emplace_back(&field, configured_text(field.spec->from));
  }
  for (auto& [field, text] : taken) {
    const auto slot = static_cast<std::size_t>(field->slot);
    if (!field->repeated) {
      texts_[slot] = std::move(text);
    } else if (!lists_[slot].empty()) {
      lists_[slot].front() = std::move(text);
    }
  }
}

void Message::check_counts() const {
  if (!class_.checks_counts()) return;
  const MessageSpec& spec = class_.spec();
  for (const MessageClass::Field& field : class_.fields()) {
    if (field.spec->too_few.empty()) continue;
    if (field.two_names && (field.same_as != MessageClass::kNone) != second_names_) continue;
    const Repetition& repeat = field.spec->repeat;
    const std::size_t count =
        repeat.times != 0 ? repeat.times : small_value(stored(find_field(spec.fields, repeat.count)));
    const auto& list = lists_[static_cast<std::size_t>(field.slot)];
    const bool enough = field.spec->on_resize == OnResize::GrowByIndex ? list.size() == count : list.size() >= count;
    const auto end = list.begin() + static_cast<std::ptrdiff_t>(std::min(count, list.size()));
    if (enough && std::none_of(list.begin(), end, [](const auto& element) { return element.empty(); })) continue;
    std::string source(spec.check_source.empty() ? spec.create_source : spec.check_source);
    if (source.empty()) source = source_of(spec, "CreateMessage");
    std::string text(field.spec->too_few);
    if (repeat.times == 0) text.append(std::to_string(count)).append(spec.too_few_end);
    vorlan::raise(source, text);
  }
}

void Message::compose(const BuildContext& context, BitBuffer& bits) {
  check_counts();
  bits += class_.spec().id;
  Encoder encoder(context, bits);
  walk(class_, encoder);
  if (class_.spec().padded) bits.pad();
}

void Message::encode_into(BitBuffer& bits, std::span<const Value> arguments) {
  const MessageSpec& spec = class_.spec();
  if (!initialized_) {
    vorlan::raise(spec.create_source.empty() ? source_of(spec, "CreateMessage") : spec.create_source,
                  spec.not_initialized);
  }
  const BuildContext context{*this, arguments};
  if (spec.create != nullptr) {
    spec.create(context, bits);
  } else if (encoder_mode_) {
    bits += encoder_string_;
  } else {
    compose(context, bits);
  }
}

std::string Message::encode(std::span<const Value> arguments) {
  BitBuffer bits;
  encode_into(bits, arguments);
  return std::string(bits.view());
}

bool Message::create_message(const Ref<Object>& message_object, std::span<const Value> arguments) {
  BitBuffer bits;
  encode_into(bits, arguments);
  if (bits.size() > kMaxMessageBits) throw Error(ErrorNumber::Overflow, source_of(class_.spec(), "CreateMessage"));
  fill_message(bits.view(), existing(message_object, "CreateMessage"));
  return true;
}

// --- setting

void Message::check_letting(const FieldSpec& spec) const {
  if (encoder_mode_) raise(spec, Fault::EncoderMode);
}

std::size_t Message::accepted_width(std::size_t field) const noexcept {
  return width_of(
      class_.field(field), [this](std::size_t counting) { return stored(counting); }, [] { return std::size_t{0}; });
}

void Message::check_width(std::size_t field, std::size_t index, std::string_view value) const {
  const FieldSpec& spec = *class_.field(field).spec;
  bool right = false;
  switch (spec.accepts) {
    case Accepts::OwnWidth: right = value.size() == accepted_width(field); break;
    case Accepts::WholeOctets: right = value.size() % 8 == 0; break;
    case Accepts::OctetsAndSixBits: right = value.size() % 8 == 6; break;
  }
  if (!right) raise(spec, Fault::WrongLength);
  const auto printable = [](char c) { return c >= ' ' && c <= '~'; };
  if (!std::all_of(value.begin(), value.end(), printable)) {
    throw Error(ErrorNumber::TypeMismatch, source_of(class_.spec(), spec, Fault::WrongLength), kNoBitString);
  }
  if (spec.check != nullptr) spec.check(*this, index, value);
}

void Message::let_field(std::size_t field, std::string_view value) {
  const MessageClass::Field& row = class_.field(field);
  check_letting(*row.spec);
  check_width(field, 0, value);
  if (row.spec->view != nullptr) return;
  const bool second_name = row.same_as != MessageClass::kNone;
  const std::size_t target = second_name ? static_cast<std::size_t>(row.same_as) : field;
  std::string& text = texts_[static_cast<std::size_t>(row.slot)];
  if (class_.sized_by(target).empty()) {
    text = value;
    if (!row.spec->sent) layout_known_ = false;
  } else {
    const std::string before = text;
    text = value;
    try {
      resize_lists(target);
    } catch (...) {
      text = before;
      throw;
    }
  }
  if (row.two_names) second_names_ = second_name;
}

void Message::let_field(std::size_t field, std::size_t index, std::string_view value) {
  const MessageClass::Field& row = class_.field(field);
  const FieldSpec& spec = *row.spec;
  check_letting(spec);
  auto& list = lists_[static_cast<std::size_t>(row.slot)];
  const bool grows = spec.on_resize == OnResize::GrowByIndex;
  const std::size_t count = grows ? largest_count(class_.spec(), spec) : list.size();
  if (index >= count && !text_of(class_.spec(), spec, Fault::BeyondCount).empty()) {
    raise(spec, Fault::BeyondCount,
          class_.spec().names_highest_index ? std::to_string(static_cast<std::int64_t>(count) - 1) : std::string());
  }
  check_width(field, index, value);
  if (index >= count) throw Error(ErrorNumber::SubscriptOutOfRange, source_of(class_.spec(), spec, Fault::BeyondCount));
  if (spec.view != nullptr) return;
  if (index >= list.size()) list.resize(index + 1);
  list[index] = value;
  if (row.two_names) second_names_ = row.same_as != MessageClass::kNone;
}

void Message::resize_lists(std::size_t count_field) {
  // All values are read before anything changes: a configuration that fails leaves the lists as they were.
  std::vector<std::pair<std::size_t, std::vector<std::string>>> resized;
  for (const std::uint16_t i : class_.sized_by(count_field)) {
    const MessageClass::Field& row = class_.field(i);
    const FieldSpec& spec = *row.spec;
    if (row.same_as != MessageClass::kNone) continue;
    std::size_t count = small_value(stored(find_field(class_.spec().fields, spec.repeat.count)));
    if (!spec.repeat.added_count.empty()) {
      count += small_value(stored(find_field(class_.spec().fields, spec.repeat.added_count)));
    }
    std::string initial = row.initial;
    if (spec.from.at_count && parameters_) {
      initial = configured_text(spec.from);
    } else if (spec.width.kind != WidthRule::Kind::Fixed) {
      initial.assign(accepted_width(i), '0');
    }
    auto& list = resized.emplace_back(row.slot, std::vector<std::string>()).second;
    if (spec.on_resize != OnResize::StartAfresh) list = lists_[static_cast<std::size_t>(row.slot)];
    if (spec.on_resize == OnResize::GrowByIndex) count = std::min(count, list.size());
    if (spec.first_stays) count = std::max(count, std::size_t{1});
    list.resize(count, initial);
    if (spec.width.kind != WidthRule::Kind::Fixed) {
      // What is kept must have the width that holds now.
      const auto outdated = [&](const std::string& element) { return element.size() != initial.size(); };
      std::replace_if(list.begin(), list.end(), outdated, initial);
    }
  }
  for (auto& [slot, list] : resized) lists_[slot] = std::move(list);
}

// --- getting

std::span<const std::string> Message::stored_list(std::size_t field, std::size_t count) const noexcept {
  const auto& list = lists_[static_cast<std::size_t>(class_.field(field).slot)];
  return std::span(list).first(std::min(count, list.size()));
}

std::size_t Message::stored_count(std::size_t field) const noexcept {
  const MessageClass::Field& row = class_.field(field);
  return row.repeated ? lists_[static_cast<std::size_t>(row.slot)].size() : 1;
}

void Message::store(std::size_t field, std::string_view value) {
  texts_[static_cast<std::size_t>(class_.field(field).slot)] = value;
}

void Message::find_layout() const {
  if (layout_known_) return;
  layout_.find(class_, message_string_, texts_);
  layout_known_ = true;
}

std::string_view Message::received_at_its_place(std::size_t field) const {
  const MessageClass::Field& row = class_.field(field);
  const std::string_view received = message_string_;
  const std::string_view from_here = received.substr(std::min(static_cast<std::size_t>(row.offset), received.size()));
  if (row.spec->get_to_end) return from_here;
  // What stands before a field of known place has a known place itself.
  const auto earlier = [this](std::size_t counting) {
    return class_.field(counting).on_air ? received_at_its_place(counting) : stored(counting);
  };
  return from_here.substr(0, width_of(row, earlier, [&] { return from_here.size(); }));
}

Extent Message::received_extent(std::size_t field, std::size_t index) const {
  find_layout();
  const auto fields = class_.fields();
  Extent found = layout_.extent(field, index);
  for (std::size_t i = field + 1; i < fields.size() && !found.present; ++i) {
    if (fields[i].same_as == static_cast<std::int16_t>(field)) found = layout_.extent(i, index);
  }
  return found;
}

std::string_view Message::unreceived(std::size_t field, std::size_t index) const {
  const FieldSpec& spec = *class_.field(field).spec;
  if (spec.view == nullptr) return stored(field, index);
  viewed_ = spec.view(*this, index);
  return viewed_;
}

std::string_view Message::get_field(std::size_t field) const {
  const MessageClass::Field& row = class_.field(field);
  const FieldSpec& spec = *row.spec;
  if (!received_ && class_.spec().direction == Direction::Parsed) raise(spec, Fault::NotSet);
  if (!received_ || spec.read_stored || !spec.sent || spec.integer) return unreceived(field, 0);
  std::string_view value;
  if (row.offset != MessageClass::kNone) {
    value = received_at_its_place(field);
  } else {
    Extent found =
        received_extent(row.same_as != MessageClass::kNone ? static_cast<std::size_t>(row.same_as) : field, 0);
    if (!found.present) {
      if (!spec.absent.empty()) raise(spec, Fault::Absent);
      // A counted field that is not there was received empty.
      if (spec.width.kind == WidthRule::Kind::OctetsCountedBy) return {};
      return unreceived(field, 0);
    }
    if (spec.get_to_end) found.width = static_cast<std::uint32_t>(message_string_.size());
    value = slice(message_string_, found);
  }
  if (spec.check_received != nullptr) spec.check_received(*this, value);
  return value;
}

std::string_view Message::get_field(std::size_t field, std::size_t index) const {
  const FieldSpec& spec = *class_.field(field).spec;
  const auto check_index = [&](std::size_t count) {
    if (index < count) return;
    if (!text_of(class_.spec(), spec, Fault::GetBeyondCount).empty()) raise(spec, Fault::GetBeyondCount);
    throw Error(ErrorNumber::SubscriptOutOfRange, source_of(class_.spec(), spec, Fault::GetBeyondCount));
  };
  if (!received_) {
    if (class_.spec().direction == Direction::Parsed) raise(spec, Fault::NotSet);
    check_index(stored_count(field));
    return unreceived(field, index);
  }
  find_layout();
  check_index(layout_.count(field));
  const Extent found = received_extent(field, index);
  if (found.present) return slice(message_string_, found);
  if (!spec.absent.empty()) raise(spec, Fault::Absent);
  return unreceived(field, index);
}

// --- receiving

void Message::receive(Ref<Object> message_object) {
  std::string bits = std::move(spare_);
  read_whole_octets(existing(message_object, "PRobj_MessageObject"), bits);
  message_object_ = std::move(message_object);
  spare_ = std::exchange(message_string_, std::move(bits));
  received_ = true;
  layout_known_ = false;
}

void Message::receive(std::string_view bits) {
  message_string_ = bits;
  received_ = true;
  layout_known_ = false;
}

std::string_view Message::checked_message_string() const {
  const MessageSpec& spec = class_.spec();
  if (!received_ && !spec.string_unchecked) {
    vorlan::raise(spec.string_source.empty() ? source_of(spec, "PRstr_MessageString") : spec.string_source,
                  spec.string_not_set.empty() ? spec.not_set : spec.string_not_set);
  }
  return message_string_;
}

std::string Message::message_id() const {
  const MessageSpec& spec = class_.spec();
  if (received_) return message_string_.substr(0, spec.received_id_bits);
  if (spec.id.empty()) {
    vorlan::raise(spec.id_source.empty() ? source_of(spec, "PRstr_MessageID") : spec.id_source,
                  spec.id_not_set.empty() ? spec.not_set : spec.id_not_set);
  }
  return std::string(spec.id);
}

}  // namespace vorlan
