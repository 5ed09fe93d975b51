#ifndef ZQ7STANDARD_SRC_DATES_DAY_TIME_TEXT_H_
#define ZQ7STANDARD_SRC_DATES_DAY_TIME_TEXT_H_

#include <ZQ7Standard/Types.h>

#include <optional>

namespace ZQ7Standard {

/// The fields of a text "D:H:M" as whole numbers, halves to even. A field that
/// is missing or no number is 0, fields further left are left out.
struct DayTime {
  double days = 0;
  double hours = 0;
  double minutes = 0;
};

/// Whole days and the rest, whole too, in a unit of its own.
struct DaysAndRest {
  double days = 0;
  double rest = 0;
};

/// A span of 0 or more days, the rest rounded to units of which a day has
/// `units_per_day`; a full day of them is carried.
DaysAndRest SplitDays(double span, double units_per_day);

/// Reads a text with a ":"; nothing for a text without one.
std::optional<DayTime> ReadDayTime(TextView text);

/// The same, and four characters without a ":" are "HHMM".
std::optional<DayTime> ReadDayTimeOrDigits(TextView text);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_DAY_TIME_TEXT_H_
