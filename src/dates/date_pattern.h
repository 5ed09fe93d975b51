#ifndef ZQ7STANDARD_SRC_DATES_DATE_PATTERN_H_
#define ZQ7STANDARD_SRC_DATES_DATE_PATTERN_H_

#include <ZQ7Standard/Types.h>

#include <chrono>
#include <string_view>

#include "dates/name_tables.h"

namespace ZQ7Standard {

/// A day as a pattern shows it.
struct PatternDay {
  std::chrono::year_month_day civil;  // its year does not count
  int year;                           // for "yyyy"
  int buddhist_year;                  // for "bbbb"
  Language language;                  // of the names
};

/// Whether a pattern has a letter of the day, as each has that shows one.
bool MayShowDay(TextView pattern);

/// Writes the time of day and the weekday of `date`, and `day` for the rest, as
/// `pattern` says (docs/dates.md lists the letters). Raises 5 in the name of
/// `operation` if the pattern ends inside quotes or in a single "\".
Text FormatPattern(std::string_view operation, OleDate date, const PatternDay& day,
                   TextView pattern);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_DATE_PATTERN_H_
