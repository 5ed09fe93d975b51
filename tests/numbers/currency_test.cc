#include <ZQ7Standard/Types.h>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

TEST(Currency, ReadsTextRoundingTheFifthDecimal) {
  // clang-format off
  ExpectTexts(Currency::FromText, {
      {"0.0001", {u"0.0001"}}, {"-0.0001", {u"-0.0001"}}, {"10.3000", {u"10.3000"}},
      {"0.0000", {u"0"}}, {"-1.2345", {u"-1.2345"}}, {"0.5000", {u"+.5"}}, {"5.0000", {u"5."}},
      {"1.0000", {u"1.00005", u"1.00004999", u"00000000000000000001"}}, {"1.0002", {u"1.00015"}},
      {"-1.0002", {u"-1.00015"}}, {"1.0001", {u"1.000050001"}},
      {"922337203685477.5807", {u"922337203685477.5807"}},
      {"-922337203685477.5808", {u"-922337203685477.5808"}},
      {"error 6", {u"922337203685477.5808", u"-922337203685477.5809", u"922337203685477.58075",
      u"1000000000000000", u"99999999999999999999"}},
      {"error 13", {u"", u"-", u".", u"1,000", u"1.2.3", u" 1", u"1e3", u"--1"}}});
  // clang-format on
  EXPECT_EQ(Currency::FromText(u"-922337203685477.5808").Scaled(), INT64_MIN);
}

TEST(Currency, ConvertsFromAndToDouble) {
  // clang-format off
  ExpectRows<double>([](double amount) { return Currency(amount); }, {
      {10.3, "10.3000"}, {-0.00005, "0.0000"}, {0.00015, "0.0001"}, {0.03125, "0.0312"},
      {0.09375, "0.0938"}, {123456789012.3456, "123456789012.3456"},
      {922337203685477.5, "922337203685477.5000"}, {-922337203685477.5, "-922337203685477.5000"},
      {922337203685477.625, "error 6"}, {922337203685478.0, "error 6"}, {-1e300, "error 6"},
      {kNan, "error 6"}, {kInfinity, "error 6"}});
  // clang-format on
  // Fifteen digits survive a double.
  for (std::int64_t scaled = 1; scaled < 900'000'000'000'000; scaled = scaled * 3 + 7) {
    EXPECT_EQ(Currency(Currency::FromScaled(scaled).ToDouble()).Scaled(), scaled);
    EXPECT_EQ(Currency(Currency::FromScaled(-scaled).ToDouble()).Scaled(), -scaled);
  }
}
