// What a simulated test set's objects share: time, the air between both sides, and the terminal at its other end.
#pragma once

#include <optional>

#include "simulator/security/an_key_exchange.hpp"
#include "simulator/simulated_clock.hpp"
#include "simulator/terminal/terminal.hpp"
#include "simulator/trace/trace.hpp"

namespace vorlan::simulator {

/// Time-outs of the signalling object count in these.
inline constexpr std::chrono::milliseconds kTimeOutUnit{20};

/// A message from the terminal that has arrived.
struct Arrival {
  int protocol;
  Octets octets;
  std::shared_ptr<TraceEntry> traced;
};

/// Every object of a test set holds it; it holds none of them.
class Simulation {
 public:
  using Milliseconds = std::chrono::milliseconds;

  /// Waits pass at once. The platform's clock moves with them if it was made for that.
  explicit Simulation(const Platform& platform);
  Simulation(const Simulation&) = delete;
  Simulation& operator=(const Simulation&) = delete;
  ~Simulation() { clock_->end(); }

  [[nodiscard]] bool real_time() const { return clock_->real_time(); }
  void set_real_time(bool real_time) { clock_->set_real_time(real_time); }
  /// Since the simulation began.
  [[nodiscard]] Milliseconds now() const { return clock_->ticks() - began_; }
  void wait(Milliseconds time) { clock_->sleep(time); }
  /// CDMA system time in units of 80 ms.
  [[nodiscard]] std::uint64_t system_time() const;

  /// A message of the access network; the terminal has it at once.
  void transmit(int protocol, std::string label, Octets octets);
  /// The terminal's next message that arrives up to then, waiting until it does. Nothing: it is then, or in real time
  /// one of many short waits is over.
  std::optional<Arrival> next_arrival(Milliseconds until);

  Trace trace;
  Terminal terminal;
  AnKeyExchange security;

 private:
  struct OnItsWay {
    Milliseconds due;
    TerminalMessage message;
  };

  std::shared_ptr<SimulatedClock> clock_;
  Milliseconds began_;
  Milliseconds system_time_then_;
  std::vector<OnItsWay> air_;  // in the order of arrival
};

}  // namespace vorlan::simulator
