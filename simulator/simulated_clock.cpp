#include "simulator/simulated_clock.hpp"

namespace vorlan::simulator {

namespace {

using namespace std::chrono;

sys_seconds seconds_of(const LocalTime& time) {
  const sys_days date =
      year(time.year) / month(static_cast<unsigned>(time.month)) / day(static_cast<unsigned>(time.day));
  return date + hours(time.hour) + minutes(time.minute) + seconds(time.second);
}

}  // namespace

LocalTime later(const LocalTime& time, milliseconds by) {
  const sys_seconds moment = seconds_of(time) + duration_cast<seconds>(by);
  const sys_days days = floor<std::chrono::days>(moment);
  const year_month_day date(days);
  const hh_mm_ss<seconds> of_day(moment - days);
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(of_day.hours().count()),
          static_cast<int>(of_day.minutes().count()),
          static_cast<int>(of_day.seconds().count())};
}

milliseconds since_system_time_began(const LocalTime& time) {
  return seconds_of(time) - sys_days(year(1980) / January / 6);
}

SimulatedClock::SimulatedClock(std::shared_ptr<Clock> real) : real_(std::move(real)) {}

bool SimulatedClock::real_time() const {
  const std::scoped_lock lock(mutex_);
  return real_time_;
}

void SimulatedClock::set_real_time(bool real_time) {
  const std::scoped_lock lock(mutex_);
  change_over(real_time);
}

void SimulatedClock::begin() {
  const std::scoped_lock lock(mutex_);
  if (users_++ == 0) change_over(false);
}

void SimulatedClock::end() {
  const std::scoped_lock lock(mutex_);
  if (--users_ == 0) change_over(true);
}

void SimulatedClock::change_over(bool real_time) {
  if (real_time == real_time_) return;
  if (real_time) {
    ahead_ = ticks_ - real_->ticks();
  } else {
    ticks_ = ticks_now();
    if (!simulated_once_) {
      started_ = real_->local_time();
      started_at_ = ticks_;
      simulated_once_ = true;
    }
  }
  real_time_ = real_time;
}

LocalTime SimulatedClock::local_time() const {
  const std::scoped_lock lock(mutex_);
  return simulated_once_ ? later(started_, ticks_now() - started_at_) : real_->local_time();
}

milliseconds SimulatedClock::ticks() const {
  const std::scoped_lock lock(mutex_);
  return ticks_now();
}

void SimulatedClock::sleep(milliseconds time) {
  {
    const std::scoped_lock lock(mutex_);
    if (!real_time_) {
      if (time.count() > 0) ticks_ += time;
      return;
    }
  }
  real_->sleep(time);
}

void offer_simulated_time(Platform& platform) {
  if (dynamic_cast<SimulatedClock*>(platform.clock.get()) != nullptr) return;
  platform.clock = std::make_shared<SimulatedClock>(std::move(platform.clock));
}

Platform simulated_platform() {
  Platform platform = native_platform();
  offer_simulated_time(platform);
  return platform;
}

}  // namespace vorlan::simulator
