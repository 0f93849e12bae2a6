#include "server/dbus/pump.hpp"

#include <poll.h>
#include <sys/eventfd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <system_error>

#include "automation/error.hpp"

namespace vorlan::dbus {

namespace {

constexpr unsigned kMostThreads = 64;
constexpr std::int32_t kInterrupted = 18;

using std::chrono::duration_cast;
using std::chrono::microseconds;
using std::chrono::nanoseconds;
using std::chrono::seconds;

/// The bus tells time in microseconds of the same clock; all ones is never.
std::optional<Pump::Clock::time_point> earlier(std::optional<Pump::Clock::time_point> end, std::uint64_t of_bus) {
  if (of_bus == UINT64_MAX) return end;
  const Pump::Clock::time_point bus{duration_cast<Pump::Clock::duration>(microseconds(of_bus))};
  return end ? std::min(*end, bus) : bus;
}

void wait_for_input(int bus, int events, int wake, std::optional<Pump::Clock::time_point> end) {
  std::array<pollfd, 2> polled{{{bus, static_cast<short>(events), 0}, {wake, POLLIN, 0}}};
  timespec rest{};
  if (end) {
    const auto left = std::max(nanoseconds(0), duration_cast<nanoseconds>(*end - Pump::Clock::now()));
    rest.tv_sec = duration_cast<seconds>(left).count();
    rest.tv_nsec = (left % seconds(1)).count();
  }
  // Woken too early, by a signal for one, the leader comes round again.
  const int ready = ppoll(polled.data(), polled.size(), end ? &rest : nullptr, nullptr);
  eventfd_t times = 0;
  if (ready > 0 && polled[1].revents != 0) eventfd_read(wake, &times);
}

int make_event() {
  const int made = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  return check(made < 0 ? -errno : made, "event");
}

}  // namespace

Pump::Pump(sd_bus* bus, Calls& calls) : bus_(bus), calls_(calls), wake_(make_event()) {}

void Pump::run() {
  Lock gate(gate_);
  leader_ = std::this_thread::get_id();
  work(gate);
}

void Pump::work(Lock& gate) {
  for (;;) {
    if (!leads()) {
      ++idle_;
      handed_over_.wait(gate, [&] { return handed_ != nullptr; });
      --idle_;
      leader_ = std::this_thread::get_id();
    }
    const Message call = handed_ ? std::move(handed_) : listen(gate, std::nullopt);
    if (!call) continue;
    calls_.answer(call.get());
    if (!leads()) wake_leader();
  }
}

Message Pump::listen(Lock& gate, std::optional<Clock::time_point> end) {
  sd_bus_message* got = nullptr;
  const int processed = sd_bus_process(bus_, &got);
  Message message(got);
  // Without its bus a worker has no one to work for. Its objects go with the process.
  if (processed < 0) std::_Exit(EXIT_SUCCESS);
  if (processed > 0) {
    const bool call = message && sd_bus_message_is_method_call(message.get(), nullptr, nullptr) > 0;
    if (!call || !calls_.admit(message.get())) return nullptr;
    return message;
  }
  std::uint64_t bus_time = UINT64_MAX;
  sd_bus_get_timeout(bus_, &bus_time);
  const int descriptor = sd_bus_get_fd(bus_);
  const int events = sd_bus_get_events(bus_);
  if (descriptor < 0 || events < 0) std::_Exit(EXIT_SUCCESS);
  gate.unlock();
  wait_for_input(descriptor, events, wake_.get(), earlier(end, bus_time));
  gate.lock();
  return nullptr;
}

void Pump::until(Wait& wait, std::optional<Clock::time_point> end) {
  Lock gate(gate_, std::adopt_lock);
  const auto place = waits_.insert(waits_.end(), &wait);
  const auto goes_on = [&] { return !wait.done_ && !wait.cancelled_ && !(end && Clock::now() >= *end); };
  if (!leads()) wake_leader();
  while (goes_on()) {
    if (leads()) {
      Message call = listen(gate, end);
      if (call && !calls_.answer_at_once(call.get())) hand_over(std::move(call));
    } else if (end) {
      wait.changed_.wait_until(gate, *end);
    } else {
      wait.changed_.wait(gate);
    }
  }
  waits_.erase(place);
  static_cast<void>(gate.release());
  if (wait.cancelled_ && !wait.done_) throw Error(kInterrupted, {}, "User interrupt occurred");
}

void Pump::wake_leader() noexcept {
  if ((sd_bus_get_events(bus_) & POLLOUT) != 0) eventfd_write(wake_.get(), 1);
}

bool Pump::add_thread() noexcept try {
  if (threads_ == kMostThreads) return false;
  std::thread([this] {
    Lock gate(gate_);
    work(gate);
  }).detach();
  ++threads_;
  return true;
} catch (const std::system_error&) {
  return false;
}

void Pump::hand_over(Message call) noexcept {
  if (idle_ == 0 && !add_thread()) {
    return send_refusal(call.get(), SD_BUS_ERROR_LIMITS_EXCEEDED, "Too many calls wait at a time.");
  }
  handed_ = std::move(call);
  leader_ = {};
  handed_over_.notify_one();
}

unsigned Pump::cancel() noexcept {
  for (Wait* wait : waits_) {
    wait->cancelled_ = true;
    wait->changed_.notify_one();
  }
  return static_cast<unsigned>(waits_.size());
}

}  // namespace vorlan::dbus
