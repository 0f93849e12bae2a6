#include "server/dbus/worker_process.hpp"

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <vector>

#include "server/dbus/bus.hpp"

namespace vorlan::dbus {

namespace {

pid_t start_worker(const std::string& program, const std::string& client, const std::string& front,
                   const Descriptor& write_end) {
  std::vector<std::string> words{program,   "serve", "--worker",        client,
                                 "--front", front,   "--front-process", std::to_string(getpid())};
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);

  posix_spawn_file_actions_t files;
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_init(&files);
  posix_spawnattr_init(&attributes);
  posix_spawn_file_actions_adddup2(&files, write_end.get(), kReadyDescriptor);
  // The front blocks the signals that its loop takes; a worker takes them as they come.
  sigset_t none;
  sigemptyset(&none);
  posix_spawnattr_setsigmask(&attributes, &none);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
  pid_t process = -1;
  const int failed = posix_spawn(&process, program.c_str(), &files, &attributes, arguments.data(), environ);
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&files);
  check(-failed, "start of a worker");
  return process;
}

}  // namespace

Descriptor::~Descriptor() {
  if (number_ >= 0) close(number_);
}

WorkerProcess::WorkerProcess(const std::string& program, const std::string& client, const std::string& front) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) check(-errno, "pipe to a worker");
  ready_ = Descriptor(ends[0]);
  child_.process = start_worker(program, client, front, Descriptor(ends[1]));
  end_ = watch_process(child_.process).value();  // it is there until it is waited for
}

WorkerProcess::Child::~Child() {
  if (process < 0) return;
  ::kill(process, SIGKILL);
  waitpid(process, nullptr, 0);
}

void WorkerProcess::kill() noexcept {
  if (child_.process < 0) return;
  killed_ = true;
  ::kill(child_.process, SIGKILL);
}

std::string WorkerProcess::wait() {
  int status = 0;
  const bool known = waitpid(child_.process, &status, 0) > 0;
  child_.process = -1;
  if (!known || killed_) return {};
  if (WIFSIGNALED(status)) return "was ended by signal " + std::to_string(WTERMSIG(status));
  return WEXITSTATUS(status) != 0 ? "ended with status " + std::to_string(WEXITSTATUS(status)) : std::string();
}

std::optional<Descriptor> watch_process(pid_t process) {
  // By its number: the C library's own function lacks C linkage in glibc 2.36.
  const auto opened = static_cast<int>(syscall(SYS_pidfd_open, process, 0));
  const bool none = opened < 0 && (errno == ESRCH || errno == EINVAL || errno == ENOENT);
  if (none) return std::nullopt;
  return Descriptor(check(opened < 0 ? -errno : opened, "process"));
}

bool is_process_of(pid_t process, unsigned user) noexcept {
  struct stat state {};
  return stat(("/proc/" + std::to_string(process)).c_str(), &state) == 0 && state.st_uid == user;
}

}  // namespace vorlan::dbus
