// A property read through the D-Bus server, from a client's own worker and from an open session, beside the bare bus
// library's echo, by turns, on the bus of this session.
//
//   vorlan_dbus_bench [ROUNDS]    prints "name  nanoseconds ns" for each, medians of the rounds
#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "server/dbus/bus.hpp"
#include "server/dbus/names.hpp"

namespace {

using namespace vorlan::dbus;

constexpr const char* kEcho = "Vorlan.Bench.Echo";
constexpr int kCallsPerRound = 500;

int echo(sd_bus_message* call, void*, sd_bus_error*) {
  const char* text = nullptr;
  const int read = sd_bus_message_read(call, "s", &text);
  return read < 0 ? read : sd_bus_reply_method_return(call, "s", text);
}

/// The least that a service on the library can do: a method of a table that sends its text back.
[[noreturn]] void serve_echo() {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  static const sd_bus_vtable kTable[] = {SD_BUS_VTABLE_START(0), SD_BUS_METHOD("Echo", "s", "s", &echo, 0),
                                         SD_BUS_VTABLE_END};
  const Bus bus = open_session_bus();
  check(sd_bus_add_object_vtable(bus.get(), nullptr, "/", kEcho, kTable, nullptr), "echo");
  check(sd_bus_request_name(bus.get(), kEcho, 0), "echo");
  for (;;) {
    if (check(sd_bus_process(bus.get(), nullptr), "echo") == 0) check(sd_bus_wait(bus.get(), UINT64_MAX), "echo");
  }
}

Message call(sd_bus* bus, const Message& question) {
  sd_bus_message* got = nullptr;
  check(sd_bus_call(bus, question.get(), UINT64_MAX, nullptr, &got), "call");
  return Message(got);
}

template <class Once>
double nanoseconds_each(Once&& once) {
  const auto begin = std::chrono::steady_clock::now();
  for (int i = 0; i < kCallsPerRound; ++i) once();
  return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - begin).count() / kCallsPerRound;
}

double median(std::vector<double> figures) {
  std::sort(figures.begin(), figures.end());
  return figures[figures.size() / 2];
}

/// An object's worker and path.
struct Made {
  std::string worker;
  std::string path;
};

Made create(sd_bus* bus, const char* service, const char* interface) {
  const Message create = new_call(bus, service, kRootPath, interface, "Create");
  check(sd_bus_message_append(create.get(), "s", "SB_Ses_MsgSessionClose"), "class");
  const Message made = call(bus, create);
  const char* worker = nullptr;
  const char* path = nullptr;
  check(sd_bus_message_read(made.get(), "so", &worker, &path), "object");
  return {worker, path};
}

/// The bus name of a session that ends with this process.
std::string open_session(sd_bus* bus) {
  const Message open = new_call(bus, kServerName, kRootPath, kServerInterface, "OpenSession");
  const auto process = static_cast<std::uint32_t>(getpid());
  check(sd_bus_message_append(open.get(), "us", process, ("bench" + std::to_string(process)).c_str()), "session");
  return read_text(call(bus, open).get());
}

void measure(int rounds) {
  const Bus bus = open_session_bus();
  // Until the echo is there, the bus knows no such name.
  const auto is_there = [&] {
    sd_bus_creds* got = nullptr;
    const bool there = sd_bus_get_name_creds(bus.get(), kEcho, 0, &got) >= 0;
    const Credentials credentials(got);
    return there;
  };
  while (!is_there()) usleep(1000);
  const Made own = create(bus.get(), kServerName, kServerInterface);
  const Made shared = create(bus.get(), open_session(bus.get()).c_str(), kWorkerInterface);

  const auto echo_once = [&] {
    const Message question = new_call(bus.get(), kEcho, "/", kEcho, "Echo");
    check(sd_bus_message_append(question.get(), "s", "00000001"), "echo");
    read_text(call(bus.get(), question).get());
  };
  const auto read_once = [&](const Made& object) {
    const Message question = new_call(bus.get(), object.worker.c_str(), object.path.c_str(), kProperties, "Get");
    check(sd_bus_message_append(question.get(), "ss", "Vorlan.SB_Ses_MsgSessionClose", "PRstr_MessageID"), "property");
    const Message answer = call(bus.get(), question);
    check(sd_bus_message_enter_container(answer.get(), 'v', "s"), "property");
    read_text(answer.get());
  };
  std::vector<double> echoes;
  std::vector<double> reads;
  std::vector<double> shared_reads;
  for (int round = 0; round < rounds; ++round) {
    echoes.push_back(nanoseconds_each(echo_once));
    reads.push_back(nanoseconds_each([&] { read_once(own); }));
    shared_reads.push_back(nanoseconds_each([&] { read_once(shared); }));
  }
  std::printf("D-Bus property  %.0f ns\nD-Bus property, open session  %.0f ns\nD-Bus echo  %.0f ns\n", median(reads),
              median(shared_reads), median(echoes));
}

}  // namespace

int main(int count, char** words) try {
  const pid_t echo_process = fork();
  if (echo_process == 0) serve_echo();
  measure(count > 1 ? std::atoi(words[1]) : 21);
  kill(echo_process, SIGKILL);
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
