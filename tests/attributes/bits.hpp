// What the tests of attributes share: bit strings of numbers, texts of tables, and their cases one by one.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "attributes/short_bits.hpp"
#include "automation/object.hpp"
#include "support/raised.hpp"

namespace vorlan::test {

/// The low bits of a number, up to 16.
inline std::string bits_of(std::size_t value, std::size_t width) {
  return std::string(ShortBits(static_cast<std::uint32_t>(value), width).view());
}

/// What is missing to a whole octet, as zeros.
inline std::string filled_up(std::string bits) { return bits.append((8 - bits.size() % 8) % 8, '0'); }

/// A text of a table, where a mark stands for what its row says.
inline std::string replaced(std::string_view text, char mark, std::string_view by) {
  std::string result(text);
  if (const auto at = result.find(mark); at != std::string::npos) result.replace(at, 1, by);
  return result;
}

/// Setting a property to other widths than its own.
inline void expect_widths_refused(Object& object, std::string_view property, std::size_t width, const Raised& refused,
                                  bool narrower_too = true) {
  for (const std::size_t wrong : {width + 1, width + 8, width - 1}) {
    if (wrong < width && !narrower_too) continue;
    EXPECT_EQ(raised_by([&] { object.let(property, std::string(wrong, '1')); }), refused) << property << " " << wrong;
  }
}

template <class Rows, class F>
void for_every(const Rows& rows, F&& test) {
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    test(row);
  }
}

}  // namespace vorlan::test
