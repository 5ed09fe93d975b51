#include "dates/date_math.h"

#include <algorithm>
#include <cmath>

#include "dates/civil.h"
#include "dates/eras.h"

namespace ZQ7Standard {
namespace {

using std::chrono::local_days;
using std::chrono::year_month_day;

constexpr double kFirstDay = -657434;  // 0100-01-01

std::optional<OleDate> DateOf(std::optional<local_days> day) {
  if (!day) return std::nullopt;
  return OleDate::FromCivil(*day);
}

}  // namespace

bool IsInRange(double days) {
  // The times of the first day count away from zero, like those of the last.
  return days > kFirstDay - 1 && days < kLastDay + 1;
}

year_month_day YearMonthDay(OleDate date) {
  return year_month_day(date.Civil());
}

year_month_day MeantDay(OleDate date) {
  const year_month_day own = YearMonthDay(date);
  const std::chrono::year year(MeantYear(static_cast<int>(own.year())));
  const year_month_day meant = year / own.month() / own.day();
  return meant.ok() ? meant : year / std::chrono::February / 28;
}

std::optional<OleDate> DateFromParts(int year, int month, int day) {
  if (!IsCivilDay(year, month, day)) return std::nullopt;
  return OleDate::FromCivil(local_days(Civil(year, month, day)));
}

std::optional<OleDate> DateSerial(int year, int month, int day) {
  const bool is_short = year >= 0 && year <= 99;
  return DateOf(CarriedDay(is_short ? CompletedYear(year, Era::kGregorian) : year, month, day));
}

std::optional<OleDate> AddYears(OleDate date, int years) {
  const auto result = DateOf(YearsLater(date.Civil(), years));
  if (!result) return std::nullopt;
  return AtTime(*result, date.TimeOfDay());
}

std::optional<OleDate> DaysLater(OleDate date, std::int64_t days) {
  const double day = std::trunc(date.Days()) + static_cast<double>(days);
  if (!IsInRange(day)) return std::nullopt;
  return AtTime(OleDate(day), date.TimeOfDay());
}

OleDate AtTime(OleDate day, double time_of_day) {
  const double midnight = day.Days();
  return OleDate(midnight < 0 ? midnight - time_of_day : midnight + time_of_day);
}

int MillisecondsOfDay(OleDate date) {
  constexpr int kMillisecondsPerDay = 86'400'000;
  const double milliseconds = std::round(date.TimeOfDay() * kMillisecondsPerDay);
  return std::min(static_cast<int>(milliseconds), kMillisecondsPerDay - 1);
}

}  // namespace ZQ7Standard
