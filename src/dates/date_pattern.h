#ifndef ZQ7STANDARD_SRC_DATES_DATE_PATTERN_H_
#define ZQ7STANDARD_SRC_DATES_DATE_PATTERN_H_

#include <ZQ7Standard/Types.h>

#include <chrono>
#include <string_view>

#include "dates/name_tables.h"

namespace ZQ7Standard {

/// A day as a pattern shows it.
struct PatternDay {
  std::chrono::year_month_day civil;  // its year is ignored
  int year;                           // for "yyyy"
  int buddhist_year;                  // for "bbbb"
  Language language;                  // of names
};

/// Whether a pattern has a letter that all patterns showing a day have.
bool MayShowDay(TextView pattern);

/// Formats the time of day and weekday of `date`, and the rest from `day`, as `pattern` says
/// (docs/dates.md lists the letters). Raises 5 in the name of `operation` if the pattern ends
/// inside quotes or in a single "\".
Text FormatPattern(std::string_view operation, OleDate date, const PatternDay& day,
                   TextView pattern);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_DATE_PATTERN_H_
