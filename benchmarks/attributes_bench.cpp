// Simple attributes: a record built and read back, as C++ callers and as scripts do it.
#include <benchmark/benchmark.h>

#include <array>
#include <vector>

#include "attributes/classes.hpp"
#include "attributes/mac_simple_attributes.hpp"
#include "platform/platform.hpp"

namespace vorlan {
namespace {

void BuildAndReadSimpleAttribute(benchmark::State& state) {
  SB_MAC_AttrBucketLevelMaxNN sent;
  SB_MAC_AttrBucketLevelMaxNN received;
  for (auto _ : state) {
    sent.let<"PRstr_AttribId">("1111111000000001");
    sent.let<"PRstr_AttrValue">("01101100");
    received.let<"PRstr_Attribute">(sent.build());
    benchmark::DoNotOptimize(received.get<"PRstr_Length">());
    benchmark::DoNotOptimize(received.get<"PRstr_AttribId">());
    benchmark::DoNotOptimize(received.get<"PRstr_AttrValue">());
  }
}
BENCHMARK(BuildAndReadSimpleAttribute);

/// Late bound, all classes in turn; the time is that of one.
void BuildAndReadEverySimpleAttributeLateBound(benchmark::State& state) {
  Platform platform;
  struct Pair {
    Ref<Object> sent;
    Ref<Object> received;
    std::string value;
    bool takes_flag;
  };
  std::vector<Pair> pairs;
  for (const ClassEntry& entry : simple_attribute_classes()) {
    Pair& pair = pairs.emplace_back(Pair{entry.create(platform), entry.create(platform), {}, false});
    const SimpleAttributeSpec& spec = dynamic_cast<SimpleAttribute&>(*pair.sent).attribute_class().spec();
    if (spec.record_bits != 0 && spec.record_bits != 8 + spec.id_bits + spec.value_bits) {
      pairs.pop_back();  // does not take its own records
      continue;
    }
    pair.value.assign(spec.value_bits, '1');
    pair.takes_flag = spec.wide_id != 0;
  }
  for (auto _ : state) {
    for (const Pair& pair : pairs) {
      std::array<Value, 1> value{Value(pair.value)};
      pair.sent->invoke("PRstr_AttrValue", Access::Let, value);
      std::array<Value, 1> flag{Value(false)};
      const std::span<Value> flags(flag.data(), pair.takes_flag ? 1 : 0);
      std::array<Value, 1> record{pair.sent->invoke("BuildAttribute", Access::Call, flags)};
      pair.received->invoke("PRstr_Attribute", Access::Let, record);
      benchmark::DoNotOptimize(pair.received->invoke("PRstr_Length", Access::Get, {}));
      benchmark::DoNotOptimize(pair.received->invoke("PRstr_AttribId", Access::Get, flags));
      benchmark::DoNotOptimize(pair.received->invoke("PRstr_AttrValue", Access::Get, {}));
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(pairs.size()));
}
BENCHMARK(BuildAndReadEverySimpleAttributeLateBound);

}  // namespace
}  // namespace vorlan
