#include "simulator/terminal/attribute_records.hpp"

#include <algorithm>

namespace vorlan::simulator {

namespace {

constexpr int kReverseMac = 4;
constexpr int kSessionConfiguration = 18;
constexpr int kFirstStream = 20;
constexpr int kLastStream = 23;

constexpr AttributeRule kRules[] = {
    {2, 0x00, 0x00, true, 0},                           // InitialConfiguration
    {2, 0x01, 0x01, true, 0},                           // PowerParameters
    {3, 0x00, 0x00, true, 0},                           // HandoffDelays
    {3, 0x01, 0x01, true, 0},                           // DRCLock
    {kReverseMac, 0x00, 0x00, true, 0},                 // PowerParameters
    {kReverseMac, 0x01, 0x01, true, 0},                 // RateParameters
    {5, 0x00, 0x00, false, 1},                          // SKeyLength
    {6, 0x00, 0x00, false, 2},                          // ACAuthKeyLength
    {12, 0x00, 0x00, true, 0},                          // PreferredControlChannelCycle
    {12, 0x01, 0x01, true, 0},                          // SlottedMode
    {12, 0x02, 0x02, true, 0},                          // PagingMask
    {14, 0x00, 0x00, true, 0},                          // SearchParameters
    {14, 0x01, 0x01, true, 0},                          // SetManagementSameChannelParameters
    {14, 0x02, 0x02, true, 0},                          // SetManagementDifferentChannelParameters
    {14, 0x04, 0x04, true, 0},                          // SupportedCDMAChannels
    {kSessionConfiguration, 0x0000, 0x00FF, false, 2},  // ProtocolType
    {kSessionConfiguration, 0x0100, 0x0100, false, 2},  // SessionConfigurationToken
    {kSessionConfiguration, 0x0101, 0x0101, false, 2},  // SupportGAUPSessionConfigurationToken
    {kSessionConfiguration, 0x0102, 0x0102, false, 2},  // SupportConfigurationLock
    {kSessionConfiguration, 0x0110, 0x0110, false, 2},  // PersonalityCount
    {kSessionConfiguration, 0x1000, 0x1000, true, 0},   // PriorSession
    {kSessionConfiguration, 0x1001, 0x1001, true, 0},   // ATSupportedApplicationSubtypes
    {19, 0x00, 0x00, true, 0},                          // StreamConfiguration
};

// Subtype 3: value records up to 0x16NN, plain octets from 0xF9NN on.
constexpr AttributeRule kReverseMacSubtype3{kReverseMac, 0x0000, 0x16FF, true, 0};

bool wide_reverse_mac(int protocol, int subtype) noexcept { return protocol == kReverseMac && subtype >= 3; }

bool covers(const AttributeRule& rule, int id) noexcept { return id >= rule.first_id && id <= rule.last_id; }

}  // namespace

AttributeRule attribute_rule(int protocol, int subtype, int id) noexcept {
  if (wide_reverse_mac(protocol, subtype)) {
    if (covers(kReverseMacSubtype3, id)) return kReverseMacSubtype3;
  } else {
    for (const AttributeRule& rule : kRules) {
      if (rule.protocol == protocol && covers(rule, id)) return rule;
    }
  }
  return {protocol, id, id, false, 1};
}

int attribute_id_octets(int protocol, int subtype) noexcept {
  const bool wide = protocol == kSessionConfiguration || wide_reverse_mac(protocol, subtype) ||
                    (protocol >= kFirstStream && protocol <= kLastStream);
  return wide ? 2 : 1;
}

std::optional<std::vector<AttributeRecord>> parse_records(std::span<const std::uint8_t> octets, int id_octets) {
  const auto width = static_cast<std::size_t>(id_octets);
  std::vector<AttributeRecord> records;
  while (!octets.empty()) {
    const std::size_t length = octets[0];
    if (length < width || octets.size() < length + 1) return std::nullopt;
    const auto value = octets.subspan(1 + width, length - width);
    records.push_back({id_octets == 2 ? number16(octets.subspan(1)) : octets[1], {value.begin(), value.end()}});
    octets = octets.subspan(length + 1);
  }
  return records;
}

void append_record(Octets& octets, int id, int id_octets, std::span<const std::uint8_t> value) {
  octets.push_back(static_cast<std::uint8_t>(value.size() + static_cast<std::size_t>(id_octets)));
  if (id_octets == 2) octets.push_back(static_cast<std::uint8_t>(id >> 8));
  octets.push_back(static_cast<std::uint8_t>(id & 0xFF));
  octets.insert(octets.end(), value.begin(), value.end());
}

std::span<const std::uint8_t> accepted_value(const AttributeRule& rule, const AttributeRecord& proposed) noexcept {
  const std::size_t width = rule.complex ? 1 : static_cast<std::size_t>(rule.value_octets);
  return proposed.value.size() < width ? std::span<const std::uint8_t>() : std::span(proposed.value).first(width);
}

bool picks_from(const AttributeRule& rule, const AttributeRecord& proposed, std::span<const std::uint8_t> answer) {
  // Where the second and later value records of a complex attribute begin, only the attribute itself knows: an octet
  // that stands nowhere in the proposal is certainly none of its ValueIDs.
  const std::size_t width = rule.complex ? 1 : static_cast<std::size_t>(rule.value_octets);
  if (answer.size() != width) return false;
  const std::size_t step = rule.complex ? 1 : width;
  for (std::size_t at = 0; at + width <= proposed.value.size(); at += step) {
    if (std::equal(answer.begin(), answer.end(), proposed.value.begin() + static_cast<std::ptrdiff_t>(at))) return true;
  }
  return false;
}

}  // namespace vorlan::simulator
