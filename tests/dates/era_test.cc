#include <ZQ7Standard/StandardObject.h>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

TEST(Era, EachConventionHasItsCodeAndEra) {
  const auto describe = [](DateConvention convention) {
    const StandardObject object = ObjectWith(convention);
    return Shown(object.GetDateFormat()) + " " + Shown(object.GetEraDif()) + " " +
           Shown(object.CTYEAR()) + " " + Utf8(object.GetDateFormatString(object.GetDateFormat()));
  };
  // clang-format off
  ExpectRows<DateConvention>(describe, {
      {kMdy, "1 0 2024 m/d/yyyy"}, {kDmy, "2 0 2024 d/m/yyyy"},
      {kMdyBe, "3 543 2567 m/d/yyyy"}, {kDmyBe, "4 543 2567 d/m/yyyy"}});
  // clang-format on
  EXPECT_EQ(ObjectWith(kDmy).GetDateFormatString(0), u"");
  EXPECT_EQ(ObjectWith(kDmy).GetDateFormatString(5), u"");
}

TEST(Era, Year2000ShiftsOnce) {
  const auto call = [](int year) {
    const OleDate date = OleDate::FromParts(year, 6, 1);
    return Shown(ObjectWith(kDmy).Year2000(date)) + " " + Shown(ObjectWith(kDmyBe).Year2000(date));
  };
  // clang-format off
  ExpectRows<int>(call, {
      {2024, "2024 2567"}, {2567, "2567 2567"}, {2399, "2399 2942"}, {2400, "2400 2400"},
      {3333, "3333 3333"}, {2247, "3333 3333"}, {1704, "3333 3333"}, {8888, "8888 8888"}});
  // clang-format on
}

TEST(Era, BlankDates) {
  const StandardObject object = ObjectWith(kDmy);
  EXPECT_EQ(IsoText(object.GETBlankDate()), "3333-03-03");
  EXPECT_EQ(object.GETMAXDate(), object.GETBlankDate());
  const auto call = [&](int year, int month, int day) {
    const OleDate date = OleDate::FromParts(year, month, day);
    return object.isBlankDate(date) && !object.isBlankDate(OleDate(date.Days() + 0.5));
  };
  // clang-format off
  ExpectRows<int, int, int>(call, {
      {{3876, 3, 3}, "yes"}, {{3333, 3, 3}, "yes"}, {{8888, 8, 8}, "yes"}, {{2790, 3, 3}, "yes"},
      {{8345, 8, 8}, "yes"}, {{1899, 12, 30}, "yes"}, {{3333, 3, 4}, "no"}});
  // clang-format on
  EXPECT_EQ(IsoText(object.TrimDate(OleDate(-1.25))), "1899-12-29");
}
