// BinStringToMsg and MsgToBinString of 32767 random bits, as a script calls them, against a bare loop over the same.
#include <benchmark/benchmark.h>

#include <array>
#include <random>
#include <vector>

#include "common/general_functions.hpp"
#include "platform/platform.hpp"
#include "simulator/message_object.hpp"
#include "yardstick.hpp"

namespace vorlan {
namespace {

constexpr std::size_t kBits = 32767;

/// Random bits: fixed ones flatter branches.
std::string random_bits() {
  std::mt19937 generator(20261121);
  std::string bits(kBits, '0');
  for (char& bit : bits) bit = (generator() & 1U) != 0 ? '1' : '0';
  return bits;
}

void BareLoopPack(benchmark::State& state) {
  std::string bits = random_bits();
  std::vector<std::uint8_t> octets(kBits / 8 + 1);
  for (auto _ : state) {
    benchmark::DoNotOptimize(bits.data());
    yardstick::pack(bits.data(), bits.size(), octets.data());
    benchmark::DoNotOptimize(octets.data());
  }
}
BENCHMARK(BareLoopPack);

void BinStringToMsg(benchmark::State& state) {
  Platform platform;
  const auto functions = make<SB_GeneralFunctions>(platform);
  std::array<Value, 2> arguments{Value(random_bits()), Value(make<simulator::MessageObject>())};
  for (auto _ : state) functions->invoke("BinStringToMsg", Access::Call, arguments);
}
BENCHMARK(BinStringToMsg);

void BareLoopUnpack(benchmark::State& state) {
  const std::string bits = random_bits();
  std::vector<std::uint8_t> octets(kBits / 8 + 1);
  yardstick::pack(bits.data(), bits.size(), octets.data());
  std::string text(octets.size() * 8, '0');
  for (auto _ : state) {
    benchmark::DoNotOptimize(octets.data());
    yardstick::unpack(octets.data(), octets.size(), text.data());
    benchmark::DoNotOptimize(text.data());
  }
}
BENCHMARK(BareLoopUnpack);

void MsgToBinString(benchmark::State& state) {
  Platform platform;
  const auto functions = make<SB_GeneralFunctions>(platform);
  const auto message = make<simulator::MessageObject>();
  functions->call("BinStringToMsg", random_bits(), Ref<Object>(message));
  message->set_length(static_cast<std::int16_t>(kBits));
  std::array<Value, 1> arguments{Value(message)};
  for (auto _ : state) benchmark::DoNotOptimize(functions->invoke("MsgToBinString", Access::Call, arguments));
}
BENCHMARK(MsgToBinString);

}  // namespace
}  // namespace vorlan
