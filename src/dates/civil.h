#ifndef ZQ7STANDARD_SRC_DATES_CIVIL_H_
#define ZQ7STANDARD_SRC_DATES_CIVIL_H_

#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/date_convention.h>

#include <chrono>
#include <cstdint>
#include <optional>

namespace ZQ7Standard {

/// A Buddhist Era year less the Gregorian year.
inline constexpr int kBuddhistOffset = 543;

/// A date whose own year is this or later is taken to carry a Buddhist year
/// already, so that no year is shifted twice.
inline constexpr int kFirstBuddhistYear = 2400;

/// The day count of the last date, 9999-12-31.
inline constexpr double kLastDay = 2958465;

/// The system's year less the Gregorian year.
constexpr int EraDifference(Era era) {
  return era == Era::kBuddhist ? kBuddhistOffset : 0;
}

/// Whether `year` is the own year of a date that stands for no date, 3333-03-03
/// or 8888-08-08; such a year is the same in both eras.
constexpr bool IsSentinelYear(int year) {
  return year == 3333 || year == 8888;
}

/// The Gregorian year that a date with the own year `year` means.
constexpr int MeantYear(int year) {
  return year < kFirstBuddhistYear || IsSentinelYear(year) ? year : year - kBuddhistOffset;
}

/// The year that `Year2000` returns of a date with the own year `year`. 2247 and
/// 1704 are 3333 after one and two conversions down by an era.
constexpr int YearInEra(int year, Era era) {
  if (year == 2247 || year == 1704) return 3333;
  return year < kFirstBuddhistYear ? year + EraDifference(era) : year;
}

/// The Gregorian day that `date` means: in `MeantYear`, 29 February as the 28th
/// where that year has none.
std::chrono::year_month_day MeantDay(OleDate date);

/// The calendar day of `date`.
std::chrono::year_month_day YearMonthDay(OleDate date);

/// Midnight of a Gregorian day; nothing when the calendar has no such day or it
/// is outside 0100-01-01 to 9999-12-31.
std::optional<OleDate> DateFromParts(int year, int month, int day);

/// The day that the automation date-serial makes of any three numbers: years 0
/// to 29 are 2000 to 2029 and 30 to 99 are 1930 to 1999; a month outside 1 to
/// 12 and a day outside the month carry on. Nothing outside the range of dates.
std::optional<OleDate> DateSerial(int year, int month, int day);

/// The same day and time of day `years` years later, 29 February moving to the
/// 28th where the year has none. Nothing outside the range of dates.
std::optional<OleDate> AddYears(OleDate date, int years);

/// The number of days in a month (1 to 12) of a Gregorian year.
int DaysInMonth(int year, int month);

/// The same time of day `days` days later. Nothing outside the range of dates.
std::optional<OleDate> DaysLater(OleDate date, std::int64_t days);

/// Whether the day count `days` is a moment in the range of dates.
bool IsInRange(double days);

/// `day` at the time of day `time_of_day`, a fraction of a day.
OleDate AtTime(OleDate day, double time_of_day);

/// Milliseconds since midnight, rounded but never as many as a day has: a moment
/// belongs to the day of its whole part, however close to the next midnight.
int MillisecondsOfDay(OleDate date);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_CIVIL_H_
