// Where the attribute records of a message stand: found once, then searched.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "codec/extent.hpp"

namespace vorlan {

/// The first attribute record begins behind MessageID and TransactionID. Each is Length (8 bits, the octets behind it),
/// AttributeID and the rest; the last one may be cut off by the message's end.
class AttributeRecordIndex {
 public:
  static constexpr std::uint32_t kFirstRecord = 16;  ///< bits before it

  AttributeRecordIndex() = default;
  explicit AttributeRecordIndex(std::string_view message);

  [[nodiscard]] const std::vector<Extent>& records() const noexcept { return records_; }

  /// How many records have an AttributeID of 8 or 16 bits; none has one of another width. An 8-bit
  /// search finds 16-bit AttributeIDs by their high octet, and an 8-bit AttributeID together with a ValueID reads as 16
  /// bits: records do not tell how wide theirs is.
  [[nodiscard]] std::size_t count(std::string_view id) const;
  /// The n-th of these, from 0, as far as the message goes; the empty text if there are fewer.
  [[nodiscard]] std::string_view find(std::string_view message, std::string_view id, std::size_t n) const;

 private:
  /// AttributeID in the high half, number of the record in the low half: sorted, equal IDs stand in their order.
  using Keys = std::vector<std::uint32_t>;
  struct Range {
    const Keys* keys = nullptr;
    std::size_t first = 0;
    std::size_t last = 0;
  };
  [[nodiscard]] Range matches(std::string_view id) const;

  std::vector<Extent> records_;
  Keys by_octet_;
  Keys by_two_octets_;
};

}  // namespace vorlan
