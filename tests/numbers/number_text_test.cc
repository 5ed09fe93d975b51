#include "numbers/number_text.h"

#include <bit>
#include <cmath>
#include <random>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

static std::string Format(double value, int decimals, Grouping grouping = Grouping::kThousands) {
  return Utf8(FormatDecimal(*ToDecimal(value), decimals, grouping));
}

/// `number`, which has more decimals, rounded half up as taught at school.
static std::string SchoolRound(std::string number, int decimals) {
  const std::size_t keep = number.find('.') + 1 + static_cast<std::size_t>(decimals);
  bool up = number[keep] >= '5';
  number.resize(keep);
  for (std::size_t i = number.size(); up && i-- > 0;) {
    if (number[i] == '.') continue;
    up = number[i] == '9';
    number[i] = up ? '0' : static_cast<char>(number[i] + 1);
  }
  return up ? "1" + number : number;
}

/// The expected result of FormatDecimal for a value from 2^-23 to 10^15, calculated from all
/// decimals of the double.
static std::string SchoolFormat(double value, int decimals) {
  char buffer[128];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, std::abs(value), std::chars_format::fixed, 80);
  std::string exact(buffer, end.ptr);
  const auto point = static_cast<int>(exact.find('.'));
  const auto first = static_cast<int>(exact.find_first_not_of("0."));
  exact = SchoolRound(exact, first < point ? 15 - point : 15 + first - point - 1);
  exact.append(20, '0');
  exact = SchoolRound(exact, decimals);
  if (decimals == 0) exact.pop_back();
  const bool zero = exact.find_first_not_of("0.") == std::string::npos;
  return value < 0 && !zero ? "-" + exact : exact;
}

TEST(FormatDecimalBreadth, AgreesWithExactArithmetic) {
  std::mt19937_64 random(20240115);
  std::uniform_int_distribution<std::int64_t> digits(-999'999'999'999'999, 999'999'999'999'999);
  std::uniform_int_distribution<int> scale(0, 15);
  std::uniform_real_distribution<double> exponent(-22, 49.8);
  for (int i = 0; i < 1'000'000; ++i) {
    double value = 0;
    if (i % 4 == 0) {  // any bits
      value = std::exp2(exponent(random)) * (i % 8 == 0 ? 1 : -1);
    } else if (i % 4 == 1) {  // halves, quarters, eighths: exact ties
      value = static_cast<double>(digits(random) >> 16) / static_cast<double>(1 << i % 8);
    } else {  // decimal texts, half of them ties at the last decimal
      const std::int64_t n = digits(random);
      value = static_cast<double>(i % 4 == 2 ? n : n / 10 * 10 + 5) / std::pow(10, scale(random));
    }
    if (std::abs(value) < 0x1p-23) continue;
    const int decimals = i % 7;
    ASSERT_EQ(Format(value, decimals, Grouping::kNone), SchoolFormat(value, decimals))
        << std::hexfloat << value;
  }
}

TEST(FormatDecimalBreadth, PowersOfTwoAndTenAndTheirNeighbours) {
  for (int power = -22; power < 50; ++power) {
    for (const double base : {std::ldexp(1, power), std::pow(10, power * 15 / 50)}) {
      for (const double value : {base, std::nextafter(base, 0), std::nextafter(base, kInfinity)}) {
        ASSERT_EQ(Format(value, 20, Grouping::kNone), SchoolFormat(value, 20)) << power;
      }
    }
  }
}

TEST(FormatDecimal, WritesWhatTheBreadthLeavesOut) {
  // clang-format off
  ExpectRows<double, int>([](double value, int decimals) { return Format(value, decimals); }, {
      {{0, 2}, "0.00"}, {{-0.0, 2}, "0.00"}, {{-0.004, 2}, "0.00"}, {{-2.345, 2}, "-2.35"},
      {{1.005, 2}, "1.01", "double below the tie"}, {{1234567.891, 2}, "1,234,567.89"},
      {{-123456, 0}, "-123,456"}, {{999999.999, 2}, "1,000,000.00"}, {{5e-324, 2}, "0.00"},
      {{1000000000000005, 0}, "1,000,000,000,000,010", "tie at the 16th digit"},
      {{12345678901234567890.0, 1}, "12,345,678,901,234,600,000.0"},
      {{1.5e-9, 10}, "0.0000000015"}, {{9.9e-3, 0}, "0", "16 places dropped"},
      {{0x1p-22, 21}, "0.000000238418579101563", "tie at the 16th digit, small"}});
  // clang-format on
  EXPECT_EQ(Format(1e300, 0, Grouping::kNone), "1" + std::string(300, '0'));
  for (const double value : {kInfinity, -kInfinity, kNan}) EXPECT_FALSE(ToDecimal(value));
}

TEST(ShortestText, ChoosesBetweenDigitsAndExponent) {
  // clang-format off
  ExpectRows<double>([](double value) { return ShortestText(*ToDecimal(value)); }, {
      {0, "0"}, {100, "100"}, {-1234.5, "-1234.5"}, {0.1 + 0.2, "0.3"}, {0.0001, "0.0001"},
      {0.00001, "1E-05"}, {1e14, "100000000000000"}, {1e15, "1E+15"}, {-1.5e20, "-1.5E+20"},
      {1.23456789012345678e300, "1.23456789012346E+300"}, {999999999999999.9, "1E+15"}});
  // clang-format on
}

TEST(ReadLeadingNumber, TakesTheLongestNumberInFront) {
  // clang-format off
  ExpectTexts(ReadLeadingNumber, {
      {"0", {u"", u"--5", u".", u"-0", u"E5", u"0x10", u"inf", u"nan", u"1e-400",
      u"1e-99999999999", u"0e99999999999"}}, {"12", {u"  12", u"12 34"}},
      {"1", {u"1,234", u"1E", u"1E+"}}, {"-5", {u"-5"}}, {"5", {u"+5", u"5."}},
      {"1.5", {u"1.5.5"}}, {"0.5", {u".5"}}, {"1000", {u"1E3"}}, {"0.01", {u"1d-2x"}},
      {"none", {u"1e309"}}, {"1e+22", {u"1e22"}}, {"1e+23", {u"1e23"}},
      {"9007199254740992", {u"9007199254740993"}},
      {"12345678901234567168", {u"12345678901234567890"}},
      {"1e-30", {u"0.000000000000000000000000000001"}},
      {"2.225073858507201e-308", {u"2.2250738585072011e-308"}}});
  // clang-format on
  EXPECT_FALSE(ReadLeadingNumber(Text(400, u'9')));
  EXPECT_EQ(ReadLeadingNumber(Text(400, u'0') + u"1e-400"), 0);
}

TEST(ReadNumberBreadth, ReadsBackWhatIsWritten) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 100'000; ++i) {
    const double value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value);
    ASSERT_EQ(ReadLeadingNumber(FromUtf8({text, end.ptr})), value);
    const Decimal decimal = *ToDecimal(value);
    ASSERT_EQ(ToDouble(decimal), *ReadLeadingNumber(ShortestText(decimal))) << value;
  }
}
