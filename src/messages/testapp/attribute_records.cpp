#include "messages/testapp/attribute_records.hpp"

#include <algorithm>

namespace vorlan::testapp {

namespace {

constexpr std::size_t kOctet = 8;
constexpr std::size_t kFirstRecord = 2 * kOctet;

struct ValueField {
  std::string_view name;
  std::uint8_t bits;
};
struct Attribute {
  std::uint8_t id;
  std::string_view name;
  ValueField fields[4];
};

constexpr Attribute kFtap[] = {
    {0x00, "DRCValueFixedMode", {{"DRCValue", 8}}},
    {0x01, "DRCCoverFixedMode", {{"DRCCover", 8}}},
    {0x02, "ACKChannelBitFixedMode", {{"ACKChannelBit", 8}}},
    {0x03, "LoopBackMode", {{"LoopBackPersistence", 8}}},
    {0x04,
     "IdleASPStats",
     {{"IdleASPChangeOverflow", 1}, {"IdleASPChange", 15}, {"IdleTimeOverflow", 1}, {"IdleTime", 23}}},
    {0x05,
     "ConnectedSSStats",
     {{"ConnectedSSChangeOverflow", 1},
      {"ConnectedSSChange", 15},
      {"ConnectedTimeOverflow", 1},
      {"ConnectedTime", 23}}},
    {0x06,
     "FirstSyncCCPktStats",
     {{"FirstSyncCCPktOverflow", 1}, {"FirstSyncCCPkt", 15}, {"CCTimeOverflow", 1}, {"CCTime", 15}}},
};
constexpr Attribute kRtap[] = {
    {0x00, "RTAPTestPktEnable", {{"RTAPTestPktPersistence", 8}}},
    {0x01, "PacketRateMode", {{"MinRate", 8}, {"MaxRate", 8}}},
};

std::string_view cut(std::string_view bits, std::size_t offset, std::size_t width) noexcept {
  return offset < bits.size() ? bits.substr(offset, width) : std::string_view{};
}

/// Length itself and the octets that it counts.
std::size_t record_width(std::string_view bits, std::size_t offset) noexcept {
  return kOctet + kOctet * small_value(cut(bits, offset, kOctet));
}

void append_record(std::span<const Attribute> attributes, std::string_view record, std::string& text) {
  const std::size_t id = small_value(cut(record, kOctet, kOctet));
  const auto found = std::find_if(attributes.begin(), attributes.end(), [&](const auto& a) { return a.id == id; });
  if (record.size() <= kOctet || found == attributes.end()) {
    text += record.size() <= kOctet ? "empty record" : "attribute " + std::to_string(id);
    return;
  }
  text += found->name;
  std::size_t offset = 2 * kOctet;
  for (const ValueField& field : found->fields) {
    if (field.bits == 0 || offset + field.bits > record.size()) return;
    text += offset == 2 * kOctet ? ": " : ", ";
    text.append(field.name).append(" ").append(std::to_string(small_value(cut(record, offset, field.bits))));
    offset += field.bits;
  }
}

std::string records_text(std::span<const Attribute> attributes, std::string_view bits) {
  std::string text;
  for (std::size_t offset = 0; offset < bits.size(); offset += record_width(bits, offset)) {
    if (!text.empty()) text += "; ";
    append_record(attributes, cut(bits, offset, record_width(bits, offset)), text);
  }
  return text;
}

std::string find_record(const Message& message, std::string_view attribute_id, std::size_t width) {
  const std::string_view bits = message.message_string();
  for (std::size_t offset = kFirstRecord; offset < bits.size(); offset += record_width(bits, offset)) {
    if (cut(bits, offset + kOctet, kOctet) == attribute_id) return std::string(cut(bits, offset, width));
  }
  return {};
}

}  // namespace

std::string ftap_records_text(std::string_view bits) { return records_text(kFtap, bits); }
std::string rtap_records_text(std::string_view bits) { return records_text(kRtap, bits); }

std::string idle_stats(const Message& message, std::size_t) { return find_record(message, "00000100", 56); }
std::string connected_stats(const Message& message, std::size_t) { return find_record(message, "00000101", 56); }
std::string first_sync_stats(const Message& message, std::size_t) { return find_record(message, "00000110", 48); }

void join_records(const BuildContext& context, BitBuffer& bits) { bits += context.argument(0); }

}  // namespace vorlan::testapp
