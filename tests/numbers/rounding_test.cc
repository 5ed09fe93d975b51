#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

const StandardObject kObject = ObjectWith(kMdy);

struct FixCase {
  const char* reason;
  double value;
  std::int16_t decimals;
  bool ignore_next;
  double expected;
};

TEST(Rounding, FixNumber2RoundsThePrintedValue) {
  const FixCase cases[] = {
      {"half up", 2.345, 2, false, 2.35},
      {"half away from zero", -2.345, 2, false, -2.35},
      {"below half", 2.3449, 2, false, 2.34},
      {"whole", 2.5, 0, false, 3},
      {"more decimals than it has", 1.5, 300, false, 1.5},
      {"15 digits even without decimals to drop", 0.1 + 0.2, 20, false, 0.3},
      {"cut after the next two digits", 1.2349, 2, true, 1.23},
      {"next two digits round first", 1.23996, 2, true, 1.24},
      {"cut to a whole number", 123.45, 0, true, 123},
      {"cut toward zero", -2.5, 0, true, -2},
      {"rounded to hundredths before the cut", 2.999, 0, true, 3},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.FixNumber2(c.value, c.decimals, c.ignore_next), c.expected) << c.reason;
  }
  EXPECT_EQ(kObject.FixNumber(2.345, 2), 2.35);
  EXPECT_EQ(kObject.Round(2.345, 2), 2.35);
  EXPECT_FALSE(std::signbit(kObject.FixNumber(-0.001, 2)));
}

TEST(Rounding, RefusesWhatCannotBePrinted) {
  EXPECT_EQ(ErrorOf([] { kObject.FixNumber2(1, -1, false); }), 5);
  EXPECT_EQ(ErrorOf([] { kObject.FixNumber(std::nan(""), 2); }), 6);
  EXPECT_EQ(ErrorOf([] { kObject.Ceiling(-std::numeric_limits<double>::infinity()); }), 6);
}

TEST(Rounding, FloorAndCeilingActOnHundredths) {
  const double cases[][3] = {// value, Floor, Ceiling
                             {2.1, 2, 3},  {2.001, 2, 3},    {2.999, 3, 3}, {-2.5, -2, -2},
                             {-2, -2, -2}, {-2.999, -3, -2}, {0, 0, 0},     {0.001, 0, 1}};
  for (const auto& [value, floor, ceiling] : cases) {
    EXPECT_EQ(kObject.Floor(value), floor) << value;
    EXPECT_EQ(kObject.Ceiling(value), ceiling) << value;
  }
}

TEST(Rounding, CutModesActOnWholeUnits) {
  const struct {
    double value;
    std::int16_t decimals;
    double none, five_up, all_up, all_down;
  } cases[] = {
      {12.345, 2, 12.35, 12, 13, 12}, {12.5, 0, 13, 13, 13, 13},     {12.49, 2, 12.49, 12, 13, 12},
      {12.5, 1, 12.5, 13, 13, 12},    {-2.5, 1, -2.5, -2, -2.5, -2}, {7, 2, 7, 7, 7, 7},
  };
  for (const auto& c : cases) {
    const auto fix = [&](int mode) {
      return kObject.FixNumberWithCutMode(c.value, c.decimals, static_cast<ZQ7FixUnit>(mode));
    };
    EXPECT_EQ(fix(ZQ7FixUnitNone), c.none) << c.value;
    EXPECT_EQ(fix(ZQ7FixUnitFiveUp), c.five_up) << c.value;
    EXPECT_EQ(fix(ZQ7FixUnitAllUp), c.all_up) << c.value;
    EXPECT_EQ(fix(ZQ7FixUnitAllDown), c.all_down) << c.value;
    EXPECT_EQ(fix(99), c.none) << c.value;
  }
}

TEST(Rounding, FixMoneyDecimalKnowsWholeUnitsOnly) {
  const struct {
    const char16_t* amount;
    const char* down;
    const char* up;
  } cases[] = {{u"10.30", "10.0000", "11.0000"},   {u"10", "10.0000", "10.0000"},
               {u"10.0001", "10.0000", "11.0000"}, {u"-10.30", "-10.3000", "-10.3000"},
               {u"0.99", "0.0000", "1.0000"},      {u"0", "0.0000", "0.0000"}};
  for (const auto& c : cases) {
    const Currency amount = Currency::FromText(c.amount);
    for (const char16_t* list : {u"", u"25;50;75", u"25,50,75", u"abc"}) {
      EXPECT_EQ(Utf8(kObject.FixMoneyDecimal(amount, false, list).ToText()), c.down);
      EXPECT_EQ(Utf8(kObject.FixMoneyDecimal(amount, true, list).ToText()), c.up);
    }
  }
  const Currency largest = Currency::FromScaled(std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(ErrorOf([&] { kObject.FixMoneyDecimal(largest, true); }), 6);
}

}  // namespace
}  // namespace ZQ7Standard
