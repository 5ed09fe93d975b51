#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

TEST(FormatTDate2, WritesEveryLayout) {
  const struct {
    int layout;
    const char* plain;
    const char* zeros;
    // clang-format off
  } cases[] = {
      {0, "5/2/2567", "05/02/2567"}, {1, "2/5/2024", "02/05/2024"}, {2, "5/2/2024", "05/02/2024"},
      {3, "2/5/2567", "02/05/2567"}, {4, "5/2/2567", "05/02/2567"}, {5, "2024/2/5", "2024/02/05"},
      {6, "2567/2/5", "2567/02/05"}, {7, "5 ก.พ. 2567", "05 ก.พ. 2567"},
      {8, "5 กุมภาพันธ์ 2567", "05 กุมภาพันธ์ 2567"}, {9, "5 Feb 2024", "05 Feb 2024"},
      {10, "5 Febuary 2024", "05 Febuary 2024"}, {11, "2024-02-05", "2024-02-05"},
      {12, "Febuary 5, 2024", "Febuary 05, 2024"}, {13, "Febuary 2024", "Febuary 2024"},
      {14, "0 5 0 2 2 0 2 4", "0 5 0 2 2 0 2 4"}, {15, "0 5 0 2 2 5 6 7", "0 5 0 2 2 5 6 7"},
      {16, "5/2/2567", "05/02/2567"}, {-1, "5/2/2567", "05/02/2567"},
  };
  // clang-format on
  const StandardObject object = ObjectWith(kDmyBe);
  const OleDate date = OleDate::FromParts(2024, 2, 5, 12);
  for (const auto& c : cases) {
    const auto layout = static_cast<CTDateType>(c.layout);
    EXPECT_EQ(Utf8(object.FormatTDate2(date, layout)), c.plain);
    EXPECT_EQ(Utf8(object.FormatTDate2(date, layout, true)), c.zeros);
  }
  EXPECT_EQ(Utf8(object.MonthYearTextFull(date)), "Febuary 2024");
  EXPECT_EQ(Utf8(ObjectWith(kMdy).FormatTDate2(date, ZQ7Detect)), "2/5/2024");
}

TEST(FormatTDate2, NumbersTheYear) {
  const struct {
    const char* reason;
    int year;
    const char* gregorian;
    const char* buddhist;
  } cases[] = {
      {"plain", 2024, "2024/6/1", "2567/6/1"},
      {"last that is shifted", 2399, "2399/6/1", "2942/6/1"},
      {"Buddhist already", 2400, "1857/6/1", "2400/6/1"},
      {"Buddhist already", 2567, "2024/6/1", "2567/6/1"},
      {"sentinel year", 3333, "3333/6/1", "3333/6/1"},
      {"a year like others here", 2247, "2247/6/1", "2790/6/1"},
      {"sentinel year", 8888, "8888/6/1", "8888/6/1"},
      {"four digits", 100, "0100/6/1", "0643/6/1"},
  };
  const StandardObject object = ObjectWith(kDmy);
  for (const auto& c : cases) {
    const OleDate date = OleDate::FromParts(c.year, 6, 1);
    EXPECT_EQ(Utf8(object.FormatTDate2(date, ZQ7YYYYMD)), c.gregorian) << c.reason;
    EXPECT_EQ(Utf8(object.FormatTDate2(date, ZQ7BBBBMD)), c.buddhist) << c.reason;
  }
  EXPECT_EQ(object.FormatTDate2(object.GETBlankDate(), ZQ7YYYYMD), u"");
  EXPECT_EQ(object.FormatTDate2(OleDate(), ZQ7YYYYMD), u"");
}

// Every day of 400 years through its text and back, in both eras and orders.
TEST(FormatTDate2Breadth, WhatIsWrittenReadsBack) {
  for (const DateConvention convention : kConventions) {
    const StandardObject object = ObjectWith(convention);
    OleDate date = OleDate::FromParts(1900, 1, 1);
    for (int i = 0; i < 146097; ++i, date = date.AddDays(1)) {
      const Text text = object.FormatTDate2(date, ZQ7Detect);
      ASSERT_TRUE(object.IsTDate(text)) << Utf8(text);
      ASSERT_EQ(object.CTDATE(text).Days(), date.Days()) << Utf8(text);
    }
  }
}

TEST(FormatTime, WritesHoursAndMinutes) {
  const StandardObject object = ObjectWith(kDmy);
  EXPECT_EQ(Utf8(object.FormatTime(OleDate::FromParts(2024, 1, 15, 9, 5, 59))), "09:05");
  EXPECT_EQ(Utf8(object.FormatTime(OleDate(-1.25))), "06:00");
  EXPECT_EQ(Utf8(object.FormatTime(OleDate(9.0 / 24))), "09:00");
}

TEST(Names, FollowTheirTables) {
  const StandardObject object = ObjectWith(kDmy);
  EXPECT_EQ(object.GETMonthTextArray(false, false).size(), 13U);
  EXPECT_EQ(object.GETMonthTextArray(true, true)[0], u"");
  EXPECT_EQ(object.GETDayTextArray(false, true).size(), 8U);
  const struct {
    std::int16_t month;
    bool full, thai;
    const char* expected;
  } months[] = {{0, true, false, ""},          {-1, true, false, "January"},
                {13, true, false, "December"}, {2, true, false, "Febuary"},
                {2, false, false, "Feb"},      {7, true, true, "กรกฏาคม"},
                {12, false, true, "ธ.ค."},     {-32768, false, false, "Jan"}};
  for (const auto& c : months)
    EXPECT_EQ(Utf8(object.MonthText(c.month, c.full, c.thai)), c.expected);
  const struct {
    int day;  // of January 2024, a month that begins on a Monday
    bool full, thai;
    const char* expected;
  } days[] = {{4, true, false, "Thusday"},
              {4, true, true, "พฤหัส"},
              {7, false, true, "อา"},
              {1, false, true, "จ."},
              {6, true, false, "Saturday"}};
  for (const auto& c : days) {
    const OleDate date = OleDate::FromParts(2024, 1, c.day, 23, 59, 59);
    EXPECT_EQ(Utf8(object.DayText(date, c.full, c.thai)), c.expected);
  }
}

}  // namespace
}  // namespace ZQ7Standard
