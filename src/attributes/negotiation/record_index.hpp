// Where the attribute records of a message stand: found once, then searched.
#pragma once

#include <cstdint>
#include <optional>
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
  explicit AttributeRecordIndex(std::string_view message) { read(message); }

  /// Forgets the message before.
  void read(std::string_view message);
  [[nodiscard]] const std::vector<Extent>& records() const noexcept { return records_; }

  /// How many records have an AttributeID of 8 or 16 bits; none has one of another width. An 8-bit
  /// search finds 16-bit AttributeIDs by their high octet, and an 8-bit AttributeID together with a ValueID reads as 16
  /// bits: records do not tell how wide theirs is.
  [[nodiscard]] std::size_t count(std::string_view id) const;
  /// The n-th of these, from 0, as far as the message goes; the empty text if there are fewer.
  [[nodiscard]] std::string_view find(std::string_view message, std::string_view id, std::size_t n) const;

 private:
  struct Wanted {
    std::size_t octets;
    std::uint32_t id;
  };
  /// AttributeID in the high half, number of the record in the low half: sorted, equal IDs stand in their order.
  using Keys = std::vector<std::uint64_t>;

  [[nodiscard]] static std::optional<Wanted> wanted(std::string_view id) noexcept;
  /// So many octets behind a record's Length; none if the message ends before.
  [[nodiscard]] std::optional<std::uint32_t> id_of(std::size_t record, std::size_t octets) const noexcept;
  [[nodiscard]] const Keys& keys(std::size_t octets) const;

  std::vector<std::uint8_t> octets_;
  std::vector<Extent> records_;
  // Many a message is asked for one record only: the first search goes by all of them, and the next ones sort.
  mutable bool searched_ = false;
  mutable Keys keys_[2];
};

}  // namespace vorlan
