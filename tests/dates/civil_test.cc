#include "dates/civil.h"

#include <gtest/gtest.h>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

struct DateSerialCase {
  const char* reason;
  int year, month, day;
  const char* expected;
};

TEST(DateSerial, CompletesYearsAndCarriesMonthsAndDays) {
  // clang-format off
  const DateSerialCase cases[] = {
      {"plain", 2024, 1, 15, "2024-01-15"}, {"first year of the window", 0, 3, 3, "2000-03-03"},
      {"last year of 2000-2029", 29, 1, 1, "2029-01-01"},
      {"first year of 1930-1999", 30, 1, 1, "1930-01-01"},
      {"99 is in the window", 99, 1, 1, "1999-01-01"}, {"100 stands", 100, 1, 1, "0100-01-01"},
      {"month 13", 2012, 13, 1, "2013-01-01"}, {"month 0", 2012, 0, 1, "2011-12-01"},
      {"month below 0", 2012, -12, 1, "2010-12-01"},
      {"thousands of months", 3, 2024, 1, "2171-08-01"}, {"day 0", 2024, 3, 0, "2024-02-29"},
      {"day beyond the month", 2023, 2, 29, "2023-03-01"},
  };
  // clang-format on
  for (const auto& c : cases) {
    const auto date = DateSerial(c.year, c.month, c.day);
    ASSERT_TRUE(date) << c.reason;
    EXPECT_EQ(IsoText(*date), c.expected) << c.reason;
  }
  EXPECT_FALSE(DateSerial(9999, 13, 1));
  EXPECT_FALSE(DateSerial(100, 1, 0));
  EXPECT_FALSE(DateSerial(-1, 1, 1));
  EXPECT_FALSE(DateSerial(32767, 32767, 1));
}

// Every day of 400 years, which is every day that the calendar can have.
TEST(OleDate, EveryDayOfFourCenturiesGoesThroughItsPartsAndBack) {
  int year = 1800;
  int month = 1;
  int day = 1;
  for (OleDate date = OleDate::FromParts(year, month, day); year < 2200; date = date.AddDays(1)) {
    ASSERT_EQ(date.Year(), year);
    ASSERT_EQ(date.Month(), month);
    ASSERT_EQ(date.Day(), day);
    ASSERT_EQ(OleDate::FromParts(year, month, day), date);
    ASSERT_EQ(OleDate::FromCivil(date.Civil()).Days(), date.Days());
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    const int lengths[] = {31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (++day > lengths[month - 1]) {
      day = 1;
      if (++month > 12) {
        month = 1;
        ++year;
      }
    }
  }
}

TEST(OleDate, FollowsTheAutomationRuleBeforeDayZero) {
  EXPECT_EQ(IsoText(OleDate(0)), "1899-12-30");
  EXPECT_EQ(IsoText(OleDate(-1.25)), "1899-12-29 06:00:00");
  EXPECT_EQ(IsoText(OleDate(-0.5)), "1899-12-30 12:00:00");
  EXPECT_EQ(OleDate::FromParts(1899, 12, 29, 6, 0, 0).Days(), -1.25);
  EXPECT_EQ(OleDate(-1.25).AddDays(1).Days(), 0.25);
  EXPECT_EQ(OleDate(0.25).AddDays(-1).Days(), -1.25);
  EXPECT_EQ(OleDate(-0.5), OleDate(0.5));
  EXPECT_LT(OleDate(-1.25), OleDate(-1.75));
  EXPECT_GT(OleDate(-1.25), OleDate(-2.0));
}

TEST(OleDate, PartsOfTheTimeAreRoundedWithinTheDay) {
  EXPECT_EQ(OleDate(45306 + 9.5 / 24).Hour(), 9);
  EXPECT_EQ(OleDate(0.375 - 1e-12).Minute(), 0);
  EXPECT_EQ(IsoText(OleDate(45306.9999999999)), "2024-01-15 23:59:59");
  EXPECT_EQ(OleDate::FromParts(2024, 1, 14).Weekday(), 1);
  EXPECT_EQ(OleDate::FromParts(1899, 12, 23).Weekday(), 7);
}

TEST(OleDate, RefusesWhatIsNoDate) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(OleDate(-657434.99).Year(), 100);
  EXPECT_EQ(OleDate(2958465.99).Year(), 9999);
  for (const double days : {-657435.0, 2958466.0, 1e300, -1e300, nan}) {
    EXPECT_EQ(ErrorOf([&] { (void)OleDate(days); }), 5) << days;
  }
  EXPECT_EQ(ErrorOf([] { OleDate::FromParts(2023, 2, 29); }), 5);
  EXPECT_EQ(ErrorOf([] { OleDate::FromParts(99, 1, 1); }), 5);
  EXPECT_EQ(ErrorOf([] { OleDate::FromParts(10000, 1, 1); }), 5);
  EXPECT_EQ(ErrorOf([] { OleDate::FromParts(2024, 1, 1, 24); }), 5);
  EXPECT_EQ(ErrorOf([] { OleDate(0).AddDays(2958466); }), 5);
}

}  // namespace
}  // namespace ZQ7Standard
