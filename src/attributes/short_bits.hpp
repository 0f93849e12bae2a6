// A bit string of up to 16 bits, held in place: simple attributes hold three, and none of them costs an allocation.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vorlan {

class ShortBits {
 public:
  static constexpr std::size_t kCapacity = 16;

  constexpr ShortBits() noexcept = default;
  /// At most kCapacity characters.
  constexpr explicit ShortBits(std::string_view bits) noexcept : size_(static_cast<std::uint8_t>(bits.size())) {
    std::copy(bits.begin(), bits.end(), text_.begin());
  }
  /// The low bits of a number.
  constexpr ShortBits(std::uint32_t value, std::size_t width) noexcept : size_(static_cast<std::uint8_t>(width)) {
    for (std::size_t i = width; i-- > 0; value >>= 1U) text_[i] = (value & 1U) != 0 ? '1' : '0';
  }

  [[nodiscard]] constexpr std::string_view view() const noexcept { return {text_.data(), size_}; }

 private:
  std::array<char, kCapacity> text_{};
  std::uint8_t size_ = 0;
};

}  // namespace vorlan
