// The test set's signalling object: it sends messages, and collects those that come from the terminal.
#pragma once

#include <deque>
#include <iterator>
#include <limits>
#include <map>

#include "simulator/channels/keyed_objects.hpp"
#include "simulator/simulation.hpp"

namespace vorlan::simulator {

/// Time-outs are in units of 20 ms. Channel, delivery, priority and the flags of a message make no difference here.
class Signalling final : public BoundObject<Signalling> {
 public:
  explicit Signalling(std::shared_ptr<Simulation> simulation) : simulation_(std::move(simulation)) {}

  /// Collects what arrives from now on and begins with the MessageID; at most `capacity` messages wait, the oldest goes
  /// first. Filters of the same kind share what arrives: each gets it.
  std::int32_t add_filter(std::int16_t message_id, std::int16_t message_id_octets, const Value& content,
                          std::int16_t protocol_type, std::int16_t capacity);
  /// Error 9 for an unknown filter.
  void remove_filter(std::int32_t filter);
  /// Whether there was a message in time; it is put into the collection under the label.
  bool wait_for_message(const std::string& label, std::int32_t filter, std::int16_t time_out);
  /// The message waited for last, as a bit string; empty if there was none.
  [[nodiscard]] std::string fetch_message() const;

  void send_message(const std::string& label, std::int16_t channel, const std::string& message,
                    std::int16_t protocol_type, std::int16_t announcement, std::int16_t delivery, std::int16_t priority,
                    std::int16_t when_sent);
  /// The answer is the first message of the same protocol whose MessageID ends in the four bits of the answer code.
  bool send_and_wait(const std::string& label, std::int16_t channel, std::int16_t answers, Ref<Object> message,
                     std::int16_t protocol_type, std::int16_t announcement, std::int16_t delivery,
                     std::int16_t priority, std::int16_t when_sent, const std::string& answer_label,
                     std::int16_t answer_code, std::int16_t time_out);

  Ref<Object> create_message_object() const;
  [[nodiscard]] Ref<Object> messages() const { return messages_; }
  [[nodiscard]] std::int16_t filters() const noexcept {
    return static_cast<std::int16_t>(std::distance(filters_.lower_bound(kFirstFilter), filters_.end()));
  }

  static constexpr ClassInfo::Texts texts() {
    return {"Signalling", "A simulated test set's signalling object: sends, filters and waits for messages.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  static constexpr std::int32_t kFirstFilter = 1;

  struct Filter {
    int mask;  ///< of the MessageID
    int message_id;
    int protocol;
    std::size_t capacity;
    std::deque<Arrival> waiting;
  };

  Filter& filter(std::int32_t handle);
  /// Hands an arrival to the filters.
  void hand_out(Arrival arrival);
  /// Hands out what has arrived up to now.
  void catch_up();
  /// The oldest message in a filter, waiting up to then for one.
  std::optional<Arrival> next_in(std::int32_t filter, std::chrono::milliseconds until);
  /// Makes an arrival the message waited for last; whether there is one.
  bool take(const std::string& label, std::optional<Arrival> arrival);
  [[nodiscard]] static bool is_answer(std::int32_t filter) noexcept { return filter < kFirstFilter; }

  std::shared_ptr<Simulation> simulation_;
  /// An answer is waited for by a filter, too, in front of the script's own: it takes one message, which no other gets.
  std::map<std::int32_t, Filter> filters_;
  std::int32_t next_filter_ = kFirstFilter;
  std::int32_t next_answer_ = std::numeric_limits<std::int32_t>::min();
  Octets fetched_;
  Ref<KeyedCollection> messages_ = make<KeyedCollection>();
};

}  // namespace vorlan::simulator
