// vorlan ladder
#include <cstdio>
#include <fstream>

#include "automation/error.hpp"
#include "cli/commands.hpp"
#include "nlohmann/json.hpp"
#include "simulator/trace/ladder.hpp"

namespace vorlan::cli {

namespace {

using simulator::TraceEntry;

TraceEntry parse_entry(const std::string& line) {
  const auto json = nlohmann::json::parse(line);
  const auto direction = json.at("direction").get<std::string>();
  if (direction != "forward" && direction != "reverse") throw std::invalid_argument("direction is forward or reverse");
  return {.time = std::chrono::milliseconds(json.at("time_ms").get<std::int64_t>()),
          .forward = direction == "forward",
          .protocol = json.at("protocol").get<int>(),
          .label = json.value("label", ""),
          .octets = simulator::parse_hex(json.at("octets").get<std::string>()),
          .note = json.value("note", "")};
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
  std::fputs(simulator::ladder_text(entries, registry).c_str(), stdout);
}

}  // namespace vorlan::cli
