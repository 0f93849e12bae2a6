#include "interruptible_clock.hpp"

#include <pybind11/pybind11.h>

#include <algorithm>

namespace vorlan::python {

namespace {

namespace py = pybind11;

/// Sleep is the one place where the interpreter is let go: the library calls out there, as it does to a script's own
/// objects, and expects other calls meanwhile. Anywhere else a second thread could meet an object half changed.
class InterruptibleClock final : public Clock {
 public:
  explicit InterruptibleClock(std::shared_ptr<Clock> clock) : clock_(std::move(clock)) {}

  [[nodiscard]] LocalTime local_time() const override { return clock_->local_time(); }
  [[nodiscard]] std::chrono::milliseconds ticks() const override { return clock_->ticks(); }
  [[nodiscard]] std::string month_name(int month) const override { return clock_->month_name(month); }

  void sleep(std::chrono::milliseconds time) override {
    constexpr std::chrono::milliseconds kSlice{50};
    const auto end = clock_->ticks() + time;
    for (auto rest = time; rest.count() > 0; rest = end - clock_->ticks()) {
      {
        const py::gil_scoped_release others;
        clock_->sleep(std::min(rest, kSlice));
      }
      if (PyErr_CheckSignals() != 0) throw py::error_already_set();
    }
  }

 private:
  std::shared_ptr<Clock> clock_;
};

}  // namespace

std::shared_ptr<Clock> make_interruptible(std::shared_ptr<Clock> clock) {
  return std::make_shared<InterruptibleClock>(std::move(clock));
}

}  // namespace vorlan::python
