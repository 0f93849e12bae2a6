// What listings show of a message's rows: fields with width and condition, and the errors it raises.
#include "automation/error.hpp"
#include "codec/member_name.hpp"
#include "messages/message_class.hpp"

namespace vorlan {

namespace {

std::string width_text(const FieldSpec& field) {
  switch (field.width.kind) {
    case WidthRule::Kind::Fixed: return std::to_string(field.bits);
    case WidthRule::Kind::OctetsCountedBy: return "8 x " + std::string(bare_name(field.width.field));
    case WidthRule::Kind::ValuePlus:
      return std::string(bare_name(field.width.field)) + " + " + std::to_string(field.width.addend);
    case WidthRule::Kind::Rest: return "the rest";
  }
  return {};
}

std::string condition_text(const FieldSpec& field) {
  std::string text;
  const std::string name(bare_name(field.present.field));
  switch (field.present.kind) {
    case PresenceRule::Kind::Always: break;
    case PresenceRule::Kind::IsOne: text = "if " + name + " = 1"; break;
    case PresenceRule::Kind::IsZero: text = "if " + name + " = 0"; break;
    case PresenceRule::Kind::IsAboveZero: text = "if " + name + " > 0"; break;
    case PresenceRule::Kind::InChain: text = "if it or a later flag is 1"; break;
    case PresenceRule::Kind::AnyIsOne:
      text = "if " + name + " or " + std::string(bare_name(field.present.other)) + " = 1";
      break;
  }
  if (!field.present.also_one.empty()) text += " and " + std::string(bare_name(field.present.also_one)) + " = 1";
  if (field.present.also_in_tail) text += ", in the tail";
  if (is_repeated(field)) {
    text += text.empty() ? "x " : ", x ";
    text += field.repeat.times != 0 ? std::to_string(field.repeat.times) : std::string(bare_name(field.repeat.count));
    if (!field.repeat.added_count.empty()) text += " + " + std::string(bare_name(field.repeat.added_count));
    if (field.repeat.record != 0) text += " records";
  }
  return text;
}

std::string origin_text(const MessageSpec& message, const FieldSpec& field) {
  if (!message.builds()) return "received";
  if (field.constant) return "constant";
  if (field.from.at_create || (field.build != nullptr && !field.from.property.text.empty())) {
    return "configuration: " + std::string(field.from.property.text);
  }
  if (field.build != nullptr || (field.view != nullptr && field.exposure == Exposure::GetOnly)) return "computed";
  return field.from.exists() ? "set, at first from configuration: " + std::string(field.from.property.text) : "set";
}

}  // namespace

std::vector<FieldInfo> MessageClass::list_fields() const {
  std::vector<FieldInfo> list;
  if (id_bits() != 0) {
    list.push_back({"MessageID",
                    std::to_string(id_bits()),
                    {},
                    std::string(spec_->id),
                    {},
                    spec_->id.empty() ? "received" : "constant"});
  }
  for (const Field& field : fields_) {
    const FieldSpec& spec = *field.spec;
    FieldInfo info{spec.name, width_text(spec), condition_text(spec), {}, {}, origin_text(*spec_, spec)};
    if (!spec.sent || spec.integer) info.condition = "not on the air";
    if (!spec.same_as.empty())
      info.condition += (info.condition.empty() ? "" : ", ") + ("the same as " + std::string(bare_name(spec.same_as)));
    if (spec_->builds() && (is_stored(spec) || spec.constant)) info.initial = field.initial;
    if (spec.meaning != nullptr) info.unit = spec.meaning->listed();
    list.push_back(std::move(info));
  }
  return list;
}

std::vector<ErrorInfo> MessageClass::list_errors() const {
  std::vector<ErrorInfo> list;
  const MessageSpec& message = *spec_;
  const auto add = [&](std::string source, std::string_view text, std::string_view when) {
    if (!text.empty()) list.push_back({std::move(source), std::string(text), std::string(when)});
  };
  if (message.builds()) {
    add(message.create_source.empty() ? source_of(message, "CreateMessage") : std::string(message.create_source),
        message.not_initialized, "CreateMessage before Initialize");
    if (message.takes_sector) {
      list.push_back(error_info(Error(ErrorNumber::ObjectNotSet, source_of(message, "Initialize")),
                                "Initialize without a sector"));
    }
    list.push_back(
        error_info(Error(ErrorNumber::ObjectNotSet, source_of(message, "CreateMessage")), "CreateMessage of Nothing"));
    list.push_back(error_info(Error(ErrorNumber::Overflow, source_of(message, "CreateMessage")),
                              "CreateMessage of more than 32767 bits"));
  }
  if (message.parses()) {
    list.push_back(
        error_info(Error(ErrorNumber::ObjectNotSet, source_of(message, "PRobj_MessageObject")), "set to Nothing"));
    if (!message.string_unchecked) {
      add(message.string_source.empty() ? source_of(message, "PRstr_MessageString")
                                        : std::string(message.string_source),
          message.string_not_set.empty() ? message.not_set : message.string_not_set,
          "get before a message is received");
    }
    if (message.id.empty() && message.received_id_bits != 0) {
      add(message.id_source.empty() ? source_of(message, "PRstr_MessageID") : std::string(message.id_source),
          message.id_not_set.empty() ? message.not_set : message.id_not_set, "get before a message is received");
    }
  }
  struct Kind {
    Fault fault;
    std::string_view when;
  };
  static constexpr Kind kOfSetters[] = {{Fault::EncoderMode, "let in encoder mode"},
                                        {Fault::BeyondCount, "let with an index beyond the count"},
                                        {Fault::WrongLength, "let of another width"}};
  static constexpr Kind kOfGetters[] = {{Fault::GetBeyondCount, "get with an index beyond the count"},
                                        {Fault::Absent, "get of what the received message does not carry"}};
  bool any_set = false;
  const auto add_fault = [&](const FieldSpec& field, const Kind& kind) {
    const bool of_index = kind.fault == Fault::BeyondCount || kind.fault == Fault::GetBeyondCount;
    if (of_index && !is_repeated(field)) return;
    const std::string_view text = text_of(message, field, kind.fault);
    std::string source = source_of(message, field, kind.fault);
    const std::string when = when_of(field.name, source, kind.when);
    if (of_index && text.empty()) {
      list.push_back(error_info(Error(ErrorNumber::SubscriptOutOfRange, source), when));
    } else if (kind.fault == Fault::BeyondCount && message.names_highest_index) {
      add(std::move(source), std::string(text).append("<highest index>"), when);
    } else {
      add(std::move(source), text, when);
    }
  };
  for (const FieldSpec& field : message.fields) {
    if (!is_property(field)) continue;
    const bool settable = is_stored(field) || !field.same_as.empty();
    if (message.builds() && settable && field.exposure != Exposure::GetOnly) {
      for (const Kind& kind : kOfSetters) add_fault(field, kind);
      any_set = true;
      if (field.integer) {
        const std::string source = std::string(message.name).append(".").append(field.name);
        list.push_back(error_info(Error(ErrorNumber::InvalidCall, source, kNoSwitch), "let of another number"));
      }
    }
    if (!field.too_few.empty()) {
      std::string_view source = message.check_source.empty() ? message.create_source : message.check_source;
      std::string text(field.too_few);
      if (field.repeat.times == 0) text.append("<count>").append(message.too_few_end);
      add(source.empty() ? source_of(message, "CreateMessage") : std::string(source), text,
          "CreateMessage with " + std::string(bare_name(field.name)) + " not as its count says");
    }
    if (field.exposure != Exposure::LetOnly) {
      for (const Kind& kind : kOfGetters) add_fault(field, kind);
    }
    if (!message.builds()) {
      add(source_of(message, field, Fault::NotSet), text_of(message, field, Fault::NotSet),
          "get before a message is received");
    }
  }
  vorlan::list_errors(list, message.name, message.further_errors);
  if (any_set) {
    list.push_back(error_info(Error(ErrorNumber::TypeMismatch, source_of(message, "<property>"), kNoBitString),
                              "let of a text with control or non-ASCII characters"));
  }
  return list;
}

}  // namespace vorlan
