#include "numbers/number_text.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "base/ascii.h"
#include "base/fields.h"
#include "numbers/scaling.h"

namespace ZQ7Standard {
namespace {

constexpr int kSignificantDigits = 15;
constexpr std::uint64_t kDigitsLimit = 1'000'000'000'000'000;  // 10^15

// 10^0 to 10^22, the powers of ten that doubles represent exactly.
constexpr std::array<double, 23> kExactPowers = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int kMaxExactPower = 22;
constexpr std::uint64_t kMaxExactDigits = std::uint64_t{1} << 53;

/// The product or quotient of two whole numbers that doubles hold exactly is rounded only once, so
/// it is the nearest double.
bool IsExact(std::uint64_t digits, int exponent) {
  return digits <= kMaxExactDigits && exponent >= -kMaxExactPower && exponent <= kMaxExactPower;
}

double ScaleExact(std::uint64_t digits, int exponent) {
  const auto value = static_cast<double>(digits);
  return exponent < 0 ? value / kExactPowers[static_cast<std::size_t>(-exponent)]
                      : value * kExactPowers[static_cast<std::size_t>(exponent)];
}

/// Reads what `std::from_chars` reads; infinity on overflow, 0 on underflow. `magnitude` is roughly
/// the number's power of ten.
double ReadExactly(std::string_view number, std::int64_t magnitude) {
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  return magnitude > 0 ? std::numeric_limits<double>::infinity() : 0;
}

/// The leading 1 of a double's mantissa, which its bits leave out.
constexpr std::uint64_t kHiddenBit = std::uint64_t{1} << 52;

/// For values from 2^-23 to below 10^15, whose 53 bits times at most 10^21 fit in 128 bits.
Decimal ToDecimalInRange(double magnitude) {
  const auto bits = std::bit_cast<std::uint64_t>(magnitude);
  const std::uint64_t mantissa = (bits & (kHiddenBit - 1)) | kHiddenBit;
  const int binary_exponent = static_cast<int>(bits >> 52) - 1023;
  const int shift = 52 - binary_exponent;
  // 1233 / 4096 is log10(2); the power is exact or one too high.
  int power = kSignificantDigits - 1 - ((binary_exponent * 1233) >> 12);
  std::uint64_t digits = Scale(mantissa, shift, power);
  if (digits > kDigitsLimit) digits = Scale(mantissa, shift, --power);
  return {digits, -power};
}

/// Any other value by its exact decimal digits, of which a double has at most 767.
Decimal ToDecimalOutOfRange(double magnitude) {
  std::array<char, 800> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                 std::chars_format::scientific, 766)
                       .ptr;
  auto digits = static_cast<std::uint64_t>(text[0] - '0');
  for (std::size_t i = 2; i <= kSignificantDigits; ++i) {
    digits = digits * 10 + static_cast<std::uint64_t>(text[i] - '0');
  }
  if (text[kSignificantDigits + 1] >= '5') ++digits;
  const char* exponent_text = std::find(text.data(), end, 'e') + 1;
  if (*exponent_text == '+') ++exponent_text;
  int exponent = 0;
  std::from_chars(exponent_text, end, exponent);
  return {digits, exponent - (kSignificantDigits - 1)};
}

/// The characters of a text except those that `Ignored` accepts.
template <bool (*Ignored)(char16_t)>
class Characters {
 public:
  explicit Characters(TextView text) : next_(text.begin()), end_(text.end()) { Skip(); }

  /// The first character; NUL at the end, since no number contains it.
  char16_t Front() const { return next_ == end_ ? u'\0' : *next_; }

  void Advance() {
    ++next_;
    Skip();
  }

 private:
  void Skip() {
    while (next_ != end_ && Ignored(*next_)) ++next_;
  }

  TextView::const_iterator next_;
  TextView::const_iterator end_;
};

constexpr bool IsNothing(char16_t /*c*/) {
  return false;
}
constexpr bool IsNumberMark(char16_t c) {
  return c == u' ' || c == u',' || c == u'%';
}
/// Characters that may precede the number in a cell pasted from a table.
constexpr bool IsCellMark(char16_t c) {
  return c == u'\t' || c == u'\r' || c == u'\n';
}

constexpr std::int64_t kExponentLimit = 1'000'000;

/// The exponent at the front, such as "E-05", or 0 if no digit follows the E.
template <typename Source>
std::int64_t ReadExponent(Source& source) {
  if (AsciiUpper(source.Front()) != u'E' && AsciiUpper(source.Front()) != u'D') return 0;
  source.Advance();
  const bool negative = source.Front() == u'-';
  if (negative || source.Front() == u'+') source.Advance();
  std::int64_t exponent = 0;
  for (; IsAsciiDigit(source.Front()); source.Advance()) {
    exponent = std::min(exponent * 10 + (source.Front() - u'0'), kExponentLimit);
  }
  return negative ? -exponent : exponent;
}

/// Reads the digits at the front, with one ".", into a text for `ReadExactly`.
template <typename Source>
double ReadLongNumber(Source source) {
  std::string number;
  std::int64_t magnitude = 0;
  bool point = false;
  for (;; source.Advance()) {
    const char16_t c = source.Front();
    const bool is_point = c == u'.' && !point;
    if (!is_point && !IsAsciiDigit(c)) break;
    point = point || is_point;
    if (c == u'0' && number.empty()) continue;
    number.push_back(static_cast<char>(c));
    if (!point) ++magnitude;
  }
  const std::int64_t exponent = ReadExponent(source);
  number.append("e").append(std::to_string(exponent));
  return ReadExactly(number, magnitude + exponent);
}

/// The digits of a number without its point; `exact` as long as a double holds them.
struct Significand {
  std::uint64_t digits = 0;
  bool exact = true;
};

/// Adds the digits at the front to `number` and returns how many there are.
template <typename Source>
std::int64_t TakeDigits(Source& source, Significand& number) {
  std::int64_t count = 0;
  for (; IsAsciiDigit(source.Front()); source.Advance(), ++count) {
    number.exact = number.exact && number.digits < kMaxExactDigits / 10;
    number.digits = number.digits * 10 + static_cast<std::uint64_t>(source.Front() - u'0');
  }
  return count;
}

/// Reads the number at the front; infinity on overflow.
template <typename Source>
double ReadNumber(Source source) {
  const bool negative = source.Front() == u'-';
  if (negative || source.Front() == u'+') source.Advance();
  const Source start = source;
  Significand number;
  std::int64_t exponent = 0;
  TakeDigits(source, number);
  if (source.Front() == u'.') {
    source.Advance();
    exponent = -TakeDigits(source, number);
  }
  if (number.exact && number.digits == 0) return 0;
  exponent += ReadExponent(source);
  const bool exact = number.exact && exponent >= -kMaxExactPower && exponent <= kMaxExactPower;
  const double value =
      exact ? ScaleExact(number.digits, static_cast<int>(exponent)) : ReadLongNumber(start);
  return negative ? -value : value;
}

void SkipSign(TextView& text) {
  if (text.starts_with(u'+') || text.starts_with(u'-')) text.remove_prefix(1);
}

bool SkipDigits(TextView& text) {
  const auto count =
      static_cast<std::size_t>(std::ranges::find_if_not(text, IsAsciiDigit) - text.begin());
  text.remove_prefix(count);
  return count > 0;
}

}  // namespace

std::optional<Decimal> ToDecimal(double value) {
  if (!std::isfinite(value)) return std::nullopt;
  const double magnitude = std::abs(value);
  if (magnitude == 0) return Decimal{};
  const bool in_range = magnitude >= 0x1p-23 && magnitude < 1e15;
  Decimal decimal = in_range ? ToDecimalInRange(magnitude) : ToDecimalOutOfRange(magnitude);
  decimal.negative = value < 0;
  return decimal;
}

Decimal RoundDecimals(Decimal number, int decimals) {
  const int drop = -number.exponent - decimals;
  if (drop <= 0) return number;
  if (drop > kSignificantDigits + 1) return {};
  const std::uint64_t unit = PowerOfTen(drop);
  return {(number.digits + unit / 2) / unit, -decimals, number.negative};
}

Decimal CutDecimals(Decimal number, int decimals) {
  const int drop = -number.exponent - decimals;
  if (drop <= 0) return number;
  if (drop > kSignificantDigits + 1) return {};
  return {number.digits / PowerOfTen(drop), -decimals, number.negative};
}

Decimal WithoutEndingZeros(Decimal number) {
  if (number.digits == 0) return {};
  while (number.digits % 10 == 0) {
    number.digits /= 10;
    ++number.exponent;
  }
  return number;
}

double ToDouble(Decimal number) {
  if (number.digits == 0) return 0;
  double value = 0;
  if (IsExact(number.digits, number.exponent)) {
    value = ScaleExact(number.digits, number.exponent);
  } else {
    const std::string text =
        std::to_string(number.digits).append("e").append(std::to_string(number.exponent));
    value = ReadExactly(text, number.exponent);
  }
  return number.negative ? -value : value;
}

DecimalDigits::DecimalDigits(Decimal number) {
  const auto end = std::to_chars(digits_.data(), digits_.data() + digits_.size(), number.digits);
  count_ = static_cast<int>(end.ptr - digits_.data());
  top_ = count_ - 1 + number.exponent;
}

int DecimalDigits::WholeCount() const {
  return std::max(top_, 0) + 1;
}

Text FormatDecimal(Decimal number, int decimals, Grouping grouping) {
  const Decimal rounded = RoundDecimals(number, decimals);
  const DecimalDigits digits(rounded);
  const bool negative = rounded.negative && rounded.digits != 0;
  const bool grouped = grouping == Grouping::kThousands;
  const int whole = digits.WholeCount();
  const int size = (negative ? 1 : 0) + whole + (grouped ? (whole - 1) / 3 : 0) +
                   (decimals > 0 ? decimals + 1 : 0);
  Text text(static_cast<std::size_t>(size), u'0');
  auto out = text.begin();
  if (negative) *out++ = u'-';
  for (int power = whole - 1; power >= 0; --power) {
    *out++ = static_cast<char16_t>(u'0' + digits.At(power));
    if (grouped && power > 0 && power % 3 == 0) *out++ = u',';
  }
  if (decimals > 0) *out++ = u'.';
  for (int power = -1; power >= -decimals; --power) {
    *out++ = static_cast<char16_t>(u'0' + digits.At(power));
  }
  return text;
}

Text ShortestText(Decimal number) {
  if (number.digits == 0) return u"0";
  number = WithoutEndingZeros(number);
  const DecimalDigits digits(number);
  const int last_power = number.exponent;
  int top = last_power;
  for (std::uint64_t rest = number.digits / 10; rest > 0; rest /= 10) ++top;
  if (top >= -4 && top < kSignificantDigits) {
    return FormatDecimal(number, std::max(0, -last_power), Grouping::kNone);
  }
  number.exponent -= top;
  Text text = FormatDecimal(number, top - last_power, Grouping::kNone);
  text.append(top < 0 ? u"E-" : u"E+");
  if (std::abs(top) < 10) text.push_back(u'0');
  for (const char c : std::to_string(std::abs(top))) text.push_back(static_cast<char16_t>(c));
  return text;
}

std::optional<double> ReadLeadingNumber(TextView text) {
  text.remove_prefix(std::min(text.find_first_not_of(u' '), text.size()));
  const double value = ReadNumber(Characters<IsNothing>(text));
  if (std::isinf(value)) return std::nullopt;
  return value;
}

bool IsNumberText(TextView text) {
  text = TrimBack(TrimFront(text));
  SkipSign(text);
  bool digits = SkipDigits(text);
  if (text.starts_with(u'.')) {
    text.remove_prefix(1);
    digits = SkipDigits(text) || digits;
  }
  if (!digits || text.empty()) return digits;
  const char16_t exponent = AsciiUpper(text.front());
  text.remove_prefix(1);
  SkipSign(text);
  return (exponent == u'E' || exponent == u'D') && SkipDigits(text) && text.empty();
}

double ReadTypedNumber(TextView text) {
  Characters<IsNumberMark> source(text);
  while (IsCellMark(source.Front())) source.Advance();
  const double value = ReadNumber(source);
  if (std::isinf(value)) return 0;
  return text.ends_with(u'%') ? value / 100 : value;
}

template <typename Integer>
std::optional<Integer> RoundToInteger(double value) {
  const double whole = std::nearbyint(value);
  if (!(whole >= std::numeric_limits<Integer>::min() &&
        whole <= std::numeric_limits<Integer>::max())) {
    return std::nullopt;
  }
  return static_cast<Integer>(whole);
}

template std::optional<std::int16_t> RoundToInteger(double value);
template std::optional<std::int32_t> RoundToInteger(double value);

}  // namespace ZQ7Standard
