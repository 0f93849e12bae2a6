// The trace of a simulated test set as scripts read it.
#pragma once

#include "automation/bind.hpp"
#include "common/octets.hpp"
#include "simulator/simulation.hpp"

namespace vorlan::simulator {

/// Messages are numbered from 0, oldest first; error 9 if there is none of that number.
class TraceObject final : public BoundObject<TraceObject> {
 public:
  explicit TraceObject(std::shared_ptr<Simulation> simulation) : simulation_(std::move(simulation)) {}

  [[nodiscard]] std::int16_t count() const noexcept { return static_cast<std::int16_t>(simulation_->trace.size()); }
  [[nodiscard]] std::int32_t time(std::int16_t index) const;
  [[nodiscard]] std::string direction(std::int16_t index) const { return at(index).forward ? "forward" : "reverse"; }
  [[nodiscard]] std::int16_t protocol(std::int16_t index) const {
    return static_cast<std::int16_t>(at(index).protocol);
  }
  [[nodiscard]] std::string label(std::int16_t index) const { return at(index).label; }
  [[nodiscard]] std::string octets(std::int16_t index) const { return octets_text(at(index).octets); }
  [[nodiscard]] std::string note(std::int16_t index) const { return at(index).note; }
  [[nodiscard]] std::string ladder() const;
  [[nodiscard]] std::string json_lines() const;
  /// Error 75 if the file cannot be written.
  void write_json_lines(const std::string& path) const;
  void clear() noexcept { simulation_->trace.clear(); }

  static constexpr ClassInfo::Texts texts() {
    return {"Trace", "The messages that a simulated test set and its terminal have sent, the latest 1000.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  [[nodiscard]] const TraceEntry& at(std::int16_t index) const;

  std::shared_ptr<Simulation> simulation_;
};

}  // namespace vorlan::simulator
