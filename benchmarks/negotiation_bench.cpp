// Messages that carry attribute records, against a hand-written packer and walker over the octets in the same run.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>

#include "attributes/complex/mac_attributes.hpp"
#include "attributes/mac_simple_attributes.hpp"
#include "attributes/negotiation/configuration_messages.hpp"
#include "simulator/message_object.hpp"
#include "yardstick.hpp"

namespace vorlan {
namespace {

/// Flow 1 of a reverse traffic channel: what is set, as bit strings.
struct Fields {
  std::array<const char*, 9> simple = {"01101100", "00000010", "00000001", "00000001", "00000110",
                                       "00000011", "00000000", "00000010", "00000111"};
  std::array<const char*, 3> max_mac_flows = {"00000001", "00010000", "00001000"};
  std::array<const char*, 4> common_power = {"00000000", "0100", "00011000", "01"};
  std::array<const char*, 6> pilot_strength = {"00000000", "0010", "001010", "010100", "0011", "0110"};
};
constexpr const char* kSimpleIds[] = {"1111111000000001", "1111110100000001", "1111110000000001",
                                      "1111101100000001", "1111101000000001", "1111100100000001",
                                      "1111111111111111", "1111111111111110", "1111111111111101"};
constexpr const char* kTransactionId = "00000101";
constexpr std::size_t kBits = 16 + 9 * 32 + 48 + 48 + 56;
using Octets = std::array<std::uint8_t, kBits / 8>;

class YardstickText {
 public:
  void put(const char* text, std::size_t bits) noexcept {
    std::memcpy(end_, text, bits);
    end_ += bits;
  }
  /// An octet at a time: as wide as the fields are that were put.
  void pack(Octets& octets) const noexcept {
    for (std::size_t i = 0; i < octets.size(); ++i) {
      std::uint64_t bits;
      std::memcpy(&bits, text_ + 8 * i, 8);
      octets[i] = static_cast<std::uint8_t>((bits & 0x0101010101010101U) * 0x8040201008040201U >> 56U);
    }
  }

 private:
  char text_[kBits];
  char* end_ = text_;
};

/// The layout is known: MaxMACFlows, CommonPowerParameters and PilotStrength are complex.
void yardstick_pack(const Fields& fields, Octets& octets) noexcept {
  YardstickText text;
  text.put("01010000", 8);
  text.put(kTransactionId, 8);
  for (std::size_t i = 0; i < fields.simple.size(); ++i) {
    text.put("00000011", 8);
    text.put(kSimpleIds[i], 16);
    text.put(fields.simple[i], 8);
  }
  text.put("000001010000000000010100", 24);
  for (const char* bits : fields.max_mac_flows) text.put(bits, 8);
  text.put("000001010000000000000001", 24);
  text.put(fields.common_power[0], 8);
  text.put(fields.common_power[1], 4);
  text.put(fields.common_power[2], 8);
  text.put(fields.common_power[3], 2);
  text.put("00", 2);
  text.put("000001100000000000000100", 24);
  text.put(fields.pilot_strength[0], 8);
  text.put(fields.pilot_strength[1], 4);
  text.put(fields.pilot_strength[2], 6);
  text.put(fields.pilot_strength[3], 6);
  text.put(fields.pilot_strength[4], 4);
  text.put(fields.pilot_strength[5], 4);
  text.pack(octets);
}

void YardstickPackRequest(benchmark::State& state) {
  Fields fields;
  Octets octets;
  for (auto _ : state) {
    benchmark::DoNotOptimize(fields);
    yardstick_pack(fields, octets);
    benchmark::DoNotOptimize(octets);
  }
}
BENCHMARK(YardstickPackRequest);

template <class T>
std::string simple_record(const char* value) {
  const auto attribute = make<T>();
  attribute->template let<"PRstr_AttrValue">(value);
  return attribute->build();
}
template <class T>
std::string flow_record(const char* id, const char* value) {
  const auto attribute = make<T>();
  attribute->template let<"PRstr_AttribId">(id);
  attribute->template let<"PRstr_AttrValue">(value);
  return attribute->build();
}

/// Every record by an attribute object of its own, as scripts do it.
std::array<std::string, 12> records_of(const Fields& fields) {
  std::array<std::string, 12> records;
  records[0] = flow_record<SB_MAC_AttrBucketLevelMaxNN>(kSimpleIds[0], fields.simple[0]);
  records[1] = flow_record<SB_MAC_AttrMergeThresholdNN>(kSimpleIds[1], fields.simple[1]);
  records[2] = flow_record<SB_MAC_AttrTransmissionModeNN>(kSimpleIds[2], fields.simple[2]);
  records[3] = flow_record<SB_MAC_AttrQRABSelectNN>(kSimpleIds[3], fields.simple[3]);
  records[4] = flow_record<SB_MAC_AttrBurstDurationFactorNN>(kSimpleIds[4], fields.simple[4]);
  records[5] = flow_record<SB_MAC_AttrT2PFilterTCNN>(kSimpleIds[5], fields.simple[5]);
  records[6] = simple_record<SB_Mac_AttrARQMode>(fields.simple[6]);
  records[7] = simple_record<SB_Mac_AttrFRABFilterTC>(fields.simple[7]);
  records[8] = simple_record<SB_Mac_AttrFRABlow>(fields.simple[8]);

  const auto flows = make<SB_Mac_ValMaxMACFlows>();
  flows->let<"PRstr_ValueId">(fields.max_mac_flows[0]);
  flows->let<"PRstr_MaxNumMACFlows">(fields.max_mac_flows[1]);
  flows->let<"PRstr_MaxNumActiveMACFlows">(fields.max_mac_flows[2]);
  records[9] = make<SB_Mac_AttrMaxMACFlows>()->build(flows->build());

  const auto power = make<SB_Mac_ValCommonPowerParameters>();
  power->let<"PRstr_ValueId">(fields.common_power[0]);
  power->let<"PRstr_AllocationStagger">(fields.common_power[1]);
  power->let<"PRstr_TxT2Pmin">(fields.common_power[2]);
  power->let<"PRstr_RPCStep">(fields.common_power[3]);
  records[10] = make<SB_Mac_AttrCommonPowerParameters>()->build(power->build());

  const auto strength = make<SB_Mac_ValPilotStrength>();
  strength->let<"PRstr_ValueId">(fields.pilot_strength[0]);
  strength->let<"PRstr_NumPilotStrengthAxisValues">(fields.pilot_strength[1]);
  strength->let<"PilotStrengthAxis">({0}, fields.pilot_strength[2]);
  strength->let<"PilotStrengthAxis">({1}, fields.pilot_strength[3]);
  strength->let<"PilotStrengthPilotStrengthAxis">({0}, fields.pilot_strength[4]);
  strength->let<"PilotStrengthPilotStrengthAxis">({1}, fields.pilot_strength[5]);
  records[11] = make<SB_Mac_AttrPilotStrength>()->build(strength->build());
  return records;
}

void create_request(SB_MsgConfigurationRequest& message, const std::array<std::string, 12>& records,
                    const Ref<Object>& target) {
  message.create_message(target, std::accumulate(records.begin(), records.end(), std::string()));
}

/// A request that was checked against the yardstick.
struct Request {
  Request() {
    message.initialize();
    message.let_transaction_id(kTransactionId);
    Octets expected;
    yardstick_pack(Fields(), expected);
    create_request(message, records_of(Fields()), target);
    const auto octets = object->octets();
    good = octets.size() >= expected.size() && std::equal(expected.begin(), expected.end(), octets.begin());
  }
  SB_MsgConfigurationRequest message;
  Ref<simulator::MessageObject> object = make<simulator::MessageObject>();
  Ref<Object> target = object;
  bool good;
};

void BuildRequestFromFields(benchmark::State& state) {
  Request request;
  if (!request.good) state.SkipWithError("not the octets of the yardstick");
  Fields fields;
  for (auto _ : state) {
    benchmark::DoNotOptimize(fields);
    create_request(request.message, records_of(fields), request.target);
    benchmark::DoNotOptimize(request.object->octets().data());
  }
}
BENCHMARK(BuildRequestFromFields);

void BuildRequestFromRecords(benchmark::State& state) {
  Request request;
  if (!request.good) state.SkipWithError("not the octets of the yardstick");
  const auto records = records_of(Fields());
  for (auto _ : state) {
    create_request(request.message, records, request.target);
    benchmark::DoNotOptimize(request.object->octets().data());
  }
}
BENCHMARK(BuildRequestFromRecords);

/// The records of the request and then MaxMACFlows of two values, the one that is looked for.
std::vector<std::uint8_t> received_octets() {
  Octets octets;
  yardstick_pack(Fields(), octets);
  constexpr std::size_t kMaxMACFlowsRecord = 38;
  std::vector<std::uint8_t> received(octets.begin(), octets.end());
  received.erase(received.begin() + kMaxMACFlowsRecord, received.begin() + kMaxMACFlowsRecord + 6);
  received.insert(received.end(), {8, 0, 0x14, 1, 16, 8, 2, 8, 4});
  return received;
}

/// Walks up to the record and makes text of it and of a field.
void YardstickWalk(benchmark::State& state) {
  std::vector<std::uint8_t> octets = received_octets();
  char text[8 * 256];
  for (auto _ : state) {
    benchmark::DoNotOptimize(octets.data());
    std::string_view field;
    for (std::size_t i = 2; i + 2 < octets.size(); i += octets[i] + 1U) {
      if (octets[i + 1] != 0 || octets[i + 2] != 0x14) continue;
      yardstick::unpack(octets.data() + i, octets[i] + 1U, text);
      field = std::string_view(text, 8 * (octets[i] + 1U)).substr(32, 8);
      break;
    }
    benchmark::DoNotOptimize(text);
    benchmark::DoNotOptimize(field);
  }
}
BENCHMARK(YardstickWalk);

void ReceiveAndReadLastRecord(benchmark::State& state) {
  const std::vector<std::uint8_t> octets = received_octets();
  const Ref<Object> source(make<simulator::MessageObject>(octets));
  SB_MsgConfigurationRequest message;
  const std::size_t field = find_field(kValMaxMACFlowsFields, "PRstr_MaxNumMACFlows");
  for (auto _ : state) {
    message.receive(source);
    auto& attribute = static_cast<ComplexAttribute&>(message.attribute<"PRobj_AttrMaxMACFlows">(0));
    benchmark::DoNotOptimize(attribute.value(0).record().get(field));
  }
}
BENCHMARK(ReceiveAndReadLastRecord);

void ReceiveAndReadLastSimpleRecord(benchmark::State& state) {
  std::vector<std::uint8_t> octets = received_octets();
  octets.insert(octets.end(), {3, 0xFE, 0x02, 0x55});
  const Ref<Object> source(make<simulator::MessageObject>(octets));
  SB_MsgAttributeUpdateRequest message;
  for (auto _ : state) {
    message.receive(source);
    auto& attribute = static_cast<SimpleAttribute&>(message.attribute<"PRobj_AttrBucketLevelMaxNN">(0));
    benchmark::DoNotOptimize(attribute.value());
  }
}
BENCHMARK(ReceiveAndReadLastSimpleRecord);

/// Every record of a long message through its getter; the time is to grow as the records do.
void ReadRecords(benchmark::State& state) {
  const auto records = static_cast<std::size_t>(state.range(0));
  std::vector<std::uint8_t> octets{0x52, 0x01};
  for (std::size_t i = 0; i < records; ++i) octets.insert(octets.end(), {3, 0xFE, 2, static_cast<std::uint8_t>(i)});
  const Ref<Object> source(make<simulator::MessageObject>(octets));
  SB_MsgAttributeUpdateRequest message;
  for (auto _ : state) {
    message.receive(source);
    for (std::size_t i = 0; i < records; ++i) {
      auto& attribute = static_cast<SimpleAttribute&>(message.attribute<"PRobj_AttrBucketLevelMaxNN">(i));
      benchmark::DoNotOptimize(attribute.value());
    }
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(ReadRecords)->Arg(50)->Arg(100)->Arg(200)->Arg(400);

}  // namespace
}  // namespace vorlan
