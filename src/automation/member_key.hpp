// A member's name in a form that is quick to look up.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <string_view>

namespace vorlan {

/// The first, middle and last eight characters of a name: the whole of a name of up to 24.
struct MemberKey {
  MemberKey() = default;
  constexpr explicit MemberKey(std::string_view name) noexcept : size(name.size()) {
    constexpr std::size_t kWord = sizeof first;
    if (size >= kWord) {
      first = load(name.data(), kWord);
      middle = load(name.data() + (size - kWord) / 2, kWord);
      last = load(name.data() + size - kWord, kWord);
    } else {
      first = load(name.data(), size);
    }
  }

  /// Names of the same key are the same name, unless they are long.
  [[nodiscard]] constexpr bool is_whole_name() const noexcept { return size <= 3 * sizeof first; }

  /// The same for every case of the letters A to Z.
  [[nodiscard]] MemberKey in_small_letters() const noexcept {
    MemberKey key = *this;
    for (std::uint64_t* word : {&key.first, &key.middle, &key.last}) *word = small(*word);
    return key;
  }

  friend bool operator==(const MemberKey&, const MemberKey&) noexcept = default;

  [[nodiscard]] constexpr std::size_t hash() const noexcept {
    const std::uint64_t mixed =
        (first ^ std::rotl(middle, 23)) * 0x9E3779B97F4A7C15U + (last ^ size) * 0xC2B2AE3D27D4EB4FU;
    return static_cast<std::size_t>(mixed >> 40U);
  }

  std::uint64_t first = 0;
  std::uint64_t middle = 0;
  std::uint64_t last = 0;
  std::size_t size = 0;

 private:
  static constexpr std::uint64_t load(const char* text, std::size_t count) noexcept {
    std::array<char, sizeof first> characters{};
    std::copy_n(text, count, characters.begin());
    return std::bit_cast<std::uint64_t>(characters);
  }

  /// The letters A to Z of eight characters turned small; every other character stays.
  static constexpr std::uint64_t small(std::uint64_t word) noexcept {
    constexpr std::uint64_t kEach = 0x0101010101010101;
    const std::uint64_t low = word & (kEach * 0x7F);
    const std::uint64_t from_a = low + kEach * (0x80 - 'A');
    const std::uint64_t past_z = low + kEach * (0x7F - 'Z');
    const std::uint64_t capital = (from_a ^ past_z) & ~word & (kEach * 0x80);
    return word | (capital >> 2U);
  }
};

/// A member's name ready to be looked up: where it is a constant, it is made ready when the program is compiled.
struct PreparedName {
  constexpr PreparedName() = default;
  constexpr PreparedName(std::string_view name) noexcept : text(name), key(name), hash(key.hash()) {}
  constexpr PreparedName(const char* name) noexcept : PreparedName(std::string_view(name)) {}

  std::string_view text;
  MemberKey key;
  std::size_t hash = 0;
};

}  // namespace vorlan
