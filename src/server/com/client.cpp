#include "server/com/client.hpp"

#include <rpc.h>
#include <rpcdcep.h>

#include "server/com/com_error.hpp"
#include "server/com/foreign_object.hpp"
#include "server/com/turn.hpp"

namespace vorlan::com {

class Client::WatchfulClock final : public Clock {
 public:
  [[nodiscard]] LocalTime local_time() const override { return clock_->local_time(); }
  [[nodiscard]] std::chrono::milliseconds ticks() const override { return clock_->ticks(); }
  [[nodiscard]] std::string month_name(int month) const override { return clock_->month_name(month); }
  void sleep(std::chrono::milliseconds time) override {
    const Pause others_meanwhile;
    std::unique_lock guard(mutex_);
    if (woken_.wait_for(guard, time, [this] { return ended_; })) throw Error(kServerGone, {}, "The client has ended.");
  }
  void end() {
    const std::scoped_lock guard(mutex_);
    ended_ = true;
    woken_.notify_all();
  }

 private:
  std::shared_ptr<Clock> clock_ = native_platform().clock;
  std::mutex mutex_;
  std::condition_variable woken_;
  bool ended_ = false;
};

Client::Client(Directory& directory, const MakePlatform& make_platform)
    : directory_(directory), clock_(std::make_shared<WatchfulClock>()), platform_(make_platform(clock_)) {
  platform_.create_foreign_object = [this](std::string_view name) { return create_foreign_object(name, *this); };
}

void Client::end() { clock_->end(); }

Clients::Clients(Directory& directory, Client::MakePlatform make_platform, HANDLE wake)
    : directory_(directory), make_platform_(std::move(make_platform)), wake_(wake) {}

Clients::~Clients() {
  for (auto& [id, process] : processes_) stop_watching(*process, INVALID_HANDLE_VALUE);
}

void Clients::stop_watching(Process& process, HANDLE completion) noexcept {
  if (process.wait != nullptr) UnregisterWaitEx(process.wait, completion);
  if (process.handle != nullptr) CloseHandle(process.handle);
}

Client& Clients::of_this_call() {
  DWORD id = 0;
  // RpcServerInqCallAttributes tells it, too, but is missing in Wine.
  if (I_RpcBindingInqLocalClientPID(nullptr, &id) != RPC_S_OK) id = 0;
  const std::scoped_lock guard(mutex_);
  const auto known = processes_.find(id);
  return *(known != processes_.end() ? *known->second : start(id)).client;
}

Clients::Process& Clients::start(DWORD id) {
  all_.push_back(std::make_unique<Client>(directory_, make_platform_));
  auto made = std::make_unique<Process>();
  made->clients = this;
  made->id = id;
  made->client = all_.back().get();
  Process& process = *(processes_[id] = std::move(made));
  if (id == 0) return process;
  process.handle = OpenProcess(SYNCHRONIZE, FALSE, id);
  if (process.handle != nullptr) {
    RegisterWaitForSingleObject(&process.wait, process.handle, &on_end, &process, INFINITE, WT_EXECUTEONLYONCE);
  } else if (GetLastError() == ERROR_INVALID_PARAMETER) {  // it has ended meanwhile
    ended_.push_back(id);
    SetEvent(wake_);
  }
  return process;
}

void CALLBACK Clients::on_end(void* context, BOOLEAN) noexcept {
  const auto& process = *static_cast<Process*>(context);
  Clients& clients = *process.clients;
  const std::scoped_lock guard(clients.mutex_);
  clients.ended_.push_back(process.id);
  SetEvent(clients.wake_);
}

std::vector<Client*> Clients::ended() {
  std::vector<Client*> result;
  const std::scoped_lock guard(mutex_);
  for (const DWORD id : ended_) {
    const auto found = processes_.find(id);
    // Not waiting for the callback: it may be at the lock that we hold, and has nothing left to do but that.
    stop_watching(*found->second, nullptr);
    found->second->client->end();
    result.push_back(found->second->client);
    processes_.erase(found);
  }
  ended_.clear();
  return result;
}

}  // namespace vorlan::com
