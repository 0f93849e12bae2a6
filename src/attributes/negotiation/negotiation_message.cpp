#include "attributes/negotiation/negotiation_message.hpp"

#include <algorithm>

#include "attributes/index_of.hpp"
#include "automation/error.hpp"
#include "common/conversions.hpp"
#include "messages/message_object.hpp"

namespace vorlan {

namespace {

constexpr std::size_t kOctet = 8;
constexpr std::size_t kTransactionBits = 8;

}  // namespace

NegotiationMessage::NegotiationMessage(const NegotiationClass& message_class)
    : ClassObject(message_class.info()),
      class_(message_class),
      transaction_id_(message_class.spec().transaction_id),
      attributes_(message_class.spec().getters.size()),
      settings_(message_class.settings()) {}

// --- building

void NegotiationMessage::initialize(Ref<Object> message_object, std::string_view encoder_string) {
  message_object_ = std::move(message_object);
  if (!encoder_string.empty()) {
    encoder_mode_ = true;
    encoder_string_ = encoder_string;
    message_string_ = encoder_string;
    index_known_ = false;
  }
  initialized_ = true;
}

void NegotiationMessage::let_transaction_id(std::string_view bits) {
  if (encoder_mode_) {
    raise(class_.source("PRstr_TransactionID"), "Encoder and this property cannot be used simultaneously.");
  }
  if (bits.size() != kTransactionBits) {
    raise(class_.source("PRstr_TransactionID"), "Length of <TransactionID> field should be 8 bits.");
  }
  transaction_id_ = bits;
}

std::string NegotiationMessage::encode(std::string_view attribute_records) const {
  if (!initialized_) raise(class_.source("CreateMessage"), class_.not_initialized());
  if (encoder_mode_) return encoder_string_;
  std::string bits;
  bits.reserve(class_.spec().id.size() + kTransactionBits + attribute_records.size() + kOctet);
  bits.append(class_.spec().id).append(transaction_id_).append(attribute_records);
  add_padding(bits);
  return bits;
}

bool NegotiationMessage::create_message(const Ref<Object>& message_object, std::string_view attribute_records) {
  const std::string bits = encode(attribute_records);
  if (bits.size() > kMaxMessageBits) throw Error(ErrorNumber::Overflow, class_.source("CreateMessage"));
  if (!message_object) throw Error(ErrorNumber::ObjectNotSet, class_.source("CreateMessage"));
  fill_message(bits, *message_object);
  return true;
}

// --- taking apart

void NegotiationMessage::receive(Ref<Object> message_object) {
  if (!message_object) throw Error(ErrorNumber::ObjectNotSet, class_.source("PRobj_MessageObject"));
  std::string bits;
  read_whole_octets(*message_object, bits);
  message_object_ = std::move(message_object);
  take(std::move(bits));
}

void NegotiationMessage::receive(std::string_view bits) { take(std::string(bits)); }

void NegotiationMessage::take(std::string bits) noexcept {
  message_string_ = std::move(bits);
  received_ = true;
  index_known_ = false;
  listed_ = class_.spec().lists_at_once;
  listed_count_ = 0;
}

const AttributeRecordIndex& NegotiationMessage::index() const {
  if (!index_known_) {
    index_.read(message_string_);
    index_known_ = true;
  }
  return index_;
}

std::string_view NegotiationMessage::message_id() const noexcept {
  return received_ ? std::string_view(message_string_).substr(0, kOctet) : class_.spec().id;
}

std::string_view NegotiationMessage::transaction_id() const noexcept {
  if (!received_) return transaction_id_;
  return std::string_view(message_string_).substr(std::min(kOctet, message_string_.size()), kTransactionBits);
}

std::string_view NegotiationMessage::checked_message_string() const {
  if (!received_) raise(class_.source("PRstr_MessageString"), class_.not_set());
  return message_string_;
}

std::string_view NegotiationMessage::record(std::string_view attribute_id, std::size_t n) const {
  return index().find(message_string_, attribute_id, n);
}

std::size_t NegotiationMessage::count(std::string_view attribute_id) const {
  if (!received_) raise(class_.source("PRint_AttributeCount"), class_.not_counted(attribute_id));
  return index().count(attribute_id);
}

std::string_view NegotiationMessage::accepted(std::string_view member, std::string_view attribute_id,
                                              std::size_t n) const {
  if (attribute_id.size() != kOctet && attribute_id.size() != 2 * kOctet) {
    raise(class_.source(member), NegotiationClass::kWrongId);
  }
  if (!received_) raise(class_.source(member), class_.not_searched(attribute_id));
  const std::string_view found = record(attribute_id, n);
  return found.substr(std::min(kOctet + attribute_id.size(), found.size()));
}

Attribute& NegotiationMessage::attribute(const AttributeGetter& getter, std::size_t n, std::string_view attribute_id) {
  if (!received_) raise(class_.source(getter), class_.failed_without_message(getter));
  Ref<Attribute>& object = attributes_[static_cast<std::size_t>(&getter - class_.spec().getters.data())];
  if (!object) object = getter.make();
  std::string_view searched = attribute_id;
  if (searched.empty()) searched = getter.searched.empty() ? object->stored_id() : getter.searched;
  const std::string_view found = record(searched, n);
  if (found.empty() && class_.spec().refuses_missing) raise(class_.source(getter), class_.failed(getter));
  object->receive(found);
  return *object;
}

std::int16_t NegotiationMessage::flow_number() const {
  const std::string source = class_.source("GetFlowNumber");
  if (message_string_.empty()) raise(source, class_.not_set());
  if (message_string_.size() == AttributeRecordIndex::kFirstRecord) raise(source, class_.no_records());
  constexpr std::size_t kFlows = 32;
  std::int16_t flow = -1;
  for (const Extent& place : index().records()) {
    const std::string_view id = slice(message_string_, {place.offset + std::uint32_t{kOctet}, 2 * kOctet});
    const std::size_t low_octet = small_value(id.substr(std::min(kOctet, id.size())));
    if (id.size() == 2 * kOctet && low_octet < kFlows) flow = static_cast<std::int16_t>(low_octet);
  }
  if (flow < 0) raise(source, class_.no_flow());
  return flow;
}

std::string_view NegotiationMessage::listed_record(std::size_t n) const {
  if (!listed_ || n >= index().records().size()) {
    raise(class_.source("ReturnAttributeRecord"), NegotiationClass::kNoEntry);
  }
  return slice(message_string_, index().records()[n]);
}

std::string_view NegotiationMessage::enhanced_idle_state() const {
  if (!received_) raise(class_.source(NegotiationClass::kEnhancedIdleStateSource), class_.not_set());
  constexpr std::string_view kIdleStateProtocolType = "0000000000001100";
  const std::string_view found = record(kIdleStateProtocolType);
  return found.substr(std::min(kOctet + kIdleStateProtocolType.size(), found.size()));
}

// --- the late-bound face

Value NegotiationMessage::invoke_property(const NegotiationClass::Member& member, bool assigns,
                                          std::span<Value> arguments) {
  using enum NegotiationAction;
  switch (member.action) {
    case MessageString:
      if (!assigns) return checked_message_string();
      receive(arguments[0].to_text());
      return {};
    case TransactionId:
      if (!assigns) return transaction_id();
      let_transaction_id(arguments[0].to_text());
      return {};
    default: break;
  }
  Value& setting = settings_[member.index];
  if (!assigns) return setting;
  setting = arguments[0].converted_to(setting.type());
  return {};
}

Value NegotiationMessage::invoke_lookup(const NegotiationClass::Member& member, std::span<Value> arguments) {
  using enum NegotiationAction;
  const auto text = [&](std::size_t i) { return i < arguments.size() ? arguments[i].to_text() : std::string(); };
  const auto number = [&](std::size_t i) { return i < arguments.size() ? index_of(arguments[i]) : 0; };
  switch (member.action) {
    case AttributeCount: return static_cast<std::int16_t>(count(text(0)));
    case Getter: return Ref<Object>(&attribute(class_.spec().getters[member.index], number(0), text(1)));
    case Record: return listed_record(number(0));
    case RecordOfAttribute: return record(text(1), number(0));
    case ValueId: return accepted("PRstr_ValId", text(0), number(1));
    case AttributeValue: return accepted("PRstr_AttrVal", text(0), number(1));
    default: return {};
  }
}

Value NegotiationMessage::invoke_member(int index, Access access, std::span<Value> arguments) {
  using enum NegotiationAction;
  const NegotiationClass::Member& member = class_.member(static_cast<std::size_t>(index));
  const bool assigns = access == Access::Let || access == Access::Set;
  switch (member.action) {
    case MessageString:
    case TransactionId:
    case Setting: return invoke_property(member, assigns, arguments);
    case MessageId: return message_id();
    case MessageObject: receive(arguments[0].to_object()); return {};
    case Initialize:
      initialize(arguments[0].to_object(), arguments.size() > 1 ? arguments[1].to_text() : std::string());
      return {};
    case CreateMessage:
      return create_message(arguments[0].to_object(), arguments.size() > 1 ? arguments[1].to_text() : std::string());
    case FlowNumber: arguments[0] = flow_number(); return true;
    case Decode:
      listed_count_ = Value(static_cast<std::int32_t>(this->index().records().size())).to_integer();
      listed_ = true;
      return {};
    case RecordCount: return listed_count_;
    case EnhancedIdleState: return enhanced_idle_state();
    default: return invoke_lookup(member, arguments);
  }
}

}  // namespace vorlan
