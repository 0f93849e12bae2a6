// The terminal's side of session configuration (C.S0024-A 7.4 and 13): its own ConfigurationRequests, and its answers
// to those of the access network.
#pragma once

#include <map>

#include "simulator/terminal/attribute_records.hpp"
#include "simulator/terminal/link.hpp"

namespace vorlan::simulator {

class Negotiation {
 public:
  enum class State : std::uint8_t { Idle, Proposing, AnsweringAN, Open };

  explicit Negotiation(Link& link);

  /// A message of the session configuration protocol, or one of those that every protocol has for its configuration.
  /// False if it is neither.
  bool receive(int protocol, std::span<const std::uint8_t> octets);
  /// As if the session had been closed.
  void reset();

  [[nodiscard]] State state() const noexcept { return state_; }
  /// Agreed upon, 0 before.
  [[nodiscard]] int subtype(int protocol) const;
  /// 768 or 1024 bits.
  [[nodiscard]] int session_key_length() const noexcept { return session_key_length_; }

  /// Protocol types, in the order in which the terminal opens its ConfigurationRequests.
  std::vector<int> order;
  /// Of the next ConfigurationRequest or ConfigurationComplete.
  std::uint8_t transaction_id = 0;
  /// The attribute records that the terminal proposes for a protocol; no records where there is no entry.
  std::map<int, Octets> proposals;

 private:
  void start();
  void propose_next();
  void answer(int protocol, std::span<const std::uint8_t> octets);
  void answer_update(int protocol, std::span<const std::uint8_t> octets);
  void take_response(int protocol, std::span<const std::uint8_t> octets);
  void finish(std::span<const std::uint8_t> octets);
  void agree(int protocol, int attribute, std::span<const std::uint8_t> value);
  void check_response(int protocol, std::span<const std::uint8_t> records);

  Link* link_;
  State state_ = State::Idle;
  std::size_t proposed_ = 0;         // of `order`
  std::uint8_t pending_ = 0;         // TransactionID of the request that waits for its response
  std::uint8_t completed_with_ = 0;  // TransactionID of the ConfigurationComplete
  std::map<int, int> subtypes_;
  int session_key_length_ = 768;
};

}  // namespace vorlan::simulator
