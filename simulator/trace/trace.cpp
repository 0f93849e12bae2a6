#include "simulator/trace/trace.hpp"

#include "common/octets.hpp"

namespace vorlan::simulator {

namespace {

std::string json_text(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string json = "\"";
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      json.append(1, '\\').append(1, c);
    } else if (code < 0x20) {
      json.append("\\u00").append(1, kDigits[code >> 4U]).append(1, kDigits[code & 0xFU]);
    } else {
      json += c;
    }
  }
  return json + '"';
}

}  // namespace

std::shared_ptr<TraceEntry> Trace::add(TraceEntry entry) {
  if (entries_.size() == kCapacity) entries_.pop_front();
  return entries_.emplace_back(std::make_shared<TraceEntry>(std::move(entry)));
}

std::vector<TraceEntry> Trace::copy() const {
  std::vector<TraceEntry> entries;
  entries.reserve(entries_.size());
  for (const auto& entry : entries_) entries.push_back(*entry);
  return entries;
}

std::string json_line(const TraceEntry& entry) {
  std::string line = "{\"time_ms\":" + std::to_string(entry.time.count());
  line.append(",\"direction\":").append(entry.forward ? "\"forward\"" : "\"reverse\"");
  line.append(",\"protocol\":").append(std::to_string(entry.protocol));
  line.append(",\"label\":").append(json_text(entry.label));
  line.append(",\"octets\":").append(json_text(octets_text(entry.octets)));
  if (!entry.note.empty()) line.append(",\"note\":").append(json_text(entry.note));
  return line + '}';
}

}  // namespace vorlan::simulator
