#include "server/dbus/front.hpp"

#include <sys/epoll.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <optional>
#include <stdexcept>
#include <system_error>

#include "server/dbus/names.hpp"
#include "server/dbus/worker_process.hpp"

namespace vorlan::dbus {

/// A client and its worker.
struct Front::Session {
  Front& front;
  std::string client;  ///< unique bus name; or the bus name of an open session
  WorkerProcess process;
  std::string worker = {};            ///< its unique bus name; empty until it can be called
  std::vector<Message> waiting = {};  ///< calls that came before that
  Source ready = {};
  Source worker_end = {};
  std::string opener = {};  ///< of an open session: the connection that asked for it
  pid_t holder = -1;        ///< and the process that it lasts as long as
  Descriptor holder_watch{};
  Source holder_end = {};
  std::vector<Message> closing = {};  ///< calls that are answered when the worker has ended
  bool lost = false;                  ///< the worker has left the bus, and its end is about to be noticed
  unsigned under_way = 0;             ///< calls that the worker has not answered yet
};

/// A call that was passed on to a worker.
struct Front::PassedOn {
  Front& front;
  std::string worker;
  Message call;
};

namespace {

/// The bus counts the calls that the front waits for, and none of its clients is to use them up for all others.
constexpr std::size_t kMostCalls = 500;
/// Each has a process and up to three open files here.
constexpr std::size_t kMostSessions = 200;
/// Of one connection, or for one process.
constexpr std::ptrdiff_t kMostOpened = 16;

constexpr const char* kOwnerOnly = "Only the user who owns the bus may use this server.";
constexpr const char* kClientsLeaving =
    "type='signal',sender='org.freedesktop.DBus',interface='org.freedesktop.DBus',member='NameOwnerChanged',arg2=''";

/// As many open files as the system lets the process have.
void raise_file_limit() noexcept {
  rlimit limit{};
  if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return;
  limit.rlim_cur = limit.rlim_max;
  setrlimit(RLIMIT_NOFILE, &limit);
}

Loop make_loop() {
  sd_event* loop = nullptr;
  check(sd_event_new(&loop), "event loop");
  return Loop(loop);
}

}  // namespace

Front::Front(const Registry& registry, std::string program)
    : registry_(registry),
      program_(std::move(program)),
      interfaces_(registry),
      loop_(make_loop()),
      bus_(open_session_bus()),
      name_(unique_name(bus_.get())),
      owner_(bus_owner(bus_.get())) {
  raise_file_limit();
  sigset_t signals;
  sigemptyset(&signals);
  for (const int signal : {SIGTERM, SIGINT}) sigaddset(&signals, signal);
  sigprocmask(SIG_BLOCK, &signals, nullptr);
  for (const int signal : {SIGTERM, SIGINT}) {
    check(sd_event_add_signal(loop_.get(), nullptr, signal, nullptr, nullptr), "signals");
  }
  check(sd_bus_add_filter(
            bus_.get(), nullptr,
            [](sd_bus_message* message, void* front, sd_bus_error*) {
              return static_cast<Front*>(front)->on_call(message);
            },
            this),
        "calls");
  // Before any client can know the server, so that no client leaves unnoticed.
  check(sd_bus_add_match(
            bus_.get(), nullptr, kClientsLeaving,
            [](sd_bus_message* signal, void* front, sd_bus_error*) {
              const char* name = nullptr;
              if (sd_bus_message_read_basic(signal, 's', static_cast<void*>(&name)) > 0) {
                static_cast<Front*>(front)->on_client_left(name);
              }
              return 0;
            },
            this),
        "clients");
  check(sd_bus_attach_event(bus_.get(), loop_.get(), SD_EVENT_PRIORITY_NORMAL), "event loop");
  check(sd_bus_set_exit_on_disconnect(bus_.get(), 1), "event loop");
  const int named = sd_bus_request_name(bus_.get(), kServerName, 0);
  if (named == -EEXIST) throw std::runtime_error("there is a server on this bus already");
  check(named, kServerName);
}

Front::~Front() = default;

void Front::run() { check(sd_event_loop(loop_.get()), "event loop"); }

int Front::on_call(sd_bus_message* call) noexcept {
  if (sd_bus_message_is_method_call(call, nullptr, nullptr) <= 0) return 0;
  if (sd_bus_message_is_method_call(call, kPeer, nullptr) > 0) return 0;
  try {
    dispatch(call);
  } catch (const Refusal& refusal) {
    send_refusal(call, refusal.name.c_str(), refusal.text.c_str());
  } catch (const std::exception& error) {
    send_refusal(call, SD_BUS_ERROR_FAILED, error.what());
  }
  return 1;
}

void Front::require_owner(sd_bus_message* call) {
  const char* sender = sd_bus_message_get_sender(call);
  if (admitted_.contains(std::string_view(sender))) return;
  if (!is_of_user(bus_.get(), sender, owner_)) throw Refusal{SD_BUS_ERROR_ACCESS_DENIED, kOwnerOnly};
  admitted_.emplace(sender);
}

void Front::create(sd_bus_message* call) {
  require_signature(call, "s");
  const std::string client = sd_bus_message_get_sender(call);
  const auto known = sessions_.find(client);
  Session& session = known != sessions_.end() ? *known->second : add(start(client));
  if (session.under_way + session.waiting.size() >= kMostCalls) {
    throw Refusal{SD_BUS_ERROR_LIMITS_EXCEEDED, "Too many calls of this client wait for its worker."};
  }
  if (session.lost) return session.waiting.push_back(hold(call));
  pass_on(session, hold(call));
}

void Front::open_session(sd_bus_message* call) {
  require_signature(call, "us");
  std::uint32_t process = 0;
  check(sd_bus_message_read_basic(call, 'u', &process), "process");
  const std::string name = kSessionPrefix + read_text(call);
  if (sd_bus_service_name_is_valid(name.c_str()) == 0) {
    throw Refusal{SD_BUS_ERROR_INVALID_ARGS, name + " is not a name that the bus allows."};
  }
  if (sessions_.contains(name)) throw Refusal{SD_BUS_ERROR_INVALID_ARGS, name + " is taken."};
  const auto holder = static_cast<pid_t>(process);
  // In this order: what is watched cannot become another process any more.
  std::optional<Descriptor> watched = watch_process(holder);
  if (!watched || !is_process_of(holder, owner_)) {
    throw Refusal{SD_BUS_ERROR_INVALID_ARGS, "No process " + std::to_string(process) + " of the bus's owner."};
  }
  const std::string opener = sd_bus_message_get_sender(call);
  const auto opened = std::count_if(sessions_.begin(), sessions_.end(), [&](const auto& known) {
    return known.second->opener == opener || known.second->holder == holder;
  });
  if (opened >= kMostOpened) {
    throw Refusal{SD_BUS_ERROR_LIMITS_EXCEEDED, "Too many open sessions of this connection or for this process."};
  }
  auto session = start(name);
  session->opener = opener;
  session->holder = holder;
  session->holder_watch = std::move(*watched);
  session->holder_end = watch<&Front::on_holder_end>(session->holder_watch, *session);
  pass_on(add(std::move(session)), hold(call));
}

void Front::close_session(sd_bus_message* call) {
  require_signature(call, "s");
  const std::string name = kSessionPrefix + read_text(call);
  const auto open = sessions_.find(name);
  if (open == sessions_.end()) throw Refusal{SD_BUS_ERROR_INVALID_ARGS, "There is no " + name + "."};
  // Answered when the name is free again.
  open->second->closing.push_back(hold(call));
  open->second->process.kill();
}

std::unique_ptr<Front::Session> Front::start(const std::string& client) {
  if (sessions_.size() >= kMostSessions) {
    throw Refusal{SD_BUS_ERROR_LIMITS_EXCEEDED, "Too many sessions at a time."};
  }
  auto session = std::unique_ptr<Session>(new Session{*this, client, WorkerProcess(program_, client, name_)});
  session->ready = watch<&Front::on_ready>(session->process.ready(), *session);
  session->worker_end = watch<&Front::on_worker_end>(session->process.end(), *session);
  return session;
}

Front::Session& Front::add(std::unique_ptr<Session> session) {
  const std::string& client = session->client;
  return *sessions_.emplace(client, std::move(session)).first->second;
}

template <void (Front::*Then)(Front::Session&)>
Source Front::watch(const Descriptor& descriptor, Session& session) {
  sd_event_source* source = nullptr;
  check(sd_event_add_io(
            loop_.get(), &source, descriptor.get(), EPOLLIN,
            [](sd_event_source*, int, std::uint32_t, void* watched) {
              auto* of = static_cast<Session*>(watched);
              (of->front.*Then)(*of);
              return 0;
            },
            &session),
        "process");
  return Source(source);
}

void Front::on_ready(Session& session) {
  std::array<char, 256> name{};
  const ssize_t size = read(session.process.ready().get(), name.data(), name.size());
  session.ready.reset();
  session.process.close_ready();
  // A worker that says nothing is about to end.
  if (size <= 0) return;
  session.worker.assign(name.data(), static_cast<std::size_t>(size));
  for (Message& call : std::exchange(session.waiting, {})) {
    const Message held = std::move(call);
    try {
      pass_on(session, hold(held.get()));
    } catch (const std::system_error& error) {
      send_refusal(held.get(), SD_BUS_ERROR_FAILED, error.what());
    }
  }
}

void Front::pass_on(Session& session, Message call) {
  if (session.worker.empty()) return session.waiting.push_back(std::move(call));
  if (sd_bus_message_is_method_call(call.get(), nullptr, "OpenSession") > 0) {
    return reply_with(call.get(), "s", session.client.c_str());
  }
  check(sd_bus_message_rewind(call.get(), 1), "call");  // it may have been passed on to a worker before
  const Message create = new_call(bus_.get(), session.worker.c_str(), kRootPath, kWorkerInterface, "Create");
  check(sd_bus_message_append(create.get(), "s", read_text(call.get()).c_str()), "class");
  auto passed_on = std::make_unique<PassedOn>(PassedOn{*this, session.worker, std::move(call)});
  check(sd_bus_call_async(
            bus_.get(), nullptr, create.get(),
            [](sd_bus_message* answer, void* passed, sd_bus_error*) {
              const std::unique_ptr<PassedOn> held(static_cast<PassedOn*>(passed));
              held->front.return_answer(answer, *held);
              return 1;
            },
            passed_on.get(), UINT64_MAX),
        "worker");
  static_cast<void>(passed_on.release());  // the answer's function has it now
  ++session.under_way;
}

void Front::return_answer(sd_bus_message* answer, const PassedOn& passed_on) noexcept {
  sd_bus_message* call = passed_on.call.get();
  const auto known = sessions_.find(std::string_view(sd_bus_message_get_sender(call)));
  // Another worker may have taken the place of the one that was asked, or none.
  const bool same_worker = known != sessions_.end() && known->second->worker == passed_on.worker;
  if (same_worker) --known->second->under_way;
  try {
    const sd_bus_error* error = sd_bus_message_get_error(answer);
    if (error == nullptr) {
      const Message reply = new_return(call);
      check(sd_bus_message_copy(reply.get(), answer, 1), "answer");
      return send_reply(call, reply.get());
    }
    if (sd_bus_error_has_name(error, SD_BUS_ERROR_SERVICE_UNKNOWN) == 0) {
      sd_bus_reply_method_error(call, error);
      return;
    }
    // The worker has crashed since its last answer: the client gets a new one, as soon as the old one's end is noticed.
    if (!same_worker) {
      on_call(call);
      return;
    }
    known->second->lost = true;
    known->second->process.kill();
    known->second->waiting.push_back(hold(call));
  } catch (const std::exception& error) {
    send_refusal(call, SD_BUS_ERROR_FAILED, error.what());
  }
}

void Front::on_worker_end(Session& session) {
  const bool starts_again = session.lost;
  const std::vector<Message> waiting = std::exchange(session.waiting, {});
  const std::vector<Message> closing = std::exchange(session.closing, {});
  if (const std::string end = session.process.wait(); !end.empty()) {
    std::fprintf(stderr, "vorlan: the worker of %s %s\n", session.client.c_str(), end.c_str());
  }
  sessions_.erase(sessions_.find(session.client));
  for (const Message& call : closing) sd_bus_reply_method_return(call.get(), nullptr);
  for (const Message& call : waiting) {
    if (starts_again) {
      on_call(call.get());
    } else {
      send_refusal(call.get(), SD_BUS_ERROR_FAILED, "The worker ended before it could be called.");
    }
  }
}

void Front::on_holder_end(Session& session) {
  session.holder_end.reset();
  session.process.kill();
}

void Front::on_client_left(std::string_view client) noexcept {
  if (const auto admitted = admitted_.find(client); admitted != admitted_.end()) admitted_.erase(admitted);
  const auto left = sessions_.find(client);
  // The worker's end is noticed like any other's.
  if (left != sessions_.end()) left->second->process.kill();
}

}  // namespace vorlan::dbus
