// The simulated access terminal as scripts see it: what it does, and how it is told to misbehave.
#pragma once

#include <optional>

#include "automation/bind.hpp"
#include "simulator/simulation.hpp"

namespace vorlan::simulator {

/// Protocols are protocol types, MessageIDs those of the terminal's own messages; an argument left out means all. What
/// the terminal is told holds until Behave().
class AccessTerminal final : public BoundObject<AccessTerminal> {
 public:
  using Choice = std::optional<std::int16_t>;

  explicit AccessTerminal(std::shared_ptr<Simulation> simulation) : simulation_(std::move(simulation)) {}

  [[nodiscard]] std::string state() const;
  [[nodiscard]] Value configuration_order() const;
  void set_configuration_order(const Value& protocols);
  [[nodiscard]] std::string proposal(std::int16_t protocol) const;
  void set_proposal(std::int16_t protocol, const std::string& records);
  [[nodiscard]] std::int16_t transaction_id() const { return terminal().negotiation.transaction_id; }
  void set_transaction_id(std::int16_t id);
  [[nodiscard]] std::int16_t subtype(std::int16_t protocol) const;
  [[nodiscard]] std::int16_t session_key_length() const;
  [[nodiscard]] std::int16_t key_time_out() const { return terminal().key_exchange.time_out; }
  void set_key_time_out(std::int16_t seconds);
  [[nodiscard]] std::int32_t answer_delay() const;
  void set_answer_delay(std::int32_t milliseconds);
  [[nodiscard]] bool acquires_reverse_channel() const { return terminal().acquires_reverse_channel; }
  void set_acquires_reverse_channel(bool acquires) { terminal().acquires_reverse_channel = acquires; }
  [[nodiscard]] bool on_reverse_channel() const { return terminal().on_reverse_channel(); }
  void leave_reverse_channel() { terminal().leave_reverse_channel(); }
  [[nodiscard]] Value complaints() const;
  void forget_complaints() { terminal().forget_complaints(); }

  void send(std::int16_t protocol, const std::string& octets);
  void refuse(std::int16_t protocol, Choice attribute);
  void stay_silent(Choice protocol, Choice message_id);
  void answer_late(std::int32_t milliseconds, Choice protocol, Choice message_id);
  void wrong_transaction_id(Choice protocol, Choice message_id);
  void send_garbage(const std::string& octets, Choice protocol, Choice message_id);
  void cheat_in_key_exchange(const std::string& how);
  void behave() { terminal().told.clear(); }

  static constexpr ClassInfo::Texts texts() {
    return {"AccessTerminal", "The simulated access terminal: answers a test set, or misbehaves as it is told.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  [[nodiscard]] Terminal& terminal() const noexcept { return simulation_->terminal; }

  std::shared_ptr<Simulation> simulation_;
};

}  // namespace vorlan::simulator
