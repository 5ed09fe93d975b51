#include <ZQ7Standard/StandardObject.h>

#include "tests/support/rows.h"

using namespace ZQ7Standard;

static const StandardObject kObject = ObjectWith(kDmyBe);

// clang-format off
TEST(FormatTDate2, WritesEveryLayoutPlainAndWithZeros) {
  const OleDate date = OleDate::FromParts(2024, 2, 5, 12);
  ExpectRows<int>([&](int layout) {
    return Utf8(kObject.FormatTDate2(date, static_cast<CTDateType>(layout)) + u" | " +
                kObject.FormatTDate2(date, static_cast<CTDateType>(layout), true));
  }, {{-1, "5/2/2567 | 05/02/2567"}, {0, "5/2/2567 | 05/02/2567"}, {1, "2/5/2024 | 02/05/2024"},
      {2, "5/2/2024 | 05/02/2024"}, {3, "2/5/2567 | 02/05/2567"}, {4, "5/2/2567 | 05/02/2567"},
      {5, "2024/2/5 | 2024/02/05"}, {6, "2567/2/5 | 2567/02/05"},
      {7, "5 ก.พ. 2567 | 05 ก.พ. 2567"}, {8, "5 กุมภาพันธ์ 2567 | 05 กุมภาพันธ์ 2567"},
      {9, "5 Feb 2024 | 05 Feb 2024"}, {10, "5 Febuary 2024 | 05 Febuary 2024"},
      {11, "2024-02-05 | 2024-02-05"}, {12, "Febuary 5, 2024 | Febuary 05, 2024"},
      {13, "Febuary 2024 | Febuary 2024"}, {14, "0 5 0 2 2 0 2 4 | 0 5 0 2 2 0 2 4"},
      {15, "0 5 0 2 2 5 6 7 | 0 5 0 2 2 5 6 7"}, {16, "5/2/2567 | 05/02/2567"}});
  EXPECT_EQ(Utf8(kObject.MonthYearTextFull(date)), "Febuary 2024");
}

TEST(FormatTDate2, NumbersTheYearOnceAndKeepsSentinels) {
  ExpectRows<int>([](int year) {
    const OleDate date = OleDate::FromParts(year, 6, 1);
    return Utf8(kObject.FormatTDate2(date, ZQ7YYYYMD) + u" " +
                kObject.FormatTDate2(date, ZQ7BBBBMD));
  }, {{2024, "2024/6/1 2567/6/1"}, {2399, "2399/6/1 2942/6/1"}, {2400, "1857/6/1 2400/6/1"},
      {3333, "3333/6/1 3333/6/1"}, {8888, "8888/6/1 8888/6/1"}, {100, "0100/6/1 0643/6/1"},
      {2247, "2247/6/1 2790/6/1", "a year like others here"}});
  EXPECT_EQ(kObject.FormatTDate2(kObject.GETBlankDate(), ZQ7YYYYMD), u"");
  EXPECT_EQ(kObject.FormatTDate2(OleDate(), ZQ7YYYYMD), u"");
}

TEST(FormatTime, WritesHoursAndMinutes) {
  ExpectRows<double>([](double days) { return kObject.FormatTime(OleDate(days)); }, {
      {45306 + 32759 / 86400.0, "09:05"}, {-1.25, "06:00"}, {9.0 / 24, "09:00"}});
}

TEST(Names, FollowTheirTables) {
  EXPECT_EQ(kObject.GETMonthTextArray(false, false).size(), 13U);
  EXPECT_EQ(kObject.GETMonthTextArray(true, true)[0], u"");
  EXPECT_EQ(kObject.GETDayTextArray(false, true).size(), 8U);
  ExpectRows<std::int16_t, bool, bool>([](auto... row) { return kObject.MonthText(row...); }, {
      {{0, true, false}, ""}, {{-1, true, false}, "January"}, {{13, true, false}, "December"},
      {{2, true, false}, "Febuary"}, {{2, false, false}, "Feb"}, {{7, true, true}, "กรกฏาคม"},
      {{12, false, true}, "ธ.ค."}, {{-32768, false, false}, "Jan"}});
  ExpectRows<int, bool, bool>([](int day, bool full, bool thai) {  // the 1st is a Monday
    return kObject.DayText(OleDate::FromParts(2024, 1, day, 23, 59, 59), full, thai);
  }, {{{4, true, false}, "Thusday"}, {{4, true, true}, "พฤหัส"}, {{7, false, true}, "อา"},
      {{1, false, true}, "จ."}, {{6, true, false}, "Saturday"}});
}
// clang-format on

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
