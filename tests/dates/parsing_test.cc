#include <ZQ7Standard/StandardObject.h>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

static const StandardObject kThai = ObjectWith(kDmyBe);
static const StandardObject kGregorian = ObjectWith(kDmy);

// The order is never guessed. CTDATE raises 9 without a slash, accepts any year and reads each
// field as far as it is a number, halves to even; IsTDate requires the first typed year or later in
// four digits, and ignores signs.
TEST(TypedDates, CTDATEReadsAndIsTDateChecks) {
  const auto typed = [](DateConvention convention) {
    return [object = ObjectWith(convention)](TextView text) {
      return ResultOf([&] { return object.CTDATE(text, true); }) + " " +
             Shown(object.IsTDate(text));
    };
  };
  ExpectTexts(typed(kMdy), {{"2024-01-15 yes", {u"1/15/2024"}}, {"error 13 no", {u"15/1/2024"}}});
  ExpectTexts(typed(kMdyBe), {{"2024-01-15 yes", {u"1/15/2567"}}});
  // clang-format off
  ExpectTexts(typed(kDmyBe), {
      {"2024-01-15 yes", {u"15/1/2567"}}, {"error 13 no", {u"1/15/2567"}},
      {"2024-02-29 yes", {u"29/2/2567"}}, {"1957-01-15 no", {u"15/1"}},
      {"2024-01-15 no", {u"15/1/67"}}, {"0100-01-15 yes", {u"15/1/0643"}}});
  // clang-format on
  // clang-format off
  ExpectTexts(typed(kDmy), {
      {"2024-01-15 yes", {u"15/1/2024", u"15/1/2024/", u" 15/ 1/2024"}},
      {"2024-01-15 no", {u"15/1/2024/1", u"15/1/2024 "}}, {"2024-02-14 yes", {u"14.5/1.5/2024"}},
      {"error 13 no", {u"31/4/2024", u"1/13/2024", u"1/0/2024", u"a/b/c"}},
      {"error 13 yes", {u"1/-1/2024", u"-15/1/2024"}}, {"1899-12-30 no", {u""}},
      {"error 9 no", {u"15", u"15-01-2567"}}, {"2000-01-15 no", {u"15/1"}},
      {"2024-01-01 yes", {u"1,5/1/2024"}}, {"error 6 no", {u"15/1/40000", u"9999999999/1/2024"}},
      {"0642-01-15 no", {u"15/1/0642"}}, {"0643-01-15 yes", {u"15/1/0643"}}});
  // clang-format on
}

TEST(TypedDates, CDATE2000CarriesTheSystemsYear) {
  const auto call = [](DateConvention convention, TextView text) {
    return ObjectWith(convention).CDATE2000(text);
  };
  // clang-format off
  ExpectRows<DateConvention, TextView>(call, {
      {{kDmy, u"15/1/2024 9:30"}, "2024-01-15 09:30:00"}, {{kDmyBe, u"29/2/2567"}, "2567-02-28"},
      {{kDmyBe, u"15/1/2567 9:30"}, "2567-01-15 09:30:00"}, {{kDmyBe, u"abc"}, "3333-03-03"},
      {{kDmyBe, u"6:00"}, "2442-12-30 06:00:00"}, {{kDmyBe, u"1/1/10000"}, "3333-03-03"}});
  // clang-format on
}

// Both the date reader and CTDATE must accept the text.
TEST(TypedDates, GETValidDateFallsBackToToday) {
  // clang-format off
  ExpectTexts([](TextView text) { return kThai.GETValidDate(text); }, {
      {"2023-12-31", {u"31/12/2566"}},
      {"2024-01-15", {u"abc", u"", u"31 Dec 2566", u"12/31/2566", u"15/2/2566/1", u"15/3 2560",
      u"15/3-2560"}}});
  // clang-format on
}

TEST(TypedDates, IsTDateTimeAndIsMounthYear) {
  // clang-format off
  ExpectRows<TextView>([](TextView text) { return kThai.IsTDateTime(text); }, {
      {u"15/1/67", "yes"}, {u"9:30", "yes"}, {u"15 ม.ค. 2567 9:30", "yes"}, {u"29 Feb", "yes"}});
  // clang-format on
  const StandardObject next_year = ObjectWith(kDmyBe, OleDate::FromParts(2025, 1, 1));
  EXPECT_FALSE(next_year.IsTDateTime(u"29 Feb"));
  // clang-format off
  ExpectTexts([](TextView text) { return kThai.isMounthYear(text); }, {
      {"yes", {u"01/2567", u"12-0643", u"01 2567", u"1 x2567", u"1199999"}},
      {"no", {u"", u"13/2567", u"00/2567", u"12/0642", u"1/2567", u"01/25670"}}});
  // clang-format on
}

// As read by Gregorian and by Buddhist systems.
TEST(TypedDates, SortableKeys) {
  const auto call = [](TextView text) {
    return Shown(kGregorian.GETDateFromTextYYYYMMDD(text)) + ", " +
           Shown(kThai.GETDateFromTextYYYYMMDD(text));
  };
  // clang-format off
  ExpectRows<TextView>(call, {
      {u"abc", "2000-03-03, 0543-03-03"}, {u"", "2000-03-03, 0543-03-03"},
      {u"2024011", "2000-03-03, 0543-03-03"}, {u"2024O115", "2000-03-03, 0543-03-03"},
      {u"20240431", "2000-03-03, 0543-03-03"}, {u"20240115", "2024-01-15, 2024-01-15"},
      {u"25670115", "2024-01-15, 2024-01-15"}, {u" 2024_01 15 ", "2024-01-15, 2024-01-15"},
      {u"2567-01-15", "2024-01-15, 2024-01-15"}, {u"24000115", "2400-01-15, 2400-01-15"},
      {u"24010115", "1858-01-15, 1858-01-15"},
      {u"2024-01-15", "2024-01-15, 1481-01-15", "recognised, read in the system's era"},
      {u"20240229", "2024-02-29, 0543-03-03", "only the Gregorian reading has that leap day"},
      {u"25670229", "2024-02-29, 0543-03-03", "leap day of a Buddhist key"},
      {u"2024-01-15 9:30", "2024-01-15 09:30:00, 1481-01-15 09:30:00"},
      {u"2567-01-15 9:30", "2024-01-15, 2024-01-15", "a Buddhist year drops the time"},
      {u"3333-03-03", "2790-03-03, 2247-03-03", "the blank date loses an era, or two"}});
  // clang-format on
}

TEST(TypedDates, Periods) {
  const auto period = [](const StandardObject& object) {
    return [&object](TextView text) {
      return Shown(object.CTPeriod(text)) + (object.IsTPeriod(text) ? "" : " invalid");
    };
  };
  // clang-format off
  ExpectTexts(period(kThai), {
      {"2024-03-01", {u"2567/03", u"2567/3", u"2567/003", u"2567/103", u"25679/3/9"}},
      {"2024-01-01 invalid", {u"543/01", u"3876/01", u"2567/3%", u"2567/9%"}}, {"3332-01-01", {u"3875/01"}}});
  // clang-format on
  // clang-format off
  ExpectTexts(period(kGregorian), {
      {"2024-12-01", {u"2024/12"}}, {"1950-01-01", {u"0050/1"}}, {"3332-01-01", {u"3332/1"}},
      {"2024-01-01 invalid", {u"3333/1", u"2024/13", u"2024/", u"202403", u"9E99/1", u"abc"}}});
  // clang-format on
}
