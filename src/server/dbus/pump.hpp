// The threads of a worker, and how they share the bus and the library.
#pragma once

#include <chrono>
#include <condition_variable>
#include <list>
#include <mutex>
#include <optional>
#include <thread>

#include "server/dbus/bus.hpp"
#include "server/dbus/worker_process.hpp"

namespace vorlan::dbus {

/// What is done with the calls that come in.
class Calls {
 public:
  /// Whether the caller may call at all; refuses the call if not.
  virtual bool admit(sd_bus_message* call) noexcept = 0;
  /// Answers a call that needs nothing of the library; false if it does.
  virtual bool answer_at_once(sd_bus_message* call) noexcept = 0;
  /// Answers any call; may wait.
  virtual void answer(sd_bus_message* call) noexcept = 0;

 protected:
  ~Calls() = default;
};

/// Takes calls from the bus and has them answered.
///
/// Neither the library's objects nor the bus library may be used by two threads at a time, so there is one lock, the
/// gate, around both. A thread lets go of it only where it waits: for the bus, for the answer of a client's object, for
/// time to pass. One thread at a time, the leader, listens to the bus. It executes what comes in by itself, so that a
/// plain call never changes threads: that would cost a third of a round trip. When the leader waits in the middle of a
/// call, it goes on listening; a call that comes in then is handed to another thread together with the lead. The first
/// is not to execute it on its own stack: it could not go on before the second is done, however long that waits itself,
/// and two calls that wait for each other would never end.
class Pump {
 public:
  using Clock = std::chrono::steady_clock;

  Pump(sd_bus* bus, Calls& calls);
  Pump(const Pump&) = delete;
  Pump& operator=(const Pump&) = delete;

  /// Answers calls until the bus is gone; then the process ends.
  [[noreturn]] void run();

  /// Something that a call waits for. All functions are called with the gate held, as the whole library is.
  class Wait {
   public:
    void finish() noexcept {
      done_ = true;
      changed_.notify_one();
    }

   private:
    friend class Pump;
    std::condition_variable changed_;
    bool done_ = false;
    bool cancelled_ = false;
  };

  /// Lets other calls run until `wait` is finished or the time is over; error 18 if it is cancelled meanwhile.
  void until(Wait& wait, std::optional<Clock::time_point> end = std::nullopt);

  /// Ends everything that is waited for at this moment; the number of waits.
  unsigned cancel() noexcept;

 private:
  using Lock = std::unique_lock<std::mutex>;

  [[noreturn]] void work(Lock& gate);
  /// As leader: one step of listening. The call to be answered, if one has come in.
  Message listen(Lock& gate, std::optional<Clock::time_point> end);
  /// As anyone else, after sending: what the socket did not take is the leader's to send, and it may not know.
  void wake_leader() noexcept;
  void hand_over(Message call) noexcept;
  bool add_thread() noexcept;
  [[nodiscard]] bool leads() const noexcept { return leader_ == std::this_thread::get_id(); }

  sd_bus* bus_;
  Calls& calls_;
  Descriptor wake_;
  std::mutex gate_;
  std::thread::id leader_;
  std::condition_variable handed_over_;
  Message handed_;  ///< goes to an idle thread, and the lead with it
  unsigned idle_ = 0;
  unsigned threads_ = 1;
  std::list<Wait*> waits_;
};

}  // namespace vorlan::dbus
