// Starting a worker process, from the front's side.
#pragma once

#include <sys/types.h>

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

struct WorkerProcess {
  pid_t process = -1;
  Descriptor ready;  ///< what the worker writes to kReadyDescriptor
};

/// Runs "<program> serve --worker <client> --front <front> --front-process <this process>".
WorkerProcess start_worker(const std::string& program, const std::string& client, const std::string& front);

/// Becomes readable when the process has ended.
Descriptor watch_process(pid_t process);
/// Whether a process of this number runs, and as which user.
bool is_process_of(pid_t process, unsigned user) noexcept;

}  // namespace vorlan::dbus
