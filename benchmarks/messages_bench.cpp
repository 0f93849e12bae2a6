// Encoding and decoding against the hand-written yardstick of the same message in the same run.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstring>

#include "automation/bind.hpp"
#include "messages/connection/route_update.hpp"
#include "messages/connection/sector_parameters.hpp"
#include "messages/identification.hpp"
#include "messages/mac/reverse_traffic_channel.hpp"
#include "messages/session/address_management.hpp"
#include "platform/platform.hpp"
#include "server/classes.hpp"
#include "simulator/message_object.hpp"
#include "support/fake_sector.hpp"
#include "yardstick.hpp"

namespace vorlan {
namespace {

const std::string kUATI104 = std::string(40, '1') + std::string(64, '0');
const Value kColour[] = {"00010001"};

/// A sector as the library binds its own: what messages ask it for.
class Sector final : public BoundObject<Sector> {
 public:
  explicit Sector(Ref<Object> parameters) : parameters_(std::move(parameters)) {}

  [[nodiscard]] Ref<Object> parameters() const { return parameters_; }
  [[nodiscard]] std::string name() const { return "SECTOR 0"; }

  static constexpr ClassInfo::Texts texts() { return {"Sector", "A sector for benchmarks", ""}; }
  static std::span<const BoundMember> members() {
    static constexpr BoundMember kMembers[] = {
        property<&Sector::parameters>("PRobj_GlobalParameters", "The configuration"),
        property<&Sector::name>("PRstr_SectorName", "The name"),
    };
    return kMembers;
  }

 private:
  Ref<Object> parameters_;
};

/// Its configuration was loaded from the example file.
Ref<Object> sector() {
  static Platform platform = native_platform();
  const auto parameters = Registry(class_tables()).create("SB_GlobalParameters", platform);
  parameters->let("PRstr_FileName", VORLAN_EXAMPLE_FILE);
  parameters->call("Initialize", "SECTOR 0");
  return make<Sector>(parameters);
}

void YardstickPack(benchmark::State& state) {
  yardstick::UATIAssignment message{"00000111", "01101000", kUATI104.data(), "00010001", "101010111100110111101111",
                                    "0010"};
  std::uint8_t octets[22];
  for (auto _ : state) {
    benchmark::DoNotOptimize(message);
    yardstick::pack(message, octets);
    benchmark::DoNotOptimize(octets);
  }
}
BENCHMARK(YardstickPack);

void CreateUATIAssignment(benchmark::State& state) {
  SB_Ses_MsgUATIAssignment message;
  message.initialize(sector(), {}, "");
  message.let<"PRstr_MessageSequence">("00000111");
  const auto object = make<simulator::MessageObject>();
  const Ref<Object> target(object);
  for (auto _ : state) {
    message.create_message(target, kColour);
    benchmark::DoNotOptimize(object->octets().data());
  }
}
BENCHMARK(CreateUATIAssignment);

/// The same without a colour code from the script: it is read afresh from the parameter file, as the class promises.
void CreateUATIAssignmentWithLiveColourCode(benchmark::State& state) {
  SB_Ses_MsgUATIAssignment message;
  message.initialize(sector(), {}, "");
  const Ref<Object> target(make<simulator::MessageObject>());
  for (auto _ : state) message.create_message(target);
}
BENCHMARK(CreateUATIAssignmentWithLiveColourCode);

void WholeLifeOfUATIAssignment(benchmark::State& state) {
  const Ref<Object> owner = sector();
  const auto object = make<simulator::MessageObject>();
  const Ref<Object> target(object);
  for (auto _ : state) {
    const auto message = make<SB_Ses_MsgUATIAssignment>();
    message->initialize(owner, {}, "");
    message->let<"PRstr_MessageSequence">("00000111");
    message->let<"PRstr_SubnetIncluded">("1");
    message->let<"PRstr_UpperOldUATILength">("0010");
    message->create_message(target, kColour);
    benchmark::DoNotOptimize(object->octets().data());
  }
}
BENCHMARK(WholeLifeOfUATIAssignment);

void YardstickParse(benchmark::State& state) {
  std::uint8_t octets[22] = {1, 7, 1, 0x68};
  char text[176];
  std::string_view fields[4];
  for (auto _ : state) {
    benchmark::DoNotOptimize(octets);
    yardstick::unpack(octets, sizeof octets, text);
    const std::string_view bits(text, sizeof text);
    fields[0] = bits.substr(8, 8);
    fields[1] = bits.substr(16, 4);
    fields[2] = bits.substr(20, 4);
    fields[3] = bits.substr(24, 152);
    benchmark::DoNotOptimize(text);
    benchmark::DoNotOptimize(fields);
  }
}
BENCHMARK(YardstickParse);

/// 22 octets: UATIComplete with 15 octets of old UATI and padding behind it, four fields read.
void DecodeUATIComplete(benchmark::State& state) {
  const auto object = make<simulator::MessageObject>();
  object->set_hex("02 05 0F 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 00 00 00 00");
  const Ref<Object> source(object);
  SB_Ses_MsgUATIComplete message;
  for (auto _ : state) {
    message.receive(source);
    benchmark::DoNotOptimize(message.get<"PRstr_MessageSequence">());
    benchmark::DoNotOptimize(message.get<"PRstr_Reserved">());
    benchmark::DoNotOptimize(message.get<"PRstr_UpperOldUATILength">());
    benchmark::DoNotOptimize(message.get<"PRstr_UpperOldUATI">());
  }
}
BENCHMARK(DecodeUATIComplete);

/// 63 limits: 268 bits, padded to 272.
void YardstickPackRateLimits(benchmark::State& state) {
  std::vector<std::string> limits(63, "0101");
  std::uint8_t octets[34];
  for (auto _ : state) {
    benchmark::DoNotOptimize(limits.data());
    char text[272];
    char* out = text;
    const auto put = [&out](std::string_view bits) {
      std::memcpy(out, bits.data(), bits.size());
      out += bits.size();
    };
    put("00000001");
    put("111111");
    for (const std::string& limit : limits) {
      std::memcpy(out, limit.data(), 4);
      out += 4;
    }
    put("000000");
    yardstick::pack(text, sizeof text, octets);
    benchmark::DoNotOptimize(octets);
  }
}
BENCHMARK(YardstickPackRateLimits);

void CreateBroadcastRevRateLimit(benchmark::State& state) {
  SB_Mac_MsgBroadcastRevRateLimit message;
  message.initialize();
  message.let<"PRstr_RPCCount">("111111");
  for (std::size_t i = 0; i < 63; ++i) message.let<"PRstr_RateLimit">(i, "0101");
  const auto object = make<simulator::MessageObject>();
  const Ref<Object> target(object);
  for (auto _ : state) {
    message.create_message(target);
    benchmark::DoNotOptimize(object->octets().data());
  }
}
BENCHMARK(CreateBroadcastRevRateLimit);

void ReadAllOfRouteUpdate(benchmark::State& state) {
  const auto pilots = static_cast<std::size_t>(state.range(0));
  std::string bits(36, '0');
  for (std::size_t bit = 0; bit < 4; ++bit) bits[35 - bit] = (pilots >> bit & 1U) != 0 ? '1' : '0';
  for (std::size_t i = 0; i < pilots; ++i) bits += std::string(15, '0') + "1" + std::string(24, '0') + "0011101";
  SB_Con_MsgRouteUpdate message;
  for (auto _ : state) {
    message.receive(bits);
    for (std::size_t i = 0; i < pilots; ++i) {
      benchmark::DoNotOptimize(message.get<"PRstr_PilotPNPhase">(i));
      benchmark::DoNotOptimize(message.get<"PRstr_ChannelIncluded">(i));
      benchmark::DoNotOptimize(message.get<"PRstr_Channel">(i));
      benchmark::DoNotOptimize(message.get<"PRstr_PilotStrength">(i));
      benchmark::DoNotOptimize(message.get<"PRstr_Keep">(i));
    }
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(ReadAllOfRouteUpdate)->Arg(1)->Arg(5)->Arg(15);

void CreateSectorParameters(benchmark::State& state) {
  SB_Con_MsgSectorParameters message;
  message.initialize(test::fake_sector(test::fake_configuration()), {}, "");
  if (state.range(0) != 0) {
    message.let<"PRstr_NeighborCount">("11111");
    message.let<"PRstr_ChannelCount">("11111");
    for (std::size_t i = 0; i < 31; ++i) message.let<"PRstr_NeighborChannelIncluded">(i, "1");
  }
  const auto object = make<simulator::MessageObject>();
  const Ref<Object> target(object);
  for (auto _ : state) {
    message.create_message(target);
    benchmark::DoNotOptimize(object->octets().data());
  }
}
BENCHMARK(CreateSectorParameters)->ArgName("full")->Arg(0)->Arg(1);

/// Every class that builds, with its defaults: the label names the two slowest.
void EncodeEveryMessage(benchmark::State& state) {
  struct Timed {
    std::string_view name;
    double nanoseconds;
  };
  const auto configuration = test::fake_sector(test::fake_configuration());
  const Registry registry(class_tables());
  std::vector<Timed> times;
  for (auto _ : state) {
    times.clear();
    for (const MessageClass* cls : message_classes(registry)) {
      if (!cls->spec().builds()) continue;
      Platform nothing;
      const Ref<Object> object = registry.create(cls->spec().name, nothing);
      auto& message = dynamic_cast<Message&>(*object);
      message.initialize(configuration, {}, "");
      constexpr int kRounds = 200;
      const auto start = std::chrono::steady_clock::now();
      for (int i = 0; i < kRounds; ++i) benchmark::DoNotOptimize(message.encode());
      const std::chrono::duration<double, std::nano> took = std::chrono::steady_clock::now() - start;
      times.push_back({cls->spec().name, took.count() / kRounds});
    }
  }
  std::sort(times.begin(), times.end(), [](const Timed& a, const Timed& b) { return a.nanoseconds > b.nanoseconds; });
  std::string label;
  for (const Timed& timed : std::span(times).first(2)) {
    label += std::string(timed.name) + " " + std::to_string(static_cast<int>(timed.nanoseconds)) + " ns ";
  }
  state.SetLabel(label);
}
BENCHMARK(EncodeEveryMessage);

}  // namespace
}  // namespace vorlan
