#include <ZQ7Standard/Types.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

TEST(Currency, TextHoldsEveryDigit) {
  // clang-format off
  const std::pair<std::int64_t, const char*> cases[] = {
      {0, "0.0000"}, {1, "0.0001"}, {-1, "-0.0001"}, {103000, "10.3000"}, {-12345, "-1.2345"},
      {kMax, "922337203685477.5807"}, {kMin, "-922337203685477.5808"},
  };
  // clang-format on
  for (const auto& [scaled, text] : cases) {
    EXPECT_EQ(Utf8(Currency::FromScaled(scaled).ToText()), text);
    EXPECT_EQ(Currency::FromText(FromUtf8(text)).Scaled(), scaled);
  }
}

TEST(Currency, ReadsTextRoundingTheFifthDecimal) {
  const std::pair<const char16_t*, std::int64_t> accepted[] = {
      {u"5", 50000},          {u"+.5", 5000},        {u"5.", 50000},
      {u"1.00005", 10000},    {u"1.00015", 10002},   {u"1.000050001", 10001},
      {u"1.00004999", 10000}, {u"-1.00015", -10002}, {u"00000000000000000001", 10000},
  };
  for (const auto& [text, scaled] : accepted) {
    EXPECT_EQ(Currency::FromText(text).Scaled(), scaled) << Utf8(text);
  }
  for (const char16_t* text : {u"", u"-", u".", u"1,000", u"1.2.3", u" 1", u"1e3", u"--1"}) {
    EXPECT_EQ(ErrorOf([&] { Currency::FromText(text); }), 13) << Utf8(text);
  }
  for (const char16_t* text :
       {u"922337203685477.5808", u"-922337203685477.5809", u"922337203685477.58075",
        u"1000000000000000", u"99999999999999999999"}) {
    EXPECT_EQ(ErrorOf([&] { Currency::FromText(text); }), 6) << Utf8(text);
  }
}

TEST(Currency, ConvertsFromAndToDouble) {
  // clang-format off
  const std::pair<double, std::int64_t> cases[] = {
      {10.3, 103000}, {-0.00005, 0}, {0.00015, 1}, {0.03125, 312}, {0.09375, 938},
      {123456789012.3456, 1234567890123456}, {922337203685477.5, 9223372036854775000},
      {-922337203685477.5, -9223372036854775000},
  };
  // clang-format on
  for (const auto& [amount, scaled] : cases) EXPECT_EQ(Currency(amount).Scaled(), scaled) << amount;
  for (const double amount :
       {922337203685478.0, -1e300, std::nan(""), std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(ErrorOf([&] { (void)Currency(amount); }), 6) << amount;
  }
  // Fifteen digits survive the way through a double.
  for (std::int64_t scaled = 1; scaled < 900'000'000'000'000; scaled = scaled * 3 + 7) {
    EXPECT_EQ(Currency(Currency::FromScaled(scaled).ToDouble()).Scaled(), scaled);
    EXPECT_EQ(Currency(Currency::FromScaled(-scaled).ToDouble()).Scaled(), -scaled);
  }
}

}  // namespace
}  // namespace ZQ7Standard
