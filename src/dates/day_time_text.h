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

/// Reads a text with a ":"; nothing for a text without one.
std::optional<DayTime> ReadDayTime(TextView text);

/// The same, and four characters without a ":" are "HHMM".
std::optional<DayTime> ReadDayTimeOrDigits(TextView text);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_DAY_TIME_TEXT_H_
