// vorlan ladder
#include <cstdio>
#include <fstream>

#include "automation/error.hpp"
#include "cli/commands.hpp"
#include "cli/record_codec.hpp"
#include "common/bits.hpp"
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

/// With every attribute by its name, as decode shows them.
std::optional<simulator::LadderRung> carrier(const Registry& registry, int protocol,
                                             std::span<const std::uint8_t> octets) {
  std::string bits(octets.size() * 8, '0');
  unpack_bits(octets.data(), bits.size(), bits.data());
  auto found = dissect_carrier(registry, protocol, bits);
  if (!found) return std::nullopt;
  return simulator::LadderRung{std::move(found->first), std::move(found->second)};
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
  std::fputs(simulator::ladder_text(entries, registry, carrier).c_str(), stdout);
}

}  // namespace vorlan::cli
