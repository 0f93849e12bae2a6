#include "common/band_class.hpp"

#include <gtest/gtest.h>

namespace vorlan {
namespace {

TEST(BandClass, CentreFrequencies) {
  struct Case {
    int band_class;
    int channel;
    double reverse;
    double forward;
  };
  const Case cases[] = {
      {0, 283, 833.49, 878.49},    {0, 1023, 825.0, 870.0},     {0, 991, 824.04, 869.04},   {1, 25, 1851.25, 1931.25},
      {2, 2047, 889.975, 934.975}, {3, 1, 915.0125, 860.0125},  {5, 160, 453.975, 463.975}, {6, 50, 1922.5, 2112.5},
      {10, 720, 896.0, 935.0},     {12, 0, 870.0125, 915.0125}, {15, 25, 1711.25, 2111.25},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(centre_frequency(c.band_class, c.channel, false), c.reverse) << c.band_class << " " << c.channel;
    EXPECT_EQ(centre_frequency(c.band_class, c.channel, true), c.forward) << c.band_class << " " << c.channel;
  }
  for (const auto& [band_class, channel] :
       {std::pair{0, 0}, {0, 800}, {0, 990}, {0, 1324}, {3, 800}, {1, -1}, {11, 1}}) {
    EXPECT_EQ(centre_frequency(band_class, channel, true), std::nullopt) << band_class << " " << channel;
  }
}

// What holds for every class: channel numbers do not overlap, and the duplex distance is the same all over a class (in
// class 10 it is not).
TEST(BandClass, RangesOfAClassFitTogether) {
  const auto ranges = channel_ranges();
  for (const ChannelRange& a : ranges) {
    EXPECT_LE(a.first, a.last);
    EXPECT_LE(a.last, 2047) << "a channel number has 11 bits";
    for (const ChannelRange& b : ranges) {
      if (&a >= &b || a.band_class != b.band_class) continue;
      EXPECT_LT(a.last, b.first);
      EXPECT_TRUE(a.band_class == 10 || a.forward - a.reverse == b.forward - b.reverse) << a.band_class;
    }
  }
}

}  // namespace
}  // namespace vorlan
