#include "simulator/terminal/terminal.hpp"

#include "simulator/terminal/plain_answers.hpp"

namespace vorlan::simulator {

Terminal::Terminal(SystemTime system_time, Transmit transmit)
    : negotiation(*this), key_exchange(*this, std::move(system_time)), transmit_(std::move(transmit)) {}

std::string Terminal::receive(int protocol, std::span<const std::uint8_t> octets) {
  complaint_.clear();
  answer(protocol, octets);
  return complaint_;
}

void Terminal::answer(int protocol, std::span<const std::uint8_t> octets) {
  if (octets.empty()) {
    complain("an empty message");
    return;
  }
  if (negotiation.receive(protocol, octets)) return;
  if (protocol == AtKeyExchange::kProtocol) {
    key_exchange.receive(octets, negotiation.session_key_length());
    return;
  }
  const PlainAnswer* const row = plain_answer(protocol, octets[0]);
  if (row == nullptr) return;
  if (octets.size() < row->fewest_octets) {
    complain("shorter than its fields");
    return;
  }
  if (row->effect == Effect::TakesChannel) on_reverse_channel_ = acquires_reverse_channel;
  if (row->effect == Effect::ClosesSession) {
    negotiation.reset();
    on_reverse_channel_ = false;
  }
  if (row->effect == Effect::TakesChannel && !on_reverse_channel_) return;
  send(protocol, row->build(octets));
}

void Terminal::send(int protocol, Octets octets) {
  TerminalMessage message{protocol, std::move(octets), answer_delay};
  if (told.alter(message)) transmit_(std::move(message));
}

void Terminal::complain(std::string text) {
  complaint_.append(complaint_.empty() ? "" : "; ").append(text);
  if (complaints_.size() == kMostComplaints) complaints_.erase(complaints_.begin());
  complaints_.push_back(std::move(text));
}

bool Terminal::acquires_within(std::chrono::milliseconds time) {
  if (on_reverse_channel_) return true;
  on_reverse_channel_ = acquires_reverse_channel && time >= kAcquisition;
  return on_reverse_channel_;
}

}  // namespace vorlan::simulator
