#include <ZQ7Standard/StandardObject.h>

#include <array>
#include <cstddef>

#include "base/ascii.h"
#include "dates/date_math.h"
#include "dates/date_pattern.h"
#include "dates/eras.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

/// The patterns of a `CTDateType`: plain, and with zeros before day and month.
struct Layout {
  TextView plain;
  TextView with_zeros;
  Language language = Language::kEnglish;
};

/// By `CTDateType`; `ZQ7Detect` is replaced by one of 1 to 4 before the table is read.
constexpr std::array<Layout, 16> kLayouts = {{
    {u"", u""},
    {u"m/d/yyyy", u"mm/dd/yyyy"},
    {u"d/m/yyyy", u"dd/mm/yyyy"},
    {u"m/d/bbbb", u"mm/dd/bbbb"},
    {u"d/m/bbbb", u"dd/mm/bbbb"},
    {u"yyyy/m/d", u"yyyy/mm/dd"},
    {u"bbbb/m/d", u"bbbb/mm/dd"},
    {u"d mmm bbbb", u"dd mmm bbbb", Language::kThai},
    {u"d mmmm bbbb", u"dd mmmm bbbb", Language::kThai},
    {u"d mmm yyyy", u"dd mmm yyyy"},
    {u"d mmmm yyyy", u"dd mmmm yyyy"},
    {u"yyyy-mm-dd", u"yyyy-mm-dd"},
    {u"mmmm d, yyyy", u"mmmm dd, yyyy"},
    {u"mmmm yyyy", u"mmmm yyyy"},
    {u"ddmmyyyy", u"ddmmyyyy"},
    {u"ddmmbbbb", u"ddmmbbbb"},
}};
constexpr std::size_t kFirstBoxLayout = ZQ7D_D_M_M_Y_Y_Y_Y;

Language LanguageOf(Era era) {
  return era == Era::kBuddhist ? Language::kThai : Language::kEnglish;
}

/// The year shown in an era for a date with the own year `own_year`.
int ShownYear(int own_year, Era era) {
  const int year = MeantYear(own_year);
  return IsSentinelYear(own_year) ? year : year + EraDifference(era);
}

/// A day with the year of each era.
PatternDay DayInBothEras(OleDate date, Language language) {
  const auto day = YearMonthDay(date);
  const int own_year = static_cast<int>(day.year());
  return {day, ShownYear(own_year, Era::kGregorian), ShownYear(own_year, Era::kBuddhist), language};
}

/// A day with the year of one era as both years.
PatternDay DayInEra(OleDate date, Era era) {
  const auto day = YearMonthDay(date);
  const int year = ShownYear(static_cast<int>(day.year()), era);
  return {day, year, year, LanguageOf(era)};
}

/// A day with the year that `Year2000` returns.
PatternDay Day2000(OleDate date, Era era) {
  const auto day = YearMonthDay(date);
  const int year = YearInEra(static_cast<int>(day.year()), era);
  return {day, year, year, LanguageOf(era)};
}

/// The Gregorian day that a date means.
PatternDay QueryDay(OleDate date) {
  const auto day = MeantDay(date);
  const int year = static_cast<int>(day.year());
  return {day, year, year, Language::kEnglish};
}

/// Appends the time of day as "HH:MM".
void AppendTime(Text& text, OleDate date) {
  AppendNumber(text, date.Hour(), 2);
  text.push_back(u':');
  AppendNumber(text, date.Minute(), 2);
}

/// Puts a blank between characters, for the boxes of a form.
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

Text StandardObject::FormatTDate(OleDate InDate, bool ZeroLeader) const {
  return FormatTDate2(InDate, ZQ7Detect, ZeroLeader);
}

Text StandardObject::FormatTDate2(OleDate InDate, CTDateType DateType, bool ZeroLeader) const {
  if (isBlankDate(InDate)) return {};
  const bool named = DateType > ZQ7Detect && DateType <= ZQ7D_D_M_M_B_B_B_B;
  const auto index = static_cast<std::size_t>(named ? std::int32_t{DateType} : GetDateFormat());
  const Layout& layout = kLayouts[index];
  Text text = FormatPattern("FormatTDate2", InDate, DayInBothEras(InDate, layout.language),
                            ZeroLeader ? layout.with_zeros : layout.plain);
  if (index >= kFirstBoxLayout) return Boxed(text);
  return text;
}

Text StandardObject::FormatTDateTime(OleDate InDate, bool ZeroLeader) const {
  Text text = FormatTDate(InDate, ZeroLeader);
  if (text.empty()) return text;
  text.push_back(u' ');
  AppendTime(text, InDate);
  return text;
}

Text StandardObject::Format2000(OleDate InDate, TextView FormatText) const {
  Text text = FormatPattern("Format2000", InDate, Day2000(InDate, services_->Convention().era),
                            FormatText.empty() ? u"d/m/yyyy" : FormatText);
  if (isBlankDate(InDate)) return {};
  return text;
}

Text StandardObject::FormatThai(OleDate InDate, TextView FormatText) const {
  Text text = FormatPattern("FormatThai", InDate, DayInEra(InDate, Era::kBuddhist),
                            FormatText.empty() ? u"d mmmm bbbb" : FormatText);
  if (isBlankDate(InDate)) return {};
  return text;
}

Text StandardObject::FormatThaiRevere(OleDate InDate) const {
  return FormatThai(InDate, u"bbbb/mm/dd");
}

Text StandardObject::FormatEnglish(OleDate InDate, TextView FormatText) const {
  Text text = FormatPattern("FormatEnglish", InDate, DayInEra(InDate, Era::kGregorian),
                            FormatText.empty() ? u"d mmmm yyyy" : FormatText);
  if (isBlankDate(InDate)) return {};
  return text;
}

Text StandardObject::FormatQuery(OleDate InDate) const {
  if (isBlankDate(InDate)) return u"NULL";
  return FormatPattern("FormatQuery", InDate, QueryDay(InDate), u"yyyy-mm-dd");
}

Text StandardObject::FormatQueryTime(OleDate InDate) const {
  if (isBlankDate(InDate)) return u"NULL";
  return FormatPattern("FormatQueryTime", InDate, QueryDay(InDate), u"yyyy-mm-dd hh:nn:ss");
}

Text StandardObject::FormatTime(OleDate InDate) const {
  Text text;
  AppendTime(text, InDate);
  return text;
}

Text StandardObject::FormatTime2(OleDate InDate, TextView FormatText) const {
  const TextView pattern = FormatText.empty() ? u"hh:nn:ss" : FormatText;
  const bool may_show_day = MayShowDay(pattern);  // most do not, and need no convention
  return FormatPattern("FormatTime2", InDate,
                       may_show_day ? Day2000(InDate, services_->Convention().era) : PatternDay{},
                       pattern);
}

Text StandardObject::FormatPeriod(OleDate InDate) const {
  if (isBlankDate(InDate)) return {};
  return FormatPattern("FormatPeriod", InDate, DayInEra(InDate, services_->Convention().era),
                       u"yyyy/mm");
}

Text StandardObject::FormatTPeriod(OleDate InDate) const {
  if (isBlankDate(InDate)) return {};
  return FormatPattern("FormatTPeriod", InDate, DayInEra(InDate, services_->Convention().era),
                       u"mm/yyyy");
}

}  // namespace ZQ7Standard
