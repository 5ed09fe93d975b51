#ifndef ZQ7STANDARD_SRC_DATES_DATE_PATTERN_H_
#define ZQ7STANDARD_SRC_DATES_DATE_PATTERN_H_

#include <ZQ7Standard/Types.h>

#include <chrono>
#include <functional>
#include <optional>

#include "dates/name_tables.h"

namespace ZQ7Standard {

/// A day as a pattern shows it.
struct PatternDay {
  std::chrono::year_month_day day;  // its year does not count
  int year;                         // for "yyyy"
  int buddhist_year;                // for "bbbb"
  Language language;                // of the names
};

/// Writes `date` as `pattern` says (docs/dates.md lists the letters), its day as
/// `day` returns it, which is called if the pattern shows one. Returns nullopt if
/// the pattern ends inside quotes or in a single "\".
std::optional<Text> FormatPattern(OleDate date, TextView pattern,
                                  const std::function<PatternDay()>& day);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_DATE_PATTERN_H_
