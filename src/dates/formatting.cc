#include <ZQ7Standard/StandardObject.h>

#include <array>
#include <cstddef>

#include "dates/civil.h"
#include "dates/name_tables.h"
#include "text/ascii.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kFirstBoxLayout = ZQ7D_D_M_M_Y_Y_Y_Y;

/// The layouts by `CTDateType`; `ZQ7Detect` becomes one of 1 to 4 before the
/// table is asked. The letters are read by `AppendPart`, any other character is
/// written as it stands.
constexpr std::array<TextView, 16> kLayouts = {
    u"",      u"m/d/y", u"d/m/y", u"m/d/b", u"d/m/b",  u"y/m/d", u"b/m/d", u"d t b",
    u"d T b", u"d n y", u"d N y", u"y-M-D", u"N d, y", u"N y",   u"DMy",   u"DMb"};

/// The years that a date shows in the two eras.
struct Years {
  int gregorian;
  int buddhist;
};

Years YearsOf(int year) {
  if (year == 3333 || year == 8888) return {year, year};  // of the sentinel dates
  if (year < kFirstBuddhistYear) return {year, year + kBuddhistOffset};
  return {year - kBuddhistOffset, year};
}

/// What a layout shows of a date.
struct Parts {
  int day;
  int month;
  Years years;
  int width;  // of day and month, in digits
};

/// Appends what one letter of a layout stands for.
void AppendPart(Text& text, char16_t letter, const Parts& parts) {
  const auto month = static_cast<std::size_t>(parts.month);
  switch (letter) {
    case u'd':  // the day
      return AppendNumber(text, parts.day, parts.width);
    case u'D':  // the day with two digits
      return AppendNumber(text, parts.day, 2);
    case u'm':  // the month
      return AppendNumber(text, parts.month, parts.width);
    case u'M':  // the month with two digits
      return AppendNumber(text, parts.month, 2);
    case u'n':  // its short English name
      text.append(kEnglishShortMonths[month]);
      return;
    case u'N':  // its full English name
      text.append(kEnglishMonths[month]);
      return;
    case u't':  // its short Thai name
      text.append(kThaiShortMonths[month]);
      return;
    case u'T':  // its full Thai name
      text.append(kThaiMonths[month]);
      return;
    case u'y':  // the Gregorian year
      return AppendNumber(text, parts.years.gregorian, 4);
    case u'b':  // the Buddhist year
      return AppendNumber(text, parts.years.buddhist, 4);
    default:
      text.push_back(letter);
  }
}

/// Puts a blank between any two characters: one for each box of a form.
Text Boxed(const Text& digits) {
  Text boxed;
  boxed.reserve(digits.size() * 2);
  for (const char16_t digit : digits) {
    if (!boxed.empty()) boxed.push_back(u' ');
    boxed.push_back(digit);
  }
  return boxed;
}

}  // namespace

Text StandardObject::FormatTDate2(OleDate InDate, CTDateType DateType, bool ZeroLeader) const {
  if (isBlankDate(InDate)) return {};
  const bool named = DateType > ZQ7Detect && DateType <= ZQ7D_D_M_M_B_B_B_B;
  const auto layout = static_cast<std::size_t>(named ? std::int32_t{DateType} : GetDateFormat());
  const auto civil = YearMonthDay(InDate);
  const Parts parts = {static_cast<int>(static_cast<unsigned>(civil.day())),
                       static_cast<int>(static_cast<unsigned>(civil.month())),
                       YearsOf(static_cast<int>(civil.year())), ZeroLeader ? 2 : 1};
  Text text;
  text.reserve(20);
  for (const char16_t letter : kLayouts[layout]) AppendPart(text, letter, parts);
  return layout >= kFirstBoxLayout ? Boxed(text) : text;
}

Text StandardObject::FormatTime(OleDate InDate) const {
  Text text;
  AppendNumber(text, InDate.Hour(), 2);
  text.push_back(u':');
  AppendNumber(text, InDate.Minute(), 2);
  return text;
}

}  // namespace ZQ7Standard
