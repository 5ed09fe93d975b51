#ifndef ZQ7STANDARD_SRC_DATES_ERAS_H_
#define ZQ7STANDARD_SRC_DATES_ERAS_H_

#include <ZQ7Standard/Types.h>

/// Tells the years of both eras apart, and the years that mark a date as blank.
namespace ZQ7Standard {

/// A date whose own year is this or later is assumed to hold a Buddhist year already, so that no
/// year is shifted twice.
inline constexpr int kFirstBuddhistYear = 2400;

/// A typed key holds a Buddhist year if its year is later than this.
inline constexpr int kLastGregorianKeyYear = kFirstBuddhistYear;

/// The years of the dates that mean "no date", 3333-03-03 and 8888-08-08.
inline constexpr int kBlankYear = 3333;
inline constexpr int kOlderBlankYear = 8888;

/// The year in that era less the Gregorian year.
constexpr int EraDifference(Era era) {
  return era == Era::kBuddhist ? kBuddhistOffset : 0;
}

/// Whether `year` is the own year of a date that means "no date"; such a year is the same in both
/// eras.
constexpr bool IsSentinelYear(int year) {
  return year == kBlankYear || year == kOlderBlankYear;
}

/// The Gregorian year meant by a date with the own year `year`.
constexpr int MeantYear(int year) {
  return year < kFirstBuddhistYear || IsSentinelYear(year) ? year : year - kBuddhistOffset;
}

/// The year that `Year2000` returns for a date with the own year `year`. 2247 and 1704 are the
/// blank year after two and three conversions down by an era.
constexpr int YearInEra(int year, Era era) {
  if (year == kBlankYear - 2 * kBuddhistOffset || year == kBlankYear - 3 * kBuddhistOffset) {
    return kBlankYear;
  }
  return year < kFirstBuddhistYear ? year + EraDifference(era) : year;
}

/// The year that one or two typed digits mean: 00 to 29 are 2000 to 2029 and 30 to 99 are
/// 1930 to 1999, Buddhist 00 to 72 are 2500 to 2572 and 73 to 99 are 2473 to 2499.
constexpr int CompletedYear(int digits, Era era) {
  if (era == Era::kBuddhist) return digits <= 72 ? 2500 + digits : 2400 + digits;
  return digits < 30 ? 2000 + digits : 1900 + digits;
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_ERAS_H_
