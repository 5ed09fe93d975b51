#ifndef ZQ7STANDARD_SRC_DATES_DATE_TEXT_H_
#define ZQ7STANDARD_SRC_DATES_DATE_TEXT_H_

#include <ZQ7Standard/Types.h>

#include <optional>

namespace ZQ7Standard {

/// Reads a date, a time or both as a user may type them (docs/dates.md lists the forms); nullopt if
/// `text` is neither. A text counts as a date exactly if this reads it. `this_year` is the
/// Gregorian year of a day and month alone.
std::optional<OleDate> ReadDateText(TextView text, DateConvention convention, int this_year);

/// The date of three numbers that the library has read itself, for which there is no order to
/// guess: a year below 100 is completed, others count as they are, in the era `era`. Returns
/// nullopt if there is no such date.
std::optional<OleDate> DateInEra(int month, int day, int year, Era era);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_DATE_TEXT_H_
