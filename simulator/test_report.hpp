// The test report of the simulated test set.
#pragma once

#include <deque>

#include "automation/bind.hpp"

namespace vorlan::simulator {

/// Keeps the latest 1000 lines.
class TestReport final : public BoundObject<TestReport> {
 public:
  void add_text(const std::string& text);
  [[nodiscard]] std::int16_t count() const noexcept { return static_cast<std::int16_t>(lines_.size()); }
  /// From 0 on; error 9 if there is none.
  [[nodiscard]] std::string line(std::int16_t index) const;
  /// All lines, each with a newline.
  [[nodiscard]] std::string text() const;
  void clear() noexcept { lines_.clear(); }

  static constexpr ClassInfo::Texts texts() {
    return {"TestReport", "The test report of a simulated test set: lines of text that a script can read.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  std::deque<std::string> lines_;
};

}  // namespace vorlan::simulator
