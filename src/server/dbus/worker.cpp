#include "server/dbus/worker.hpp"

#include <utility>

#include "automation/error.hpp"
#include "server/dbus/names.hpp"
#include "server/dbus/wire_error.hpp"

namespace vorlan::dbus {

namespace {

constexpr std::size_t kMostAdmitted = 256;

/// Waiting is the one thing in the library that takes long, and the one place where other calls may run: anywhere else
/// they could meet an object half changed.
class PumpingClock final : public Clock {
 public:
  PumpingClock(std::shared_ptr<Clock> clock, Pump& pump) : clock_(std::move(clock)), pump_(pump) {}

  [[nodiscard]] LocalTime local_time() const override { return clock_->local_time(); }
  [[nodiscard]] std::chrono::milliseconds ticks() const override { return clock_->ticks(); }
  [[nodiscard]] std::string month_name(int month) const override { return clock_->month_name(month); }
  void sleep(std::chrono::milliseconds time) override {
    if (time.count() <= 0) return;
    Pump::Wait wait;
    pump_.until(wait, Pump::Clock::now() + time);
  }

 private:
  std::shared_ptr<Clock> clock_;
  Pump& pump_;
};

/// Runs what answers a call, and answers with an error what goes wrong in it.
template <class Function>
bool guarded(sd_bus_message* call, Function&& function) noexcept {
  try {
    try {
      return function();
    } catch (const Error& error) {
      send_reply(call, new_error(call, error).get());
    }
  } catch (const Refusal& refusal) {
    send_refusal(call, refusal.name.c_str(), refusal.text.c_str());
  } catch (const std::bad_alloc&) {
    send_refusal(call, SD_BUS_ERROR_NO_MEMORY, "Out of memory.");
  } catch (const std::exception& error) {
    send_refusal(call, SD_BUS_ERROR_FAILED, error.what());
  }
  return true;
}

}  // namespace

Worker::Worker(const Registry& registry, Platform platform, Client client)
    : registry_(registry),
      platform_(std::move(platform)),
      client_(std::move(client)),
      shared_(!client_.name.starts_with(':')),
      bus_(open_session_bus()),
      name_(unique_name(bus_.get())),
      owner_(bus_owner(bus_.get())),
      pump_(bus_.get(), *this),
      interfaces_(registry),
      clients_{bus_.get(), pump_, *this, {}} {
  platform_.clock = std::make_shared<PumpingClock>(platform_.clock, pump_);
  if (shared_) check(sd_bus_request_name(bus_.get(), client_.name.c_str(), 0), client_.name.c_str());
}

bool Worker::admit(sd_bus_message* call) noexcept {
  const std::string_view sender = sd_bus_message_get_sender(call);
  if (sender == client_.name || sender == client_.front) return true;
  // The bus gives no name of a connection to another one later, so an answer of the bus holds for good.
  if (admitted_.contains(sender)) return true;
  if (shared_ && is_of_user(bus_.get(), sender.data(), owner_)) {
    if (admitted_.size() == kMostAdmitted) admitted_.clear();
    admitted_.emplace(sender);
    return true;
  }
  send_refusal(call, SD_BUS_ERROR_ACCESS_DENIED, "These objects belong to another client.");
  return false;
}

bool Worker::answer_at_once(sd_bus_message* call) noexcept {
  return guarded(call, [&] { return dispatch_at_once(Target(call)); });
}

void Worker::answer(sd_bus_message* call) noexcept {
  guarded(call, [&] {
    const Target target(call);
    if (!dispatch_at_once(target)) dispatch(target);
    return true;
  });
}

Reference Worker::name_of(const Ref<Object>& object) {
  if (!object) return {"", "/"};
  if (const auto* client = dynamic_cast<ClientObject*>(object.get())) return client->name();
  return {name_, objects_.path_of(object)};
}

Ref<Object> Worker::object_of(const Reference& name) {
  if (name.service.empty() && name.path == "/") return {};
  const bool own = name.service.empty() || name.service == name_ || (shared_ && name.service == client_.name);
  if (!own) return ClientObject::of(clients_, name);
  if (Object* object = objects_.find(name.path)) return Ref<Object>(object);
  throw Refusal{SD_BUS_ERROR_UNKNOWN_OBJECT, "There is no object " + name.path + " here."};
}

std::string Worker::class_name(const Object& object) {
  const ClassInfo* info = object.class_info();
  return info != nullptr ? interfaces_.of(*info).name() : std::string();
}

}  // namespace vorlan::dbus
