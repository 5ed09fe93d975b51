#ifndef ZQ7STANDARD_SRC_DATES_CIVIL_H_
#define ZQ7STANDARD_SRC_DATES_CIVIL_H_

#include <chrono>
#include <optional>

/// Days of the Gregorian calendar from 0100-01-01 to 9999-12-31, the range of dates.
namespace ZQ7Standard {

inline constexpr int kMonthsPerYear = 12;

/// The number of days in a month (1 to 12) of a year.
int DaysInMonth(int year, int month);

/// Whether the day exists and is in range.
bool IsCivilDay(int year, int month, int day);

constexpr std::chrono::year_month_day Civil(int year, int month, int day) {
  return {std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
          std::chrono::day(static_cast<unsigned>(day))};
}

/// The day with a month outside 1 to 12 or a day outside the month carried over; nullopt if it is
/// out of range.
std::optional<std::chrono::local_days> CarriedDay(int year, int month, int day);

/// The same day `years` years later, 29 February becoming the 28th in a common year; nullopt if it
/// is out of range.
std::optional<std::chrono::local_days> YearsLater(std::chrono::local_days day, int years);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_CIVIL_H_
