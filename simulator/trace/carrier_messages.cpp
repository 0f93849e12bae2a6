#include "simulator/trace/carrier_messages.hpp"

#include <algorithm>

#include "common/bits.hpp"
#include "simulator/terminal/attribute_records.hpp"

namespace vorlan::simulator {

namespace {

constexpr int kAnyProtocol = -1;
constexpr int kKeyExchange = 5;

struct CarrierField {
  std::string_view name;
  std::uint32_t bits;
};

enum class Rest : std::uint8_t { Nothing, Records, Octets };

struct Carrier {
  int protocol;
  int message_id;
  std::string_view name;
  std::span<const CarrierField> fields;
  Rest rest;
  std::string_view rest_name = {};
};

constexpr CarrierField kTransaction[] = {{"MessageID", 8}, {"TransactionID", 8}};
constexpr CarrierField kTimed[] = {{"MessageID", 8}, {"TransactionID", 8}, {"Timeout", 8}};
constexpr CarrierField kSigned[] = {{"MessageID", 8}, {"TransactionID", 8}, {"Nonce", 16}, {"TimeStampShort", 16}};
constexpr CarrierField kResult[] = {{"MessageID", 8}, {"TransactionID", 8}, {"Result", 1}, {"Reserved", 7}};

constexpr Carrier kCarriers[] = {
    {kAnyProtocol, 0x50, "ConfigurationRequest", kTransaction, Rest::Records},
    {kAnyProtocol, 0x51, "ConfigurationResponse", kTransaction, Rest::Records},
    {kAnyProtocol, 0x52, "AttributeUpdateRequest", kTransaction, Rest::Records},
    {kAnyProtocol, 0x53, "AttributeUpdateAccept", kTransaction, Rest::Nothing},
    {kAnyProtocol, 0x54, "AttributeUpdateReject", kTransaction, Rest::Nothing},
    {kKeyExchange, 0x00, "KeyRequest", kTimed, Rest::Octets, "ANPubKey"},
    {kKeyExchange, 0x01, "KeyResponse", kTimed, Rest::Octets, "ATPubKey"},
    {kKeyExchange, 0x02, "ANKeyComplete", kSigned, Rest::Octets, "KeySignature"},
    {kKeyExchange, 0x03, "ATKeyComplete", kResult, Rest::Nothing},
};

/// Long values in hexadecimal, a line for every 24 octets.
void add_octets(std::vector<DissectedField>& fields, std::string name, std::size_t first,
                std::span<const std::uint8_t> octets) {
  constexpr std::size_t kPerLine = 24;
  DissectedField whole{.name = std::move(name), .first = first};
  if (octets.size() <= kPerLine) {
    whole.value = hex_text(octets);
  } else {
    whole.value = std::to_string(octets.size()) + " octets";
    for (std::size_t at = 0; at < octets.size(); at += kPerLine) {
      const auto line = octets.subspan(at, std::min(kPerLine, octets.size() - at));
      whole.below.push_back({.name = {}, .first = first + at * 8, .value = hex_text(line)});
    }
  }
  fields.push_back(std::move(whole));
}

void add_records(std::vector<DissectedField>& fields, int protocol, std::size_t first,
                 std::span<const std::uint8_t> octets) {
  const int id_octets = attribute_id_octets(protocol, 0);
  const auto records = parse_records(octets, id_octets);
  if (!records) {
    add_octets(fields, "no attribute records", first, octets);
    return;
  }
  for (const AttributeRecord& record : *records) {
    std::string name(attribute_rule(protocol, 0, record.id).name);
    const Octets id{static_cast<std::uint8_t>(record.id >> 8), static_cast<std::uint8_t>(record.id & 0xFF)};
    name.append(name.empty() ? "Attribute 0x" : " 0x");
    for (const std::uint8_t octet : std::span(id).last(static_cast<std::size_t>(id_octets))) {
      name += hex_text({&octet, 1});
    }
    add_octets(fields, std::move(name), first, record.value);
    first += 8 * (1 + static_cast<std::size_t>(id_octets) + record.value.size());
  }
}

}  // namespace

std::optional<LadderRung> carrier_message(int protocol, std::span<const std::uint8_t> octets) {
  const auto* const carrier = std::find_if(std::begin(kCarriers), std::end(kCarriers), [&](const Carrier& row) {
    return (row.protocol == kAnyProtocol || row.protocol == protocol) && row.message_id == octets[0];
  });
  if (carrier == std::end(kCarriers)) return std::nullopt;
  std::string bits(octets.size() * 8, '0');
  unpack_bits(octets.data(), bits.size(), bits.data());
  LadderRung rung{std::string(carrier->name), {}};
  Extent extent;
  for (const CarrierField& field : carrier->fields) {
    extent.width = field.bits;
    rung.fields.push_back(dissected_leaf(field.name, nullptr, bits, extent));
    extent.offset += field.bits;
  }
  const std::size_t read = std::min<std::size_t>(extent.offset / 8, octets.size());
  const auto rest = octets.subspan(read);
  if (carrier->rest == Rest::Records) {
    add_records(rung.fields, protocol, 8 * read + 1, rest);
  } else if (!rest.empty()) {
    add_octets(rung.fields, std::string(carrier->rest_name.empty() ? "past the end" : carrier->rest_name), 8 * read + 1,
               rest);
  }
  return rung;
}

}  // namespace vorlan::simulator
