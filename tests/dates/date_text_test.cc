#include "dates/date_text.h"

#include "dates/name_tables.h"
#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

static auto Reader(DateConvention convention) {
  return [convention](TextView text) { return ReadDateText(text, convention, 2024); };
}

TEST(ReadDateText, Accepts) {
  // clang-format off
  ExpectTexts(Reader(kDmy), {
      {"2024-02-01", {u"1/2/2024", u"  1 - 2 -  2024  ", u"1.2.2024", u"1 2 2024", u"01/02/2024",
      u"2024-02-01"}}, {"0100-02-01", {u"100/2/1"}}, {"2024-01-15", {u"1/15/2024", u"15/1"}},
      {"0100-01-01", {u"1/1/0100"}}, {"9999-12-31", {u"31/12/9999"}}, {"2029-02-01", {u"1/2/29"}},
      {"1930-02-01", {u"1/2/30"}}, {"2000-02-01", {u"1/2/0"}},
      {"2013-01-01", {u"January 2013", u"2013/Jan", u"1/2013", u"2013-1"}},
      {"2024-02-29", {u"Feb 29"}}, {"1899-12-30 09:30:00", {u"9:30"}},
      {"1899-12-30 23:59:59", {u"23:59:59"}}, {"1899-12-30", {u"0:00", u"12:00AM"}},
      {"1899-12-30 21:30:00", {u"9:30 pm"}}, {"1899-12-30 12:00:00", {u"12 PM"}},
      {"1899-12-30 09:30:15", {u"9 : 30 : 15 AM"}},
      {"2024-01-15 09:30:00", {u"15/1/2024 9:30", u"15 1 24 9:30", u"2024-01-15T09:30:00",
      u"Jan 15, 2024 9:30"}}, {"2024-01-15 21:00:00", {u"Jan 15 9 PM"}},
      {"1899-12-29 06:00:00", {u"29/12/1899 6:00"}}});
  // clang-format on
  // clang-format off
  ExpectTexts(Reader(kMdy), {
      {"2024-01-02", {u"1/2/2024"}}, {"2024-02-01", {u"2024-02-01"}},
      {"2024-01-15", {u"15/1/2024", u"1-15", u"Jan/15/2024", u"15-jan-2024", u"2024 JAN 15",
      u"15Jan2024", u"Jan15/2024"}},
      {"2013-01-15", {u"January 15, 2013", u"Tuesday, January 15, 2013", u"tue 15 January 2013"}},
      {"2015-02-05", {u"Thusday, Febuary 5, 2015", u"Thursday, February 5, 2015"}}});
  // clang-format on
  ExpectRows<TextView>(Reader(kMdyBe), {{u"1/2/2567", "2024-01-02"}, {u"29/2/2567", "2024-02-29"}});
  // clang-format off
  ExpectTexts(Reader(kDmyBe), {
      {"2024-02-01", {u"1/2/2567", u"1/ 2 /2567"}}, {"2024-02-29", {u"29/2/2567"}}, {"2029-02-01", {u"1/2/72"}},
      {"1930-02-01", {u"1/2/73"}}, {"1957-02-01", {u"1/2/0"}}, {"0100-01-01", {u"1/1/643"}},
      {"none", {u"1/1/642"}}, {"9999-12-31", {u"31/12/10542"}},
      {"2024-01-15", {u"15 January", u"15 ม.ค. 2567", u"15ม.ค.67"}},
      {"2024-01-01", {u"มกราคม 2567"}}, {"2024-11-15", {u"พ. 15 พ.ย. 2567"}},
      {"2024-05-15", {u"พ.ค./15/2567"}},
      {"2024-07-15", {u"พฤหัสบดี 15 กรกฎาคม 2567", u"15 กรกฏาคม 2567"}}});
  // clang-format on
}

TEST(ReadDateText, Rejects) {
  for (const TextView text : std::initializer_list<TextView>{
           // Empty text, plain numbers, Thai digits; invalid times.
           u"", u"   ", u"12345", u"1.5", u"20240115", u"๑๕/๑/๒๕๖๗", u"24:00", u"9:60", u"9:5",
           u"9", u"13:00 PM", u"9:30 PMx", u"9:30 15/1/2024", u"15/1/2024T", u"15/1/20249:30",
           u"15Jan9:30",
           // No day or month, or no year.
           u"31/4/2024", u"29/2/2023", u"13/13/2024", u"0/1/2024", u"Apr/31/24", u"Feb 30",
           u"31/Feb/2024", u"67/Jan/15", u"1/1/99999", u"1/1/0099", u"1/1/99999999999999999999",
           // Too many fields, empty ones, signs, marks in the wrong place.
           u"31/12/67 1", u"15/1/2024/1", u"15//2024", u"15/-1/2024", u"/15/1/2024", u"1,1,2024",
           u"15.Jan.2024", u"1 2013", u"15/3 2560", u"15/3-2560", u"15-3/2560", u"2024/1 15",
           // The order is not swapped without a four-digit year, or with the year first or in the
           // middle; a month or day never has three digits.
           u"1/15/24", u"2024/15/1", u"Jan/2024/15", u"1/015/2024", u"1/005/2024", u"Jan/005/2024",
           // Names in the wrong place, or followed by letters.
           u"Janx 15 2024", u"2024/JanT9:30", u"Jan Jan 2024", u"15 1 Jan", u"Tuesday",
           u"Tuesday 15/1/2024", u"Tue January 2013"}) {
    EXPECT_FALSE(Reader(kDmy)(text)) << Utf8(text);
  }
  EXPECT_FALSE(ReadDateText(u"Feb 29", kDmy, 2023));
}

// Dates built from numbers equal those read from text, for every convention, every month and every
// kind of year.
TEST(ReadDateText, ReadsNamedMonthsAsDateInEraDoes) {
  for (const DateConvention convention : kConventions) {
    for (const int year :
         {0, 5, 29, 30, 72, 73, 99, 100, 642, 643, 1900, 2024, 2567, 9999, 10542, 10543}) {
      for (int i = 0; i < 12 * 33; ++i) {
        const Text text = Text(kEnglishShortMonths[static_cast<std::size_t>(1 + i % 12)]) + u"/" +
                          FromUtf8(std::to_string(i / 12) + "/" + std::to_string(year));
        ASSERT_EQ(Reader(convention)(text), DateInEra(1 + i % 12, i / 12, year, convention.era))
            << Utf8(text);
      }
    }
  }
  EXPECT_FALSE(DateInEra(1, -1, 2024, Era::kGregorian));
  EXPECT_FALSE(DateInEra(0, 1, 2024, Era::kGregorian));
  EXPECT_FALSE(DateInEra(1, 1, -5, Era::kGregorian));
}
