// The bits of a message while they are joined.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>
#include <utility>
#include <vector>

#include "common/bits.hpp"

namespace vorlan {

/// Joins bit strings. Most messages are short: their bits stay in the object itself, those of longer ones on the heap.
class BitBuffer {
 public:
  BitBuffer() noexcept {}  // NOLINT(modernize-use-equals-default): what is not used yet is not set to zero
  BitBuffer(const BitBuffer&) = delete;
  BitBuffer& operator=(const BitBuffer&) = delete;
  ~BitBuffer() = default;

  BitBuffer& operator+=(std::string_view bits) {
    std::copy(bits.begin(), bits.end(), extend(bits.size()));
    return *this;
  }
  /// Appends "0" up to the next multiple of 8 bits.
  void pad() {
    const std::size_t missing = 8 * octets_for(size_) - size_;
    std::memset(extend(missing), '0', missing);
  }
  /// Leaves that many of the bits from a position on: the first ones, or the last ones.
  void keep_first(std::size_t count, std::size_t from) noexcept { size_ = std::min(size_, from + count); }
  void keep_last(std::size_t count, std::size_t from) noexcept {
    if (size_ <= from + count) return;
    std::memmove(data_ + from, data_ + size_ - count, count);
    size_ = from + count;
  }

  [[nodiscard]] std::size_t size() const noexcept { return size_; }
  [[nodiscard]] std::string_view view() const noexcept { return {data_, size_}; }

 private:
  /// Makes room at the end, and says where.
  char* extend(std::size_t count) {
    if (count > capacity_ - size_) grow(size_ + count);
    return data_ + std::exchange(size_, size_ + count);
  }
  void grow(std::size_t wanted);

  static constexpr std::size_t kUsualBits = 512;

  std::array<char, kUsualBits> usual_;
  std::vector<char> long_;
  char* data_ = usual_.data();
  std::size_t size_ = 0;
  std::size_t capacity_ = kUsualBits;
};

}  // namespace vorlan
