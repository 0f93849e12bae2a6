// The classes of the simulated test set.
#pragma once

#include <vector>

#include "automation/registry.hpp"

namespace vorlan::simulator {

/// Offered under the server name "VorlanSim". A part that is created by itself has a simulation of its own; the parts
/// that belong together are those of one TestSet.
std::span<const ClassEntry> classes() noexcept;

/// These tables, and the simulator's classes behind them.
std::vector<ClassTable> with_simulator(std::span<const ClassTable> tables);

}  // namespace vorlan::simulator
