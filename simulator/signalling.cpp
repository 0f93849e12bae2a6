#include "simulator/signalling.hpp"

#include <algorithm>

#include "common/bits.hpp"
#include "simulator/message_object.hpp"

namespace vorlan::simulator {

namespace {

using S = Signalling;

constexpr BoundMember kMembers[] = {
    method<&S::add_filter>("AddFilter", "MessageID, MessageIDOctets, Content, ProtocolType, Capacity",
                           "Collects messages that arrive from now on; returns the filter's handle."),
    method<&S::remove_filter>("RemoveFilter", "Filter", "Drops a filter and the messages that wait in it."),
    method<&S::wait_for_message>("WaitForMessage", "Label, Filter, TimeOut",
                                 "Takes the oldest message out of a filter: whether there was one in time."),
    method<&S::fetch_message>("FetchMessage", "", "The message that was waited for last, as a bit string."),
    method<&S::send_message>("SendMessage",
                             "Label, Channel, Message, ProtocolType, Announcement, Delivery, Priority, WhenSent",
                             "Sends a message, a bit string."),
    method<&S::send_and_wait>("SendAndWait",
                              "Label, Channel, Answers, Message, ProtocolType, Announcement, Delivery, Priority, "
                              "WhenSent, AnswerLabel, AnswerCode, TimeOut",
                              "Sends a message object and waits for the answer: whether it came in time."),
    method<&S::create_message_object>("CreateMessageObject", "", "A new message object: Length and Octet."),
    property<&S::messages>("Messages", "Messages sent and received, by label."),
    property<&S::filters>("Filters", "Simulator only: how many filters there are."),
};

Octets octets_of_bits(const std::string& bits) {
  if (bits.find_first_not_of("01") != std::string::npos) {
    throw Error(ErrorNumber::TypeMismatch, {}, "a message is a bit string");
  }
  if (bits.size() > kMostMessageBits) throw Error(ErrorNumber::Overflow);
  Octets octets(octets_for(bits.size()));
  pack_bits(bits, octets.data());
  return octets;
}

}  // namespace

std::span<const BoundMember> Signalling::members() { return kMembers; }

std::int32_t Signalling::add_filter(std::int16_t message_id, std::int16_t message_id_octets, const Value&,
                                    std::int16_t protocol_type, std::int16_t capacity) {
  if (message_id < 0 || message_id > 0xFF || message_id_octets != 1) {
    throw Error(ErrorNumber::InvalidCall, {}, "a MessageID is one octet");
  }
  if (capacity < 1) throw Error(ErrorNumber::InvalidCall, {}, "a filter holds one message at least");
  catch_up();
  filters_[next_filter_] = {0xFF, message_id, protocol_type, static_cast<std::size_t>(capacity), {}};
  return next_filter_++;
}

Signalling::Filter& Signalling::filter(std::int32_t handle) {
  const auto found = filters_.find(handle);
  if (found == filters_.end()) {
    throw Error(ErrorNumber::SubscriptOutOfRange, {}, "there is no filter " + std::to_string(handle));
  }
  return found->second;
}

void Signalling::remove_filter(std::int32_t handle) {
  filter(handle);
  filters_.erase(handle);
}

void Signalling::hand_out(Arrival arrival) {
  bool taken = false;
  for (auto& [handle, one] : filters_) {
    if (one.protocol != arrival.protocol || arrival.octets.empty()) continue;
    if ((arrival.octets[0] & one.mask) != one.message_id) continue;
    if (is_answer(handle)) {
      if (!one.waiting.empty()) continue;
      one.waiting.push_back(std::move(arrival));
      return;
    }
    if (one.waiting.size() == one.capacity) one.waiting.pop_front();
    one.waiting.push_back(arrival);
    taken = true;
  }
  if (!taken) arrival.traced->note.append(arrival.traced->note.empty() ? "" : ", ").append("no filter takes it");
}

void Signalling::catch_up() {
  while (auto arrival = simulation_->next_arrival(simulation_->now())) hand_out(std::move(*arrival));
}

std::optional<Arrival> Signalling::next_in(std::int32_t handle, std::chrono::milliseconds until) {
  // Looked up each time: in real time other calls run during the wait. They hand out what arrives, and may drop the
  // filter.
  while (filter(handle).waiting.empty()) {
    const bool over = simulation_->now() >= until;
    if (auto arrival = simulation_->next_arrival(until)) {
      hand_out(std::move(*arrival));
    } else if (over) {
      return std::nullopt;
    }
  }
  auto& waiting = filter(handle).waiting;
  Arrival oldest = std::move(waiting.front());
  waiting.pop_front();
  return oldest;
}

bool Signalling::take(const std::string& label, std::optional<Arrival> arrival) {
  fetched_.clear();
  if (!arrival) return false;
  arrival->traced->label = label;
  messages_->objects.put(label, make<MessageObject>(arrival->octets));
  fetched_ = std::move(arrival->octets);
  return true;
}

bool Signalling::wait_for_message(const std::string& label, std::int32_t handle, std::int16_t time_out) {
  filter(handle);
  const auto until = simulation_->now() + time_out * kTimeOutUnit;
  catch_up();
  return take(label, next_in(handle, until));
}

std::string Signalling::fetch_message() const { return bits_of(fetched_); }

void Signalling::send_message(const std::string& label, std::int16_t, const std::string& message,
                              std::int16_t protocol_type, std::int16_t, std::int16_t, std::int16_t, std::int16_t) {
  Octets octets = octets_of_bits(message);
  messages_->objects.put(label, make<MessageObject>(octets));
  simulation_->transmit(protocol_type, label, std::move(octets));
}

bool Signalling::send_and_wait(const std::string& label, std::int16_t, std::int16_t, Ref<Object> message,
                               std::int16_t protocol_type, std::int16_t, std::int16_t, std::int16_t, std::int16_t,
                               const std::string& answer_label, std::int16_t answer_code, std::int16_t time_out) {
  Octets octets = octets_of(deref(message, "Signalling.SendAndWait"));
  messages_->objects.put(label, std::move(message));
  catch_up();  // what came before is no answer
  const auto until = simulation_->now() + time_out * kTimeOutUnit;
  const std::int32_t handle = next_answer_++;
  constexpr int kCode = 0xF;
  filters_[handle] = {kCode, answer_code & kCode, protocol_type, 1, {}};
  const std::shared_ptr<void> dropped(nullptr, [&](void*) { filters_.erase(handle); });
  simulation_->transmit(protocol_type, label, std::move(octets));
  return take(answer_label, next_in(handle, until));
}

Ref<Object> Signalling::create_message_object() const { return make<MessageObject>(); }

}  // namespace vorlan::simulator
