#include "attributes/negotiation/record_index.hpp"

#include <algorithm>

#include "common/bits.hpp"

namespace vorlan {

namespace {

constexpr std::uint32_t kOctet = 8;
constexpr unsigned kIdShift = 32;  // of a key

}  // namespace

void AttributeRecordIndex::read(std::string_view message) {
  octets_.resize(octets_for(message.size()));
  pack_bits(message, octets_.data());
  records_.clear();
  searched_ = false;
  for (Keys& keys : keys_) keys.clear();
  for (auto position = kFirstRecord; position < message.size(); position += records_.back().width) {
    records_.push_back({position, (octets_[position / kOctet] + 1U) * kOctet});
  }
  octets_.resize(message.size() / kOctet);
}

std::optional<AttributeRecordIndex::Wanted> AttributeRecordIndex::wanted(std::string_view id) noexcept {
  const bool is_bits = id.find_first_not_of("01") == std::string_view::npos;
  if (!is_bits || (id.size() != kOctet && id.size() != 2 * kOctet)) return std::nullopt;
  return Wanted{id.size() / kOctet, static_cast<std::uint32_t>(small_value(id))};
}

std::optional<std::uint32_t> AttributeRecordIndex::id_of(std::size_t record, std::size_t octets) const noexcept {
  const std::size_t start = records_[record].offset / kOctet + 1;
  if (start + octets > octets_.size()) return std::nullopt;
  return octets == 1 ? octets_[start] : static_cast<std::uint32_t>(octets_[start] << kOctet | octets_[start + 1]);
}

const AttributeRecordIndex::Keys& AttributeRecordIndex::keys(std::size_t octets) const {
  Keys& keys = keys_[octets - 1];
  if (!keys.empty()) return keys;
  keys.reserve(records_.size());
  for (std::size_t i = 0; i < records_.size(); ++i) {
    if (const auto id = id_of(i, octets)) keys.push_back(std::uint64_t{*id} << kIdShift | i);
  }
  std::sort(keys.begin(), keys.end());
  return keys;
}

std::size_t AttributeRecordIndex::count(std::string_view id) const {
  const auto search = wanted(id);
  if (!search) return 0;
  const Keys& sorted = keys(search->octets);
  const auto first = std::lower_bound(sorted.begin(), sorted.end(), std::uint64_t{search->id} << kIdShift);
  const auto last = std::lower_bound(first, sorted.end(), (std::uint64_t{search->id} + 1) << kIdShift);
  return static_cast<std::size_t>(last - first);
}

std::string_view AttributeRecordIndex::find(std::string_view message, std::string_view id, std::size_t n) const {
  const auto search = wanted(id);
  if (!search || n >= records_.size()) return {};
  if (!searched_) {
    searched_ = true;
    for (std::size_t i = 0; i < records_.size(); ++i) {
      if (id_of(i, search->octets) == search->id && n-- == 0) return slice(message, records_[i]);
    }
    return {};
  }
  const Keys& sorted = keys(search->octets);
  const std::uint64_t first_key = std::uint64_t{search->id} << kIdShift;
  const auto first = std::lower_bound(sorted.begin(), sorted.end(), first_key);
  if (n >= static_cast<std::size_t>(sorted.end() - first)) return {};
  const std::uint64_t found = *(first + static_cast<std::ptrdiff_t>(n));
  return found >> kIdShift == search->id ? slice(message, records_[static_cast<std::uint32_t>(found)])
                                         : std::string_view{};
}

}  // namespace vorlan
