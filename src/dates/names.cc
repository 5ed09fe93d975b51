#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <cstddef>

#include "dates/name_tables.h"

namespace ZQ7Standard {
namespace {

constexpr Language LanguageOf(bool use_thai) {
  return use_thai ? Language::kThai : Language::kEnglish;
}

}  // namespace

std::vector<Text> StandardObject::GETMonthTextArray(bool FullText, bool UseThai) const {
  const MonthNames& names = MonthNamesIn(LanguageOf(UseThai), FullText);
  return {names.begin(), names.end()};
}

std::vector<Text> StandardObject::GETDayTextArray(bool FullText, bool UseThai) const {
  const DayNames& names = DayNamesIn(LanguageOf(UseThai), FullText);
  return {names.begin(), names.end()};
}

Text StandardObject::MonthText(std::int16_t MonthNumber, bool FullText, bool UseThai) const {
  const int month = MonthNumber < 0 ? 1 : std::min<int>(MonthNumber, 12);
  return Text(MonthNamesIn(LanguageOf(UseThai), FullText)[static_cast<std::size_t>(month)]);
}

Text StandardObject::DayText(OleDate iDate, bool FullText, bool UseThai) const {
  const DayNames& names = DayNamesIn(LanguageOf(UseThai), FullText);
  return Text(names[static_cast<std::size_t>(iDate.Weekday())]);
}

Text StandardObject::MonthYearTextFull(OleDate InDate) const {
  return FormatTDate2(InDate, ZQ7MMMYYYY);
}

}  // namespace ZQ7Standard
