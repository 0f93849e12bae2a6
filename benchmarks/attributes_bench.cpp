// Attributes and their values: a record built and read back, as C++ callers and as scripts do it.
#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <vector>

#include "attributes/classes.hpp"
#include "attributes/mac_simple_attributes.hpp"
#include "attributes/values/rtc_mac_values.hpp"
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

void build_and_read(SimpleAttribute& sent, SimpleAttribute& received, std::string_view value) {
  if (sent.attribute_class().spec().id_settable) sent.let_id(sent.attribute_class().id().view());
  sent.let_value(value);
  received.receive(sent.build());
  benchmark::DoNotOptimize(received.length());
  benchmark::DoNotOptimize(received.id());
  benchmark::DoNotOptimize(received.value());
}

/// Of all classes, the one that takes longest; the label names it.
void BuildAndReadSlowestSimpleAttribute(benchmark::State& state) {
  Platform platform;
  Ref<Object> sent;
  Ref<Object> received;
  auto longest = std::chrono::steady_clock::duration::zero();
  const auto simple = [](const Ref<Object>& object) -> SimpleAttribute& {
    return dynamic_cast<SimpleAttribute&>(*object);
  };
  const auto value = [&](const Ref<Object>& object) {
    return std::string(simple(object).attribute_class().spec().value_bits, '1');
  };
  for (const ClassEntry& entry : simple_attribute_classes()) {
    const Ref<Object> one = entry.create(platform);
    const Ref<Object> other = entry.create(platform);
    const SimpleAttributeSpec& spec = simple(one).attribute_class().spec();
    if (spec.record_bits != 0 && spec.record_bits != 8 + spec.id_bits + spec.value_bits) continue;
    auto shortest = std::chrono::steady_clock::duration::max();
    for (int round = 0; round < 20; ++round) {
      const auto start = std::chrono::steady_clock::now();
      for (int i = 0; i < 100; ++i) build_and_read(simple(one), simple(other), value(one));
      shortest = std::min(shortest, std::chrono::steady_clock::now() - start);
    }
    if (shortest <= longest) continue;
    longest = shortest;
    sent = one;
    received = other;
  }
  const std::string bits = value(sent);
  for (auto _ : state) build_and_read(simple(sent), simple(received), bits);
  state.SetLabel(std::string(sent->class_info()->name()));
}
BENCHMARK(BuildAndReadSlowestSimpleAttribute);

/// All of its 4 x 4 grids.
void BuildAndReadT2PTransitionFunction(benchmark::State& state) {
  for (auto _ : state) {
    SB_Mac_ValT2PTransitionFunctionNN sent;
    sent.let<"PRstr_NumT2PAxisValues">("0100");
    sent.let<"PRstr_NumFRABAxisValues">("100");
    for (std::size_t i = 0; i < 4; ++i) {
      sent.let<"T2PAxis">({i}, "00101000");
      sent.let<"FRABAxis">({i}, "0110");
      for (std::size_t j = 0; j < 4; ++j) {
        sent.let<"T2PUpT2PAxisFRABAxis">({i, j}, "00011000");
        sent.let<"T2PDnT2PAxisFRABAxis">({i, j}, "11101000");
      }
    }
    SB_Mac_ValT2PTransitionFunctionNN received;
    received.receive(sent.build());
    for (std::size_t i = 0; i < 4; ++i) {
      benchmark::DoNotOptimize(received.get<"T2PAxis">({i}));
      benchmark::DoNotOptimize(received.get<"FRABAxis">({i}));
      for (std::size_t j = 0; j < 4; ++j) {
        benchmark::DoNotOptimize(received.get<"T2PUpT2PAxisFRABAxis">({i, j}));
        benchmark::DoNotOptimize(received.get<"T2PDnT2PAxisFRABAxis">({i, j}));
      }
    }
  }
}
BENCHMARK(BuildAndReadT2PTransitionFunction);

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
