#include <ZQ7Standard/StandardObject.h>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

static const StandardObject kObject = ObjectWith(kMdy);

TEST(Rounding, FixNumber2RoundsThePrintedValue) {
  // clang-format off
  ExpectRows<double, std::int16_t, bool>([](auto... row) { return kObject.FixNumber2(row...); }, {
      {{2.345, 2, false}, "2.35"}, {{-2.345, 2, false}, "-2.35"}, {{2.3449, 2, false}, "2.34"},
      {{2.5, 0, false}, "3"}, {{1.5, 300, false}, "1.5"}, {{-0.001, 2, false}, "0", "no sign"},
      {{0.1 + 0.2, 20, false}, "0.3", "15 digits even without decimals to drop"},
      {{1.2349, 2, true}, "1.23"}, {{1.239949, 2, true}, "1.23"},
      {{1.23996, 2, true}, "1.24", "next two digits round first"},
      {{123.45, 0, true}, "123"}, {{-2.5, 0, true}, "-2", "cut toward zero"},
      {{2.999, 0, true}, "3", "rounded to hundredths before the cut"},
      {{1, -1, false}, "error 5"}, {{kNan, 2, false}, "error 6"}});
  // clang-format on
  EXPECT_EQ(kObject.FixNumber(2.345, 2), 2.35);
  EXPECT_EQ(kObject.Round(2.345, 2), 2.35);
}

TEST(Rounding, FloorAndCeilingActOnHundredths) {
  const auto call = [](double value) {
    return Shown(kObject.Floor(value)) + " " + Shown(kObject.Ceiling(value));
  };
  // clang-format off
  ExpectRows<double>(call, {
      {2.1, "2 3"}, {2.001, "2 3"}, {2.999, "3 3"}, {-2.5, "-2 -2"}, {-2, "-2 -2"},
      {-2.999, "-3 -2"}, {0, "0 0"}, {0.001, "0 1"}, {-kInfinity, "error 6"}});
  // clang-format on
}

// None, five up, all up, all down, and an unknown mode.
TEST(Rounding, CutModesActOnWholeUnits) {
  const auto call = [](double value, std::int16_t decimals) {
    std::string results;
    for (const int mode :
         {+ZQ7FixUnitNone, +ZQ7FixUnitFiveUp, +ZQ7FixUnitAllUp, +ZQ7FixUnitAllDown, 99}) {
      const auto cut_mode = static_cast<ZQ7FixUnit>(mode);
      results += " " + Shown(kObject.FixNumberWithCutMode(value, decimals, cut_mode));
    }
    return results;
  };
  // clang-format off
  ExpectRows<double, std::int16_t>(call, {
      {{12.345, 2}, " 12.35 12 13 12 12.35"}, {{12.5, 0}, " 13 13 13 13 13"},
      {{12.49, 2}, " 12.49 12 13 12 12.49"}, {{12.5, 1}, " 12.5 13 13 12 12.5"},
      {{-2.5, 1}, " -2.5 -2 -2.5 -2 -2.5"}, {{7, 2}, " 7 7 7 7 7"}});
  // clang-format on
}

TEST(Rounding, FixMoneyDecimalKnowsWholeUnitsOnly) {
  for (const TextView list : {u"", u"25;50;75", u"25,50,75", u"abc"}) {
    const auto call = [&](TextView text) {
      const Currency amount = Currency::FromText(text);
      return Shown(kObject.FixMoneyDecimal(amount, false, list)) + " " +
             ResultOf([&] { return kObject.FixMoneyDecimal(amount, true, list); });
    };
    // clang-format off
    ExpectRows<TextView>(call, {
        {u"10.30", "10.0000 11.0000"}, {u"10", "10.0000 10.0000"}, {u"10.0001", "10.0000 11.0000"},
        {u"-10.30", "-10.3000 -10.3000"}, {u"0.99", "0.0000 1.0000"}, {u"0", "0.0000 0.0000"},
        {u"922337203685477.5807", "922337203685477.0000 error 6"}});
    // clang-format on
  }
}
