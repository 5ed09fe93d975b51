#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

/// "error 13", or the date.
std::string ResultOf(const std::function<OleDate()>& call) {
  OleDate date;
  const int error = ErrorOf([&] { date = call(); });
  return error == 0 ? IsoText(date) : "error " + std::to_string(error);
}

struct TypedDate {
  const char* reason;
  DateConvention convention;
  const char16_t* text;
  const char* ctdate;
  bool is_tdate;
};

TEST(TypedDates, CTDATEReadsAndIsTDateChecks) {
  const TypedDate cases[] = {
      {"day first, Buddhist", kDmyBe, u"15/1/2567", "2024-01-15", true},
      {"order is never guessed", kDmyBe, u"1/15/2567", "error 13", false},
      {"month first, Gregorian", kMdy, u"1/15/2024", "2024-01-15", true},
      {"order is never guessed", kMdy, u"15/1/2024", "error 13", false},
      {"month first, Buddhist", kMdyBe, u"1/15/2567", "2024-01-15", true},
      {"day first, Gregorian", kDmy, u"15/1/2024", "2024-01-15", true},
      {"leap day of the Gregorian year", kDmyBe, u"29/2/2567", "2024-02-29", true},
      {"impossible day", kDmy, u"31/4/2024", "error 13", false},
      {"month 13", kDmy, u"1/13/2024", "error 13", false},
      {"month 0", kDmy, u"1/0/2024", "error 13", false},
      {"negative month", kDmy, u"1/-1/2024", "error 13", true},
      {"negative day", kDmy, u"-15/1/2024", "error 13", true},
      {"empty", kDmy, u"", "1899-12-30", false},
      {"one field", kDmy, u"15", "error 9", false},
      {"no slash", kDmy, u"15-01-2567", "error 9", false},
      {"two fields", kDmy, u"15/1", "2000-01-15", false},
      {"two fields, Buddhist", kDmyBe, u"15/1", "1957-01-15", false},
      {"two-digit year", kDmyBe, u"15/1/67", "2024-01-15", false},
      {"four fields", kDmy, u"15/1/2024/1", "2024-01-15", false},
      {"slash behind", kDmy, u"15/1/2024/", "2024-01-15", true},
      {"blanks", kDmy, u" 15/ 1/2024", "2024-01-15", true},
      {"blank behind the year", kDmy, u"15/1/2024 ", "2024-01-15", false},
      {"half to even", kDmy, u"14.5/1.5/2024", "2024-02-14", true},
      {"grouping is no number to CTDATE", kDmy, u"1,5/1/2024", "2024-01-01", true},
      {"16 bits", kDmy, u"15/1/40000", "error 6", false},
      {"32 bits", kDmy, u"9999999999/1/2024", "error 6", false},
      {"letters", kDmy, u"a/b/c", "error 13", false},
      {"year before the first typed", kDmy, u"15/1/0642", "0642-01-15", false},
      {"first typed year", kDmy, u"15/1/0643", "0643-01-15", true},
      {"first typed year, Buddhist", kDmyBe, u"15/1/0643", "0100-01-15", true},
  };
  for (const auto& c : cases) {
    const StandardObject object = ObjectWith(c.convention);
    EXPECT_EQ(ResultOf([&] { return object.CTDATE(c.text, true); }), c.ctdate) << c.reason;
    EXPECT_EQ(object.IsTDate(c.text), c.is_tdate) << c.reason;
  }
}

TEST(TypedDates, CDATE2000CarriesTheSystemsYear) {
  EXPECT_EQ(IsoText(ObjectWith(kDmy).CDATE2000(u"15/1/2024 9:30")), "2024-01-15 09:30:00");
  const StandardObject thai = ObjectWith(kDmyBe);
  EXPECT_EQ(IsoText(thai.CDATE2000(u"15/1/2567 9:30")), "2567-01-15 09:30:00");
  EXPECT_EQ(IsoText(thai.CDATE2000(u"29/2/2567")), "2567-02-28");
  EXPECT_EQ(IsoText(thai.CDATE2000(u"6:00")), "2442-12-30 06:00:00");
  EXPECT_EQ(IsoText(thai.CDATE2000(u"abc")), "3333-03-03");
  EXPECT_EQ(ErrorOf([&] { thai.CDATE2000(u"1/1/10000"); }), 5);
}

TEST(TypedDates, GETValidDateFallsBackToToday) {
  const StandardObject thai = ObjectWith(kDmyBe);
  EXPECT_EQ(IsoText(thai.GETValidDate(u"31/12/2566")), "2023-12-31");
  EXPECT_EQ(IsoText(thai.GETValidDate(u"abc")), "2024-01-15");
  EXPECT_EQ(IsoText(thai.GETValidDate(u"")), "2024-01-15");
  EXPECT_EQ(IsoText(thai.GETValidDate(u"31 Dec 2566")), "2024-01-15");  // no "/" for CTDATE
  EXPECT_EQ(IsoText(thai.GETValidDate(u"12/31/2566")), "2024-01-15");   // read, but not by CTDATE
}

TEST(TypedDates, IsTDateTimeTakesDatesAndTimes) {
  const StandardObject thai = ObjectWith(kDmyBe);
  for (const char16_t* text : {u"15/1/67", u"9:30", u"15 ม.ค. 2567 9:30"}) {
    EXPECT_TRUE(thai.IsTDateTime(text)) << Utf8(text);
  }
  // 29 February is a day of this year only when this year has one.
  EXPECT_TRUE(thai.IsTDateTime(u"29 Feb"));
  const StandardObject next_year = ObjectWith(kDmyBe, OleDate::FromParts(2025, 1, 1));
  EXPECT_FALSE(next_year.IsTDateTime(u"29 Feb"));
}

TEST(TypedDates, IsMounthYear) {
  const StandardObject object = ObjectWith(kDmyBe);
  for (const char16_t* text : {u"01/2567", u"12-0643", u"01 2567", u"1 x2567", u"1199999"}) {
    EXPECT_TRUE(object.isMounthYear(text)) << Utf8(text);
  }
  for (const char16_t* text : {u"", u"13/2567", u"00/2567", u"12/0642", u"1/2567", u"01/25670"}) {
    EXPECT_FALSE(object.isMounthYear(text)) << Utf8(text);
  }
}

TEST(TypedDates, SortableKeys) {
  const struct {
    const char* reason;
    const char16_t* text;
    const char* gregorian;
    const char* buddhist;
  } cases[] = {
      {"unreadable", u"abc", "2000-03-03", "0543-03-03"},
      {"empty", u"", "2000-03-03", "0543-03-03"},
      {"eight digits", u"20240115", "2024-01-15", "2024-01-15"},
      {"eight digits, Buddhist", u"25670115", "2024-01-15", "2024-01-15"},
      {"other marks", u" 2024_01 15 ", "2024-01-15", "2024-01-15"},
      {"recognised, read in the system's era", u"2024-01-15", "2024-01-15", "1481-01-15"},
      {"recognised, Buddhist", u"2567-01-15", "2024-01-15", "2024-01-15"},
      {"leap day that only the Gregorian reading has", u"20240229", "2024-02-29", "0543-03-03"},
      {"leap day of a Buddhist key", u"25670229", "2024-02-29", "0543-03-03"},
      {"recognised with a time", u"2024-01-15 9:30", "2024-01-15 09:30:00", "1481-01-15 09:30:00"},
      {"time dropped from a Buddhist year", u"2567-01-15 9:30", "2024-01-15", "2024-01-15"},
      {"blank date loses an era, and the one of the system", u"3333-03-03", "2790-03-03",
       "2247-03-03"},
      {"impossible day", u"20240431", "2000-03-03", "0543-03-03"},
      {"seven digits", u"2024011", "2000-03-03", "0543-03-03"},
      {"letters", u"2024O115", "2000-03-03", "0543-03-03"},
  };
  for (const auto& c : cases) {
    const StandardObject gregorian = ObjectWith(kDmy);
    const StandardObject buddhist = ObjectWith(kMdyBe);
    EXPECT_EQ(IsoText(gregorian.GETDateFromTextYYYYMMDD(c.text)), c.gregorian) << c.reason;
    EXPECT_EQ(IsoText(buddhist.GETDateFromTextYYYYMMDD(c.text)), c.buddhist) << c.reason;
  }
}

TEST(TypedDates, Periods) {
  const StandardObject thai = ObjectWith(kDmyBe);
  const StandardObject gregorian = ObjectWith(kDmy);
  const struct {
    const StandardObject& object;
    const char16_t* text;
    const char* expected;
    bool valid;
  } cases[] = {
      {thai, u"2567/03", "2024-03-01", true},       {thai, u"2567/3", "2024-03-01", true},
      {thai, u"2567/003", "2024-03-01", true},      {thai, u"25679/3/9", "2024-03-01", true},
      {gregorian, u"2024/12", "2024-12-01", true},  {gregorian, u"0050/1", "1950-01-01", true},
      {gregorian, u"3332/1", "3332-01-01", true},   {gregorian, u"3333/1", "2024-01-01", false},
      {thai, u"3876/01", "2024-01-01", false},      {thai, u"543/01", "2024-01-01", false},
      {gregorian, u"2024/13", "2024-01-01", false}, {gregorian, u"2024/", "2024-01-01", false},
      {gregorian, u"202403", "2024-01-01", false},  {gregorian, u"9E99/1", "2024-01-01", false},
      {gregorian, u"abc", "2024-01-01", false},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(IsoText(c.object.CTPeriod(c.text)), c.expected) << Utf8(c.text);
    EXPECT_EQ(c.object.IsTPeriod(c.text), c.valid) << Utf8(c.text);
  }
}

}  // namespace
}  // namespace ZQ7Standard
