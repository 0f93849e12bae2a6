// vorlan serve
#include <memory>

#include "CLI/CLI.hpp"
#include "cli/commands.hpp"
#include "server/dbus/serve.hpp"
#include "simulator/simulated_clock.hpp"

namespace vorlan::cli {

std::function<void(const Registry&)> add_serve(CLI::App& app) {
  CLI::App* command = app.add_subcommand("serve", "Serve the classes to other programs on the session bus");
  auto options = std::make_shared<dbus::ServeOptions>();
  options->prepare = simulator::offer_simulated_time;
  // What the front process starts its workers with is not for people.
  command->add_option("--worker", options->worker)->group("");
  command->add_option("--front", options->front)->group("");
  command->add_option("--front-process", options->front_process)->group("");
  return [command, options](const Registry& registry) {
    if (command->parsed()) dbus::serve(registry, *options);
  };
}

}  // namespace vorlan::cli
