#ifndef ZQ7STANDARD_SRC_NUMBERS_NUMBER_TEXT_H_
#define ZQ7STANDARD_SRC_NUMBERS_NUMBER_TEXT_H_

#include <ZQ7Standard/Types.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace ZQ7Standard {

/// The decimal number ±digits × 10^exponent. `digits` is below 10^16. The order
/// of the members keeps it to 16 bytes, which pass in registers.
struct Decimal {
  std::uint64_t digits = 0;
  int exponent = 0;
  bool negative = false;
};

/// `value` taken to 15 significant digits, a tie away from zero; nothing for
/// infinities and NaN. This is the number that is printed, rounded and spoken
/// everywhere, in place of the double.
std::optional<Decimal> ToDecimal(double value);

/// `number` rounded half away from zero to `decimals` (from 0) decimals.
Decimal RoundDecimals(Decimal number, int decimals);

/// `number` cut toward zero to `decimals` (from 0) decimals.
Decimal CutDecimals(Decimal number, int decimals);

/// The same number with the fewest digits; its decimals are `-exponent` when that is above 0.
Decimal WithoutEndingZeros(Decimal number);

/// The double nearest to `number`; an infinity beyond the doubles.
double ToDouble(Decimal number);

/// The digits of a decimal number by their power of ten.
class DecimalDigits {
 public:
  explicit DecimalDigits(Decimal number);

  /// The number of digits in front of the decimal mark, at least 1.
  int WholeCount() const;

  /// The digit of 10^power, 0 to 9.
  int At(int power) const {
    const int index = top_ - power;
    return index >= 0 && index < count_ ? digits_[static_cast<std::size_t>(index)] - '0' : 0;
  }

 private:
  std::array<char, 20> digits_;
  int count_;
  int top_;  // the power of ten of the first digit
};

enum class Grouping { kNone, kThousands };

/// Writes `number`, rounded to `decimals` (from 0) decimals, with "." and a
/// leading zero; `kThousands` puts "," between thousands. "-" stands before a
/// negative number that does not round to 0.
Text FormatDecimal(Decimal number, int decimals, Grouping grouping);

/// Writes `number` with as many decimals as it has, with an exponent from 1E+15
/// up and below 1E-04: "1234.5", "1.5E+20".
Text ShortestText(Decimal number);

/// Reads the number at the front of `text`: an optional sign, digits with at
/// most one ".", and an exponent (E or D, either case) when a digit follows it.
/// Leading blanks are skipped; no number reads as 0. Nothing when the number is
/// too large for a double.
std::optional<double> ReadLeadingNumber(TextView text);

/// Whether `text` is a number from end to end, as `ReadLeadingNumber` reads it;
/// blanks may stand around it.
bool IsNumberText(TextView text);

/// The value of a number as a user types it, which is what `StandardObject::StrVal`
/// returns: `ReadLeadingNumber` with every blank, "," and "%" left out and tabs and line
/// breaks in front passed over; a hundredth of that when the text ends in "%". 0 when the
/// number is too large for a double.
double ReadTypedNumber(TextView text);

/// The whole number nearest to `value`, a half going to even; nothing outside
/// the range of `Integer`.
template <typename Integer>
std::optional<Integer> RoundToInteger(double value);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_NUMBERS_NUMBER_TEXT_H_
