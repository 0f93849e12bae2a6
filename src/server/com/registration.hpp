// Entering the server in the system's registry, and taking it out again.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "automation/registry.hpp"

namespace vorlan::com {

enum class Scope { Machine, User };

struct Registration {
  Scope scope = Scope::Machine;
  std::filesystem::path program;  ///< what the system starts
};

/// The servers of a registry's classes, each once.
std::vector<std::string> servers_of(const Registry& registry);

/// Enters every class under its names and writes and enters the type libraries. What an earlier registration left is
/// replaced. It stays where the libraries cannot be written; on any other error nothing is left. Returns the names that
/// belong to another server already, and are left to it.
std::vector<std::string> register_server(const Registry& registry, const Registration& registration);

/// Takes out all that register_server() made; what is not there, or is another server's, is left alone.
void unregister_server(const Registry& registry, const Registration& registration);

}  // namespace vorlan::com
