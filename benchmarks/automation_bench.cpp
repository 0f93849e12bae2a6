// A late-bound property read against a virtual call that returns the same string.
#include <benchmark/benchmark.h>

#include <memory>

#include "messages/session/session_management.hpp"

namespace vorlan {
namespace {

struct Field {
  virtual ~Field() = default;
  [[nodiscard]] virtual std::string text() const = 0;
};
struct StoredField final : Field {
  [[nodiscard]] std::string text() const override { return value; }
  std::string value = "00000111";
};

void VirtualCall(benchmark::State& state) {
  std::unique_ptr<Field> field = std::make_unique<StoredField>();
  for (auto _ : state) {
    benchmark::DoNotOptimize(field);
    benchmark::DoNotOptimize(field->text());
  }
}
BENCHMARK(VirtualCall);

void LateBoundProperty(benchmark::State& state) {
  auto message = make<SB_Ses_MsgSessionClose>();
  message->let<"PRstr_CloseReason">("00000111");
  Ref<Object> object(message);
  for (auto _ : state) {
    benchmark::DoNotOptimize(object);
    benchmark::DoNotOptimize(object->invoke("PRstr_CloseReason", Access::Get, {}));
  }
}
BENCHMARK(LateBoundProperty);

}  // namespace
}  // namespace vorlan
