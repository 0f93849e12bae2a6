// The threads of a worker, and how they share the bus and the library.
#pragma once

#include <chrono>
#include <condition_variable>
#include <list>
#include <mutex>
#include <optional>
#include <string_view>
#include <thread>

#include "automation/error.hpp"
#include "server/dbus/bus.hpp"
#include "server/dbus/worker_process.hpp"

namespace vorlan::dbus {

/// What a call that was cancelled ends with.
inline constexpr std::int32_t kInterrupted = 18;
Error interrupt(std::string_view source = {});

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
  };

  /// Lets other calls run until `wait` is finished or the time is over; error 18 if it is cancelled meanwhile.
  void until(Wait& wait, std::optional<Clock::time_point> end = std::nullopt);
  /// To be called before what is to be waited for begins: error 18 if this thread's call is to wait no more.
  void require_patience();

  /// Ends every call that waits at this moment; their number. Each waits no more, whatever the library makes of error
  /// 18 in between.
  unsigned cancel() noexcept;
  /// Whether error 18 has met the call that this thread answers.
  [[nodiscard]] bool interrupted() noexcept { return own_thread().interrupted; }

  /// While there is one, the thread's call meets error 18 instead of waiting.
  class Impatience {
   public:
    explicit Impatience(Pump& pump) noexcept;
    Impatience(const Impatience&) = delete;
    Impatience& operator=(const Impatience&) = delete;
    ~Impatience();

   private:
    Pump& pump_;
  };

 private:
  /// A thread, and how the call fares that it answers.
  struct Thread {
    std::thread::id id;
    Wait* wait = nullptr;
    bool impatient = false;  ///< it is to wait no more
    bool interrupted = false;
  };
  using Lock = std::unique_lock<std::mutex>;

  [[noreturn]] void work(Lock& gate, Thread& own);
  /// As leader: one step of listening. The call to be answered, if one has come in.
  Message listen(Lock& gate, std::optional<Clock::time_point> end);
  /// As anyone else, after sending: what the socket did not take is the leader's to send, and it may not know.
  void wake_leader() noexcept;
  void hand_over(Message call) noexcept;
  bool add_thread() noexcept;
  [[nodiscard]] Thread& own_thread() noexcept;
  [[nodiscard]] bool leads() const noexcept { return leader_ == std::this_thread::get_id(); }

  sd_bus* bus_;
  Calls& calls_;
  Descriptor wake_;
  std::mutex gate_;
  std::thread::id leader_;
  std::condition_variable handed_over_;
  Message handed_;  ///< goes to an idle thread, and the lead with it
  unsigned idle_ = 0;
  std::list<Thread> threads_;
};

}  // namespace vorlan::dbus
