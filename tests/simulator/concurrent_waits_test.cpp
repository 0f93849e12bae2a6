// Waits in real time that are under way together, as the servers let them be: one lock, let go of in sleep().
#include <gtest/gtest.h>

#include <array>
#include <mutex>
#include <thread>

#include "script.hpp"

namespace vorlan::test {

namespace {

using namespace std::chrono;

class SharedClock final : public Clock {
 public:
  [[nodiscard]] LocalTime local_time() const override { return {2026, 11, 5, 9, 7, 3}; }
  [[nodiscard]] milliseconds ticks() const override {
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
  }
  void sleep(milliseconds time) override {
    gate.unlock();
    std::this_thread::sleep_for(time);
    gate.lock();
  }
  [[nodiscard]] std::string month_name(int) const override { return "Nov"; }

  std::mutex gate;
};

TEST(ConcurrentWaits, EachGetsItsOwnAndNoneWaitsLongerThanItHasTo) {
  constexpr std::size_t kWaits = 4;
  constexpr int kTimeOut = 1000;  // 20 s
  const auto clock = std::make_shared<SharedClock>();
  std::unique_lock gate(clock->gate);
  Script script(clock);
  script.test_set->let("RealTime", true);
  const auto began = clock->ticks();

  std::vector<std::thread> threads;
  const auto meanwhile = [&](auto call) {
    threads.emplace_back([&clock, call] {
      const std::scoped_lock lock(clock->gate);
      call();
    });
  };
  std::array<std::string, kWaits> received;
  for (std::size_t i = 0; i < kWaits; ++i) {
    const Value filter = script.filter(static_cast<int>(i), 13);
    meanwhile([&, i, filter] { received[i] = script.wait(filter, kTimeOut, "Label " + std::to_string(i)); });
  }
  const Value dropped = script.filter(99, 13);
  int error = 0;
  meanwhile([&] { error = error_number([&] { script.wait(dropped, kTimeOut); }); });
  std::string answer;
  meanwhile([&] {
    clock->sleep(100ms);
    for (const char* octets : {"03 AA", "02 AA", "01 AA", "00 AA"}) script.terminal->call("Send", i16(13), octets);
    answer = script.ask(5, "50 07 02 00 00", 1, kTimeOut);
    script.signalling->call("RemoveFilter", dropped);
  });
  gate.unlock();
  for (std::thread& thread : threads) thread.join();

  EXPECT_EQ(received, (std::array<std::string, kWaits>{"00 AA", "01 AA", "02 AA", "03 AA"}));
  EXPECT_EQ(answer, "51 07 02 00 00");
  EXPECT_EQ(error, 9);
  EXPECT_LT(clock->ticks() - began, kTimeOut * 20ms / 2);
  EXPECT_EQ(script.signalling->get("Filters").to_integer(), i16(kWaits));
}

}  // namespace

}  // namespace vorlan::test
