#ifndef ZQ7STANDARD_SRC_DATES_DATE_MATH_H_
#define ZQ7STANDARD_SRC_DATES_DATE_MATH_H_

#include <ZQ7Standard/Types.h>

#include <chrono>
#include <cstdint>
#include <optional>

namespace ZQ7Standard {

/// The day count of the last date, 9999-12-31.
inline constexpr double kLastDay = 2958465;

/// Whether the day count `days` is a moment in the range of dates.
bool IsInRange(double days);

/// The calendar day of `date`.
std::chrono::year_month_day YearMonthDay(OleDate date);

/// The Gregorian day that `date` means: 29 February becomes the 28th if `MeantYear` is a common
/// year.
std::chrono::year_month_day MeantDay(OleDate date);

/// Midnight of a Gregorian day; nullopt if it does not exist or is outside 0100-01-01 to
/// 9999-12-31.
std::optional<OleDate> DateFromParts(int year, int month, int day);

/// The day of any three numbers, as automation's date serial defines it: a year of 0 to 99 is
/// completed as a Gregorian one; months outside 1 to 12 and days outside the month carry over.
/// Returns nullopt outside the range of dates.
std::optional<OleDate> DateSerial(int year, int month, int day);

/// The same day and time `years` years later, 29 February becoming the 28th in a common year;
/// nullopt outside the range of dates.
std::optional<OleDate> AddYears(OleDate date, int years);

/// The same time of day `days` days later; nullopt outside the range of dates.
std::optional<OleDate> DaysLater(OleDate date, std::int64_t days);

/// `day` at the time of day `time_of_day`, a fraction of a day.
OleDate AtTime(OleDate day, double time_of_day);

/// Milliseconds since midnight, rounded but less than a full day: a moment belongs to the day of
/// its whole part, however close to the next midnight.
int MillisecondsOfDay(OleDate date);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_DATE_MATH_H_
