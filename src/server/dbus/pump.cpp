#include "server/dbus/pump.hpp"

#include <poll.h>
#include <sys/eventfd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <system_error>

namespace vorlan::dbus {

namespace {

constexpr unsigned kMostThreads = 64;

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

/// Without its bus a worker has no one to work for. Its objects go with the process.
[[noreturn]] void end_without_bus(int error) {
  const bool left = error == -ENOTCONN || error == -ECONNRESET || error == -EPIPE;
  if (!left) std::fprintf(stderr, "vorlan: a worker lost its bus: %s\n", std::strerror(-error));
  std::_Exit(left ? EXIT_SUCCESS : EXIT_FAILURE);
}

int make_event() {
  const int made = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  return check(made < 0 ? -errno : made, "event");
}

}  // namespace

Error interrupt(std::string_view source) { return {kInterrupted, source, "User interrupt occurred"}; }

Pump::Pump(sd_bus* bus, Calls& calls) : bus_(bus), calls_(calls), wake_(make_event()) {}

void Pump::run() {
  Lock gate(gate_);
  leader_ = std::this_thread::get_id();
  work(gate, threads_.emplace_back());
}

void Pump::work(Lock& gate, Thread& own) {
  own.id = std::this_thread::get_id();
  for (;;) {
    if (!leads()) {
      ++idle_;
      handed_over_.wait(gate, [&] { return handed_ != nullptr; });
      --idle_;
      leader_ = std::this_thread::get_id();
    }
    const Message call = handed_ ? std::move(handed_) : listen(gate, std::nullopt);
    if (!call) continue;
    own.impatient = own.interrupted = false;
    calls_.answer(call.get());
    if (!leads()) wake_leader();
  }
}

Message Pump::listen(Lock& gate, std::optional<Clock::time_point> end) {
  sd_bus_message* got = nullptr;
  const int processed = sd_bus_process(bus_, &got);
  Message message(got);
  if (processed < 0) end_without_bus(processed);
  if (processed > 0) {
    const bool call = message && sd_bus_message_is_method_call(message.get(), nullptr, nullptr) > 0;
    if (!call || !calls_.admit(message.get())) return nullptr;
    return message;
  }
  std::uint64_t bus_time = UINT64_MAX;
  sd_bus_get_timeout(bus_, &bus_time);
  const int descriptor = sd_bus_get_fd(bus_);
  const int events = sd_bus_get_events(bus_);
  if (descriptor < 0 || events < 0) end_without_bus(std::min(descriptor, events));
  gate.unlock();
  wait_for_input(descriptor, events, wake_.get(), earlier(end, bus_time));
  gate.lock();
  return nullptr;
}

Pump::Thread& Pump::own_thread() noexcept {
  return *std::find_if(threads_.begin(), threads_.end(),
                       [](const Thread& thread) { return thread.id == std::this_thread::get_id(); });
}

void Pump::require_patience() {
  Thread& own = own_thread();
  if (!own.impatient) return;
  own.interrupted = true;
  throw interrupt();
}

void Pump::until(Wait& wait, std::optional<Clock::time_point> end) {
  require_patience();
  Thread& own = own_thread();
  Lock gate(gate_, std::adopt_lock);
  own.wait = &wait;
  const auto goes_on = [&] { return !wait.done_ && !own.impatient && !(end && Clock::now() >= *end); };
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
  own.wait = nullptr;
  static_cast<void>(gate.release());
  require_patience();
}

void Pump::wake_leader() noexcept {
  if ((sd_bus_get_events(bus_) & POLLOUT) != 0) eventfd_write(wake_.get(), 1);
}

bool Pump::add_thread() noexcept try {
  if (threads_.size() == kMostThreads) return false;
  Thread& added = threads_.emplace_back();
  try {
    std::thread([this, &added] {
      Lock gate(gate_);
      work(gate, added);
    }).detach();
  } catch (const std::system_error&) {
    threads_.pop_back();
    return false;
  }
  return true;
} catch (const std::bad_alloc&) {
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
  unsigned cancelled = 0;
  for (Thread& thread : threads_) {
    if (thread.wait == nullptr) continue;
    thread.impatient = true;
    thread.wait->changed_.notify_one();
    ++cancelled;
  }
  return cancelled;
}

Pump::Impatience::Impatience(Pump& pump) noexcept : pump_(pump) {
  Thread& own = pump_.own_thread();
  own.impatient = true;
  own.interrupted = false;
}

Pump::Impatience::~Impatience() {
  Thread& own = pump_.own_thread();
  own.impatient = own.interrupted = false;
}

}  // namespace vorlan::dbus
