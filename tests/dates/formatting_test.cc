#include <ZQ7Standard/StandardObject.h>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

static const StandardObject kObject = ObjectWith(kDmyBe);

TEST(FormatTDate2, WritesEveryLayoutPlainAndWithZeros) {
  const OleDate date = OleDate::FromParts(2024, 2, 5, 12);
  const auto call = [&](int layout) {
    return Utf8(kObject.FormatTDate2(date, static_cast<CTDateType>(layout)) + u" | " +
                kObject.FormatTDate2(date, static_cast<CTDateType>(layout), true));
  };
  // clang-format off
  ExpectRows<int>(call, {
      {-1, "5/2/2567 | 05/02/2567"}, {0, "5/2/2567 | 05/02/2567"}, {1, "2/5/2024 | 02/05/2024"},
      {2, "5/2/2024 | 05/02/2024"}, {3, "2/5/2567 | 02/05/2567"}, {4, "5/2/2567 | 05/02/2567"},
      {5, "2024/2/5 | 2024/02/05"}, {6, "2567/2/5 | 2567/02/05"},
      {7, "5 ก.พ. 2567 | 05 ก.พ. 2567"}, {8, "5 กุมภาพันธ์ 2567 | 05 กุมภาพันธ์ 2567"},
      {9, "5 Feb 2024 | 05 Feb 2024"}, {10, "5 Febuary 2024 | 05 Febuary 2024"},
      {11, "2024-02-05 | 2024-02-05"}, {12, "Febuary 5, 2024 | Febuary 05, 2024"},
      {13, "Febuary 2024 | Febuary 2024"}, {14, "0 5 0 2 2 0 2 4 | 0 5 0 2 2 0 2 4"},
      {15, "0 5 0 2 2 5 6 7 | 0 5 0 2 2 5 6 7"}, {16, "5/2/2567 | 05/02/2567"}});
  // clang-format on
  EXPECT_EQ(Utf8(kObject.MonthYearTextFull(date)), "Febuary 2024");
}

TEST(FormatTDate2, NumbersTheYearOnceAndKeepsSentinels) {
  const auto call = [](int year) {
    const OleDate date = OleDate::FromParts(year, 6, 1);
    return Utf8(kObject.FormatTDate2(date, ZQ7YYYYMD) + u" " +
                kObject.FormatTDate2(date, ZQ7BBBBMD));
  };
  // clang-format off
  ExpectRows<int>(call, {
      {2024, "2024/6/1 2567/6/1"}, {2399, "2399/6/1 2942/6/1"}, {2400, "1857/6/1 2400/6/1"},
      {3333, "3333/6/1 3333/6/1"}, {8888, "8888/6/1 8888/6/1"}, {100, "0100/6/1 0643/6/1"},
      {2247, "2247/6/1 2790/6/1", "a year like others here"}});
  // clang-format on
  EXPECT_EQ(kObject.FormatTDate2(kObject.GETBlankDate(), ZQ7YYYYMD), u"");
  EXPECT_EQ(kObject.FormatTDate2(OleDate(), ZQ7YYYYMD), u"");
}

// Even for blank dates, a pattern that ends too early is an error.
TEST(Patterns, HaveADefaultAndAreCheckedFirst) {
  const OleDate date = OleDate::FromParts(2024, 1, 5, 9, 30);
  for (const OleDate day : {date, kObject.GETBlankDate(), OleDate()}) {
    const auto call = [&](TextView pattern) {
      return kObject.Format2000(day, pattern) + kObject.FormatThai(day, pattern) +
             kObject.FormatEnglish(day, pattern);
    };
    // clang-format off
    ExpectRows<TextView>(call, {
        {u"", day == date ? "5/1/25675 มกราคม 25675 January 2024" : ""},
        {u"\"d\"\\m", day == date ? "dmdmdm" : ""}, {u"d\"", "error 5"}, {u"d\\", "error 5"}});
    // clang-format on
    EXPECT_EQ(ResultOf([&] { return kObject.FormatThai(day, u"\""); }), "error 5");
    EXPECT_EQ(ResultOf([&] { return kObject.FormatEnglish(day, u"\""); }), "error 5");
    EXPECT_EQ(ResultOf([&] { return kObject.FormatTime2(day, u"\""); }), "error 5");
  }
}

TEST(Formats, OfEveryConvention) {
  const OleDate date = OleDate::FromParts(2024, 1, 5, 9, 30, 15);
  const auto call = [&](DateConvention convention) {
    const StandardObject object = ObjectWith(convention);
    return object.FormatTDate(date) + u" | " + object.FormatTDateTime(date, true) + u" | " +
           object.Format2000(date, u"d mmm yy bb") + u" | " + object.FormatPeriod(date) + u" | " +
           object.FormatTPeriod(date) + u" | " + object.FormatTime2(date, u"ddd yyyy h:mm");
  };
  // clang-format off
  ExpectRows<DateConvention>(call, {
      {kMdy, "1/5/2024 | 01/05/2024 09:30 | 5 Jan 24 24 | 2024/01 | 01/2024 | Fri 2024 9:30"},
      {kDmy, "5/1/2024 | 05/01/2024 09:30 | 5 Jan 24 24 | 2024/01 | 01/2024 | Fri 2024 9:30"},
      {kMdyBe, "1/5/2567 | 01/05/2567 09:30 | 5 ม.ค. 67 67 | 2567/01 | 01/2567 | ศ. 2567 9:30"},
      {kDmyBe, "5/1/2567 | 05/01/2567 09:30 | 5 ม.ค. 67 67 | 2567/01 | 01/2567 | ศ. 2567 9:30"}});
  // clang-format on
  for (const DateConvention convention : kConventions) {
    const StandardObject object = ObjectWith(convention);
    EXPECT_EQ(Utf8(object.FormatThai(date, u"d mmm yyyy bbbb")), "5 ม.ค. 2567 2567");
    EXPECT_EQ(Utf8(object.FormatEnglish(date, u"d mmm yyyy bbbb")), "5 Jan 2024 2024");
    EXPECT_EQ(object.FormatThaiRevere(date), u"2567/01/05");
    EXPECT_EQ(object.FormatQuery(date), u"2024-01-05");
    EXPECT_EQ(object.FormatQueryTime(date), u"2024-01-05 09:30:15");
  }
}

// The year in each kind of format, and the weekday of the Gregorian day meant.
TEST(Formats, NumberYearsAndWeekdays) {
  const StandardObject gregorian = ObjectWith(kDmy);
  const auto call = [&](int year, int month, int day) {
    const OleDate date = OleDate::FromParts(year, month, day, 12);
    return kObject.FormatThaiRevere(date) + kObject.FormatEnglish(date, u" yyyy/mm/dd ddd ") +
           kObject.FormatPeriod(date) + gregorian.FormatPeriod(date) +
           kObject.Format2000(date, u" yyyy") + gregorian.Format2000(date, u" bbbb ") +
           kObject.FormatQuery(date);
  };
  // clang-format off
  ExpectRows<int, int, int>(call, {
      {{2024, 2, 29}, "2567/02/29 2024/02/29 Thu 2567/022024/02 2567 2024 2024-02-29"},
      {{2399, 1, 1}, "2942/01/01 2399/01/01 Fri 2942/012399/01 2942 2399 2399-01-01"},
      {{2400, 1, 1}, "2400/01/01 1857/01/01 Thu 2400/011857/01 2400 2400 1857-01-01"},
      {{2567, 1, 15}, "2567/01/15 2024/01/15 Mon 2567/012024/01 2567 2567 2024-01-15"},
      {{2604, 2, 29}, "2604/02/29 2061/02/29 Mon 2604/022061/02 2604 2604 2061-02-28"},
      {{3333, 3, 3}, "3333/03/03 3333/03/03 Tue 3333/033333/03 3333 3333 3333-03-03"},
      {{8888, 8, 8}, "8888/08/08 8888/08/08 Sun 8888/088888/08 8888 8888 8888-08-08"},
      {{2247, 1, 1}, "2790/01/01 2247/01/01 Fri 2790/012247/01 3333 3333 2247-01-01"},
      {{1704, 1, 1}, "2247/01/01 1704/01/01 Tue 2247/011704/01 3333 3333 1704-01-01"},
      {{100, 1, 1}, "0643/01/01 0100/01/01 Fri 0643/010100/01 0643 0100 0100-01-01"}});
  // clang-format on
}

TEST(Formats, OfBlankDatesAreEmptyOrNull) {
  for (const OleDate date : {kObject.GETBlankDate(), OleDate::FromParts(2790, 3, 3), OleDate()}) {
    EXPECT_EQ(kObject.FormatTDate(date) + kObject.FormatTDateTime(date) + kObject.Format2000(date) +
                  kObject.FormatThai(date) + kObject.FormatThaiRevere(date) +
                  kObject.FormatEnglish(date) + kObject.FormatPeriod(date) +
                  kObject.FormatTPeriod(date),
              u"");
    EXPECT_EQ(kObject.FormatQuery(date) + kObject.FormatQueryTime(date), u"NULLNULL");
    EXPECT_EQ(kObject.FormatTime(date) + kObject.FormatTime2(date), u"00:0000:00:00");
  }
}

TEST(FormatTime, RoundsToTheMillisecondAndStaysWithinTheDay) {
  const auto call = [](double days) {
    return kObject.FormatTime(OleDate(days)) + u" " + kObject.FormatTime2(OleDate(days));
  };
  // clang-format off
  ExpectRows<double>(call, {
      {45306 + 32759 / 86400.0, "09:05 09:05:59"}, {-1.25, "06:00 06:00:00"},
      {9.0 / 24, "09:00 09:00:00"}, {45306 + 43199.9996 / 86400, "12:00 12:00:00"},
      {45306 + 86399.9996 / 86400, "23:59 23:59:59"}});
  // clang-format on
}

TEST(Names, FollowTheirTables) {
  EXPECT_EQ(kObject.GETMonthTextArray(false, false).size(), 13U);
  EXPECT_EQ(kObject.GETMonthTextArray(true, true)[0], u"");
  EXPECT_EQ(kObject.GETDayTextArray(false, true).size(), 8U);
  // clang-format off
  ExpectRows<std::int16_t, bool, bool>([](auto... row) { return kObject.MonthText(row...); }, {
      {{0, true, false}, ""}, {{-1, true, false}, "January"}, {{13, true, false}, "December"},
      {{2, true, false}, "Febuary"}, {{2, false, false}, "Feb"}, {{7, true, true}, "กรกฏาคม"},
      {{12, false, true}, "ธ.ค."}, {{-32768, false, false}, "Jan"}});
  // clang-format on
  const auto call = [](int day, bool full, bool thai) {  // the 1st is a Monday
    return kObject.DayText(OleDate::FromParts(2024, 1, day, 23, 59, 59), full, thai);
  };
  // clang-format off
  ExpectRows<int, bool, bool>(call, {
      {{4, true, false}, "Thusday"}, {{4, true, true}, "พฤหัส"}, {{7, false, true}, "อา"},
      {{1, false, true}, "จ."}, {{6, true, false}, "Saturday"}});
  // clang-format on
}

// Formats and reads back every day of 200 years, in both eras and orders.
TEST(FormatsBreadth, WhatIsWrittenReadsBack) {
  for (const DateConvention convention : kConventions) {
    const StandardObject object = ObjectWith(convention);
    const OleDate end = OleDate::FromParts(2101, 1, 1);
    for (OleDate date = OleDate::FromParts(1900, 1, 1); date < end; date = date.AddDays(1)) {
      const Text text = object.FormatTDate(date);
      ASSERT_TRUE(object.IsTDate(text)) << Utf8(text);
      ASSERT_EQ(object.CTDATE(text), date) << Utf8(text);
      ASSERT_EQ(object.GETValidDate(object.FormatTDateTime(date)), date) << Utf8(text);
      ASSERT_EQ(object.GETDateFromTextYYYYMMDD(object.FormatThaiRevere(date)), date) << Utf8(text);
      ASSERT_EQ(object.CTPeriod(object.FormatPeriod(date)), date.AddDays(1 - date.Day()));
      ASSERT_TRUE(object.isMounthYear(object.FormatTPeriod(date))) << Utf8(text);
      if (convention.era == Era::kBuddhist) continue;  // which reads "2024" as a Buddhist year
      ASSERT_EQ(object.GETDateFromTextYYYYMMDD(object.FormatQuery(date)), date) << Utf8(text);
    }
  }
}

TEST(FormatsBreadth, EveryMinuteOfADayReadsBack) {
  for (int minute = 0; minute < 1440; ++minute) {
    const OleDate time(minute / 1440.0);
    const Text text = kObject.FormatTime(time);
    ASSERT_EQ(kObject.Str2TIME(text), time) << Utf8(text);
    // The same minute, but not to the last bit.
    const Text digits = kObject.FormatTime2(time, u"hhnn");
    ASSERT_EQ(kObject.FormatTime2(kObject.CTTime(digits), u"hhnn"), digits);
  }
}
