// vorlan ladder
#include <cstdio>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <utility>

#include "automation/error.hpp"
#include "cli/commands.hpp"
#include "nlohmann/json.hpp"
#include "simulator/trace/ladder.hpp"

namespace vorlan::cli {

namespace {

using simulator::TraceEntry;

/// Nothing if there is none; an error if it is of another type.
template <class T>
std::optional<T> part_of(const nlohmann::json& line, const char* name) {
  const auto found = line.find(name);
  if (found == line.end()) return std::nullopt;
  try {
    return found->get<T>();
  } catch (const nlohmann::json::exception&) {
    throw std::invalid_argument(std::string(name) + " is of the wrong type");
  }
}

template <class T>
T needed_part_of(const nlohmann::json& line, const char* name) {
  if (auto part = part_of<T>(line, name)) return std::move(*part);
  throw std::invalid_argument(std::string("no ") + name);
}

TraceEntry parse_entry(const std::string& line) {
  const auto json = nlohmann::json::parse(line, nullptr, false);
  if (json.is_discarded()) throw std::invalid_argument("not JSON");
  const auto direction = needed_part_of<std::string>(json, "direction");
  if (direction != "forward" && direction != "reverse") throw std::invalid_argument("direction is forward or reverse");
  return {.time = std::chrono::milliseconds(needed_part_of<std::int64_t>(json, "time_ms")),
          .forward = direction == "forward",
          .protocol = needed_part_of<int>(json, "protocol"),
          .label = part_of<std::string>(json, "label").value_or(""),
          .octets = simulator::parse_hex(needed_part_of<std::string>(json, "octets")),
          .note = part_of<std::string>(json, "note").value_or("")};
}

}  // namespace

void ladder(const Registry& registry, const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw Error(ErrorNumber::FileNotFound, "ladder", path);
  std::vector<TraceEntry> entries;
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (line.find_first_not_of(" \t\r") == std::string::npos) continue;
    try {
      entries.push_back(parse_entry(line));
    } catch (const std::exception& error) {
      throw Error(ErrorNumber::InvalidCall, "ladder",
                  path + ", line " + std::to_string(number) + " is no message of a trace: " + error.what());
    }
  }
  if (file.bad()) throw Error(ErrorNumber::FileAccess, "ladder", path);  // a folder, say
  std::fputs(simulator::ladder_text(entries, registry).c_str(), stdout);
}

}  // namespace vorlan::cli
