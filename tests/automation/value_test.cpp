#include "automation/value.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "automation/object.hpp"
#include "support/print_value.hpp"
#include "support/raised.hpp"

namespace vorlan {
namespace {

using test::error_number;

constexpr std::int16_t operator""_int(unsigned long long value) { return static_cast<std::int16_t>(value); }

TEST(Value, ConvertsWithinItsRange) {
  struct Case {
    Value from;
    ValueType to;
    Value expected;
  };
  const Case cases[] = {
      // Half to even, on both sides of zero.
      {0.5, ValueType::Integer, 0_int},
      {1.5, ValueType::Integer, 2_int},
      {2.5, ValueType::Long, 2},
      {-2.5, ValueType::Long, -2},
      {"3.5", ValueType::Integer, 4_int},
      {32767.49, ValueType::Integer, 32767_int},
      {-32768.5, ValueType::Integer, std::int16_t{-32768}},
      {2147483647.5 - 0.25, ValueType::Long, std::numeric_limits<std::int32_t>::max()},
      {Value(), ValueType::Long, 0},
      {Value(), ValueType::String, ""},
      {true, ValueType::Integer, std::int16_t{-1}},
      {true, ValueType::String, "True"},
      {"TRUE", ValueType::Boolean, true},
      {"0.0", ValueType::Boolean, false},
      {" 12 ", ValueType::Long, 12},
      {"&HFF", ValueType::Long, 255},
      {"&HFFFF", ValueType::Long, -1},
      {"&H10000", ValueType::Long, 65536},
      {"1e3", ValueType::Integer, 1000_int},
      {Date{1.5}, ValueType::Double, 1.5},
      {Date{46331.379895833}, ValueType::String, "2026-11-05 09:07:03"},
      {Date{-0.75}, ValueType::String, "1899-12-29 06:00:00"},
      {Date{0.99999999}, ValueType::String, "1899-12-31 00:00:00"},
      {" 2024-02-29 18:00 ", ValueType::Date, Date{45351.75}},
      {"1899-12-29 06:00:00", ValueType::Date, Date{-0.75}},
      {"1900-1-1", ValueType::Date, Date{2}},
      {"2.5", ValueType::Date, Date{2.5}},
      {0.1F, ValueType::String, "0.1"},
  };
  for (const Case& c : cases) EXPECT_EQ(c.from.converted_to(c.to), c.expected) << ::testing::PrintToString(c.from);
}

TEST(Value, RefusesWhatDoesNotFit) {
  struct Case {
    Value from;
    ValueType to;
    int number;
  };
  const Case cases[] = {
      {32767.5, ValueType::Integer, 6},
      {32768, ValueType::Integer, 6},
      {-32768.51, ValueType::Integer, 6},
      {2147483648.0, ValueType::Long, 6},
      {std::numeric_limits<double>::quiet_NaN(), ValueType::Long, 6},
      {1e39, ValueType::Single, 6},
      {"1e400", ValueType::Double, 13},
      {"", ValueType::Long, 13},
      {"12a", ValueType::Long, 13},
      {"1,5", ValueType::Double, 13},
      {"nan", ValueType::Double, 13},
      {"- 1", ValueType::Long, 13},
      {"yes", ValueType::Boolean, 13},
      {"2025-02-29", ValueType::Date, 13},
      {"2025-258-28", ValueType::Date, 13},
      {"2025-02-28 24:00", ValueType::Date, 13},
      {"2025-02-28 9", ValueType::Date, 13},
      {"2025-02-28 09:07:03:01", ValueType::Date, 13},
      {"2025--2-28", ValueType::Date, 13},
      {Date{1e300}, ValueType::String, 6},
      {Null{}, ValueType::Long, 94},
      {Null{}, ValueType::String, 94},
      {Value::Array{}, ValueType::String, 13},
      {Ref<Object>(), ValueType::Long, 13},
      {1, ValueType::Object, 13},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(error_number([&] { (void)c.from.converted_to(c.to); }), c.number) << ::testing::PrintToString(c.from);
  }
}

TEST(Value, WritesNumbersAsAutomationDoes) {
  const std::pair<double, const char*> doubles[] = {
      {0, "0"},
      {-0.0, "0"},
      {1, "1"},
      {-1.5, "-1.5"},
      {0.1 + 0.2, "0.3"},
      {1.0 / 3, "0.333333333333333"},
      {1.0 / 30, "3.33333333333333E-02"},
      {999999999999999, "999999999999999"},
      {1e15, "1E+15"},
      {1234567890123456, "1.23456789012346E+15"},
      {0.0001, "0.0001"},
      {1.5e-7, "0.00000015"},
      {1e-20, "1E-20"},
      {-2.5e100, "-2.5E+100"},
  };
  for (const auto& [number, text] : doubles) EXPECT_EQ(number_text(number), text);
  EXPECT_EQ(number_text(3.14159274F), "3.141593");
  EXPECT_EQ(number_text(1e7F), "1E+07");
}

}  // namespace
}  // namespace vorlan
