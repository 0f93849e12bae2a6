// Loading a sector's configuration, and reading one of its values: held, and live from the file.
#include <benchmark/benchmark.h>

#include "platform/platform.hpp"
#include "server/classes.hpp"

namespace vorlan {
namespace {

Ref<Object> parameters(Platform& platform) {
  static const Registry kRegistry(class_tables());
  const auto object = kRegistry.create("SB_GlobalParameters", platform);
  object->let("PRstr_FileName", VORLAN_EXAMPLE_FILE);
  return object;
}

/// A new object each time, so that the file is read and parsed each time.
void InitializeSector(benchmark::State& state) {
  Platform platform = native_platform();
  for (auto _ : state) parameters(platform)->call("Initialize", "SECTOR 4");
}
BENCHMARK(InitializeSector);

void HeldConfigurationValue(benchmark::State& state) {
  Platform platform = native_platform();
  const auto object = parameters(platform);
  object->call("Initialize", "SECTOR 4");
  for (auto _ : state) benchmark::DoNotOptimize(object->get("PRstr_ColorCode", ""));
}
BENCHMARK(HeldConfigurationValue);

void LiveConfigurationValue(benchmark::State& state) {
  Platform platform = native_platform();
  const auto object = parameters(platform);
  object->call("Initialize", "SECTOR 4");
  for (auto _ : state) benchmark::DoNotOptimize(object->get("PRstr_ColorCode", "SECTOR 4"));
}
BENCHMARK(LiveConfigurationValue);

}  // namespace
}  // namespace vorlan
