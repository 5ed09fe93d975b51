#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

const StandardObject kObject = ObjectWith(kDmyBe);

TEST(TypedTimes, FourDigits) {
  const struct {
    const char16_t* text;
    bool valid;
    const char* time;
  } cases[] = {{u"0930", true, "09:30"},   {u"0000", true, "00:00"},  {u"2359", true, "23:59"},
               {u"2360", false, "00:00"},  {u"2400", false, "00:00"}, {u"9:30", false, "00:00"},
               {u"09:30", false, "00:00"}, {u"abcd", false, "00:00"}, {u"2359 ", false, "00:00"},
               {u"", false, "00:00"}};
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.isTTime(c.text), c.valid) << Utf8(c.text);
    EXPECT_EQ(Utf8(kObject.FormatTime(kObject.CTTime(c.text))), c.time) << Utf8(c.text);
  }
}

TEST(TypedTimes, Str2TIME) {
  const std::pair<const char16_t*, const char*> cases[] = {
      {u"9:30", "09:30"},     {u"0930", "09:30"},    {u"9.30", "09:30"},
      {u"930", "09:30"},      {u"9:30:15", "09:30"}, {u"19:30:15", "19:30"},
      {u"9:30 AM", "09:30"},  {u"9:30 pm", "21:30"}, {u"9:30:15 PM", "21:30"},
      {u"12:30 PM", "00:30"},  // noon and after wrap round
      {u"2430", "00:30"},     {u"12345", "23:45"},   {u"0975", "00:00"},
      {u"abc", "00:00"},      {u"", "00:00"},        {u"-930", "00:00"}};
  for (const auto& [text, time] : cases) {
    EXPECT_EQ(Utf8(kObject.FormatTime(kObject.Str2TIME(text))), time) << Utf8(text);
  }
}

TEST(TypedTimes, Str2AddDay) {
  const struct {
    const char16_t* text;
    std::int16_t start;
    double days;
  } cases[] = {{u"2400", 0, 1},     {u"24:30", 7, 1}, {u"23.59", 7, 7}, {u"12:00", 0, 0},
               {u"24:00:00", 7, 7}, {u"", -3, -3},    {u"abcd", 7, 7}};
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.Str2AddDay(c.text, c.start).Days(), c.days) << Utf8(c.text);
  }
  EXPECT_EQ(kObject.Str2AddDay(u"x").Days(), 0);
}

TEST(Spans, DaysAndHours) {
  const struct {
    const char* reason;
    const char16_t* text;
    double days, hours;
    bool is_day_time, is_hour;
  } cases[] = {
      {"all fields", u"1:12:30", 1 + 12 / 24.0 + 30 / 1440.0, 12.5, true, true},
      {"two fields", u"12:30", 12 / 24.0 + 30 / 1440.0, 12.5, true, true},
      {"bare number", u"2.5", 2.5, 2.5, false, false},
      {"one whole day", u"0:23:60", 1, 24, true, true},
      {"caps", u"0:30:90", 1 + 60 / 1440.0, 31, true, true},
      {"fourth field", u"9:1:12:30", 1 + 12 / 24.0 + 30 / 1440.0, 12.5, true, true},
      {"half to even", u"0:2.5:0", 2 / 24.0, 2, true, true},
      {"days only", u"3:0:0", 3, 0, true, false},
      {"negative", u"-1:0:0", -1, 0, true, false},
      {"zero", u"0:0", 0, 0, false, false},
      {"no numbers", u"a:b", 0, 0, false, false},
      {"empty", u"", 0, 0, false, false},
      {"four digits", u"0130", 130, 130, true, true},
      {"four zeros", u"0000", 0, 0, false, false},
      {"beyond 32 bits", u"99999999999:0:0", 99999999999.0, 0, true, false},
  };
  for (const auto& c : cases) {
    EXPECT_DOUBLE_EQ(kObject.DAYTIME2DAY(c.text), c.days) << c.reason;
    EXPECT_DOUBLE_EQ(kObject.CTHour(c.text), c.hours) << c.reason;
    EXPECT_EQ(kObject.isDayTime(c.text), c.is_day_time) << c.reason;
    EXPECT_EQ(kObject.isHour(c.text), c.is_hour) << c.reason;
    EXPECT_TRUE(kObject.isDayTime(c.text, true) && kObject.isHour(c.text, true)) << c.reason;
  }
}

TEST(Spans, DAY2DAYTIME) {
  // clang-format off
  const std::pair<double, const char*> cases[] = {
      {0, "0:00:00"}, {1.5, "1:12:00"}, {-1.5, "1:12:00"}, {0.25, "0:06:00"},
      {1 + 1 / 24.0, "1:01:00"}, {1 / 1440.0, "0:00:01"}, {0.99999, "0:23:59"},
      {2 - 1e-12, "2:00:00"}, {1e-12, "0:00:00"}, {12345678.5, "12345678:12:00"},
  };
  // clang-format on
  for (const auto& [days, text] : cases) EXPECT_EQ(Utf8(kObject.DAY2DAYTIME(days)), text);
  EXPECT_EQ(ErrorOf([] { kObject.DAY2DAYTIME(std::nan("")); }), 6);
  EXPECT_EQ(ErrorOf([] { kObject.DAY2DAYTIME(std::numeric_limits<double>::infinity()); }), 6);
}

TEST(SpansBreadth, EveryMinuteOfADayGoesThroughTextAndBack) {
  for (int minute = 0; minute < 1440; ++minute) {
    const Text text = kObject.DAY2DAYTIME(3 + minute / 1440.0);
    ASSERT_NEAR(kObject.DAYTIME2DAY(text), 3 + minute / 1440.0, 1e-9) << Utf8(text);
  }
}

}  // namespace
}  // namespace ZQ7Standard
