#include <ZQ7Standard/StandardObject.h>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

static const StandardObject kObject = ObjectWith(kDmyBe);

TEST(TypedTimes, CTTimeAndIsTTimeTakeFourDigits) {
  const auto call = [](TextView text) {
    return Shown(kObject.FormatTime(kObject.CTTime(text))) + " " + Shown(kObject.isTTime(text));
  };
  // clang-format off
  ExpectTexts(call, {
      {"09:30 yes", {u"0930"}}, {"00:00 yes", {u"0000"}}, {"23:59 yes", {u"2359"}},
      {"00:00 no", {u"2360", u"2400", u"9:30", u"09:30", u"abcd", u"2359 ", u""}}});
  // clang-format on
}

// Exact to the last bit, since hosts compare them: one divides the hours, the other the minutes.
TEST(TypedTimesBreadth, BitsOfEveryMinute) {
  EXPECT_EQ(kObject.CTTime(u"0009").Days(), 0.0062499999999999995);
  EXPECT_EQ(kObject.Str2TIME(u"0009").Days(), 0.00625);
  for (int minute = 0; minute < 1440; ++minute) {
    const Text typed = kObject.FormatTime(OleDate(minute / 1440.0));
    const Text digits = typed.substr(0, 2) + typed.substr(3);
    ASSERT_EQ(kObject.CTTime(digits).Days(), kObject.h2d(minute / 60 + minute % 60 / 60.0));
    ASSERT_EQ(kObject.Str2TIME(digits).Days(), minute / 1440.0) << minute;
  }
}

// From noon on, adding PM wraps around.
TEST(TypedTimes, Str2TIMEAndStr2AddDay) {
  // clang-format off
  ExpectTexts([](TextView text) { return kObject.FormatTime(kObject.Str2TIME(text)); }, {
      {"09:30", {u"9:30", u"0930", u"9.30", u"930", u"9:30:15", u"9:30 AM"}},
      {"19:30", {u"19:30:15"}}, {"21:30", {u"9:30 pm", u"9:30:15 PM"}},
      {"00:30", {u"12:30 PM", u"2430"}}, {"23:45", {u"12345"}},
      {"00:00", {u"0975", u"abc", u"", u"-930"}}});
  // clang-format on
  const auto call = [](TextView text, std::int16_t start) {
    return kObject.Str2AddDay(text, start).Days();
  };
  // clang-format off
  ExpectRows<TextView, std::int16_t>(call, {
      {{u"2400", 0}, "1"}, {{u"24:30", 7}, "1"}, {{u"23.59", 7}, "7"}, {{u"12:00", 0}, "0"},
      {{u"24:00:00", 7}, "7"}, {{u"", -3}, "-3"}, {{u"abcd", 7}, "7"}});
  // clang-format on
  EXPECT_EQ(kObject.Str2AddDay(u"x").Days(), 0);
}

// Days, hours, and whether the text is a day-time and an hour.
TEST(Spans, DaysAndHours) {
  const auto call = [](TextView text) {
    EXPECT_TRUE(kObject.isDayTime(text, true) && kObject.isHour(text, true)) << Utf8(text);
    return Shown(kObject.DAYTIME2DAY(text)) + " " + Shown(kObject.CTHour(text)) + " " +
           Shown(kObject.isDayTime(text)) + " " + Shown(kObject.isHour(text));
  };
  // clang-format off
  ExpectRows<TextView>(call, {
      {u"1:12:30", "1.5208333333333333 12.5 yes yes"},
      {u"12:30", "0.5208333333333334 12.5 yes yes"}, {u"2.5", "2.5 2.5 no no"},
      {u"0:23:60", "1 24 yes yes", "one whole day"},
      {u"0:30:90", "1.0416666666666667 31 yes yes", "caps"},
      {u"9:1:12:30", "1.5208333333333333 12.5 yes yes", "fourth field"},
      {u"0:2.5:0", "0.08333333333333333 2 yes yes", "half to even"},
      {u"-1:30", "-0.020833333333333332 -1.5 yes yes", "the sign of all hours"},
      {u"-0:45", "0.03125 -0.75 yes yes"}, {u" -2:15", "-0.07291666666666666 -2.25 yes yes"},
      {u"-0:00", "0 0 no no"}, {u"-1.5", "-1.5 -1.5 yes yes"},
      {u"3:0:0", "3 0 yes no"}, {u"-1:0:0", "-1 0 yes no"}, {u"0:0", "0 0 no no"},
      {u"50%:0:0", "0 0 no no", "half a day to even"}, {u"0:50%", "0 0 no no"},
      {u"1:50%", "0.041666666666666664 1 yes yes"}, {u"5%0%", "0.5 0.5 no no"},
      {u"a:b", "0 0 no no"}, {u"", "0 0 no no"}, {u"0130", "130 130 yes yes", "four digits"},
      {u"0000", "0 0 no no"}, {u"99999999999:0:0", "99999999999 0 yes no"}});
  // clang-format on
}

TEST(Spans, DAY2DAYTIME) {
  // clang-format off
  ExpectRows<double>([](double days) { return kObject.DAY2DAYTIME(days); }, {
      {0, "0:00:00"}, {1.5, "1:12:00"}, {-1.5, "1:12:00"}, {0.25, "0:06:00"},
      {1 + 1 / 24.0, "1:01:00"}, {1 / 1440.0, "0:00:01"}, {0.99999, "0:23:59"},
      {2 - 1e-12, "2:00:00"}, {1e-12, "0:00:00"}, {12345678.5, "12345678:12:00"},
      {kNan, "error 6"}, {kInfinity, "error 6"}});
  // clang-format on
}
TEST(Spans, FormatHour) {
  // clang-format off
  ExpectRows<double>([](double hours) { return kObject.FormatHour(hours); }, {
      {0, "0:00"}, {7.5, "7:30"}, {-1.5, "-1:30"}, {-0.25, "-0:15"}, {2.675, "2:41", "as printed"},
      {0.5 / 60, "0:01", "half a minute"}, {-0.5 / 60, "-0:01"}, {0.4 / 60, "0:00"},
      {-0.4 / 60, "0:00", "no minus zero"}, {-0.0, "0:00"}, {1.9999, "2:00", "carries"},
      {1234567.25, "1234567:15"}, {17e12, "17000000000000:00"},
      {999999999999999, "999999999999999:00"}, {999999999999999.25, "999999999999999:15"},
      {-999999999999999.875, "-999999999999999:53"}, {1e15, "error 6"}, {-1e15, "error 6"},
      {kInfinity, "error 6"}, {-kInfinity, "error 6"}, {kNan, "error 6"}});
  // clang-format on
}

TEST(SpansBreadth, EveryMinuteOf200HoursGoesThroughTextAndBack) {
  for (int minute = -6000; minute <= 6000; ++minute) {
    const Text text = kObject.FormatHour(minute / 60.0);
    ASSERT_NEAR(kObject.CTHour(text), minute / 60.0, 1e-12) << Utf8(text);
    ASSERT_EQ(kObject.FormatHour(kObject.CTHour(text)), text);
  }
}

TEST(SpansBreadth, EveryMinuteOfADayGoesThroughTextAndBack) {
  for (int minute = 0; minute < 1440; ++minute) {
    const Text text = kObject.DAY2DAYTIME(3 + minute / 1440.0);
    ASSERT_NEAR(kObject.DAYTIME2DAY(text), 3 + minute / 1440.0, 1e-9) << Utf8(text);
  }
}
