#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

const StandardObject kObject = ObjectWith(kMdy);

TEST(Reading, StrValForgivesWhatUsersType) {
  const std::pair<const char16_t*, double> cases[] = {
      {u"", 0},        {u"   ", 0},    {u"1,234.50", 1234.5},
      {u"1 2 3", 123}, {u"50%", 0.5},  {u"12.5%", 0.125},
      {u"50% ", 50},   {u"%50", 50},   {u"%", 0},
      {u"abc", 0},     {u"12abc", 12}, {u"- 5", -5},
      {u"1 E 2", 100}, {u"1E,2", 100}, {u"1,5.5,5", 15.55},
      {u"1e999", 0},   {u"1e999%", 0}, {u"\t5", 0},
      {u"๕", 0},
  };
  for (const auto& [text, expected] : cases)
    EXPECT_EQ(kObject.StrVal(text), expected) << Utf8(text);
}

TEST(Reading, StrVal2RoundsUnlessToldNotTo) {
  EXPECT_EQ(kObject.StrVal2(u"3.14159", 2), 3.14);
  EXPECT_EQ(kObject.StrVal2(u"3.14159", -1), 3.14159);
  EXPECT_EQ(kObject.StrVal2(u"3.14159", -2), 0);
  EXPECT_EQ(kObject.StrVal2(u"3.14159", 32768), 0);
  EXPECT_EQ(kObject.StrVal2(u"12.345%", 2), 0.12);
}

TEST(Reading, IntegersGoHalfToEvenAndOverflow) {
  EXPECT_EQ(kObject.StrInt(u"2.5"), 2);
  EXPECT_EQ(kObject.StrInt(u"3.5"), 4);
  EXPECT_EQ(kObject.StrInt(u"2.45", 1), 2);  // 2.5 before it is a whole number
  EXPECT_EQ(kObject.StrInt(u"-32768.5"), -32768);
  EXPECT_EQ(kObject.StrInt(u"32767.49"), 32767);
  EXPECT_EQ(ErrorOf([] { kObject.StrInt(u"32767.5"); }), 6);
  EXPECT_EQ(kObject.StrLng(u"-2,147,483,648"), -2147483647 - 1);
  EXPECT_EQ(ErrorOf([] { kObject.StrLng(u"2147483648"); }), 6);
  EXPECT_EQ(kObject.StrSng(u"0.1"), 0.1F);
  EXPECT_EQ(ErrorOf([] { kObject.StrSng(u"1e39"); }), 6);
}

TEST(Reading, SmallOnes) {
  EXPECT_EQ(kObject.Null2Zero(), 0);
  EXPECT_EQ(kObject.Null2Zero(2.5), 2.5);
  EXPECT_EQ(Utf8(kObject.Numb(u"฿ -1,234.50x")), "123450");
  EXPECT_EQ(Utf8(kObject.Numb(u"฿ -1,234.50x", true)), "1234.50");
  EXPECT_EQ(Utf8(kObject.Trim2Number(u"+฿ -1,234.50x", false, true)), "+-123450");
  EXPECT_EQ(kObject.d2h(1.5), 36);
  EXPECT_EQ(kObject.d2m(1.5), 2160);
  EXPECT_EQ(kObject.h2d(36), 1.5);
  EXPECT_EQ(kObject.m2d(2160), 1.5);
  EXPECT_EQ(Utf8(kObject.d2Str(0.1 + 0.2)), "0.3");
  EXPECT_EQ(ErrorOf([] { kObject.d2Str(std::nan("")); }), 6);
}

}  // namespace
}  // namespace ZQ7Standard
