#include "numbers/scaling.h"

#include <gtest/gtest.h>

#include <random>

using namespace ZQ7Standard;

TEST(Scaling, HasTheSameResultsInTwoWords) {
  std::mt19937_64 random(3);
  for (int i = 0; i < 200'000; ++i) {
    const std::uint64_t mantissa = std::uint64_t{1} << 52 | random() >> 12;
    const int binary_exponent = static_cast<int>(random() % 73) - 23;
    const int shift = 52 - binary_exponent;
    const int power = 14 - ((binary_exponent * 1233) >> 12);
    ASSERT_EQ(Scale<TwoWords>(mantissa, shift, power), Scale<Wide>(mantissa, shift, power))
        << mantissa << ' ' << shift << ' ' << power;
  }
}

TEST(Scaling, ShiftsByWholeWords) {
  constexpr TwoWords kBoth{0x0123'4567'89AB'CDEF, 0xFEDC'BA98'7654'3210};
  EXPECT_EQ(LowWordOf(kBoth, 0), kBoth.low);
  EXPECT_EQ(LowWordOf(kBoth, 64), kBoth.high);
  EXPECT_EQ((kBoth << 64).high, kBoth.low);
  EXPECT_EQ((kBoth << 0).high, kBoth.high);
}
