// Time that passes at once: whoever sleeps is simply later afterwards.
#pragma once

#include <mutex>

#include "platform/platform.hpp"

namespace vorlan::simulator {

/// A clock in front of another. In real time it is that clock; in simulated time it stands still but for sleeps, which
/// return at once. It never runs backwards when it changes over. Starts in real time.
class SimulatedClock final : public Clock {
 public:
  explicit SimulatedClock(std::shared_ptr<Clock> real);

  [[nodiscard]] bool real_time() const;
  void set_real_time(bool real_time);

  /// Simulated time from now on, until as many end() as begin() were called.
  void begin();
  void end();

  [[nodiscard]] LocalTime local_time() const override;
  [[nodiscard]] std::chrono::milliseconds ticks() const override;
  void sleep(std::chrono::milliseconds time) override;
  [[nodiscard]] std::string month_name(int month) const override { return real_->month_name(month); }

 private:
  using Milliseconds = std::chrono::milliseconds;
  void change_over(bool real_time);
  [[nodiscard]] Milliseconds ticks_now() const { return real_time_ ? real_->ticks() + ahead_ : ticks_; }

  std::shared_ptr<Clock> real_;
  mutable std::mutex mutex_;
  bool real_time_ = true;
  int users_ = 0;
  Milliseconds ticks_{0};       // in simulated time
  Milliseconds ahead_{0};       // of the real clock, in real time
  LocalTime started_{};         // when the clock was first simulated,
  Milliseconds started_at_{0};  // and its ticks then
  bool simulated_once_ = false;
};

/// Puts a SimulatedClock, still in real time, in front of the platform's clock. While a test set that was created on
/// the platform lives, every wait on the platform passes at once, unless its RealTime is set.
void offer_simulated_time(Platform& platform);

/// The system's own platform with offer_simulated_time().
Platform simulated_platform();

/// A local time so much later; calendar days only, no daylight saving.
LocalTime later(const LocalTime& time, std::chrono::milliseconds by);

/// Time since 1980-01-06 00:00, the start of CDMA system time.
std::chrono::milliseconds since_system_time_began(const LocalTime& time);

}  // namespace vorlan::simulator
