#ifndef ZQ7STANDARD_SRC_DATES_DATE_TEXT_H_
#define ZQ7STANDARD_SRC_DATES_DATE_TEXT_H_

#include <ZQ7Standard/Types.h>

#include <optional>

namespace ZQ7Standard {

/// Reads a date, a time or both as a user may type them (docs/dates.md lists
/// the forms); nothing when `text` is none. A text is recognised as a date
/// exactly when this reads it. `this_year` is the Gregorian year that completes
/// a month and day.
std::optional<OleDate> ReadDateText(TextView text, DateConvention convention, int this_year);

/// The date that the text "Mon/day/year" is read as, the numbers written in
/// plain decimal: a year below 100 is completed, others stand, in the era
/// `era`. Nothing when there is no such date. With the month named there is no
/// order to guess, so this is how the library reads dates that it has taken
/// apart itself.
std::optional<OleDate> ReadNamedMonthDate(int month, int day, int year, Era era);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_DATE_TEXT_H_
