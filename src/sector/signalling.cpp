#include "sector/signalling.hpp"

namespace vorlan {

namespace {

constexpr std::int16_t kWaitTimeOut = 100;

}  // namespace

Value Signalling::add_filter(std::int16_t message_id, std::int16_t protocol_type) {
  return access_.call(Role::AddFilter, signalling_, message_id, test_set::kMessageIdOctets, Ref<Object>(),
                      protocol_type, test_set::kFilterCapacity);
}

void Signalling::remove_filter(const Value& filter) { access_.call(Role::RemoveFilter, signalling_, filter); }

bool Signalling::wait(std::string_view label, const Value& filter) {
  return access_.call(Role::WaitForMessage, signalling_, label, filter, kWaitTimeOut).to_boolean();
}

std::string Signalling::fetch() {
  Value message = access_.call(Role::FetchMessage, signalling_);
  auto* bits = message.as<std::string>();
  if (bits == nullptr || bits->find_first_not_of("01") != std::string::npos) {
    raise(kNoReceivedBits);
  }
  return std::move(*bits);
}

void Signalling::send(const SentMessage& message) {
  access_.call(Role::SendMessage, signalling_, message.label, test_set::kAnyChannel, message.bits,
               message.protocol_type, message.announcement, test_set::kReliable, test_set::kPriority,
               message.when_sent);
}

bool Signalling::exchange(const MessageExchange& exchange) {
  return access_
      .call(Role::SendAndWait, signalling_, exchange.label, test_set::kAnyChannel, test_set::kOneAnswer,
            exchange.message, exchange.protocol_type, test_set::kExchange, test_set::kReliable, test_set::kPriority,
            exchange.when_sent, exchange.answer_label, exchange.answer_code, exchange.time_out)
      .to_boolean();
}

Ref<Object> Signalling::new_message_object() { return access_.object(Role::CreateMessageObject, signalling_); }

Ref<Object> Signalling::message(std::string_view label) { return access_.object(Role::MessageItem, messages(), label); }

void Signalling::remove_message(std::string_view label) { access_.call(Role::RemoveMessage, messages(), label); }

const Ref<Object>& Signalling::messages() {
  if (!messages_) messages_ = access_.object(Role::MessageCollection, signalling_);
  return messages_;
}

}  // namespace vorlan
