#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include "dates/date_text.h"
#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

TEST(Era, EachConventionHasItsCodeAndEra) {
  const struct {
    DateConvention convention;
    std::int16_t code, difference, this_year;
    const char* layout;
  } cases[] = {{kMdy, 1, 0, 2024, "m/d/yyyy"},
               {kDmy, 2, 0, 2024, "d/m/yyyy"},
               {kMdyBe, 3, 543, 2567, "m/d/yyyy"},
               {kDmyBe, 4, 543, 2567, "d/m/yyyy"}};
  for (const auto& c : cases) {
    const StandardObject object = ObjectWith(c.convention);
    EXPECT_EQ(object.GetDateFormat(), c.code);
    EXPECT_EQ(object.GetEraDif(), c.difference);
    EXPECT_EQ(object.CTYEAR(), c.this_year);
    EXPECT_EQ(Utf8(object.GetDateFormatString(object.GetDateFormat())), c.layout);
    // The reader tells the same of the machine as the operations do.
    const auto era_probe = ReadDateText(u"1/1/2000", c.convention, 2024);
    EXPECT_EQ(era_probe->Year(), 2000 - c.difference);
    const auto order_probe = ReadDateText(u"1/2/2222", c.convention, 2024);
    EXPECT_EQ(order_probe->Month() == 1, c.code % 2 == 1);
  }
  for (const std::int16_t code : std::initializer_list<std::int16_t>{0, 5, -1}) {
    EXPECT_EQ(ObjectWith(kDmy).GetDateFormatString(code), u"");
  }
}

TEST(Era, AChangeOfConventionTakesEffectAtOnce) {
  struct Switch final : DateConventionSource {
    DateConvention Current() override { return convention; }
    DateConvention convention = kDmy;
  };
  const auto source = std::make_shared<Switch>();
  const StandardObject object({.clock = FixedClock(TestNow()), .date_convention = source});
  EXPECT_EQ(IsoText(object.CTDATE(u"1/2/2500")), "2500-02-01");
  source->convention = kMdyBe;
  EXPECT_EQ(IsoText(object.CTDATE(u"1/2/2500")), "1957-01-02");
}

TEST(Era, Year2000ShiftsOnce) {
  const struct {
    int year;
    std::int16_t gregorian, buddhist;
  } cases[] = {{2024, 2024, 2567}, {2567, 2567, 2567}, {2399, 2399, 2942}, {2400, 2400, 2400},
               {3333, 3333, 3333}, {2247, 3333, 3333}, {1704, 3333, 3333}, {8888, 8888, 8888}};
  for (const auto& c : cases) {
    const OleDate date = OleDate::FromParts(c.year, 6, 1);
    EXPECT_EQ(ObjectWith(kDmy).Year2000(date), c.gregorian) << c.year;
    EXPECT_EQ(ObjectWith(kDmyBe).Year2000(date), c.buddhist) << c.year;
  }
}

TEST(Era, BlankDates) {
  const StandardObject object = ObjectWith(kDmy);
  EXPECT_EQ(IsoText(object.GETBlankDate()), "3333-03-03");
  EXPECT_EQ(object.GETMAXDate(), object.GETBlankDate());
  EXPECT_TRUE(object.isBlankDate(OleDate(0)));
  EXPECT_FALSE(object.isBlankDate(OleDate(0.5)));
  for (const auto& [year, month] :
       {std::pair(3876, 3), {3333, 3}, {8888, 8}, {2790, 3}, {8345, 8}}) {
    const OleDate blank = OleDate::FromParts(year, month, month);
    EXPECT_TRUE(object.isBlankDate(blank)) << year;
    EXPECT_FALSE(object.isBlankDate(OleDate(blank.Days() + 0.5))) << year;
    EXPECT_FALSE(object.isBlankDate(blank.AddDays(1))) << year;
  }
  EXPECT_EQ(IsoText(object.TrimDate(OleDate(-1.25))), "1899-12-29");
}

}  // namespace
}  // namespace ZQ7Standard
