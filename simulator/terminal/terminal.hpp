// The simulated access terminal: it takes each message of the access network and answers it on the air.
#pragma once

#include <functional>

#include "simulator/security/at_key_exchange.hpp"
#include "simulator/terminal/negotiation.hpp"

namespace vorlan::simulator {

class Terminal final : private Link {
 public:
  using SystemTime = std::function<std::uint64_t()>;
  using Transmit = std::function<void(TerminalMessage)>;

  Terminal(SystemTime system_time, Transmit transmit);
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  /// Returns what the terminal complains about; empty where it is content.
  std::string receive(int protocol, std::span<const std::uint8_t> octets);
  /// Sends a message of its own accord, unless it has been told otherwise.
  void send(int protocol, Octets octets) override;

  /// Whether it comes within that time; it needs kAcquisition.
  bool acquires_within(std::chrono::milliseconds time);
  [[nodiscard]] bool on_reverse_channel() const noexcept { return on_reverse_channel_; }
  void leave_reverse_channel() noexcept { on_reverse_channel_ = false; }

  [[nodiscard]] const std::vector<std::string>& complaints() const noexcept { return complaints_; }
  void forget_complaints() noexcept { complaints_.clear(); }

  static constexpr std::chrono::milliseconds kAcquisition{100};

  Behaviour told;
  Negotiation negotiation;
  AtKeyExchange key_exchange;
  bool acquires_reverse_channel = true;
  std::chrono::milliseconds answer_delay{20};

 private:
  void complain(std::string text) override;
  [[nodiscard]] const Behaviour& behaviour() const noexcept override { return told; }
  void answer(int protocol, std::span<const std::uint8_t> octets);

  static constexpr std::size_t kMostComplaints = 100;

  Transmit transmit_;
  bool on_reverse_channel_ = false;
  std::string complaint_;
  std::vector<std::string> complaints_;
};

}  // namespace vorlan::simulator
