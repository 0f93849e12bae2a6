#include "server/dbus/serve.hpp"

#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "server/dbus/front.hpp"
#include "server/dbus/worker.hpp"
#include "server/dbus/worker_process.hpp"

namespace vorlan::dbus {

namespace {

void work(const Registry& registry, const ServeOptions& options) {
  // Only the front knows when a client has left; so a worker is not to outlive it, whatever the front ends of.
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != options.front_process) return;
  Worker worker(registry, native_platform(), {options.worker, options.front});
  if (options.prepare) options.prepare(worker.platform());
  const ssize_t written = write(kReadyDescriptor, worker.name().data(), worker.name().size());
  close(kReadyDescriptor);
  if (written > 0) worker.run();
}

}  // namespace

void serve(const Registry& registry, const ServeOptions& options) {
  if (!options.worker.empty()) return work(registry, options);
  Front front(registry, std::filesystem::read_symlink("/proc/self/exe"));
  front.run();
}

}  // namespace vorlan::dbus
