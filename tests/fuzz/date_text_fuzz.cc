// The reader and the operations that use it accept any text, and agree with each other.

#include <ZQ7Standard/RunTimeError.h>

#include "dates/date_text.h"
#include "tests/fuzz/check.h"
#include "tests/support/fakes.h"

using namespace ZQ7Standard;

/// Each byte stands for a piece of a date, which random letters would hardly ever form.
static Text DateText(const std::uint8_t* data, std::size_t size) {
  constexpr TextView kPieces[] = {
      u"0", u"1", u"2", u"3",  u"4",       u"5",    u"6",  u"7",        u"8",   u"9",   u"/",
      u"-", u".", u" ", u",",  u":",       u"T",    u"AM", u"pm",       u"Jan", u"feb", u"MAY",
      u"%", u"E", u"x", u"พ.", u"กรกฏาคม", u"พ.ค.", u"ก",  u"December", u"Tue", u"2567"};
  Text text;
  for (std::size_t i = 0; i < size; ++i) text.append(kPieces[data[i] % std::size(kPieces)]);
  return text;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Text text = DateText(data, size);
  for (const DateConvention convention : kConventions) {
    const StandardObject object = ObjectWith(convention);
    const auto read = ReadDateText(text, convention, 2024);
    Check(object.IsTDateTime(text) == read.has_value());
    if (read) {  // a date that was read can be written and read again
      const Text written = object.FormatTDate2(*read, ZQ7Detect);
      Check(object.isBlankDate(*read) || ReadDateText(written, convention, 2024).has_value());
    }
    try {
      Check(object.CTDATE(text).TimeOfDay() == 0);
    } catch (const RunTimeError& error) {
      Check(error.Number() == 6 || error.Number() == 9 || error.Number() == 13);
    }
    Check(object.IsTPeriod(text) || object.CTPeriod(text).Day() == 1);
    Check(object.GETValidDate(text).TimeOfDay() == 0);
    Check(object.Str2TIME(text).Days() < 1 && object.CTTime(text).Days() < 1);
    object.IsTDate(text);
    object.isMounthYear(text);
    object.DAYTIME2DAY(text);
    object.GETDateFromTextYYYYMMDD(text);
  }
  return 0;
}
