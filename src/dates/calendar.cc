#include <ZQ7Standard/StandardObject.h>

#include <chrono>

#include "dates/date_math.h"
#include "dates/first_day_of_month.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

using std::chrono::local_days;
using std::chrono::Saturday;
using std::chrono::Sunday;
using std::chrono::weekday;
using std::chrono::year_month_day;

constexpr int kLastDayOfFirstPeriod = 15;

weekday WeekdayOf(year_month_day day) {
  return weekday(local_days(day));
}

/// The first `wanted` weekday on or after `date`.
OleDate NextOrSame(OleDate date, weekday wanted) {
  return date.AddDays((wanted - WeekdayOf(MeantDay(date))).count());
}

}  // namespace

OleDate StandardObject::GETFirstMondayOfMonthYear(std::int16_t iMonth,
                                                  std::int16_t iYear2000) const {
  const OleDate first =
      FirstDayOfMonth("GETFirstMondayOfMonthYear", iMonth, iYear2000, services_->Convention().era);
  return NextOrSame(first, std::chrono::Monday);
}

OleDate StandardObject::GETFirstSaturdayOfMonthYear(std::int16_t iMonth,
                                                    std::int16_t iYear2000) const {
  const OleDate first = FirstDayOfMonth("GETFirstSaturdayOfMonthYear", iMonth, iYear2000,
                                        services_->Convention().era);
  return NextOrSame(first, Saturday);
}

std::int16_t StandardObject::GETWeekOfMonth(OleDate InDate) const {
  if (isBlankDate(InDate)) return 0;
  const year_month_day day = MeantDay(InDate);
  const weekday first = WeekdayOf(day.year() / day.month() / 1);
  const auto days_from_sunday = (first - Sunday).count() + static_cast<unsigned>(day.day()) - 1;
  return static_cast<std::int16_t>(days_from_sunday / 7 + 1);
}

std::int16_t StandardObject::GETPeriodOfMonth(OleDate InDate) const {
  if (isBlankDate(InDate)) return 0;
  return InDate.Day() <= kLastDayOfFirstPeriod ? 1 : 2;
}

bool StandardObject::ISWeekHoliday(OleDate InDate) const {
  if (isBlankDate(InDate)) return false;
  const weekday day = WeekdayOf(MeantDay(InDate));
  return day == Saturday || day == Sunday;
}

}  // namespace ZQ7Standard
