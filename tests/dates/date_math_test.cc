#include "dates/date_math.h"

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

TEST(DateSerial, CompletesYearsAndCarriesMonthsAndDays) {
  // clang-format off
  ExpectRows<int, int, int>(DateSerial, {
      {{2024, 1, 15}, "2024-01-15"}, {{0, 3, 3}, "2000-03-03"}, {{29, 1, 1}, "2029-01-01"},
      {{30, 1, 1}, "1930-01-01"}, {{99, 1, 1}, "1999-01-01"}, {{100, 1, 1}, "0100-01-01"},
      {{2012, 13, 1}, "2013-01-01"}, {{2012, 0, 1}, "2011-12-01"}, {{2012, -12, 1}, "2010-12-01"},
      {{3, 2024, 1}, "2171-08-01"}, {{2024, 3, 0}, "2024-02-29"}, {{2023, 2, 29}, "2023-03-01"},
      {{9999, 13, 1}, "none"}, {{100, 1, 0}, "none"}, {{-1, 1, 1}, "none"},
      {{32767, 32767, 1}, "none"}});
  // clang-format on
}

TEST(MeantDay, IsGregorianWhateverEraTheYearIsIn) {
  const auto call = [](int year, int month, int day) {
    return OleDate::FromCivil(
        std::chrono::local_days(MeantDay(OleDate::FromParts(year, month, day))));
  };
  // clang-format off
  ExpectRows<int, int, int>(call, {
      {{2024, 2, 29}, "2024-02-29"}, {{2399, 12, 31}, "2399-12-31"}, {{2400, 1, 1}, "1857-01-01"},
      {{2567, 1, 15}, "2024-01-15"}, {{2604, 2, 29}, "2061-02-28", "2061 has no 29 February"},
      {{2604, 2, 28}, "2061-02-28"}, {{3333, 3, 3}, "3333-03-03"}, {{8888, 8, 8}, "8888-08-08"},
      {{2247, 3, 3}, "2247-03-03"}, {{9999, 12, 31}, "9456-12-31"}, {{100, 1, 1}, "0100-01-01"}});
  // clang-format on
}

// Before day 0 the fraction still counts forward. A time near midnight stays on its day.
TEST(OleDate, HasTheDayAndTimeOfItsCountOrParts) {
  // clang-format off
  ExpectRows<double>([](double days) { return OleDate(days); }, {
      {0, "1899-12-30"}, {-1.25, "1899-12-29 06:00:00"}, {-0.5, "1899-12-30 12:00:00"},
      {45306 + 9.5 / 24, "2024-01-15 09:30:00"}, {0.375 - 1e-12, "1899-12-30 09:00:00"},
      {45306.9999999999, "2024-01-15 23:59:59"}, {-657434.75, "0100-01-01 18:00:00"},
      {2958465.75, "9999-12-31 18:00:00"}, {-657435, "error 5"}, {2958466, "error 5"},
      {1e300, "error 5"}, {-1e300, "error 5"}, {kNan, "error 5"}});
  // clang-format on
  // clang-format off
  ExpectRows<int, int, int, int>([](auto... parts) { return OleDate::FromParts(parts...); }, {
      {{2023, 2, 29, 0}, "error 5"}, {{99, 1, 1, 0}, "error 5"}, {{10000, 1, 1, 0}, "error 5"},
      {{2024, 1, 1, 24}, "error 5"}});
  // clang-format on
  EXPECT_EQ(OleDate::FromParts(1899, 12, 29, 6, 0, 0).Days(), -1.25);
  EXPECT_EQ(OleDate(-1.25).AddDays(1).Days(), 0.25);
  EXPECT_EQ(OleDate(0.25).AddDays(-1).Days(), -1.25);
  EXPECT_EQ(ResultOf([] { return OleDate(0).AddDays(2958466); }), "error 5");
  EXPECT_EQ(OleDate(-0.5), OleDate(0.5));
  EXPECT_LT(OleDate(-1.25), OleDate(-1.75));
  EXPECT_GT(OleDate(-1.25), OleDate(-2.0));
  EXPECT_EQ(OleDate::FromParts(2024, 1, 14).Weekday(), 1);
  EXPECT_EQ(OleDate::FromParts(1899, 12, 23).Weekday(), 7);
}

// Every day of 400 years, the full cycle of the calendar.
TEST(OleDate, EveryDayOfFourCenturiesGoesThroughItsPartsAndBack) {
  int year = 1800;
  int month = 1;
  int day = 1;
  for (OleDate date = OleDate::FromParts(year, month, day); year < 2200; date = date.AddDays(1)) {
    ASSERT_EQ(std::tuple(date.Year(), date.Month(), date.Day()), std::tuple(year, month, day));
    ASSERT_EQ(OleDate::FromParts(year, month, day), date);
    ASSERT_EQ(OleDate::FromCivil(date.Civil()).Days(), date.Days());
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    const int lengths[] = {31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (++day <= lengths[month - 1]) continue;
    day = 1;
    year += month / 12;
    month = month % 12 + 1;
  }
}
