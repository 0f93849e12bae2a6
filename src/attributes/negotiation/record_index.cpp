#include "attributes/negotiation/record_index.hpp"

#include <algorithm>

namespace vorlan {

namespace {

constexpr std::uint32_t kOctet = 8;

bool is_bits(std::string_view text) { return text.find_first_not_of("01") == std::string_view::npos; }

}  // namespace

AttributeRecordIndex::AttributeRecordIndex(std::string_view message) {
  for (std::uint32_t position = kFirstRecord; position < message.size();) {
    const auto octets = static_cast<std::uint32_t>(small_value(message.substr(position, kOctet)));
    const auto number = static_cast<std::uint32_t>(records_.size());
    records_.push_back({position, (octets + 1) * kOctet});
    const std::string_view id = message.substr(std::min<std::size_t>(position + kOctet, message.size()), 2 * kOctet);
    if (id.size() >= kOctet) {
      by_octet_.push_back(static_cast<std::uint32_t>(small_value(id.substr(0, kOctet)) << 16U) | number);
    }
    if (id.size() == 2 * kOctet) {
      by_two_octets_.push_back(static_cast<std::uint32_t>(small_value(id) << 16U) | number);
    }
    position += (octets + 1) * kOctet;
  }
  std::sort(by_octet_.begin(), by_octet_.end());
  std::sort(by_two_octets_.begin(), by_two_octets_.end());
}

AttributeRecordIndex::Range AttributeRecordIndex::matches(std::string_view id) const {
  const Keys& keys = id.size() == kOctet ? by_octet_ : by_two_octets_;
  if ((id.size() != kOctet && id.size() != 2 * kOctet) || !is_bits(id)) return {};
  const auto wanted = static_cast<std::uint32_t>(small_value(id) << 16U);
  const auto first = std::lower_bound(keys.begin(), keys.end(), wanted);
  const auto last = std::upper_bound(first, keys.end(), wanted | 0xFFFFU);
  return {&keys, static_cast<std::size_t>(first - keys.begin()), static_cast<std::size_t>(last - keys.begin())};
}

std::size_t AttributeRecordIndex::count(std::string_view id) const {
  const Range range = matches(id);
  return range.last - range.first;
}

std::string_view AttributeRecordIndex::find(std::string_view message, std::string_view id, std::size_t n) const {
  const Range range = matches(id);
  if (n >= range.last - range.first) return {};
  return slice(message, records_[(*range.keys)[range.first + n] & 0xFFFFU]);
}

}  // namespace vorlan
