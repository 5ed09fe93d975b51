#include <ZQ7Standard/StandardObject.h>

#include <algorithm>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

TEST(Months, StepsAreSingleAndDropTheTime) {
  for (const DateConvention convention : kConventions) {
    const StandardObject object = ObjectWith(convention);
    const auto call = [&](TextView start, std::int16_t months) {
      const double day = ObjectWith(kDmy).CTDATE(start).Days();
      return object.AddMonth(OleDate(day < 0 ? day - 0.5 : day + 0.5), months);
    };
    // clang-format off
    ExpectRows<TextView, std::int16_t>(call, {
        {{u"31/1/2013", 1}, "2013-02-28", "cut back"},
        {{u"31/1/2013", 2}, "2013-03-28", "stays cut back"}, {{u"31/1/2012", 2}, "2012-03-29"},
        {{u"31/1/2013", -1}, "2012-12-31"}, {{u"31/3/2013", -1}, "2013-02-28"},
        {{u"15/12/2013", 0}, "2014-01-15", "zero counts as one"},
        {{u"29/2/2012", 12}, "2013-02-28"}, {{u"15/1/1900", -1}, "1899-12-15"},
        {{u"1/12/9999", 1}, "error 5"}});
    // clang-format on
    ExpectRows<std::int16_t>(
        [&](std::int16_t years) { return object.AddYear(OleDate::FromParts(2012, 2, 29), years); },
        {{1, "2013-02-28"}, {0, "2013-02-28"}, {2731, "error 6"}, {-2731, "error 6"}});
  }
  EXPECT_EQ(IsoText(ObjectWith(kDmy).AddMonth(TestNow())), "2024-02-15");
  EXPECT_EQ(IsoText(ObjectWith(kDmy).AddYear(TestNow())), "2025-01-15");
  // The month before January 100 is December of "99", which a Gregorian system completes to 1999
  // and a Buddhist one, as 642, rejects.
  ExpectRows<DateConvention>(
      [](DateConvention convention) {
        return ObjectWith(convention).AddMonth(OleDate::FromParts(100, 1, 15), -1);
      },
      {{kDmy, "1999-12-15"}, {kDmyBe, "error 5"}});
}

TEST(Months, FirstAndLastDay) {
  for (const DateConvention convention : kConventions) {
    const StandardObject object = ObjectWith(convention);
    const auto call = [&](std::int16_t month, std::int16_t year) {
      return ResultOf([&] { return object.GETFirstDayOfMonthYear(month, year); }) + " " +
             ResultOf([&] { return object.GETLastDayOfMonthYear(month, year); });
    };
    // clang-format off
    ExpectRows<std::int16_t, std::int16_t>(call, {
        {{3, 2013}, "2013-03-01 2013-03-31"}, {{2, 2012}, "2012-02-01 2012-02-29"},
        {{13, 2012}, "2012-12-01 2013-01-31"}, {{-1, 2012}, "2012-01-01 2011-11-30"},
        {{0, 2012}, "error 13 2011-12-31"}, {{12, 9999}, "9999-12-01 9999-12-31"},
        {{13, 9999}, "9999-12-01 error 5"}, {{1, 10000}, "error 13 error 5"},
        {{1, -600}, "error 13 error 5"}});
    // clang-format on
    EXPECT_EQ(IsoText(object.GETLastDayOfMonthYear(2024, 3)), "2171-08-31");
  }
  ExpectRows<DateConvention, std::int16_t>(
      [](DateConvention convention, std::int16_t year) {
        return ObjectWith(convention).GETFirstDayOfMonthYear(1, year);
      },
      {{{kDmy, 24}, "2024-01-01"}, {{kDmy, 32767}, "error 13"}, {{kDmyBe, 32767}, "error 6"}});
}

// Every step of months over 400 years, against the civil calendar.
TEST(MonthsBreadth, StepsAgreeWithTheCalendar) {
  for (const DateConvention convention : {kMdy, kDmyBe}) {
    const StandardObject object = ObjectWith(convention);
    OleDate date = OleDate::FromParts(1801, 1, 1);
    for (; date.Year() < 2201; date = date.AddDays(1)) {
      const std::chrono::year_month_day civil(date.Civil());
      for (const int step : {1, -1}) {
        const auto month = civil.year() / civil.month() + std::chrono::months(step);
        const auto expected = month / std::min(civil.day(), (month / std::chrono::last).day());
        ASSERT_EQ(object.AddMonth(date, static_cast<std::int16_t>(step)).Civil(),
                  std::chrono::local_days(expected));
      }
    }
  }
}
