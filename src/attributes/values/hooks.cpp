// What single value classes do of their own.
#include "attributes/values/qos_values.hpp"
#include "attributes/values/record.hpp"
#include "automation/error.hpp"
#include "common/conversions.hpp"

namespace vorlan {

namespace {

const RecordClass& qos_profile() {
  static const RecordClass kClass{kQoSProfileFields, {.source = kOfProfile}};
  return kClass;
}

std::string source(const Record& record, std::string_view member) {
  return std::string(record.record_class().texts().source).append(".").append(member);
}

constexpr std::string_view kSetProperties[] = {"PRstr_QoSAttribSetLength", "PRstr_QoSAttribSetID",
                                               "PRstr_QoSAttribSetVerbose", "PRstr_QoSAttribSetProfileID"};

}  // namespace

std::string_view protocol_parameters(const Record& record, std::size_t) {
  return record.get("PRstr_ProtocolParameters");
}

void let_protocol_parameters(Record& record, std::size_t, std::string_view bits) {
  record.let("PRstr_ProtocolParameters", bits);
}

void decode_profile_type_1(Record& record) {
  const std::string operation = source(record, "Decode_ProfileType1");
  if (record.get("PRstr_ProfileType") != "00000001") throw kDecodeRefusals[0].error(operation);
  Record profile(qos_profile());
  if (!profile.receive(record.get("PRstr_ProfileValue"))) throw kDecodeRefusals[1].error(operation);
  record.let("PRstr_FlowPriority", profile.get("PRstr_FlowPriority"));
  record.let("PRstr_QoSAttribSetCount", profile.get("PRstr_QoSAttribSetCount"));
  const RecordClass& rows = record.record_class();
  const std::size_t sets = small_value(profile.get("PRstr_QoSAttribSetCount"));
  for (std::size_t i = 0; i < sets; ++i) {
    for (const std::string_view name : kSetProperties) record.store(rows.find(name), {i}, profile.get(name, {i}));
    record.store(rows.find("PRstr_ReserveBits"), {i}, profile.get("PRstr_ReserveBits", {i}));
  }
}

void set_profile(Record& record) {
  Record profile(qos_profile());
  const RecordClass& rows = record.record_class();
  profile.let("PRstr_FlowPriority", record.get("PRstr_FlowPriority"));
  profile.let("PRstr_QoSAttribSetCount", record.get("PRstr_QoSAttribSetCount"));
  const std::size_t sets = record.count(rows.find("PRstr_QoSAttribSetID"));
  for (std::size_t i = 0; i < sets; ++i) {
    // The rates and delays of a verbose set are no properties of the class.
    if (record.get("PRstr_QoSAttribSetVerbose", {i}) == "1") {
      throw kProfileSetRefusals[0].error(source(record, "ProfileSet"));
    }
    for (const std::string_view name : kSetProperties) profile.let(name, {i}, record.get(name, {i}));
  }
  const std::string bits = profile.build();
  record.let("PRstr_ProfileType", "00000001");
  record.let("PRstr_ProfileLength", dec_to_bin(static_cast<std::int32_t>(bits.size() / 8), 8));
  record.let("PRstr_ProfileValue", bits);
}

std::string_view granted_set(const Record& record, std::size_t) {
  constexpr std::size_t kSetBits = 7;
  return record.get("PRstr_ProfileValue").substr(0, kSetBits);
}

void let_granted_set(Record& record, std::size_t, std::string_view bits) {
  record.let("PRstr_ProfileType", "00000001");
  record.let("PRstr_ProfileLength", "00000001");
  record.let("PRstr_ProfileValue", std::string(bits) + "0");
}

}  // namespace vorlan
