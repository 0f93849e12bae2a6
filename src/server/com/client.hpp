// The processes that use the server. Each has a platform, turns and an end of its own.
#pragma once

#include <windows.h>

#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/platform.hpp"
#include "server/com/variant.hpp"

namespace vorlan::com {

class Client;

/// Which object is known outside as what.
class Directory {
 public:
  virtual Ref<Object> object_of(IUnknown* unknown, Client& client) = 0;
  virtual IDispatch* face_of(const Ref<Object>& object, Client& client) = 0;

 protected:
  ~Directory() = default;
};

/// One script's process. What is created for it works on its platform; simulated time is its own.
class Client final : public Objects {
 public:
  /// Gets a clock whose sleep ends with error 462 when the client has; makes a platform of it.
  using MakePlatform = std::function<Platform(std::shared_ptr<Clock> clock)>;

  Client(Directory& directory, const MakePlatform& make_platform);
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  Ref<Object> object_of(IUnknown* unknown) override { return directory_.object_of(unknown, *this); }
  IDispatch* face_of(const Ref<Object>& object) override { return directory_.face_of(object, *this); }

  [[nodiscard]] Platform& platform() noexcept { return platform_; }
  /// What its calls take turns by.
  [[nodiscard]] std::mutex& turns() noexcept { return turns_; }
  /// Wakes the client's calls that sleep.
  void end();

 private:
  class WatchfulClock;

  Directory& directory_;
  std::mutex turns_;
  std::shared_ptr<WatchfulClock> clock_;
  Platform platform_;
};

/// Finds the client of a call, and sees clients end: a script that is killed lets go of nothing, and COM itself takes
/// minutes to notice.
class Clients {
 public:
  /// `wake` is set when a client has ended.
  Clients(Directory& directory, Client::MakePlatform make_platform, HANDLE wake);
  Clients(const Clients&) = delete;
  Clients& operator=(const Clients&) = delete;
  ~Clients();

  /// The client whose call this thread answers. Callers that the system does not tell apart are one client.
  Client& of_this_call();
  /// The clients that ended since the last time, their sleeping calls woken.
  std::vector<Client*> ended();

 private:
  struct Process {
    Clients* clients = nullptr;
    DWORD id = 0;
    HANDLE handle = nullptr;  // null: not to be watched
    HANDLE wait = nullptr;
    Client* client = nullptr;
  };

  Process& start(DWORD id);
  static void CALLBACK on_end(void* context, BOOLEAN timed_out) noexcept;
  static void stop_watching(Process& process, HANDLE completion) noexcept;

  Directory& directory_;
  Client::MakePlatform make_platform_;
  HANDLE wake_;
  std::mutex mutex_;
  std::map<DWORD, std::unique_ptr<Process>> processes_;
  std::vector<DWORD> ended_;
  /// They stay as long as the server does, a kilobyte each: objects may outlive the client that made them, having been
  /// handed to another, and need their platform.
  std::vector<std::unique_ptr<Client>> all_;
};

}  // namespace vorlan::com
