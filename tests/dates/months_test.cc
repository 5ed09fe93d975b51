#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "dates/civil.h"
#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

TEST(Months, AddMonthGoesBySingleSteps) {
  const struct {
    const char* reason;
    const char* start;
    std::int16_t months;
    const char* expected;
  } cases[] = {
      {"cut back", "31/1/2013", 1, "2013-02-28"},
      {"stays cut back", "31/1/2013", 2, "2013-03-28"},
      {"leap year", "31/1/2012", 2, "2012-03-29"},
      {"backward over the year", "31/1/2013", -1, "2012-12-31"},
      {"backward, cut back", "31/3/2013", -1, "2013-02-28"},
      {"zero counts as one", "15/12/2013", 0, "2014-01-15"},
      {"a year from a leap day", "29/2/2012", 12, "2013-02-28"},
      {"before day zero", "15/1/1900", -1, "1899-12-15"},
  };
  for (const DateConvention convention : kConventions) {
    const StandardObject object = ObjectWith(convention);
    for (const auto& c : cases) {
      const OleDate start = ObjectWith(kDmy).CTDATE(FromUtf8(c.start));
      const OleDate noon(start.Days() < 0 ? start.Days() - 0.5 : start.Days() + 0.5);
      EXPECT_EQ(IsoText(object.AddMonth(noon, c.months)), c.expected) << c.reason;
    }
    EXPECT_EQ(IsoText(object.AddMonth(TestNow())), "2024-02-15");
    EXPECT_EQ(IsoText(object.AddYear(OleDate::FromParts(2012, 2, 29), 1)), "2013-02-28");
    EXPECT_EQ(IsoText(object.AddYear(TestNow())), "2025-01-15");
    EXPECT_EQ(ErrorOf([&] { object.AddYear(TestNow(), 2731); }), 6);
    EXPECT_EQ(ErrorOf([&] { object.AddYear(TestNow(), -2731); }), 6);
    EXPECT_EQ(ErrorOf([&] { object.AddMonth(OleDate::FromParts(9999, 12, 1), 1); }), 5);
  }
  // The month before January 100 is December of "99", which a Gregorian system
  // completes to 1999 and a Buddhist one, as 642, does not take.
  const OleDate first = OleDate::FromParts(100, 1, 15);
  EXPECT_EQ(IsoText(ObjectWith(kDmy).AddMonth(first, -1)), "1999-12-15");
  EXPECT_EQ(ErrorOf([&] { ObjectWith(kDmyBe).AddMonth(first, -1); }), 5);
}

// Every month step of 400 years against the civil calendar.
TEST(MonthsBreadth, StepsAgreeWithTheCalendar) {
  for (const DateConvention convention : {kMdy, kDmyBe}) {
    const StandardObject object = ObjectWith(convention);
    for (OleDate date = OleDate::FromParts(1801, 1, 1); date.Year() < 2201;
         date = date.AddDays(1)) {
      const std::chrono::year_month_day civil(date.Civil());
      for (const std::int16_t step : std::initializer_list<std::int16_t>{1, -1}) {
        const auto month = civil.year() / civil.month() + std::chrono::months(step);
        const auto last = (month / std::chrono::last).day();
        const auto expected = month / std::min(civil.day(), last);
        ASSERT_EQ(object.AddMonth(date, step).Civil(), std::chrono::local_days(expected));
      }
    }
  }
}

TEST(Months, FirstAndLastDay) {
  const struct {
    std::int16_t month, year;
    const char* first;
    const char* last;
  } cases[] = {
      {3, 2013, "2013-03-01", "2013-03-31"},  {2, 2012, "2012-02-01", "2012-02-29"},
      {13, 2012, "2012-12-01", "2013-01-31"}, {-1, 2012, "2012-01-01", "2011-11-30"},
      {12, 9999, "9999-12-01", "9999-12-31"},
  };
  for (const DateConvention convention : kConventions) {
    const StandardObject object = ObjectWith(convention);
    for (const auto& c : cases) {
      EXPECT_EQ(IsoText(object.GETFirstDayOfMonthYear(c.month, c.year)), c.first) << c.month;
      EXPECT_EQ(IsoText(object.GETLastDayOfMonthYear(c.month, c.year)), c.last) << c.month;
    }
    EXPECT_EQ(IsoText(object.GETLastDayOfMonthYear(0, 2012)), "2011-12-31");
    EXPECT_EQ(IsoText(object.GETLastDayOfMonthYear(2024, 3)), "2171-08-31");
    EXPECT_EQ(ErrorOf([&] { object.GETLastDayOfMonthYear(13, 9999); }), 5);
    EXPECT_EQ(ErrorOf([&] { object.GETFirstDayOfMonthYear(0, 2012); }), 13);
    EXPECT_EQ(ErrorOf([&] { object.GETFirstDayOfMonthYear(1, 10000); }), 13);
    EXPECT_EQ(ErrorOf([&] { object.GETFirstDayOfMonthYear(1, -600); }), 13);
  }
  EXPECT_EQ(IsoText(ObjectWith(kDmy).GETFirstDayOfMonthYear(1, 24)), "2024-01-01");
  EXPECT_EQ(ErrorOf([] { ObjectWith(kDmy).GETFirstDayOfMonthYear(1, 32767); }), 13);
  EXPECT_EQ(ErrorOf([] { ObjectWith(kDmyBe).GETFirstDayOfMonthYear(1, 32767); }), 6);
}

}  // namespace
}  // namespace ZQ7Standard
