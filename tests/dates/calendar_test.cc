#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

static const StandardObject kObject = ObjectWith(kDmy);

TEST(Calendar, FirstMondayAndSaturday) {
  for (const DateConvention convention : kConventions) {
    const StandardObject object = ObjectWith(convention);
    const auto call = [&](std::int16_t month, std::int16_t year) {
      return ResultOf([&] { return object.GETFirstMondayOfMonthYear(month, year); }) + " " +
             ResultOf([&] { return object.GETFirstSaturdayOfMonthYear(month, year); });
    };
    // clang-format off
    ExpectRows<std::int16_t, std::int16_t>(call, {
        {{1, 2024}, "2024-01-01 2024-01-06", "the 1st is a Monday"},
        {{6, 2024}, "2024-06-03 2024-06-01", "the 1st is a Saturday"},
        {{10, 2024}, "2024-10-07 2024-10-05", "the 1st is a Tuesday"},
        {{9, 2024}, "2024-09-02 2024-09-07", "the 1st is a Sunday"},
        {{1, 2567}, "2567-01-01 2567-01-06", "the weekdays of 2024"},
        {{3, 3333}, "3333-03-02 3333-03-07", "its own weekdays"},
        {{13, 2024}, "2024-12-02 2024-12-07"}, {{-1, 2024}, "2024-01-01 2024-01-06"},
        {{12, 9999}, "9999-12-01 9999-12-06", "the weekdays of 9456"}, {{0, 2024}, "error 13 error 13"},
        {{1, 10000}, "error 13 error 13"}});
    // clang-format on
  }
  ExpectRows<DateConvention, std::int16_t>(
      [](DateConvention convention, std::int16_t year) {
        return ObjectWith(convention).GETFirstMondayOfMonthYear(1, year);
      },
      {{{kDmy, 24}, "2024-01-01"}, {{kDmyBe, 32767}, "error 6"}});
  try {
    kObject.GETFirstSaturdayOfMonthYear(0, 2024);
  } catch (const RunTimeError& error) {
    EXPECT_STREQ(error.what(),
                 "GETFirstSaturdayOfMonthYear: type mismatch (error 13): iMonth: \"0\"");
  }
}

// The week, the pay period and whether it is a weekend.
TEST(Calendar, PlacesADayInItsMonth) {
  const auto call = [](int year, int month, int day) {
    const OleDate date = OleDate::FromParts(year, month, day, 23, 59, 59);
    return Shown(kObject.GETWeekOfMonth(date)) + " " + Shown(kObject.GETPeriodOfMonth(date)) + " " +
           Shown(kObject.ISWeekHoliday(date));
  };
  // clang-format off
  ExpectRows<int, int, int>(call, {
      {{2024, 6, 1}, "1 1 yes", "a Saturday alone in week 1"}, {{2024, 6, 2}, "2 1 yes"},
      {{2024, 6, 3}, "2 1 no"}, {{2024, 6, 15}, "3 1 yes"}, {{2024, 6, 16}, "4 2 yes"},
      {{2024, 6, 30}, "6 2 yes", "the most weeks"}, {{2015, 2, 28}, "4 2 yes", "the fewest"},
      {{2024, 2, 29}, "5 2 no"}, {{2567, 6, 1}, "1 1 yes", "as 2024"}, {{2567, 6, 2}, "2 1 yes"},
      {{2399, 1, 1}, "1 1 no", "the last year of its own"}, {{2400, 1, 3}, "1 1 yes", "as 1857"},
      {{2568, 2, 29}, "5 2 no", "28 February 2025, a Friday"},
      {{3333, 3, 3}, "1 1 no"}, {{8888, 8, 8}, "2 1 yes"}, {{1899, 12, 30}, "5 2 yes"}});
  // clang-format on
  for (const OleDate blank : {kObject.GETBlankDate(), OleDate()}) {
    EXPECT_EQ(kObject.GETWeekOfMonth(blank), 0);
    EXPECT_EQ(kObject.GETPeriodOfMonth(blank), 0);
    EXPECT_FALSE(kObject.ISWeekHoliday(blank));
  }
}

// Every day of 400 years, in both eras, against a calendar kept by counting.
TEST(CalendarBreadth, WeeksGoByCounting) {
  for (const int shift : {0, 543}) {
    int week = 1;
    for (OleDate date = OleDate::FromParts(1857, 1, 1); date.Year() < 2257;
         date = date.AddDays(1)) {
      const int weekday = date.Weekday();
      if (date.Day() == 1) {
        week = 1;
      } else if (weekday == 1) {
        ++week;
      }
      if (shift > 0 && date.Month() == 2 && date.Day() == 29) continue;
      const OleDate meant = OleDate::FromParts(date.Year() + shift, date.Month(), date.Day(), 12);
      ASSERT_EQ(kObject.GETWeekOfMonth(meant), week) << IsoText(meant);
      ASSERT_EQ(kObject.ISWeekHoliday(meant), weekday == 1 || weekday == 7) << IsoText(meant);
    }
  }
}
