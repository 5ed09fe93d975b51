#ifndef ZQ7STANDARD_SRC_NUMBERS_NUMBER_TEXT_H_
#define ZQ7STANDARD_SRC_NUMBERS_NUMBER_TEXT_H_

#include <ZQ7Standard/Types.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace ZQ7Standard {

/// The decimal number ±digits × 10^exponent. `digits` is below 10^16. In this order the members
/// take 16 bytes, which are passed in registers.
struct Decimal {
  std::uint64_t digits = 0;
  int exponent = 0;
  bool negative = false;
};

/// `value` to 15 significant digits, ties away from zero; nullopt for infinities and NaN. This
/// number, not the double, is printed, rounded and spelled out everywhere.
std::optional<Decimal> ToDecimal(double value);

/// `number` rounded to `decimals` (from 0) decimals, halves away from zero.
Decimal RoundDecimals(Decimal number, int decimals);

/// `number` cut toward zero to `decimals` (from 0) decimals.
Decimal CutDecimals(Decimal number, int decimals);

/// The same number with the fewest digits; its decimals are `-exponent` when that is above 0.
Decimal WithoutEndingZeros(Decimal number);

/// The double nearest to `number`; infinity on overflow.
double ToDouble(Decimal number);

/// The digits of a decimal number by their power of ten.
class DecimalDigits {
 public:
  explicit DecimalDigits(Decimal number);

  /// The number of digits before the decimal mark, at least 1.
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

/// Formats `number`, rounded to `decimals` (from 0) decimals, with "." and a leading zero;
/// `kThousands` adds "," between thousands. A negative number has a "-" unless it rounds to 0.
Text FormatDecimal(Decimal number, int decimals, Grouping grouping);

/// Formats `number` with all its decimals, and with an exponent from 1E+15 up and below 1E-04:
/// "1234.5", "1.5E+20".
Text ShortestText(Decimal number);

/// Reads the number at the front of `text`: an optional sign, digits with at most one ".", and an
/// exponent (E or D, either case) if a digit follows it. Leading blanks are skipped; text without a
/// number reads as 0. Returns nullopt if the number is too large for a double.
std::optional<double> ReadLeadingNumber(TextView text);

/// Whether all of `text` is a number as `ReadLeadingNumber` reads it; blanks may surround it.
bool IsNumberText(TextView text);

/// Reads a number as users type it, as `StandardObject::StrVal` returns it: `ReadLeadingNumber`
/// ignoring every blank, "," and "%" and leading tabs and line breaks; a hundredth of that if the
/// text ends in "%". Returns 0 if the number is too large for a double.
double ReadTypedNumber(TextView text);

/// The whole number nearest to `value`, halves to even; nullopt outside the range of `Integer`.
template <typename Integer>
std::optional<Integer> RoundToInteger(double value);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_NUMBERS_NUMBER_TEXT_H_
