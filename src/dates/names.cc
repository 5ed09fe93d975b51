#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <cstddef>

#include "dates/name_tables.h"

namespace ZQ7Standard {
namespace {

const MonthNames& Months(bool full, bool thai) {
  if (thai) return full ? kThaiMonths : kThaiShortMonths;
  return full ? kEnglishMonths : kEnglishShortMonths;
}

const DayNames& Days(bool full, bool thai) {
  if (thai) return full ? kThaiDays : kThaiShortDays;
  return full ? kEnglishDays : kEnglishShortDays;
}

}  // namespace

std::vector<Text> StandardObject::GETMonthTextArray(bool FullText, bool UseThai) const {
  const MonthNames& names = Months(FullText, UseThai);
  return {names.begin(), names.end()};
}

std::vector<Text> StandardObject::GETDayTextArray(bool FullText, bool UseThai) const {
  const DayNames& names = Days(FullText, UseThai);
  return {names.begin(), names.end()};
}

Text StandardObject::MonthText(std::int16_t MonthNumber, bool FullText, bool UseThai) const {
  const int month = MonthNumber < 0 ? 1 : std::min<int>(MonthNumber, 12);
  return Text(Months(FullText, UseThai)[static_cast<std::size_t>(month)]);
}

Text StandardObject::DayText(OleDate iDate, bool FullText, bool UseThai) const {
  return Text(Days(FullText, UseThai)[static_cast<std::size_t>(iDate.Weekday())]);
}

Text StandardObject::MonthYearTextFull(OleDate InDate) const {
  return FormatTDate2(InDate, ZQ7MMMYYYY);
}

}  // namespace ZQ7Standard
