// A whole session through the library and the simulated test set: some 20 messages both ways, channels, fading, test
// packets, levels and clean-up; and the security of one.
#include <benchmark/benchmark.h>

#include "../examples/session.hpp"

namespace vorlan {

namespace {

void WholeSession(benchmark::State& state) {
  Platform platform = simulator::simulated_platform();
  const Ref<Object> parameters = examples::load_configuration(platform, VORLAN_EXAMPLE_FILE, "SECTOR 0");
  std::int64_t messages = 0;
  for (auto _ : state) {
    const Ref<simulator::TestSet> test_set = make<simulator::TestSet>(platform);
    const Ref<SB_Sector> sector = examples::connect(platform, test_set, parameters);
    examples::run_session(platform, test_set, *sector, false);
    messages += test_set->trace()->get("Count").to_long();
  }
  state.counters["messages"] = benchmark::Counter(static_cast<double>(messages), benchmark::Counter::kAvgIterations);
}
BENCHMARK(WholeSession)->Unit(benchmark::kMicrosecond);

/// Generic security, a key exchange with 1024 bits and authentication: nearly all of it is the arithmetic of both
/// sides.
void KeyExchange(benchmark::State& state) {
  Platform platform = simulator::simulated_platform();
  const Ref<Object> parameters = examples::load_configuration(platform, VORLAN_EXAMPLE_FILE, "SECTOR 0");
  for (auto _ : state) {
    const Ref<simulator::TestSet> test_set = make<simulator::TestSet>(platform);
    examples::secure(platform, *examples::connect(platform, test_set, parameters));
  }
}
BENCHMARK(KeyExchange)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace vorlan
