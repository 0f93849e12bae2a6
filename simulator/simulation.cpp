#include "simulator/simulation.hpp"

#include <algorithm>

namespace vorlan::simulator {

namespace {

std::shared_ptr<SimulatedClock> simulated(const std::shared_ptr<Clock>& clock) {
  auto found = std::dynamic_pointer_cast<SimulatedClock>(clock);
  if (!found) found = std::make_shared<SimulatedClock>(clock ? clock : native_platform().clock);
  found->begin();
  return found;
}

}  // namespace

Simulation::Simulation(const Platform& platform)
    : terminal([this] { return system_time(); },
               [this](TerminalMessage message) {
                 const Milliseconds due = now() + message.delay;
                 const auto later_ones =
                     std::upper_bound(air_.begin(), air_.end(), due,
                                      [](Milliseconds time, const OnItsWay& other) { return time < other.due; });
                 air_.insert(later_ones, {due, std::move(message)});
               }),
      security([this] { return system_time(); }),
      clock_(simulated(platform.clock)),
      began_(clock_->ticks()),
      system_time_then_(since_system_time_began(clock_->local_time())) {}

std::uint64_t Simulation::system_time() const {
  constexpr int kUnit = 80;
  return static_cast<std::uint64_t>((system_time_then_ + now()).count() / kUnit);
}

void Simulation::transmit(int protocol, std::string label, Octets octets) {
  const auto entry = trace.add({now(), true, protocol, std::move(label), octets});
  entry->note = terminal.receive(protocol, octets);
}

std::optional<Arrival> Simulation::next_arrival(Milliseconds until) {
  const auto is_due = [&](Milliseconds time) { return !air_.empty() && air_.front().due <= time; };
  const auto has_come = [&] { return is_due(std::min(now(), until)); };
  if (!has_come()) {
    if (now() >= until) return std::nullopt;
    Milliseconds then = is_due(until) ? air_.front().due : until;
    // Other calls run meanwhile: they may send what is answered sooner, and take what was on its way.
    if (real_time()) then = std::min(then, now() + kTimeOutUnit);
    wait(then - now());
    if (!has_come()) return std::nullopt;
  }
  OnItsWay next = std::move(air_.front());
  air_.erase(air_.begin());
  TerminalMessage& message = next.message;
  auto traced = trace.add({now(), false, message.protocol, {}, message.octets, std::move(message.note)});
  return Arrival{message.protocol, std::move(message.octets), std::move(traced)};
}

}  // namespace vorlan::simulator
