// Any pattern is formatted or refused, no longer than its pieces allow, and quoted or escaped text
// comes out unchanged.

#include <ZQ7Standard/RunTimeError.h>

#include "base/ascii.h"
#include "dates/date_pattern.h"
#include "tests/fuzz/check.h"
#include "tests/support/fakes.h"

using namespace ZQ7Standard;

/// Each byte stands for a piece of a pattern.
static Text PatternText(const std::uint8_t* data, std::size_t size) {
  constexpr TextView kPieces[] = {u"d", u"m",  u"y",  u"b",      u"h",     u"n", u"s", u"D",
                                  u"M", u"H",  u"\"", u"\\",     u"AM/PM", u"/", u":", u"am/pm",
                                  u"A", u"mm", u" ",  u"\xD83D", u"ก",     u"x", u"P", u"dddd"};
  Text text;
  for (std::size_t i = 0; i < size; ++i) text.append(kPieces[data[i] % std::size(kPieces)]);
  return text;
}

static Text Formatted(OleDate date, TextView pattern) {
  const PatternDay day{std::chrono::year_month_day(date.Civil()), date.Year(), 9999,
                       date.Day() % 2 == 0 ? Language::kThai : Language::kEnglish};
  return FormatPattern("fuzz", date, day, pattern);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 4) return 0;
  const double days = (data[0] * 65536 + data[1] * 256 + data[2]) % 2958466 - 657434;
  const OleDate date(days + (days < 0 ? -1 : 1) * data[3] / 256.0);
  const Text pattern = PatternText(data + 4, size - 4);

  Text escaped;
  Text quotable;
  for (const char16_t c : pattern) {
    escaped.append({u'\\', c});
    if (c != u'"') quotable.push_back(c);
  }
  Check(Formatted(date, escaped) == pattern);
  Check(Formatted(date, u'"' + quotable + u'"') == quotable);

  Text text;
  const int error = ErrorOf([&] { text = Formatted(date, pattern); });
  static const StandardObject object = ObjectWith(kDmyBe);
  Check(ErrorOf([&] { object.Format2000(date, pattern); }) == error);
  if (error != 0) return Check(error == 5), 0;
  Check(Formatted(date, pattern + u"\"d\"\\m") == text + u"dm");
  Text upper = pattern;
  for (char16_t& c : upper) c = AsciiUpper(c);
  Check(Formatted(date, upper).size() == text.size());
  return 0;
}
