// How the terminal has been told to misbehave.
#pragma once

#include <chrono>

#include "simulator/octets.hpp"

namespace vorlan::simulator {

/// A message on its way from the terminal.
struct TerminalMessage {
  int protocol = 0;
  Octets octets;
  std::chrono::milliseconds delay{0};  ///< until it arrives
  std::string note = {};               ///< for the trace
};

enum class Fault : std::uint8_t {
  StaySilent,          ///< the message is not sent
  AnswerLate,          ///< it arrives `delay` later
  WrongTransactionId,  ///< its second octet is one too large
  SendGarbage,         ///< it is replaced by `octets`
};

/// How the terminal cheats in the key exchange.
enum class Cheat : std::uint8_t {
  None,
  WrongKey,       ///< sends another public key than its own, and finds the signature wrong
  DegenerateKey,  ///< sends 1 as its public key, which makes the session key 1
  FalseSuccess,   ///< as WrongKey, but reports a good signature
  FalseFailure,   ///< keeps to the protocol, but reports a bad signature
};

/// What is done to the messages that the terminal sends, and which proposals it refuses.
class Behaviour {
 public:
  static constexpr int kAny = -1;

  struct Rule {
    Fault fault;
    int protocol = kAny;
    int message_id = kAny;  ///< of the message as it would be without the fault
    std::chrono::milliseconds delay{0};
    Octets octets = {};
  };
  struct Refusal {
    int protocol = kAny;
    int attribute = kAny;
  };

  void add(Rule rule) { rules_.push_back(std::move(rule)); }
  void refuse(Refusal refusal) { refusals_.push_back(refusal); }
  void clear() noexcept;

  [[nodiscard]] bool refuses(int protocol, int attribute) const noexcept;
  /// Whether the message is sent at all; it is changed as the rules say.
  bool alter(TerminalMessage& message) const;

  Cheat cheat = Cheat::None;

 private:
  std::vector<Rule> rules_;
  std::vector<Refusal> refusals_;
};

}  // namespace vorlan::simulator
