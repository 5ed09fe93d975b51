#ifndef ZQ7STANDARD_STANDARDOBJECT_H_
#define ZQ7STANDARD_STANDARDOBJECT_H_

#include <ZQ7Standard/Enumerations.h>
#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include <ZQ7Standard/HideMacros.h>

namespace ZQ7Standard {

class PrintPicture;
class ServiceSet;

/// Dates, payment terms, numbers, lists, keys, bar codes, ciphers and digests.
///
/// Every operation runs to its end on the caller's thread and keeps nothing for the next
/// one. The system's date convention is read anew on each call. An instance belongs to
/// one thread at a time; distinct instances are independent.
///
/// "The system's era" is Buddhist if the system reads a typed year as a Buddhist Era
/// year, otherwise Gregorian. The library never shifts a year twice: a date whose own
/// year is 2400 or more is taken to carry a Buddhist year already.
class ZQ7STANDARD_EXPORT StandardObject {
 public:
  /// Uses the machine's services.
  StandardObject();
  /// Uses the host's services.
  explicit StandardObject(Services services);

  // --- The system's era and date layout, sentinel dates: src/dates/era.cc ---

  /// The system's year minus the Gregorian year: 543 or 0.
  ///
  /// 543 if years are read in the Buddhist Era, else 0.
  std::int16_t GetEraDif() const;

  /// The current year in the system's era.
  ///
  /// For example 2567 or 2024.
  std::int16_t CTYEAR() const;

  /// The year of a date in the system's era.
  ///
  /// A year of 2400 or more, such as that of a blank date (3333, 8888), is Buddhist
  /// already and is returned unchanged. For 2247 and 1704, which are 3333 shifted down by
  /// two and three eras, it is 3333.
  std::int16_t Year2000(OleDate InDate) const;

  /// The code of the system's date layout, 1 to 4.
  ///
  /// 1 is m/d/yyyy, 2 d/m/yyyy; 3 and 4 are the same with Buddhist years.
  std::int16_t GetDateFormat() const;

  /// The date layout of a code, "m/d/yyyy" or "d/m/yyyy".
  ///
  /// "m/d/yyyy" for the codes 1 and 3, "d/m/yyyy" for 2 and 4, else empty.
  Text GetDateFormatString(std::int16_t DateFormat) const;

  /// The date that stands for no date, 3333-03-03.
  OleDate GETBlankDate() const;

  /// The largest date, 3333-03-03.
  ///
  /// It is deliberately the blank date's value.
  OleDate GETMAXDate() const;

  /// Whether a date stands for no date.
  ///
  /// The blank dates are the zero date and midnight of 3333-03-03, of 8888-08-08 and of
  /// the dates that one era conversion too many makes of them (3876-03-03, 2790-03-03,
  /// 8345-08-08). With any other time of day `iDate` is an ordinary date.
  bool isBlankDate(OleDate iDate) const;

  /// The same day at 00:00.
  OleDate TrimDate(OleDate iDate) const;

  // --- Spans of days, hours and minutes: src/dates/day_time.cc ---

  /// Reads "D:H:M" as a number of days.
  ///
  /// "H:M" and a bare number of days are read too. Fields are rounded to whole numbers,
  /// halves to even; minutes above 60 count as 60, hours above 24 as 24, so "0:23:60" is
  /// one day. A field that is not a number reads as 0; fields further left are ignored.
  /// "0130" is 130 days (docs/surprises.md).
  double DAYTIME2DAY(TextView iDDHHMMText) const;

  /// Writes a number of days as "D:HH:MM".
  ///
  /// The sign is dropped: 1.5 and -1.5 are "1:12:00", 0 is "0:00:00". Rounded to the
  /// millisecond, then cut to the minute. Raises 6 if `iDay` is infinite or NaN.
  Text DAY2DAYTIME(double iDay) const;

  /// Writes a number of hours as "H:MM".
  ///
  /// Rounded to the minute, halves away from zero, from the number of minutes as it prints
  /// (to 15 significant digits): 7.5 is "7:30", 2.675 "2:41", -1.5 "-1:30", -0.001 "0:00".
  /// `CTHour` reads it back. Raises 6 from 1E+15 hours on and for infinities and NaN.
  Text FormatHour(double iHour) const;

  /// Whether a "D:H:M" text amounts to anything but zero.
  ///
  /// Four characters "HHMM" count too; with `AcceptZeroValue` the result is always True.
  /// The ranges of hours and minutes are not checked, and a bare number counts only if it
  /// has four characters. `DAYTIME2DAY` does not read "HHMM" (docs/surprises.md).
  bool isDayTime(TextView IDayTimeText, bool AcceptZeroValue = false) const;

  // --- Dates typed by users: src/dates/parsing.cc ---

  /// Reads a date as a user types it in a date box.
  ///
  /// "15/1/2567" is read in the system's field order and era; a year of one or two digits
  /// is completed (Gregorian 00-29 to 2000-2029, 30-99 to 1930-1999; Buddhist 00-72 to
  /// 2500-2572, 73-99 to 2473-2499). The order is never guessed: "1/15/2567" fails on a
  /// day-first system.
  ///
  /// The empty text is the zero date, and a missing year is year 0. Raises 13 for a month
  /// outside 1 to 12 or a day that the month does not have, 9 for a single field, 6 for a
  /// field beyond 16 bits. The flag is ignored: it stays for callers of the older
  /// two-argument form. docs/surprises.md says what to check first.
  OleDate CTDATE(TextView iText, bool NoUsedBackwardSupportOnly = false) const;

  /// Whether a text is a date with a year of four digits.
  ///
  /// `iText` has exactly three fields separated by "/", in the system's field order and
  /// era; the year has four characters and is from 643 to 9999. Signs are dropped
  /// ("-15/1/2567" is a date), so `CTDATE` may fail on a text accepted here
  /// (docs/surprises.md). The flag is ignored.
  bool IsTDate(TextView iText, bool NoUsedBackwardSupportOnly = false) const;

  /// Reads any date and adds the era difference to its year.
  ///
  /// Any date that `IsTDateTime` recognises is read. On a Buddhist system the result
  /// carries the Buddhist year as its own (29 February becomes the 28th if that year has
  /// none; docs/surprises.md). Returns the blank date for other text and for a year
  /// outside the range of dates.
  OleDate CDATE2000(TextView iText) const;

  /// Reads a date; today if the text is not one.
  ///
  /// `CTDATE` of a text that `IsTDateTime` recognises; today's date for any other, and if
  /// `CTDATE` would fail, as it does for a date without "/" (docs/surprises.md).
  OleDate GETValidDate(TextView DateString) const;

  /// Whether a text is a date, a time or both.
  ///
  /// For example "15/1/2567 9:30", "January 15, 2013", "15 ม.ค. 2567" and "9:30 PM".
  /// docs/dates.md lists the forms that are read.
  bool IsTDateTime(TextView iText) const;

  /// Whether a text is a month and a year, "MM/YYYY".
  ///
  /// `inMMYYYY` is a two-digit month, any one character and a year from 643 in the last
  /// four: "01/2567". The year has no upper bound.
  bool isMounthYear(TextView inMMYYYY) const;

  /// Reads the date in a sortable key, year first.
  ///
  /// Such as "2024-01-15" or "25670115"; a Buddhist year becomes Gregorian. If the text
  /// cannot be read, returns 3 March of the year 2000, or of 543 on a Buddhist system,
  /// which callers test for.
  ///
  /// A text that the system recognises as it stands is read in the system's era, so on a
  /// Buddhist system "2024-01-15" is the Buddhist year 2024. An eight-digit key must be a
  /// date when read that way too, so "20240229" is not a date there (the Buddhist year
  /// 2024 has no 29 February).
  OleDate GETDateFromTextYYYYMMDD(TextView iDateYYYY_MM_DD) const;

  /// The first day of a month typed year first.
  ///
  /// The year is in the system's era: "2567/03". The first day of the current month if
  /// the month is not 1 to 12 or the Gregorian year not 1 to 3332. Years 0 to 99 are
  /// completed to 1930-2029.
  OleDate CTPeriod(TextView iText) const;

  /// Whether `CTPeriod` reads a text as it stands.
  bool IsTPeriod(TextView iText) const;

  // --- Times typed by users: src/dates/time_parsing.cc ---

  /// The time of day of four digits "HHMM".
  ///
  /// The result is on day 0. For any other text, "9:30" and "2400" included, it is 00:00,
  /// a blank date (docs/surprises.md).
  OleDate CTTime(TextView ITimeText) const;

  /// Whether a text is four digits "HHMM".
  ///
  /// From "0000" to "2359".
  bool isTTime(TextView ITimeText) const;

  /// The day that a clock time past midnight carries over to.
  ///
  /// 1 if the four digits left after removing ":" and "." are 2400 or more, else
  /// `StartValue`.
  OleDate Str2AddDay(TextView InTime, std::int16_t StartValue = 0) const;

  /// Reads a clock time such as "9:30" or "9:30 PM".
  ///
  /// "0930" and "9:30:15" (seconds dropped) are read too. The result is a time of day,
  /// 00:00 for other text. "PM" adds 12 hours to any hour and the day wraps at 24, so
  /// "12:30 PM" is 00:30.
  OleDate Str2TIME(TextView InTime) const;

  /// Reads "H:M" as hours.
  ///
  /// Minutes above 60 count as 60; a "-" in front is the sign of the whole text, so
  /// "-1:30" is -1.5. A text without ":" is a bare number of hours.
  double CTHour(TextView ITimeText) const;

  /// Whether an "H:M" text amounts to anything but zero.
  ///
  /// Four characters "HHMM" count too; with `AcceptZeroValue` the result is always True.
  bool isHour(TextView IHourText, bool AcceptZeroValue = false) const;

  // --- Month and day names: src/dates/names.cc ---

  /// The 12 month names; element 0 is empty.
  ///
  /// Full or short, Thai or English; the index is the month's number. The spellings are
  /// fixed ("Febuary").
  std::vector<Text> GETMonthTextArray(bool FullText, bool UseThai) const;

  /// The 7 day names from Sunday; element 0 is empty.
  ///
  /// The index is the weekday's number (1 = Sunday). The spellings are fixed ("Thusday").
  std::vector<Text> GETDayTextArray(bool FullText, bool UseThai) const;

  /// The name of a month.
  ///
  /// Empty for 0, but January for a negative number and December for one above 12.
  Text MonthText(std::int16_t MonthNumber, bool FullText, bool UseThai) const;

  /// The name of a date's weekday.
  Text DayText(OleDate iDate, bool FullText, bool UseThai) const;

  /// The month and year of a date in English.
  ///
  /// `FormatTDate2` with the layout `ZQ7MMMYYYY`: "January 2024".
  Text MonthYearTextFull(OleDate InDate) const;

  // --- Dates and times as text: src/dates/formatting.cc ---

  /// Writes a date in the system's own layout.
  ///
  /// `FormatTDate2` with that layout: "15/1/2567".
  Text FormatTDate(OleDate InDate, bool ZeroLeader = false) const;

  /// Writes a date in one of the layouts of `CTDateType`.
  ///
  /// A `DateType` that is not a layout counts as `ZQ7Detect`. `ZeroLeader` writes day and
  /// month with two digits.
  ///
  /// Empty for a blank date. For any other date, a year of 2400 or more is Buddhist
  /// already: BBBB shows it unchanged, YYYY shows it less 543. Both show the sentinel
  /// years 3333 and 8888 unchanged. Years have at least four digits.
  Text FormatTDate2(OleDate InDate, CTDateType DateType, bool ZeroLeader = false) const;

  /// Writes a date in the system's own layout and the time of day.
  ///
  /// `FormatTDate`, a blank and the time of day: "15/1/2567 09:30". Empty for a
  /// blank date.
  Text FormatTDateTime(OleDate InDate, bool ZeroLeader = false) const;

  /// Writes a date by a pattern, in the system's era and language.
  ///
  /// "yyyy" and "bbbb" are both the year that `Year2000` returns; names are Thai on a
  /// Buddhist system, where the default pattern writes "15/1/2567", and English on
  /// others: "15/1/2024". An empty pattern counts as left out.
  ///
  /// In a pattern d, m, y, b, h, n and s stand for day, month, Gregorian and Buddhist
  /// year, hour, minute and second, AM/PM selects the 12-hour clock, and text in double
  /// quotes or after "\" is copied; docs/dates.md has the table. "m" and "mm" are minutes
  /// right after "h" or right before "s". The weekday is that of the Gregorian day meant:
  /// the year 2567 has those of 2024.
  ///
  /// Empty for a blank date. Raises 5 for a pattern that ends inside quotes or in a
  /// single "\", even then.
  Text Format2000(OleDate InDate, TextView FormatText = u"d/m/yyyy") const;

  /// Writes a date by a pattern, with Thai names and Buddhist years.
  ///
  /// The pattern is as for `Format2000`; "yyyy" and "bbbb" are both the Buddhist year:
  /// "15 มกราคม 2567". Years are numbered as in `FormatTDate2`.
  Text FormatThai(OleDate InDate, TextView FormatText = u"d mmmm bbbb") const;

  /// Writes the Thai date reversed, for sorting.
  ///
  /// 15 January 2024 is "2567/01/15". Empty for a blank date. `GETDateFromTextYYYYMMDD`
  /// reads it back.
  Text FormatThaiRevere(OleDate InDate) const;

  /// Writes a date by a pattern, with English names and Gregorian years.
  ///
  /// The pattern is as for `Format2000`; "yyyy" and "bbbb" are both the Gregorian year:
  /// "15 January 2024". Years are numbered as in `FormatTDate2`.
  Text FormatEnglish(OleDate InDate, TextView FormatText = u"d mmmm yyyy") const;

  /// Writes a date for a database query; NULL for a blank date.
  ///
  /// The Gregorian day, the same in every convention: "2024-01-15". The host adds the
  /// quotes, and none around NULL.
  //
  //     const Text day = standard.FormatQuery(date);
  //     query += day == u"NULL" ? day : u"'" + day + u"'";
  ///
  /// A Buddhist 29 February becomes the 28th if its Gregorian year has none.
  Text FormatQuery(OleDate InDate) const;

  /// Writes a date and its time for a database query; NULL for a blank date.
  ///
  /// "2024-01-15 09:30:00"; otherwise as `FormatQuery`.
  Text FormatQueryTime(OleDate InDate) const;

  /// Writes the time of day as "HH:MM".
  Text FormatTime(OleDate InDate) const;

  /// Writes the time of day by a pattern.
  ///
  /// The default pattern writes "09:30:00". Date letters work as in `Format2000`. No date
  /// is blank here: midnight of any day is "00:00:00". Raises 5 as `Format2000` does.
  Text FormatTime2(OleDate InDate, TextView FormatText = u"hh:nn:ss") const;

  /// Writes the month of a date, the year first.
  ///
  /// As `CTPeriod` reads it: "2567/01". The year is the one that `FormatTDate` shows.
  /// Empty for a blank date.
  Text FormatPeriod(OleDate InDate) const;

  /// Writes the month of a date, the month first.
  ///
  /// As `isMounthYear` accepts it: "01/2567"; otherwise as `FormatPeriod`.
  Text FormatTPeriod(OleDate InDate) const;

  // --- Month arithmetic: src/dates/months.cc ---

  /// Moves a date by single months, cut back to the last day of each.
  ///
  /// The result is at 00:00; a `NumberOfMonth` of 0 counts as 1 (docs/surprises.md). A
  /// day that a month does not have is cut back to its last and stays cut back: 31
  /// January plus 2 months is 28 March (29 in a leap year).
  ///
  /// Raises 5 beyond December 9999, and before January 100 on a Buddhist
  /// system; on a Gregorian one the month before January 100 is read as
  /// December of "99", which is 1999.
  OleDate AddMonth(OleDate InDate, std::int16_t NumberOfMonth = 0) const;

  /// Moves a date by years of twelve single months.
  ///
  /// `AddMonth` by 12 months a year; 0 counts as 1 year. Raises 6 if the
  /// months exceed 16 bits.
  OleDate AddYear(OleDate InDate, std::int16_t NumberOfYear = 0) const;

  /// The first day of a month of a Gregorian year.
  ///
  /// A month below 0 counts as 1, one above 12 as 12. Raises 13 for month 0 and for a
  /// year that the system does not read; a year of one or two digits is read as `CTDATE`
  /// reads it. Raises 6 if the system's year exceeds 16 bits.
  OleDate GETFirstDayOfMonthYear(std::int16_t iMonth, std::int16_t iYear2000) const;

  /// The last day of a month of a Gregorian year.
  ///
  /// A month outside 1 to 12 carries into other years (13 is January of the next one);
  /// years 0 to 29 are 2000 to 2029, 30 to 99 are 1930 to 1999. Raises 5 outside 100 to
  /// 9999.
  OleDate GETLastDayOfMonthYear(std::int16_t iMonth, std::int16_t iYear2000) const;

  // --- Weekdays and weeks: src/dates/calendar.cc ---

  /// The first Monday of a month of a Gregorian year.
  ///
  /// The first Monday on or after `GETFirstDayOfMonthYear(iMonth, iYear2000)`, which
  /// raises the same. A year of 2400 or more, except 3333 and 8888, has the weekdays of
  /// the Gregorian year that it means: for January 2567 the result is 2567-01-01, because
  /// 2024-01-01 is a Monday.
  OleDate GETFirstMondayOfMonthYear(std::int16_t iMonth, std::int16_t iYear2000) const;

  /// The first Saturday of a month of a Gregorian year.
  ///
  /// Otherwise as `GETFirstMondayOfMonthYear`.
  OleDate GETFirstSaturdayOfMonthYear(std::int16_t iMonth, std::int16_t iYear2000) const;

  /// The week of the month that a date is in, 1 to 6.
  ///
  /// Weeks begin on Sunday, and the 1st is in week 1. A blank date gives 0.
  ///
  /// A year of 2400 or more, except 3333 and 8888, has the weekdays of the Gregorian year
  /// that it means. 29 February counts as the 28th if that year has none.
  std::int16_t GETWeekOfMonth(OleDate InDate) const;

  /// The pay period of the month that a date is in, 1 or 2.
  ///
  /// 1 for the days 1 to 15, 2 from the 16th on. A blank date gives 0.
  std::int16_t GETPeriodOfMonth(OleDate InDate) const;

  /// Whether a date is a Saturday or a Sunday.
  ///
  /// The weekdays are those of `GETWeekOfMonth`. A blank date is neither.
  bool ISWeekHoliday(OleDate InDate) const;

  // --- Time left of long work: src/dates/time_left.cc ---

  /// Estimates the days that work will still take from the part done so far.
  ///
  /// The work started at `StartDate`: elapsed × (total − done) ÷ done, a span in days of
  /// at most 2958465. 0 if nothing or everything is done, and for a start in the future.
  OleDate TimeLeftDateTime(OleDate StartDate, double DoneCount, double TotalCount) const;

  /// Writes a span of days as its two largest units.
  ///
  /// Rounded to the second; units that are 0 do not count, and the rest is cut off: "1
  /// day 2 hours", "1 day 5 minutes", "3 minutes 5 seconds", "0 seconds", or "1 วัน 2
  /// ชั่วโมง". Thai if `UseThai` is True, or if it is left out on a Buddhist system.
  ///
  /// A negative span is "0 seconds". Raises 6 if `TimeLeft` is infinite or NaN.
  Text FormatTimeleft(double TimeLeft, std::optional<bool> UseThai = std::nullopt) const;

  /// Writes the time that work will still take.
  ///
  /// `FormatTimeleft` of `TimeLeftDateTime`; empty while nothing is done and something is
  /// left, as no estimate can be made.
  Text TimeLeftText(OleDate StartDate, double DoneCount, double TotalCount,
                    std::optional<bool> UseThai = std::nullopt) const;

  // --- Payment terms: src/dates/payment_terms.cc ---

  /// The due date of an invoice.
  ///
  /// Type 0 adds `NetDay` days to `InvoiceDate`, types 1 and 2 `DeliveryDay` and
  /// `NetDay`; the time of day is kept. Type 4 adds `NetDay` to the end-of-month date,
  /// types 3 and 5 to 8 `DeliveryDay` and `NetDay`. Returns the zero date for any other
  /// type.
  ///
  /// The end-of-month date is `GETLastDayOfMonthYear` with the year given as the month
  /// and the month as the year, at 00:00: for March 2024 it is 2171-08-31. Stored
  /// documents hold due dates made so; docs/surprises.md shows how to get the end of the
  /// invoice's month, and what happens to a blank date. Raises 5 beyond the range of
  /// dates.
  OleDate GetConditionDueDate(OleDate InvoiceDate, ZQ7ConditionType ConditionType,
                              std::int16_t NetDay, std::int16_t DeliveryDay) const;

  /// Writes a payment term in trade notation.
  ///
  /// "2.0/10, N/30 AID" is a discount of 2.0 % within 10 days, net 30 days after the
  /// invoice date.
  ///
  /// "CASH" alone if `ConditionDay` (days) is 0 or less. The discount `Condition1`
  /// (percent, one decimal) comes first if it and `ConditionDay1` (days) are above 0.
  /// Only the value 1 of `OutputType` writes the event in full; an unknown event is the
  /// invoice date.
  Text FormatCondition2(float Condition1, std::int16_t ConditionDay1,
                        ZQ7ConditionType ConditionType, ZQ7ConditionOutputType OutputType,
                        float ConditionDay) const;

  /// `FormatCondition2` with the event and the output as numbers.
  ///
  /// They are rounded to whole numbers, halves to even.
  Text FormatCondition(float Condition1, std::int16_t ConditionDay1, float ConditionType,
                       float OutputType, float ConditionDay) const;

  // --- Rounding: src/numbers/rounding.cc ---

  /// Rounds a number as it prints, half away from zero.
  ///
  /// Its 15 significant digits are rounded to `DecimalDigit` decimals, so 2.345 at 2
  /// gives 2.35 although the double lies below it. With `IgnoreNextDigit` it is rounded
  /// to two more decimals, which are then cut off: 1.2349 at 2 gives 1.23, but 1.23996
  /// gives 1.24. Raises 5 for a negative `DecimalDigit` and 6 for infinities and NaN, as
  /// do the operations below that use it.
  double FixNumber2(double iValue, std::int16_t DecimalDigit, bool IgnoreNextDigit) const;

  /// `FixNumber2` without `IgnoreNextDigit`.
  double FixNumber(double iValue, std::int16_t DecimalDigit) const;
  /// The same as `FixNumber`.
  double Round(double iValue, std::int16_t DecimalDigit) const;

  /// Cuts a number toward zero.
  ///
  /// `FixNumber2` at 0 decimals with `IgnoreNextDigit`, so the number is rounded to two
  /// decimals first: -2.5 gives -2 and 2.999 gives 3.
  double Floor(double iValue) const;

  /// `Floor`, plus 1 if the number is above it.
  ///
  /// 2.001 gives 3, -2.5 gives -2.
  double Ceiling(double iValue) const;

  /// Rounds a number and brings it to a whole unit.
  ///
  /// It is rounded to `DecimalDigit` decimals and then brought to a whole unit as
  /// `CutMode` says, whatever `DecimalDigit` is: 12.345 at 2 gives 12.35 (none), 12 (five
  /// up), 13 (all up), 12 (all down). Any other mode counts as none. All up leaves a
  /// negative number with a fraction as it is.
  double FixNumberWithCutMode(double iValue, std::int16_t DecimalDigit, ZQ7FixUnit CutMode) const;

  /// Brings an amount to a whole unit.
  ///
  /// A positive amount with a fraction goes up with `IncreaseToCeiling`, else down; other
  /// amounts are returned unchanged. Raises 6 if the unit above is out of range.
  ///
  /// `CelingList`, a list of satang steps such as "25;50;75", has no effect: each
  /// step is rounded to 0 or 1 unit before it is compared, and both ends of the
  /// scale are always in the list. Printed totals depend on the whole units
  /// (docs/surprises.md).
  Currency FixMoneyDecimal(Currency iValue, bool IncreaseToCeiling, TextView CelingList = {}) const;

  // --- Numbers from text: src/numbers/reading.cc ---

  /// Reads the number at the front of a typed text.
  ///
  /// Blanks, "," and "%" are skipped anywhere; tabs and line breaks, as in pasted cells,
  /// only at the front. "1,234.50" is 1234.5, "12.5%" is 0.125, "abc" is 0. An exponent
  /// (E or D) needs a digit. Never fails: a number too large for a double gives 0.
  double StrVal(TextView istr) const;

  /// `StrVal`, rounded; -1 does not round.
  ///
  /// Rounded as by `FixNumber`, to `DecimalDigit` decimals. Returns 0 for a
  /// `DecimalDigit` that `FixNumber` refuses.
  double StrVal2(TextView istr, std::int32_t DecimalDigit) const;

  /// `StrVal2` as a 16-bit integer, halves to even.
  ///
  /// Raises 6 beyond its range.
  std::int16_t StrInt(TextView istr, std::int32_t DecimalDigit = -1) const;

  /// `StrVal2` as a 32-bit integer, halves to even.
  ///
  /// Raises 6 beyond its range.
  std::int32_t StrLng(TextView istr, std::int32_t DecimalDigit = -1) const;

  /// `StrVal2` as a 32-bit float.
  ///
  /// Raises 6 beyond its range.
  float StrSng(TextView istr, std::int32_t DecimalDigit = -1) const;

  /// A number, or 0 for a missing one.
  double Null2Zero(std::optional<double> InputValue = std::nullopt) const;

  /// The digits of a text.
  ///
  /// The characters "0" to "9" of `iText`, with `IncludeDot` also ".", with
  /// `IncludeSign` also "+" and "-".
  Text Numb(TextView iText, bool IncludeDot = false, bool IncludeSign = false) const;
  /// The same as `Numb`.
  Text Trim2Number(TextView iText, bool IncludeDot = false, bool IncludeSign = false) const;

  double d2h(double iDay) const;     ///< Days to hours.
  double d2m(double iDay) const;     ///< Days to minutes.
  double h2d(double iHour) const;    ///< Hours to days.
  double m2d(double iMinute) const;  ///< Minutes to days.

  /// The shortest text of a number.
  ///
  /// The number is taken to 15 significant digits and written in decimals, with an
  /// exponent from 1E+15 up and below 1E-04: "1234.5", "1E+15". Raises 6 for infinities
  /// and NaN.
  Text d2Str(double iValue) const;

  // --- Cost prices in letters: src/numbers/cost_codes.cc ---

  /// Writes a cost price in the letters of a code word.
  ///
  /// Only staff can read the letters on a price tag. The ten units of `CodeWord` stand
  /// for the digits 1 to 9 and 0: with "BLACKHORSE", 125.50 is "BLK.KE" and 0 is "E".
  ///
  /// `Price` is rounded to two decimals as `FixNumber` does, and a ".00" is left out.
  /// Raises 5 for a word that is not ten different UTF-16 units (ignoring the case of A
  /// to Z) or holds a digit, ".", "-", a blank or a surrogate. Raises 6 for more than 15
  /// digits before the ".", and for infinities and NaN.
  Text FormatCostCode(double Price, TextView CodeWord) const;

  /// The same with a character for each repeated digit.
  ///
  /// `FormatCostCode` with `RepeatCharacter` for each digit that is the same as the one
  /// before it, the "." not counted: with "BLACKHORSE" and "X", 5000 is "KEXX" and
  /// 55.50 is "KX.XE".
  ///
  /// Raises 5 for a `RepeatCharacter` that is not one unit, is in the word, or could not
  /// be in any word, even if no digit is repeated.
  Text FormatCostCode2(double Price, TextView CodeWord, TextView RepeatCharacter) const;

  /// Reads the price that `FormatCostCode` wrote.
  ///
  /// The code is "-" if the price is negative, then letters of the word (A to Z in either
  /// case), perhaps "." and more letters, with blanks only before and after. The empty
  /// code and blanks alone are 0. A code longer than that of any price is read as the
  /// nearest double.
  ///
  /// Raises 13 for any other text; the message tells the position, from 1, of the first
  /// unit that does not belong, one past the end if a letter is missing. Raises 6 beyond
  /// the range of a double, and 5 for a word as `FormatCostCode` does.
  double DeFormatCostCode(TextView CostCode, TextView CodeWord) const;

  /// Reads the price that `FormatCostCode2` wrote.
  ///
  /// Otherwise as `DeFormatCostCode`. A repeated letter may stand for itself: "KEX" and
  /// "KEE" are both 500. Raises 13 also for a `RepeatCharacter` with no letter before it,
  /// and 5 for one that `FormatCostCode2` refuses.
  double DeFormatCostCode2(TextView CostCode, TextView CodeWord, TextView RepeatCharacter) const;

  // --- Lists in one text, arrays from arguments: src/text/lists.cc ---

  /// Adds an item to a list unless it is there.
  ///
  /// It is there if an item equals `iAdd` exactly: "a;b" and "c" give "a;b;c". An empty
  /// `iAdd` is an item like any other.
  ///
  /// The list given is split at ";", the result joined by `SeparateChar` (";" when
  /// empty): with "," the list "a;b" comes back as "a,b,c", but "a,b" is one item. The
  /// text "$#$" inside an item also splits it.
  Text AddList(TextView iList, TextView iAdd, TextView SeparateChar = u";") const;

  /// `ArrayString2` of up to 20 texts.
  std::vector<Text> ArrayString(TextView i1, TextView i2 = {}, TextView i3 = {}, TextView i4 = {},
                                TextView i5 = {}, TextView i6 = {}, TextView i7 = {},
                                TextView i8 = {}, TextView i9 = {}, TextView i10 = {},
                                TextView i11 = {}, TextView i12 = {}, TextView i13 = {},
                                TextView i14 = {}, TextView i15 = {}, TextView i16 = {},
                                TextView i17 = {}, TextView i18 = {}, TextView i19 = {},
                                TextView i20 = {}) const;

  /// The texts that are not empty, as an array.
  ///
  /// The texts in their order, without those of `i2` to `i30` that are empty. `i1` is the
  /// first element even if it is empty, unless all are empty: then the array is too. A
  /// text is split at every ";;".
  std::vector<Text> ArrayString2(TextView i1, TextView i2 = {}, TextView i3 = {}, TextView i4 = {},
                                 TextView i5 = {}, TextView i6 = {}, TextView i7 = {},
                                 TextView i8 = {}, TextView i9 = {}, TextView i10 = {},
                                 TextView i11 = {}, TextView i12 = {}, TextView i13 = {},
                                 TextView i14 = {}, TextView i15 = {}, TextView i16 = {},
                                 TextView i17 = {}, TextView i18 = {}, TextView i19 = {},
                                 TextView i20 = {}, TextView i21 = {}, TextView i22 = {},
                                 TextView i23 = {}, TextView i24 = {}, TextView i25 = {},
                                 TextView i26 = {}, TextView i27 = {}, TextView i28 = {},
                                 TextView i29 = {}, TextView i30 = {}) const;

  /// A comma-separated list from last to first.
  ///
  /// Each item is followed by ",": "a,b,c" and "a,b,c," give "c,b,a,".
  Text ReverseList(TextView iList) const;

  /// The whole number in a field of a comma-separated list.
  ///
  /// The field is `iNum`, counted from 1, and the number is written as decimal text;
  /// halves go to even. Empty if there is no such field, and for a last field of a single
  /// character: "1,2,3" has no third, "1,2,34" has.
  ///
  /// Raises 13 if the field is not a number and 6 if it exceeds 32 bits.
  Text TrimN(TextView istr, std::int16_t iNum) const;

  // --- Blanks, numbered keys, searching, random numbers: src/text/strings.cc ---

  /// The characters from last to first.
  ///
  /// They are UTF-16 code units: surrogates and Thai marks come out in front of what they
  /// belong to.
  Text ReverseString(TextView iString) const;

  /// Shrinks every run of blanks to one.
  ///
  /// A blank is U+0020. Blanks at the front and the back are removed, or shrink to one if
  /// the flag is off.
  Text TrimSpaceToOne(TextView inString, bool TrimFront = true, bool TrimBack = true) const;

  /// Counts up the number at the end of a key.
  ///
  /// By 1 or by `AddStringNumber`; its width is kept: "INV0099" gives "INV0100", "A999"
  /// gives "A1000", "A009" and "5" give "A014". An `AddStringNumber` that is not above 0
  /// adds nothing.
  ///
  /// Zeros alone are not a number: "A000" and any other key without a number are returned
  /// with `AddStringNumber` appended. A number of more than 15 digits is written as by
  /// `d2Str`. Raises 6 beyond the range of a double.
  Text IncreaseString(TextView InputString, TextView AddStringNumber = {}) const;

  /// Pads the number at the end of a text with zeros, for sorting.
  ///
  /// "inv12" at 8 gives "INV00012". The number is the end of the text that `StrVal` reads
  /// as above 0 from each of its characters on; its front is cut off if it is too long.
  ///
  /// A text without one, or with a "0" at its end, is padded with zeros and a "1"
  /// instead, and only then keeps its case: "abc" at 5 gives "abc01". Raises 5 if the
  /// part before the number is longer than `Length` characters, and 6 if twice `Length`
  /// exceeds 16 bits and there is a number.
  Text FormatTextSort(TextView InputString, std::int16_t Length) const;

  /// The position of a text in another, from 1; 0 if it is not found.
  ///
  /// It is that of the first `SearchString` in `MainString` at or after `start`, in
  /// UTF-16 code units; 0 also for a `start` beyond the end. An empty `SearchString` is
  /// found at `start`. Raises 5 for a `start` below 1 and for a `Compare` that is not a
  /// member of its enumeration.
  ///
  /// With `SearchFromBack` the position of the last one in the whole text;
  /// `start` and `Compare` have no effect, and an empty `SearchString` gives 0.
  std::int32_t Instr2(std::int32_t start, TextView MainString, TextView SearchString,
                      ZQ7CompareMethod Compare = ZQ7CompareBinary,
                      bool SearchFromBack = false) const;

  /// A random whole number.
  ///
  /// It is from `Low` to `High` + 1; these two come half as often as the others. `High`
  /// below `Low` is allowed. Raises 6 if the span `High` - `Low` + 1, or the result,
  /// exceeds 32 bits.
  std::int32_t Random(std::int32_t Low, std::int32_t High) const;

  // --- Record keys, serial numbers, bar codes, addresses: src/text/keys.cc ---

  /// Cleans a record key as typed.
  ///
  /// Drops "'", ";", ",", "%" and line breaks, the blanks around it and, unless
  /// `AcceptInsideSpace`, those inside. An option is on only if it is 1; -1, which is
  /// true to other operations, is off.
  ///
  /// `NumberOnly` keeps "0" to "9", `AutoUpperCase` converts to upper case (any script),
  /// `AcceptOnlyEnglishCharAndNumber` keeps A to Z, a to z and "0" to "9". Runs of blanks
  /// inside shrink to one while `AcceptInsideMultiSpace` is 0. Blanks beside a line break
  /// stay, as they are cleaned before it is dropped. The other parameters have no effect;
  /// nothing is cut to a length.
  Text FormatPrimaryKey(TextView InputKeyValue, std::int16_t PrimaryKeyMode = 0,
                        std::int16_t MaxLen = 0, std::int16_t AcceptInsideSpace = 0,
                        std::int16_t NumberOnly = 0, std::int16_t AutoUpperCase = 0,
                        std::int16_t AcceptOnlyEnglishCharAndNumber = 0,
                        std::int16_t AcceptInsideMultiSpace = 0, std::int16_t Reserve2 = 0,
                        std::int16_t Reserve3 = 0, std::int16_t Reserve4 = 0) const;

  /// Cleans a serial number as typed.
  ///
  /// `FormatPrimaryKey` with those options. `MaxLen` has no effect.
  Text FormatSerialNo(TextView InputKeyValue, std::int16_t MaxLen = 30,
                      std::int16_t AcceptInsideSpace = 0, std::int16_t NumberOnly = 0,
                      std::int16_t AutoUpperCase = 0,
                      std::int16_t AcceptOnlyEnglishCharAndNumber = 0) const;

  /// The letters and digits of a bar code as typed.
  ///
  /// Letters are A to Z, in upper case: " 885-1234 abc " gives "8851234ABC".
  /// `BarcodeType` has no effect.
  Text FormatBarCode(TextView InputBarCodeValue, std::int16_t BarcodeType = 0) const;

  /// A network address without leading zeros; empty if it is not one.
  ///
  /// It has four parts, or six if `ForceIPV4` is off, and loses its signs too:
  /// "010.001.002.003" gives "10.1.2.3". Empty for any other number of parts, or a part
  /// above 256 (256 itself is accepted). Parts are read by `StrInt`, which raises 6 for
  /// one beyond 16 bits.
  Text FormatIP(TextView StringIP, bool ForceIPV4 = true) const;

  // --- Check digits of bar codes: src/text/barcodes.cc ---

  /// The EAN-13 check digit of the first 12 characters.
  ///
  /// 0 to 9; -1 if there are fewer characters. Any character but "0" to "9" counts as 0.
  std::int16_t GetEAN13ChekDigit(TextView sCodice) const;

  /// The ITF-14 check digit of the first 13 characters.
  ///
  /// ITF-14 is GTIN-14; otherwise as `GetEAN13ChekDigit`.
  std::int16_t GetITF14ChekDigit(TextView sCodice) const;

  // --- Texts under a password: src/text/cipher.cc; docs/security.md ---

  /// Hides a text from a glance, under a password.
  ///
  /// The exclusive or of each character's byte with that of the repeated password. It
  /// protects against nothing more and is kept for existing data.
  ///
  /// "ABC" with "A" gives the characters 0, 3 and 2. The result may hold any character of
  /// the code page, including 0. Characters go through Windows-874, and one that is not
  /// in it counts as "?". The empty text gives the empty text; raises 6 for more than
  /// 32767 characters, 11 for an empty password.
  Text EncryptBS(TextView StringInput, TextView PassWord) const;

  /// Undoes `EncryptBS`.
  ///
  /// The same as `EncryptBS`, which undoes itself.
  Text DecryptBS(TextView EncryptedTextInput, TextView PassWord) const;

  /// Enciphers a text with the host's block cipher.
  ///
  /// The cipher is made anew for the call. Returns the text itself if it or the password
  /// is empty. Characters go through Windows-874, and one that is not in it becomes "?".
  /// Raises 429 if there is no cipher, and what the cipher raises.
  Text Encrypt(TextView StringInput, TextView PassWord) const;

  /// Deciphers a text that `Encrypt` enciphered.
  ///
  /// Returns `EncryptedTextInput` itself if `Encrypt` did not write it, or the password
  /// is wrong as far as the cipher can tell.
  ///
  /// Characters of code 0 are removed from the result in every case: they are the
  /// padding of block ciphers. Raises as `Encrypt` does.
  Text Decrypt(TextView EncryptedTextInput, TextView PassWord) const;

  // --- Digests: src/text/digest.cc ---

  /// The MD5 digest of a text.
  ///
  /// The digest (RFC 1321) of the Windows-874 bytes of `strMessage`, as 32 hexadecimal
  /// digits in lower case. A character that is not in the code page counts as "?". It
  /// detects accidental changes only: anyone can make two texts with the same digest.
  Text CalculateMD5(TextView strMessage) const;

  // --- Programs, addresses, mail, appointments: src/io/programs/programs.cc; docs/system.md ---

  /// Starts a program, and waits for its end if asked to.
  ///
  /// `Program` is a path, or the name of an installed program. It is started directly, never
  /// through a shell: each of the `Arguments` reaches it as it is. It reads nothing, writes
  /// where the host writes, and starts in the `Folder`, or in the host's own.
  ///
  /// Returns the process number at once if `WaitSeconds` is 0; the program then outlives the
  /// host. Otherwise returns the exit status, 128 and the signal's number if a signal ended
  /// it. A program that takes longer is told to end, ended two seconds later, and 70 is
  /// raised. `WaitSeconds` is at most 1000000; any other value raises 5, and so does an empty
  /// `Program`. Raises 53 for a program and 76 for a folder that do not exist, 70 for what
  /// may not be executed.
  std::int32_t ExecuteProgram(TextView Program, const std::vector<Text>& Arguments = {},
                              double WaitSeconds = 0, TextView Folder = {}) const;

  /// Opens an address with the user's browser.
  ///
  /// `Address` begins with "http://", "https://", "mailto:" or "file:"; what an address
  /// cannot hold, such as Thai letters, is percent-encoded. A file must exist and be a
  /// document or a folder, not a program. Any other address raises 5. Raises 429 if there is
  /// no display.
  void OpenBrowser(TextView Address) const;

  /// Begins a message in the user's mail program.
  ///
  /// `To` has addresses separated by ";" or ","; nothing in it can attach a file. Raises 53
  /// for one of the `Attachments` that does not exist, 429 if there is no display.
  void OpenMail(TextView To, TextView Subject = {}, TextView Body = {},
                const std::vector<Text>& Attachments = {}) const;

  /// Opens a new appointment in the user's calendar.
  ///
  /// The dates are local and have a time of day; the appointment (RFC 5545) goes to the
  /// calendar in UTC, in a file that only the user may read. Raises 5 if `EndDate` is before
  /// `StartDate`, 429 if there is no display.
  void OpenCalendar(TextView Subject, OleDate StartDate, OleDate EndDate, TextView Place = {},
                    TextView Body = {}) const;

  // --- The machine: src/io/machine/machine.cc; docs/system.md ---

  /// Returns the name of the computer, without its domain.
  Text GetComputerName() const;

  /// Returns the serial number of the disk that holds a path, as its maker wrote it.
  ///
  /// `Path` need not exist. Of several disks under one file system it is the first. Empty if
  /// the disk does not tell, or the path is on a network.
  Text GetDiskSerialNumber(TextView Path = u"C:") const;

  /// Returns the serial number of the volume that holds a path, eight hexadecimal digits.
  ///
  /// It changes when the volume is formatted. FAT's "1A2B-3C4D" is "1A2B3C4D", of NTFS it is
  /// the last eight digits; longer ones of other file systems are folded to eight. `Path`
  /// need not exist. Empty if there is none, or the path is on a network.
  Text GetVolumeSerialNumber(TextView Path = u"C:") const;

  /// Returns a property of the machine's parts: a text for each part.
  ///
  /// The classes are "Win32_ComputerSystem", "Win32_BIOS", "Win32_BaseBoard",
  /// "Win32_Processor", "Win32_DiskDrive", "Win32_LogicalDisk", "Win32_NetworkAdapter" and
  /// "Win32_OperatingSystem"; docs/system.md has their properties. The case of names does
  /// not matter. What is not known is the empty text.
  ///
  /// A `Condition` such as "DeviceID=C:" chooses parts by another property, in any case of A
  /// to Z. Raises 5 if it has no name or no "=", 438 for a class or a property that does not
  /// exist.
  std::vector<Text> QueryManagement(TextView ClassName, TextView PropertyName,
                                    TextView Condition = {}) const;

  /// Returns the path of a folder of the user's or the machine's; it need not exist.
  ///
  /// Empty if there is no such folder. Raises 5 for a number that is not a member of the
  /// enumeration.
  Text GetSpecialFolder(VirtualFolder Folder) const;

  /// Returns the version of a program or library, empty if it has none.
  ///
  /// That is the version in a file of Windows, such as "1.2.3.4"; of any other file that of the
  /// Debian package to which it belongs. Raises 53 for a file that does not exist, 75 for a
  /// folder, 70 if it may not be read, or the package database does not answer in time.
  Text GetFileVersion(TextView Path) const;

  // --- Pictures: src/io/images/picture_file.cc; docs/system.md ---

  /// Writes a picture to a JPEG file.
  ///
  /// `Picture` is one that `PrintObject` prints; transparent parts become white. A JPEG is
  /// decoded and written anew. Its density is kept, what else the file told is not: the place
  /// where a photo was taken, or which side is up. The file is written whole or not at all, in
  /// place of one that exists.
  ///
  /// `Quality` is 1 to 100; any other raises 5, and so does no picture. Raises 481 if the
  /// picture is damaged, has a side of more than 65500 pixels or more than 100 million in all,
  /// 429 without the printing module, 57, 61, 70, 75 or 76 if the file cannot be written.
  void SavePictureAsJPEG(const std::shared_ptr<PrintPicture>& Picture, TextView FileName,
                         std::int16_t Quality = 75) const;

  // --- The time of a server: src/io/network/time_of_day.cc; docs/system.md ---

  /// The date and time of a server of the network.
  ///
  /// It is asked by SNTP, and its answer is converted to the local time zone, to the second;
  /// the machine's own clock plays no part. `ServerName` is a name or an address, and perhaps
  /// a port: "time.example", "10.0.0.1:123", "[::1]:123". Any other text raises 5. Raises 68
  /// if nothing answers, after eight seconds at most.
  OleDate getRemoteTOD(TextView ServerName) const;

  // --- Mail: src/io/network/mail.cc; docs/system.md ---

  /// Sends a message through a mail server.
  ///
  /// `To`, `CC` and `BCC` have addresses separated by ";" or ",", each with or without a name:
  /// "Somchai <s@shop.example>"; a name with a "," is in quotation marks. `From` is one such
  /// address. Who is named twice gets the message once, and nobody sees who is in `BCC`.
  /// `Attachments` are path texts. `Body` is HTML if `IsHtml`.
  ///
  /// A connection is secure or not made: the server's certificate and name are checked, and a
  /// server without STARTTLS is refused. Without security a `Password` is accepted for this
  /// machine alone. An empty `User` does not log in.
  ///
  /// Raises 5 for a text that is not an address in ASCII, for a line break in any text but
  /// `Body`, and for a `Port` outside 1 to 65535; 53 for an attachment that does not exist; 68
  /// if no server answers in time; 70 if the connection is not secure or the log-in fails; 57 if the
  /// server refuses the message or a recipient, and nobody gets it then; 429 if the library's
  /// module for mail is missing.
  void SendMail(TextView Server, std::int32_t Port, ZQ7ConnectionSecurity Security, TextView User,
                TextView Password, TextView From, TextView To, TextView Subject, TextView Body,
                const std::vector<Text>& Attachments = {}, TextView CC = {}, TextView BCC = {},
                bool IsHtml = false) const;

 private:
  std::shared_ptr<ServiceSet> services_;
};

}  // namespace ZQ7Standard

#include <ZQ7Standard/RestoreMacros.h>

#endif  // ZQ7STANDARD_STANDARDOBJECT_H_
