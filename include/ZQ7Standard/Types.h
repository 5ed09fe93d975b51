#ifndef ZQ7STANDARD_TYPES_H_
#define ZQ7STANDARD_TYPES_H_

#include <ZQ7Standard/Export.h>

#include <chrono>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ZQ7Standard {

/// Text as it crosses the interface: UTF-16 code units. Positions that an
/// operation takes or returns count code units from 1.
using Text = std::u16string;
using TextView = std::u16string_view;

/// Returns `text` in UTF-8. A surrogate without its partner becomes U+FFFD.
ZQ7STANDARD_EXPORT std::string Utf8(TextView text);

/// Returns whether every surrogate of `text` has its partner, so that `Utf8` loses nothing.
ZQ7STANDARD_EXPORT bool IsWellFormed(TextView text);

/// Returns the UTF-8 text `bytes` in UTF-16. Each byte that does not begin a well-formed
/// sequence becomes U+FFFD.
ZQ7STANDARD_EXPORT Text FromUtf8(std::string_view bytes);

/// Returns `text` in Windows-874, one byte for each code unit; nullopt if it has a character that
/// the code page lacks.
ZQ7STANDARD_EXPORT std::optional<std::string> Windows874(TextView text);

/// Returns the text that `bytes` are in Windows-874. A byte that the code page leaves undefined
/// becomes a character that `Windows874` turns back into it.
ZQ7STANDARD_EXPORT Text FromWindows874(std::string_view bytes);

/// Returns how many columns of a terminal `text` takes: one for each code unit, none for
/// the Thai vowels, tone marks and signs above or below a letter.
ZQ7STANDARD_EXPORT int TerminalWidth(TextView text);

/// A date and time of day in the Gregorian calendar, held as a count of days
/// since 1899-12-30 00:00; the fraction is the time of day.
///
/// Before that day the count follows the automation rule: the whole part, cut
/// toward zero, is the day, and the absolute value of the fraction is the time
/// of day. So -1.25 is 1899-12-29 06:00, and -0.5 and 0.5 are the same moment.
///
/// It holds every date from 0100-01-01 to 9999-12-31; the default is day 0, the "zero
/// date". Years are Gregorian: a Buddhist Era year less 543.
class ZQ7STANDARD_EXPORT OleDate {
 public:
  constexpr OleDate() = default;

  /// The moment `days` days from 1899-12-30 00:00. Raises 5 if that is not a moment from
  /// 0100-01-01 to 9999-12-31, or `days` is NaN.
  explicit OleDate(double days);

  /// The moment of the Gregorian year (100 to 9999), month (1 to 12), day (from
  /// 1), hour (0 to 23), minute and second (0 to 59). Raises 5 for any other.
  static OleDate FromParts(int year, int month, int day, int hour = 0, int minute = 0,
                           int second = 0);

  /// Midnight at the start of `day`. Raises 5 outside 0100-01-01 to 9999-12-31.
  static OleDate FromCivil(std::chrono::local_days day);

  /// Days since 1899-12-30 00:00.
  constexpr double Days() const { return days_; }
  /// The time of day as a fraction of a day, from 0 up to but not including 1.
  double TimeOfDay() const;
  /// The calendar day, without the time.
  std::chrono::local_days Civil() const;

  int Year() const;
  int Month() const;    ///< 1 to 12
  int Day() const;      ///< 1 to 31
  int Weekday() const;  ///< 1 = Sunday to 7 = Saturday
  int Hour() const;     ///< 0 to 23
  int Minute() const;   ///< 0 to 59
  int Second() const;   ///< 0 to 59; the time is first rounded to the millisecond

  /// The same time of day, `days` days later (earlier if negative). Raises 5 if that day
  /// is outside 0100-01-01 to 9999-12-31.
  OleDate AddDays(std::int64_t days) const;

  /// "2024-01-15", followed by " 09:30:00" if there is a time of day, whatever the date
  /// convention.
  Text ToText() const;

  /// Reads "2024-01-15", "2024-01-15 09:30" and "2024-01-15 09:30:00", also with a "T" in the
  /// middle, as `ToText` writes them: in the Gregorian calendar, whatever the date
  /// convention. Returns nullopt for any other text, and for dates that do not exist or are
  /// out of range.
  static std::optional<OleDate> FromIso(std::string_view text);

  /// Dates compare as moments, not as day counts: -1.25 (06:00) is before -1.75
  /// (18:00 on the same day).
  friend ZQ7STANDARD_EXPORT bool operator==(OleDate a, OleDate b);
  friend ZQ7STANDARD_EXPORT std::weak_ordering operator<=>(OleDate a, OleDate b);

 private:
  double days_ = 0;
};

/// Which of the first two fields of a short date, such as 1/2/2567, is the month.
enum class FieldOrder { kMonthFirst, kDayFirst };

/// How a typed year is read: as a Gregorian year, or as a Buddhist Era year, which is the
/// Gregorian year plus 543.
enum class Era { kGregorian, kBuddhist };

/// A Buddhist Era year minus the Gregorian year.
inline constexpr int kBuddhistOffset = 543;

/// How dates are typed and shown on a machine.
struct DateConvention {
  FieldOrder order = FieldOrder::kMonthFirst;
  Era era = Era::kGregorian;

  friend bool operator==(DateConvention, DateConvention) = default;
};

/// An amount of money with four decimals, held as a 64-bit integer count of
/// 1/10000 units. From -922337203685477.5808 to 922337203685477.5807.
class ZQ7STANDARD_EXPORT Currency {
 public:
  constexpr Currency() = default;

  /// The amount nearest to `amount`, ties to the even fourth decimal. Raises 6 if it is
  /// out of range or NaN.
  explicit Currency(double amount);

  /// The amount of `scaled` / 10000 units.
  static constexpr Currency FromScaled(std::int64_t scaled) {
    Currency result;
    result.scaled_ = scaled;
    return result;
  }

  /// Reads a whole text such as "-1234.5": an optional sign, digits, one ".", digits.
  /// Decimals beyond the fourth are rounded, ties to even. Raises 13 for any other text
  /// and 6 for an amount out of range.
  static Currency FromText(TextView text);

  /// The amount in 1/10000 units.
  constexpr std::int64_t Scaled() const { return scaled_; }
  /// The double nearest to the amount.
  double ToDouble() const;
  /// The amount with exactly four decimals and no group marks: "-1234.5000".
  Text ToText() const;

  friend constexpr auto operator<=>(Currency, Currency) = default;

 private:
  std::int64_t scaled_ = 0;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TYPES_H_
