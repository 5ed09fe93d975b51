#include <ZQ7Standard/StandardObject.h>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

static const StandardObject kObject = ObjectWith(kMdy);

TEST(Reading, StrValForgivesWhatUsersType) {
  // clang-format off
  ExpectTexts([](TextView text) { return kObject.StrVal(text); }, {
      {"0", {u"", u"   ", u"%", u"abc", u"1e999", u"1e999%", u"-\t5", u"๕", u"\t"}},
      {"5", {u"\t5", u" \r\n 5", u"\t,\t5", u"5\t5"}}, {"0.5", {u"\t50%"}},
      {"1234.5", {u"1,234.50"}}, {"123", {u"1 2 3"}}, {"0.5", {u"50%"}}, {"0.125", {u"12.5%"}},
      {"50", {u"50% ", u"%50"}}, {"12", {u"12abc"}}, {"-5", {u"- 5"}},
      {"100", {u"1 E 2", u"1E,2"}}, {"15.55", {u"1,5.5,5"}}});
  // clang-format on
  // clang-format off
  ExpectRows<TextView, int>([](auto... row) { return kObject.StrVal2(row...); }, {
      {{u"3.14159", 2}, "3.14"}, {{u"3.14159", -1}, "3.14159"}, {{u"3.14159", -2}, "0"},
      {{u"3.14159", 32768}, "0"}, {{u"12.345%", 2}, "0.12"}});
  // clang-format on
}

TEST(Reading, IntegersGoHalfToEvenAndOverflow) {
  // clang-format off
  ExpectRows<TextView>([](TextView text) { return kObject.StrInt(text); }, {
      {u"2.5", "2"}, {u"3.5", "4"}, {u"-32768.5", "-32768"}, {u"32767.49", "32767"},
      {u"32767.5", "error 6"}});
  // clang-format on
  EXPECT_EQ(kObject.StrInt(u"2.45", 1), 2);  // 2.5 before it is rounded to a whole number
  // clang-format off
  ExpectRows<TextView>([](TextView text) { return kObject.StrLng(text); }, {
      {u"-2,147,483,648", "-2147483648"}, {u"2147483648", "error 6"}});
  // clang-format on
  // clang-format off
  ExpectTexts([](TextView text) { return kObject.StrSng(text); }, {
      {"0.1", {u"0.1"}}, {"3.4028235e+38", {u"3.4028235E38"}},
      {"error 6", {u"1e39", u"-3.4028236E38"}}});
  // clang-format on
}

TEST(Reading, SmallOnes) {
  EXPECT_EQ(std::tuple(kObject.Null2Zero(), kObject.Null2Zero(2.5)), std::tuple(0, 2.5));
  EXPECT_EQ(Utf8(kObject.Numb(u"฿ -1,234.50x")), "123450");
  EXPECT_EQ(Utf8(kObject.Numb(u"฿ -1,234.50x", true)), "1234.50");
  EXPECT_EQ(Utf8(kObject.Trim2Number(u"+฿ -1,234.50x", false, true)), "+-123450");
  EXPECT_EQ(std::tuple(kObject.d2h(1.5), kObject.d2m(1.5)), std::tuple(36, 2160));
  EXPECT_EQ(std::tuple(kObject.h2d(36), kObject.m2d(2160)), std::tuple(1.5, 1.5));
  // clang-format off
  ExpectRows<double>([](double value) { return kObject.d2Str(value); }, {
      {0.1 + 0.2, "0.3"}, {kNan, "error 6"}});
  // clang-format on
}
