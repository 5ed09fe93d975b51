#include "dates/date_pattern.h"

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

/// Monday 2024-02-05 at an hour, 7 minutes and 9 seconds.
static Text Formatted(TextView pattern, int hour) {
  const OleDate date = OleDate::FromParts(2024, 2, 5, hour, 7, 9);
  const PatternDay day{std::chrono::year_month_day(date.Civil()), 2024, 2567, Language::kEnglish};
  return FormatPattern("test", date, day, pattern);
}

TEST(DatePattern, WritesEveryRunOfALetter) {
  // clang-format off
  ExpectRows<TextView>([](TextView pattern) { return Formatted(pattern, 21); }, {
      {u"d dd ddd dddd ddddd", "5 05 Mon Monday Monday"},
      {u"m mm mmm mmmm mmmmm", "2 02 Feb Febuary Febuary"},
      {u"y yy yyy yyyy yyyyy", "24 24 2024 2024 2024"},
      {u"b bb bbb bbbb bbbbb", "67 67 2567 2567 2567"},
      {u"h hh hhh n nn nnn s ss sss", "21 21 21 7 07 07 9 09 09"},
      {u"DD/MM/YYYY HH:NN:SS BB", "05/02/2024 21:07:09 67"}, {u"dDDd mMm", "Monday Feb", "mixed case"},
      {u"ddmmyyyyhhnnss", "05022024210709"}, {u"วันที่ d", "วันที่ 5"}, {u"", ""},
      {u"c.e-f/t,z 7%*", "c.e-f/t,z 7%*"}});
  // clang-format on
}

TEST(DatePattern, TakesMForMinutesBesideHoursAndSeconds) {
  // clang-format off
  ExpectRows<TextView>([](TextView pattern) { return Formatted(pattern, 21); }, {
      {u"hh:mm", "21:07"}, {u"H.M", "21.7"}, {u"mm:ss", "07:09"}, {u"hh:mm:ss", "21:07:09"},
      {u"m/d h:m", "2/5 21:7"}, {u"h m m", "21 7 2", "the second is next after a minute"},
      {u"m m s", "2 7 9"}, {u"h d m", "21 5 2"}, {u"m n s", "2 7 9"}, {u"h mmm", "21 Feb"},
      {u"mmm s", "Feb 9"}, {u"h \"d\" m", "21 d 7", "text does not count"},
      {u"h\\dm", "21d7"}, {u"m \"d\"\\ds", "7 dd9"}, {u"m \"s\" d", "2 s 5"},
      {u"h AM/PM m", "9 PM 7", "nor does AM/PM"}, {u"m AM/PM s", "7 PM 9"}});
  // clang-format on
}

TEST(DatePattern, CountsTwelveHoursWithAmPm) {
  // clang-format off
  ExpectRows<TextView, int>(Formatted, {
      {{u"h AM/PM", 0}, "12 AM"}, {{u"h AM/PM", 1}, "1 AM"}, {{u"hh AM/PM", 11}, "11 AM"},
      {{u"h AM/PM", 12}, "12 PM"}, {{u"hh AM/PM", 13}, "01 PM"}, {{u"am/pm h", 23}, "pm 11"},
      {{u"ham/pm", 0}, "12am"}, {{u"h Am/Pm", 13}, "1 PM"}, {{u"h aM/PM h", 13}, "1 PM 1"},
      {{u"h \"AM/PM\"", 13}, "13 AM/PM"}, {{u"h \\AM/PM", 13}, "13 A7/P2", "a letter escaped"},
      {{u"d/m h", 13}, "5/2 13"}, {{u"AM/P", 13}, "A2/P"}});
  // clang-format on
}

TEST(DatePattern, WritesQuotedAndEscapedTextAsItStands) {
  // clang-format off
  ExpectRows<TextView>([](TextView pattern) { return Formatted(pattern, 21); }, {
      {u"\"day \"d", "day 5"}, {u"\"\"d", "5"}, {u"\"d\"\"m\"", "dm"}, {u"\"\\\"d", "\\5"},
      {u"\\d\\\"d", "d\"5"}, {u"\\\\d", "\\5"}, {u"\"'\"'d'", "''5'"},
      {u"\"", "error 5"}, {u"d \"day", "error 5"}, {u"\"\"\"", "error 5"}, {u"\"\\\"\"", "error 5"},
      {u"\\", "error 5"}, {u"d\\", "error 5"}, {u"\\\\\\", "error 5"}, {u"\\\"\"", "error 5"},
      {u"h \"AM/PM", "error 5"}, {u"m \"", "error 5"}, {u"h\\", "error 5"}});
  // clang-format on
}
