#include "messages/message_class.hpp"

namespace vorlan {

namespace {

std::int16_t index_of(const MessageSpec& message, std::string_view name) {
  return name.empty() ? MessageClass::kNone : static_cast<std::int16_t>(find_field(message.fields, name));
}

bool lets(const MessageSpec& message, const FieldSpec& field) {
  const std::string_view target = field.same_as;
  return message.builds() && field.exposure != Exposure::GetOnly &&
         (is_stored(field) || (is_property(field) && !target.empty()));
}

bool is_stored_list(const FieldSpec& field) {
  return is_repeated(field) && is_stored(field) && field.sent && field.view == nullptr &&
         field.present.kind == PresenceRule::Kind::Always && field.present.also_one.empty() &&
         !field.present.also_in_tail;
}

}  // namespace

std::string source_of(const MessageSpec& message, std::string_view member) {
  return std::string(message.source.empty() ? message.name : message.source).append(".").append(member);
}

std::string source_of(const MessageSpec& message, const FieldSpec& field, Fault fault) {
  std::string_view special;
  switch (fault) {
    case Fault::WrongLength: special = field.length_source; break;
    case Fault::EncoderMode: special = field.encoder_source; break;
    case Fault::BeyondCount: special = field.index_source; break;
    default: break;
  }
  if (!special.empty()) return std::string(special);
  return field.source.empty() ? source_of(message, field.name) : std::string(field.source);
}

std::string_view text_of(const MessageSpec& message, const FieldSpec& field, Fault fault) {
  switch (fault) {
    case Fault::WrongLength: return field.wrong_length;
    case Fault::EncoderMode: return field.in_encoder_mode.empty() ? message.in_encoder_mode : field.in_encoder_mode;
    case Fault::BeyondCount: return field.beyond_count.empty() ? message.beyond_count : field.beyond_count;
    case Fault::GetBeyondCount:
      return field.get_beyond_count.empty() ? message.get_beyond_count : field.get_beyond_count;
    case Fault::NotSet: return field.not_set.empty() ? message.not_set : field.not_set;
    case Fault::Absent: return field.absent;
  }
  return {};
}

MessageClass::MessageClass(const MessageSpec& spec)
    : spec_(&spec), fields_(spec.fields.size()), sized_by_(spec.fields.size()), info_([&] {
        resolve();
        place();
        auto members = list_members();
        return ClassInfo({spec.name, spec.summary, spec.clause}, std::move(members), list_fields(), list_errors());
      }()) {}

std::size_t MessageClass::id_bits() const noexcept {
  return spec_->builds() ? spec_->id.size() : spec_->received_id_bits;
}

void MessageClass::resolve() {
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    const FieldSpec& spec = spec_->fields[i];
    Field& field = fields_[i];
    field.spec = &spec;
    field.repeated = is_repeated(spec);
    field.on_air = spec.sent && !spec.integer;
    field.always =
        spec.present.kind == PresenceRule::Kind::Always && spec.present.also_one.empty() && !spec.present.also_in_tail;
    if (spec.build != nullptr) {
      field.joins = Joins::Built;
    } else if (spec.view != nullptr) {
      field.joins = Joins::Viewed;
    } else if (spec.from.at_create) {
      field.joins = spec.from.read == nullptr && spec.from.bits == 0 ? Joins::ConfiguredText : Joins::Configured;
    }
    if (!spec.too_few.empty()) checks_counts_ = true;
    field.width_field = index_of(*spec_, spec.width.field);
    field.present_field = index_of(*spec_, spec.present.field);
    field.present_other = index_of(*spec_, spec.present.other);
    field.also_one = index_of(*spec_, spec.present.also_one);
    if (spec.present.kind == PresenceRule::Kind::AnyIsOne && tail_ == 0) tail_ = i;
    field.same_as = index_of(*spec_, spec.same_as);
    field.initial =
        !spec.initial.empty() || spec.starts_empty ? std::string(spec.initial) : std::string(spec.bits, '0');
    if (field.repeated) {
      field.slot = static_cast<std::int16_t>(lists_++);
      for (const std::string_view name : {spec.repeat.count, spec.repeat.added_count, spec.width.field}) {
        if (!name.empty()) sized_by_[find_field(spec_->fields, name)].push_back(static_cast<std::uint16_t>(i));
      }
    } else {
      field.slot = static_cast<std::int16_t>(initial_texts_.size());
      initial_texts_.push_back(field.initial);
    }
    // A second name shares the first one's slot.
    if (field.same_as != kNone) {
      Field& first = fields_[static_cast<std::size_t>(field.same_as)];
      field.slot = first.slot;
      field.two_names = first.two_names = is_property(spec) && is_property(*first.spec);
    }
  }
  for (std::size_t i = 0; i < fields_.size();) {
    const Repetition& repeat = fields_[i].spec->repeat;
    const bool repeated = fields_[i].repeated;
    const auto belongs = [&](const FieldSpec& next) {
      return repeated ? repeat.record != 0 && next.repeat.record == repeat.record : !is_repeated(next);
    };
    std::size_t end = i + 1;
    while (end < fields_.size() && belongs(*fields_[end].spec)) ++end;
    groups_.push_back({static_cast<std::uint16_t>(i), static_cast<std::uint16_t>(end), repeated,
                       end == i + 1 && is_stored_list(*fields_[i].spec), repeat.at_least_one, repeat.times,
                       index_of(*spec_, repeat.count), index_of(*spec_, repeat.added_count)});
    i = end;
  }
}

void MessageClass::place() {
  auto offset = static_cast<std::int32_t>(id_bits());
  bool fixed = true;
  for (const Group& group : groups_) {
    for (std::size_t i = group.first; i < group.end; ++i) {
      const FieldSpec& spec = *fields_[i].spec;
      if (!fields_[i].on_air) continue;
      if (group.repeated || !fields_[i].always) fixed = false;
      if (!fixed) continue;
      fields_[i].offset = offset;
      if (spec.width.kind == WidthRule::Kind::Fixed) {
        offset += spec.bits;
      } else {
        fixed = false;
      }
    }
  }
}

std::vector<MemberInfo> MessageClass::list_members() {
  std::vector<MemberInfo> members;
  const auto add = [&](Action action, std::size_t field, MemberInfo member) {
    members.push_back(std::move(member));
    members_.push_back({action, static_cast<std::uint16_t>(field)});
    if (action != Action::Field || spec_->direction == Direction::Parsed) return;
    const FieldSpec& row = *fields_[field].spec;
    if (!row.integer && row.view == nullptr && !is_repeated(row)) members_.back().stored_text = fields_[field].slot;
  };
  const MessageSpec& spec = *spec_;
  if (spec.parses()) {
    add(Action::MessageObject, 0,
        {.name = "PRobj_MessageObject",
         .sets = true,
         .type = ValueType::Object,
         .summary = "Takes a received message object and decodes it."});
    add(Action::MessageString, 0,
        {.name = "PRstr_MessageString",
         .gets = true,
         .type = ValueType::String,
         .summary = "The received message as one bit string."});
  }
  if (!spec.received_flag.empty()) {
    add(Action::ReceivedFlag, 0,
        {.name = spec.received_flag,
         .gets = true,
         .type = ValueType::Boolean,
         .summary = "Whether a received message has been set."});
  }
  if (!spec.id.empty() || (spec.parses() && spec.received_id_bits != 0)) {
    add(Action::MessageId, 0,
        {.name = "PRstr_MessageID",
         .gets = true,
         .type = ValueType::String,
         .summary = spec.parses() ? "MessageID, from the received message once there is one." : "MessageID."});
  }
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    const FieldSpec& field = *fields_[i].spec;
    if (!is_property(field)) continue;
    MemberInfo member{.name = field.name,
                      .gets = field.exposure != Exposure::LetOnly,
                      .lets = lets(spec, field),
                      .type = field.integer ? ValueType::Integer : ValueType::String,
                      .summary = std::string(field.summary)};
    if (is_repeated(field)) {
      member.parameters.push_back({.name = "Index", .type = ValueType::Integer, .optional = field.index_optional});
    }
    add(Action::Field, i, std::move(member));
  }
  if (spec.builds()) {
    MemberInfo initialize{.name = "Initialize",
                          .calls = true,
                          .type = ValueType::Empty,
                          .summary =
                              "Makes the object ready to build. A non-empty encoder string is sent unchanged in "
                              "place of the fields."};
    if (spec.takes_sector) initialize.parameters.push_back({.name = "Sector", .type = ValueType::Object});
    initialize.parameters.push_back({.name = "TestSet", .type = ValueType::Object});
    initialize.parameters.push_back({.name = "EncoderString", .type = ValueType::String, .optional = true});
    add(Action::Initialize, 0, std::move(initialize));
    MemberInfo create{.name = "CreateMessage",
                      .calls = true,
                      .type = ValueType::Boolean,
                      .summary = "Fills a message object with the encoded message and its length; returns True."};
    create.parameters.push_back({.name = "MessageObject", .type = ValueType::Object, .by_reference = true});
    for (const std::string_view name : spec.arguments) {
      create.parameters.push_back({.name = name, .type = ValueType::String, .optional = true});
    }
    add(Action::CreateMessage, 0, std::move(create));
  }
  return members;
}

}  // namespace vorlan
