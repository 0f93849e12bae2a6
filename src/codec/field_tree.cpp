#include "codec/field_tree.hpp"

#include <algorithm>
#include <vector>

#include "codec/meanings.hpp"
#include "codec/member_name.hpp"

namespace vorlan {

namespace {

std::string plain_value(std::string_view bits) {
  constexpr std::size_t kNumberBits = 31;
  constexpr std::size_t kHexBits = 256;
  if (bits.empty() || bits.size() > kHexBits) return {};
  return bits.size() <= kNumberBits ? std::to_string(small_value(bits)) : value_text(kHex, bits);
}

constexpr std::size_t kBitsPerLine = 32;

/// Whether a value is nothing but the digits of bits so many that digits and bits are better read side by side.
bool is_long_hex(std::string_view value, std::size_t bits) noexcept {
  constexpr std::size_t kReadableBits = 128;
  return bits > kReadableBits && value.starts_with("0x") && value.size() == 2 + (bits + 3) / 4;
}

struct Line {
  std::string name;
  std::string first;
  std::string bits;
  std::string value;
};

void add_lines(std::span<const DissectedField> tree, std::size_t depth, std::vector<Line>& lines) {
  for (const DissectedField& field : tree) {
    std::string_view bits = field.bits;
    // The first line takes what is over, so that the groups of the lines below are whole.
    const std::size_t over = bits.size() % kBitsPerLine;
    const std::size_t head = std::min(bits.size(), over == 0 ? kBitsPerLine : over);
    std::string_view value = field.value;
    const bool beside = is_long_hex(value, bits.size());
    const auto next_digits = [&](std::size_t count) {
      const std::string_view digits = value.substr(0, count);
      value.remove_prefix(digits.size());
      return std::string(digits);
    };
    Line line{std::string(2 * depth, ' ') + field.name, std::to_string(field.first), grouped_bits(bits.substr(0, head)),
              next_digits(beside ? 2 + (head + 3) / 4 : value.size())};
    if (!field.note.empty()) line.value += (line.value.empty() ? "(" : "  (") + field.note + ")";
    lines.push_back(std::move(line));
    for (bits.remove_prefix(head); !bits.empty(); bits.remove_prefix(kBitsPerLine)) {
      lines.push_back({{}, {}, grouped_bits(bits.substr(0, kBitsPerLine)), next_digits(beside ? kBitsPerLine / 4 : 0)});
    }
    add_lines(field.below, depth + 1, lines);
  }
}

}  // namespace

DissectedField dissected_leaf(std::string_view name, const Meaning* meaning, std::string_view whole, Extent extent) {
  const std::string_view bits = slice(whole, extent);
  DissectedField field{.name = std::string(bare_name(name)), .first = extent.offset + 1, .bits = std::string(bits)};
  if (meaning != nullptr) field.value = value_text(*meaning, bits);
  if (field.value.empty()) field.value = plain_value(bits);
  if (bits.size() < extent.width) field.note = bits.empty() ? "past the end" : "cut off by the end";
  return field;
}

std::string grouped_bits(std::string_view bits) {
  std::string text;
  for (std::size_t i = 0; i < bits.size(); ++i) {
    if (i > 0 && (bits.size() - i) % 4 == 0) text += ' ';
    text += bits[i];
  }
  return text;
}

std::string field_tree_text(std::span<const DissectedField> tree, std::string_view indent) {
  std::vector<Line> lines{{"Field", "Bit", "Bits", "Value"}};
  add_lines(tree, 0, lines);
  std::size_t name = 0;
  std::size_t first = 0;
  std::size_t bits = 0;
  for (const Line& line : lines) {
    name = std::max(name, line.name.size());
    first = std::max(first, line.first.size());
    bits = std::max(bits, line.bits.size());
  }
  std::string text;
  for (const Line& line : lines) {
    std::string row(indent);
    row.append(line.name).append(name - line.name.size() + 2 + first - line.first.size(), ' ');
    row.append(line.first).append(2, ' ').append(line.bits).append(bits - line.bits.size() + 2, ' ');
    row.append(line.value);
    row.erase(row.find_last_not_of(' ') + 1);
    text.append(row).append("\n");
  }
  return text;
}

}  // namespace vorlan
