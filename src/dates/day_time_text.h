#ifndef ZQ7STANDARD_SRC_DATES_DAY_TIME_TEXT_H_
#define ZQ7STANDARD_SRC_DATES_DAY_TIME_TEXT_H_

#include <ZQ7Standard/Types.h>

#include <optional>

namespace ZQ7Standard {

/// The fields of a text "D:H:M" as whole numbers, halves to even. A field that is missing or not a
/// number is 0; missing fields are those on the left.
struct DayTime {
  double days = 0;
  double hours = 0;
  double minutes = 0;
};

/// Whole days and the rest, a whole number of some smaller unit.
struct DaysAndRest {
  double days = 0;
  double rest = 0;
};

/// Splits a span of 0 or more days, the rest rounded to units of which a day has `units_per_day`; a
/// full day of them is carried.
DaysAndRest SplitDays(double span, double units_per_day);

/// Reads a text with a ":"; nullopt for other text.
std::optional<DayTime> ReadDayTime(TextView text);

/// The same, but four characters without a ":" are "HHMM".
std::optional<DayTime> ReadDayTimeOrDigits(TextView text);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_DAY_TIME_TEXT_H_
