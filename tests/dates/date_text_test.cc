#include "dates/date_text.h"

#include <gtest/gtest.h>

#include "dates/name_tables.h"
#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

constexpr int kThisYear = 2024;

struct Accepted {
  DateConvention convention;
  const char16_t* text;
  const char* expected;
};

TEST(ReadDateText, Accepts) {
  // clang-format off
  const Accepted cases[] = {
      // Numbers in the order of the convention.
      {kMdy, u"1/2/2024", "2024-01-02"}, {kDmy, u"1/2/2024", "2024-02-01"},
      {kMdyBe, u"1/2/2567", "2024-01-02"}, {kDmyBe, u"1/2/2567", "2024-02-01"},
      {kDmy, u"  1 - 2 -  2024  ", "2024-02-01"}, {kDmy, u"1.2.2024", "2024-02-01"},
      {kDmy, u"1 2 2024", "2024-02-01"}, {kDmy, u"01/02/2024", "2024-02-01"},
      {kDmy, u"2024-02-01", "2024-02-01"}, {kMdy, u"2024-02-01", "2024-02-01"},
      {kDmy, u"100/2/1", "0100-02-01"},
      // The other order, where only that is a date and the year is plain.
      {kDmy, u"1/15/2024", "2024-01-15"}, {kMdy, u"15/1/2024", "2024-01-15"},
      {kMdyBe, u"29/2/2567", "2024-02-29"},
      // The days of a Buddhist month are those of the Gregorian year.
      {kDmyBe, u"29/2/2567", "2024-02-29"},
      // Years of one or two digits.
      {kDmy, u"1/2/29", "2029-02-01"}, {kDmy, u"1/2/30", "1930-02-01"},
      {kDmy, u"1/2/0", "2000-02-01"}, {kDmyBe, u"1/2/72", "2029-02-01"},
      {kDmyBe, u"1/2/73", "1930-02-01"}, {kDmyBe, u"1/2/0", "1957-02-01"},
      // A month's name.
      {kMdy, u"Jan/15/2024", "2024-01-15"}, {kMdy, u"15-jan-2024", "2024-01-15"},
      {kMdy, u"2024 JAN 15", "2024-01-15"}, {kMdy, u"15Jan2024", "2024-01-15"},
      {kMdy, u"Jan15/2024", "2024-01-15"}, {kMdy, u"January 15, 2013", "2013-01-15"},
      {kMdy, u"Tuesday, January 15, 2013", "2013-01-15"},
      {kMdy, u"tue 15 January 2013", "2013-01-15"},
      {kMdy, u"Thusday, Febuary 5, 2015", "2015-02-05"},
      {kMdy, u"Thursday, February 5, 2015", "2015-02-05"}, {kDmyBe, u"15 ม.ค. 2567", "2024-01-15"},
      {kDmyBe, u"15ม.ค.67", "2024-01-15"}, {kDmyBe, u"พ. 15 พ.ย. 2567", "2024-11-15"},
      {kDmyBe, u"พ.ค./15/2567", "2024-05-15"}, {kDmyBe, u"พฤหัสบดี 15 กรกฎาคม 2567", "2024-07-15"},
      {kDmyBe, u"15 กรกฏาคม 2567", "2024-07-15"},
      // Two fields.
      {kDmy, u"January 2013", "2013-01-01"}, {kDmy, u"2013/Jan", "2013-01-01"},
      {kDmyBe, u"มกราคม 2567", "2024-01-01"}, {kDmy, u"1/2013", "2013-01-01"},
      {kDmy, u"2013-1", "2013-01-01"}, {kDmy, u"Feb 29", "2024-02-29"},
      {kDmyBe, u"15 January", "2024-01-15"}, {kDmy, u"15/1", "2024-01-15"},
      {kMdy, u"1-15", "2024-01-15"},
      // Times.
      {kDmy, u"9:30", "1899-12-30 09:30:00"}, {kDmy, u"23:59:59", "1899-12-30 23:59:59"},
      {kDmy, u"0:00", "1899-12-30"}, {kDmy, u"9:30 pm", "1899-12-30 21:30:00"},
      {kDmy, u"12:00AM", "1899-12-30"}, {kDmy, u"12 PM", "1899-12-30 12:00:00"},
      {kDmy, u"9 : 30 : 15 AM", "1899-12-30 09:30:15"},
      // A date and a time.
      {kDmy, u"15/1/2024 9:30", "2024-01-15 09:30:00"},
      {kDmy, u"15 1 24 9:30", "2024-01-15 09:30:00"},
      {kDmy, u"2024-01-15T09:30:00", "2024-01-15 09:30:00"},
      {kDmy, u"Jan 15 9 PM", "2024-01-15 21:00:00"},
      {kDmy, u"Jan 15, 2024 9:30", "2024-01-15 09:30:00"},
      {kDmy, u"29/12/1899 6:00", "1899-12-29 06:00:00"},
      // The first and the last year.
      {kDmy, u"1/1/0100", "0100-01-01"}, {kDmy, u"31/12/9999", "9999-12-31"},
      {kDmyBe, u"1/1/643", "0100-01-01"}, {kDmyBe, u"31/12/10542", "9999-12-31"},
  };
  // clang-format on
  for (const auto& c : cases) {
    const auto date = ReadDateText(c.text, c.convention, kThisYear);
    ASSERT_TRUE(date) << Utf8(c.text);
    EXPECT_EQ(IsoText(*date), c.expected) << Utf8(c.text);
  }
}

TEST(ReadDateText, Rejects) {
  // clang-format off
  const std::pair<const char16_t*, const char*> cases[] = {
      {u"", "nothing"}, {u"   ", "blanks"}, {u"12345", "a plain number"},
      {u"1.5", "a plain number with decimals"}, {u"20240115", "eight digits without marks"},
      {u"24:00", "no hour"}, {u"9:60", "no minute"}, {u"9:5", "one digit of minutes"},
      {u"9", "an hour without AM or PM"}, {u"13:00 PM", "no hour of twelve"},
      {u"9:30 PMx", "letters behind"}, {u"9:30 15/1/2024", "time in front"},
      {u"31/4/2024", "a day the month does not have"}, {u"29/2/2023", "no leap year"},
      {u"13/13/2024", "no month either way"}, {u"0/1/2024", "day 0"},
      {u"31/12/67 1", "more behind"}, {u"15/1/2024/1", "four fields"},
      {u"15//2024", "an empty field"}, {u"15/-1/2024", "a sign"},
      {u"/15/1/2024", "a mark in front"}, {u"1/15/24", "other order without a plain year"},
      {u"2024/15/1", "year first is not turned round"}, {u"1/015/2024", "three digits of a month"},
      {u"1/1/99999", "a year beyond 9999"}, {u"1/1/0099", "a year before 100"},
      {u"1/1/99999999999999999999", "a very long year"}, {u"1,1,2024", "commas"},
      {u"Apr/31/24", "a day the named month does not have"}, {u"Feb 30", "the same in this year"},
      {u"31/Feb/2024", "the same, day first"}, {u"Jan/2024/15", "year inside"},
      {u"67/Jan/15", "day 67"}, {u"Janx 15 2024", "letters behind a name"},
      {u"15.Jan.2024", "dots beside a name"}, {u"Jan Jan 2024", "two months"},
      {u"15 1 Jan", "month last"}, {u"Tuesday", "a weekday alone"},
      {u"Tuesday 15/1/2024", "a weekday with numbers"},
      {u"1 2013", "month and year without a mark"}, {u"15/1/2024T", "T without a time"},
      {u"15/1/20249:30", "no blank before the time"}, {u"๑๕/๑/๒๕๖๗", "Thai digits"},
  };
  // clang-format on
  for (const auto& [text, reason] : cases) {
    EXPECT_FALSE(ReadDateText(text, kDmy, kThisYear)) << reason;
  }
  EXPECT_FALSE(ReadDateText(u"1/1/642", kDmyBe, kThisYear));
  EXPECT_FALSE(ReadDateText(u"Feb 29", kDmy, 2023));
}

// What the library rebuilds from numbers reads the same as its text, on every
// convention, for every month and every kind of year.
TEST(ReadDateText, ReadsNamedMonthsAsReadNamedMonthDateDoes) {
  for (const DateConvention convention : kConventions) {
    for (const int year :
         {0, 5, 29, 30, 72, 73, 99, 100, 642, 643, 1900, 2024, 2567, 9999, 10542, 10543}) {
      for (int month = 1; month <= 12; ++month) {
        for (const int day : {0, 1, 28, 29, 30, 31, 32}) {
          const Text text = Text(kEnglishShortMonths[static_cast<std::size_t>(month)]) + u"/" +
                            FromUtf8(std::to_string(day) + "/" + std::to_string(year));
          ASSERT_EQ(ReadDateText(text, convention, kThisYear),
                    ReadNamedMonthDate(month, day, year, convention.era))
              << Utf8(text);
        }
      }
    }
  }
  EXPECT_FALSE(ReadNamedMonthDate(1, -1, 2024, Era::kGregorian));
  EXPECT_FALSE(ReadNamedMonthDate(0, 1, 2024, Era::kGregorian));
  EXPECT_FALSE(ReadNamedMonthDate(1, 1, -5, Era::kGregorian));
}

}  // namespace
}  // namespace ZQ7Standard
