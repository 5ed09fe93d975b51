#ifndef ZQ7STANDARD_SRC_DATES_CIVIL_H_
#define ZQ7STANDARD_SRC_DATES_CIVIL_H_

#include <chrono>
#include <optional>

/// Days of the Gregorian calendar from 0100-01-01 to 9999-12-31, which is all the days
/// that a date can be.
namespace ZQ7Standard {

inline constexpr int kMonthsPerYear = 12;

/// The number of days in a month (1 to 12) of a year.
int DaysInMonth(int year, int month);

/// Whether the calendar has that day, and it is in range.
bool IsCivilDay(int year, int month, int day);

constexpr std::chrono::year_month_day Civil(int year, int month, int day) {
  return {std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
          std::chrono::day(static_cast<unsigned>(day))};
}

/// The day that a month outside 1 to 12 and a day outside the month carry on to; nullopt
/// if it is out of range.
std::optional<std::chrono::local_days> CarriedDay(int year, int month, int day);

/// The same day `years` years later, 29 February moving to the 28th where the year has
/// none; nullopt if it is out of range.
std::optional<std::chrono::local_days> YearsLater(std::chrono::local_days day, int years);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_CIVIL_H_
