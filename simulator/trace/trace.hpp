// What went over the air, both ways.
#pragma once

#include <chrono>
#include <deque>
#include <memory>

#include "simulator/octets.hpp"

namespace vorlan::simulator {

struct TraceEntry {
  std::chrono::milliseconds time{0};  ///< since the test set was made
  bool forward = true;                ///< from the access network to the terminal
  int protocol = 0;                   ///< protocol type
  std::string label;                  ///< given by the script; empty for a message that nobody took
  Octets octets;
  std::string note = {};  ///< "no filter took it", "answers wrongly on purpose"
};

/// The latest messages, oldest first.
class Trace {
 public:
  static constexpr std::size_t kCapacity = 1000;

  /// The entry may be completed until it is read; it may be gone from the trace by then.
  std::shared_ptr<TraceEntry> add(TraceEntry entry);
  void clear() noexcept { entries_.clear(); }

  [[nodiscard]] std::size_t size() const noexcept { return entries_.size(); }
  [[nodiscard]] const TraceEntry& operator[](std::size_t index) const noexcept { return *entries_[index]; }
  [[nodiscard]] std::vector<TraceEntry> copy() const;

 private:
  std::deque<std::shared_ptr<TraceEntry>> entries_;
};

/// One line of JSON, without a newline:
///   {"time_ms":40,"direction":"forward","protocol":18,"label":"ConfigStartMessage","octets":"01 00"}
/// and "note", where there is one.
std::string json_line(const TraceEntry& entry);

}  // namespace vorlan::simulator
