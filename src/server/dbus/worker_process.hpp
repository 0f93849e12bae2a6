// Starting a worker process, from the front's side.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <utility>

namespace vorlan::dbus {

/// A file descriptor that is closed with its owner.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) noexcept : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor();
  [[nodiscard]] int get() const noexcept { return number_; }

 private:
  int number_;
};

/// In a worker, the descriptor to which it writes its name on the bus once it can be called.
inline constexpr int kReadyDescriptor = 3;

/// A child that runs "<program> serve --worker <client> --front <front> --front-process <this process>". It is killed,
/// and nothing of it remains, when its owner lets go of it.
class WorkerProcess {
 public:
  WorkerProcess(const std::string& program, const std::string& client, const std::string& front);

  /// What the worker writes to kReadyDescriptor.
  [[nodiscard]] const Descriptor& ready() const noexcept { return ready_; }
  void close_ready() noexcept { ready_ = Descriptor(); }
  /// Becomes readable when the worker has ended.
  [[nodiscard]] const Descriptor& end() const noexcept { return end_; }
  void kill() noexcept;
  /// Of a worker that has ended: how, where nobody meant it to; else nothing.
  [[nodiscard]] std::string wait();

 private:
  struct Child {
    pid_t process = -1;
    Child() = default;
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child();
  };

  Child child_;
  Descriptor ready_;
  Descriptor end_;
  bool killed_ = false;
};

/// Becomes readable when the process has ended. Nothing if there is no such process; a thread is none.
std::optional<Descriptor> watch_process(pid_t process);
/// Whether a process of this number runs, and as which user.
bool is_process_of(pid_t process, unsigned user) noexcept;

}  // namespace vorlan::dbus
