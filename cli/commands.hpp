// What the command line can do. Each command prints to standard output; what goes wrong is thrown.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "automation/registry.hpp"

namespace CLI {
class App;
}

namespace vorlan::cli {

/// The command line itself is wrong, as opposed to an automation error.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct EncodeOptions {
  std::string class_name;
  std::vector<std::string> assignments;  ///< "FIELD=VALUE", "FIELD[i]=VALUE"
  std::string parameter_file;            ///< none: no sector is handed to the class
  std::string sector = "SECTOR 0";
};

/// Lists the classes whose name matches a glob or contains the text; all if there is none.
void list_classes(const Registry& registry, const std::string& pattern, bool json);
void describe_class(const Registry& registry, const std::string& name, bool json);
void encode(const Registry& registry, const EncodeOptions& options, bool json);
/// `words` are the class's name, octets as hexadecimal text, and assignments to properties that select a layout. The
/// name is left out where `where`, a protocol or layer, is given: the MessageID finds the class then.
void decode(const Registry& registry, const std::string& where, const std::vector<std::string>& words, bool json);
/// The protocols and layers that decode knows, for --help.
std::string protocol_list();
/// Prints a trace, a file of JSON lines, as a ladder.
void ladder(const Registry& registry, const std::string& path);
/// Adds the command that serves objects on D-Bus; the result runs it if it was given.
std::function<void(const Registry&)> add_serve(CLI::App& app);

}  // namespace vorlan::cli
