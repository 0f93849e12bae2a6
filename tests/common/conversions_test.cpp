// Every conversion as scripts call it, with what it leaves in their variables.
#include "common/conversions.hpp"

#include <gtest/gtest.h>

#include "common/general_functions.hpp"
#include "support/fake_platform.hpp"
#include "support/print_value.hpp"
#include "support/raised.hpp"

namespace vorlan {
namespace {

using test::Raised;
using Values = std::vector<Value>;

const std::string kOnes32(32, '1');
const Raised kNone;
const Raised kOverflow{6, "", "Overflow"};
const Raised kMismatch{13, "", "Type mismatch"};
const Raised kBadCall{5, "", "Invalid procedure call or argument"};

Raised width_error(const std::string& value, const std::string& width) {
  return {1, "SB_GeneralFunctions.LongToBin",
          "The given value: " + value + " cannot be converted into " + width + " bit length."};
}
Raised character_error(const std::string& member, const std::string& c, const std::string& in) {
  return {1, "SB_GeneralFunctions." + member, "Invalid character(" + c + ") in " + in};
}

struct Case {
  const char* member;
  Values arguments;
  Value result;
  Values left;  ///< the arguments afterwards; none if they are as before
  Raised raised = kNone;
};

class Conversions : public ::testing::Test {
 protected:
  void check(std::span<const Case> cases) {
    const auto functions = make<SB_GeneralFunctions>(fake_.platform);
    for (const Case& c : cases) {
      Values arguments = c.arguments;
      Value result;
      Raised raised = test::raised_by([&] { result = functions->invoke(c.member, Access::Call, arguments); });
      // Errors of the automation rules bear the member's name.
      if (raised.number > 1) {
        EXPECT_EQ(raised.source, std::string("SB_GeneralFunctions.") + c.member);
        raised.source.clear();
      }
      const std::string shown = c.member + ::testing::PrintToString(c.arguments);
      EXPECT_EQ(raised, c.raised) << shown;
      EXPECT_EQ(result, c.result) << shown;
      EXPECT_EQ(arguments, c.left.empty() ? c.arguments : c.left) << shown;
    }
  }

 private:
  test::FakePlatform fake_;
};

TEST_F(Conversions, NumbersToBits) {
  const Case cases[] = {
      {"LongToBin", {5, 8}, "00000101"},
      {"LongToBin", {0, 0}, ""},
      {"LongToBin", {0, 40}, std::string(40, '0')},
      {"LongToBin", {2147483647, 31}, std::string(31, '1')},
      {"LongToBin", {2.5, "3"}, "010"},
      {"LongToBin", {256, std::int16_t{8}}, {}, {}, width_error("256", "8")},
      {"LongToBin", {0, -1}, {}, {}, width_error("0", "-1")},
      {"LongToBin", {1, 2000000000}, {}, {}, kOverflow},
      {"LongToBin", {-1, std::int16_t{8}}, kOnes32, {-1, std::int16_t{7}}},
      {"LongToBin", {-5, 8}, "1" + std::string(28, '1') + "011", {-5, 7}},
      {"LongToBin", {std::numeric_limits<std::int32_t>::min(), 8}, "1", {std::numeric_limits<std::int32_t>::min(), 7}},
      {"LongToBin", {1, "x"}, {}, {}, kMismatch},
      {"DecToBin", {"12", 4}, "1100"},
      {"DecToBin", {2.5, 4}, "0010"},
      {"DecToBin", {-1, 4}, kOnes32, {-1, 3}},
      {"DecToBin", {2147483648.0, 32}, {}, {}, kOverflow},
      {"DecToBin", {"twelve", 4}, {}, {}, kMismatch},
      {"CompliDecToBin", {0, 4}, "0000"},
      {"CompliDecToBin", {std::int16_t{-5}, 8}, "11111011", {std::int16_t{5}, 8}},
      {"CompliDecToBin", {-1, 8}, "11111111", {1, 8}},
      {"CompliDecToBin", {-128, 8}, "10000000", {128, 8}},
      {"CompliDecToBin", {-129, 8}, "01111111", {129, 8}},
      {"CompliDecToBin", {-256, 8}, {}, {256, 8}, width_error("256", "8")},
      {"CompliDecToBin", {5, 8}, "0000001", {-5, 7}},
      {"CompliDecToBin", {std::int16_t{-32768}, 16}, "1" + std::string(15, '0'), {32768, 16}},
      {"CompliDecToBin", {-1, 32}, {}, {1, 32}, kOverflow},
      {"DoubleToBin", {7.0, 3}, "111"},
      {"DoubleToBin", {8.0, 3}, ""},
      {"DoubleToBin", {0.0, 3}, "000"},
      {"DoubleToBin", {4294967295.0, 32}, kOnes32},
      {"DoubleToBin", {9007199254740993.0, 64}, "0000000000100000000000000000000000000000000000000000000000000000"},
      {"DoubleToBin", {-1.0, 8}, ""},
      {"DecToHex", {10, 4}, "0x000A"},
      {"DecToHex", {255, 1}, "0xFF"},
      {"DecToHex", {0, 0}, "0x0"},
      {"DecToHex", {-1, 4}, "0xFFFF"},
      {"DecToHex", {-2, 10}, "0xFFFFFFFFFE"},
      {"DecToHex", {-2, -1}, {}, {}, kBadCall},
  };
  check(cases);
}

TEST_F(Conversions, BitsToNumbers) {
  const std::string half = "1" + std::string(15, '0');
  const Case cases[] = {
      {"BinToDec", {""}, std::int16_t{0}},
      {"BinToDec", {std::string(2000, '0') + std::string(15, '1')}, std::int16_t{32767}},
      {"BinToDec", {half}, {}, {}, kOverflow},
      {"BinToDec", {"102"}, std::int16_t{6}},
      {"BinToDec", {"200000011"}, std::int16_t{515}},
      {"BinToDec", {"1 1"}, {}, {}, kMismatch},
      {"BinToDec", {"x" + half}, {}, {}, kMismatch},
      {"BinToLong", {""}, 0},
      {"BinToLong", {half}, 32768},
      {"BinToLong", {std::string(50, '0') + std::string(31, '1')}, 2147483647},
      {"BinToLong", {kOnes32}, {}, {}, kOverflow},
      {"BinToLong", {"102"}, {}, {}, character_error("BinToLong", "2", "binary number: 102")},
      {"BinToLong",
       {kOnes32 + "\xC3\xA9x"},
       {},
       {},
       character_error("BinToLong", "\xC3\xA9", "binary number: " + kOnes32 + "\xC3\xA9x")},
      {"BinToDouble", {std::string(63, '1')}, 9223372036854775807.0},
      {"BinToDouble", {"000" + std::string(63, '1')}, 9223372036854775807.0},
      {"BinToDouble", {"1" + std::string(63, '0')}, 0.0},
      {"BinToDouble", {"103"}, 7.0},
      {"BinToDouble", {"1x"}, 0.0},
  };
  check(cases);
}

TEST_F(Conversions, Texts) {
  const Case cases[] = {
      {"HexToBin", {"00A", 8}, "00001010", {"A", 8}},
      {"HexToBin", {"1FF", 8}, "11111111"},
      {"HexToBin", {"0c3", 6}, "000011", {"c3", 6}},
      {"HexToBin", {"000", 5}, "00000", {"", 5}},
      {"HexToBin", {"", 0}, ""},
      {"HexToBin", {"0G", 8}, {}, {"G", 8}, character_error("HexToBin", "G", "hex number: G")},
      {"HexToBin", {"1", -1}, {}, {}, kBadCall},
      {"BinToHex", {"0001001000110100", false}, "12 34 "},
      {"BinToHex", {"0001001000110100", true}, "1 23 4"},
      {"BinToHex", {" 101111 ", false}, "2F", {" 101111 ", true}},
      {"BinToHex", {"  ", true}, ""},
      {"BinToHex", {"00012", false}, ""},
      {"Find2sCompliment", {"0101", 4}, "1011"},
      {"Find2sCompliment", {"1", 4}, "1111"},
      {"Find2sCompliment", {"110100", 4}, "1100"},
      {"Find2sCompliment", {"0000", 4}, "0000"},
      {"Find2sCompliment", {"x01", 3}, "111"},
      {"Find2sCompliment", {"1", -1}, {}, {}, kBadCall},
      {"AddPadding", {"101"}, "10100000", {"10100000"}},
      {"AddPadding", {"00000000"}, "00000000"},
      {"AddPadding", {""}, ""},
      {"ConvertAsctoBinary", {"A0"}, "0100000100110000"},
      {"ConvertAsctoBinary", {"\xC3\xA9\xE2\x82\xAC"}, "1110100110000000"},
      {"ConvertAsctoBinary", {"\xE9"}, "11101001"},
      {"ConvertAsctoBinary", {"\xCE\xA9"}, {}, {}, width_error("937", "8")},
      {"StringValCmp", {"9", "10"}, -1, {"09", "10"}},
      {"StringValCmp", {"00ff", "FF"}, 0, {"00ff", "00FF"}},
      {"StringValCmp", {"4294967296", "4294967295"}, 1},
      {"StringValCmp", {"", ""}, 0},
  };
  check(cases);
}

TEST_F(Conversions, SmallHelpers) {
  const Raised too_large{-2147221503, "ConvertIntToText", "The number to be converted to text is too large."};
  const Case cases[] = {
      {"ConvertIntToText", {0}, "Zero"},
      {"ConvertIntToText", {16}, "Sixteen"},
      {"ConvertIntToText", {17}, {}, {}, too_large},
      {"ConvertIntToText", {-1}, {}, {}, too_large},
      {"ConvertSecsToHrMinSecs", {3725}, "1 Hours, 2 Minutes and 5 Seconds."},
      {"ConvertSecsToHrMinSecs", {32767 * 60 + 59}, "546 Hours, 7 Minutes and 59 Seconds."},
      {"ConvertSecsToHrMinSecs", {32768 * 60}, {}, {}, kOverflow},
      {"IsValidNumber", {"12", true, 12, true, 12}, true},
      {"IsValidNumber", {12.5, true, 12, false, 0}, false},
      {"IsValidNumber", {-1, false, 0, true, 0}, false},
      {"IsValidNumber", {-1, false, 0, false, 0}, true},
      {"IsValidNumber", {"1x", false, 0, false, 0}, false},
      {"IsValidNumber", {Null{}, false, 0, false, 0}, false},
      {"TimeStamp", {}, "5-Nov-2026 9.7.3"},
      {"GetString", {5, "Software\\Laboratory", "Name"}, "a text"},
      {"GetString", {5, "Software\\Laboratory", "Other"}, std::string(1, '\0')},
      {"GetString", {5, "Software\\Other", "Name"}, ""},
      {"MsgToBinString", {Ref<Object>()}, {}, {}, {91, "", "Object variable or With block variable not set"}},
      {"BinStringToMsg", {"1", Ref<Object>()}, {}, {}, {91, "", "Object variable or With block variable not set"}},
  };
  check(cases);
}

}  // namespace
}  // namespace vorlan
