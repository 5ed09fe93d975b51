#include "dates/civil.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace ZQ7Standard {
namespace {

using std::chrono::days;
using std::chrono::local_days;
using std::chrono::year_month_day;

constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;
constexpr double kFirstDay = -657434;  // 0100-01-01

bool HasYear(int year) {
  return year >= kFirstYear && year <= kLastYear;
}

year_month_day Civil(int year, int month, int day) {
  return {std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
          std::chrono::day(static_cast<unsigned>(day))};
}

int DateSerialYear(int year) {
  if (year < 0 || year > 99) return year;
  return year < 30 ? 2000 + year : 1900 + year;
}

}  // namespace

year_month_day MeantDay(OleDate date) {
  const year_month_day own = YearMonthDay(date);
  const std::chrono::year year(MeantYear(static_cast<int>(own.year())));
  const year_month_day meant = year / own.month() / own.day();
  return meant.ok() ? meant : year / std::chrono::February / 28;
}

year_month_day YearMonthDay(OleDate date) {
  return year_month_day(date.Civil());
}

std::optional<OleDate> DateFromParts(int year, int month, int day) {
  if (!HasYear(year) || month < 1 || month > 12 || day < 1 || day > DaysInMonth(year, month)) {
    return std::nullopt;
  }
  return OleDate::FromCivil(local_days(Civil(year, month, day)));
}

std::optional<OleDate> DateSerial(int year, int month, int day) {
  const int months = DateSerialYear(year) * 12 + month - 1;
  const int civil_year = months >= 0 ? months / 12 : (months - 11) / 12;
  if (civil_year < -32767 || civil_year > 32767) return std::nullopt;
  const local_days first(Civil(civil_year, months - civil_year * 12 + 1, 1));
  const local_days result = first + days(day - 1);
  if (!HasYear(static_cast<int>(year_month_day(result).year()))) return std::nullopt;
  return OleDate::FromCivil(result);
}

std::optional<OleDate> AddYears(OleDate date, int years) {
  const year_month_day civil = YearMonthDay(date);
  const int year = static_cast<int>(civil.year()) + years;
  const int month = static_cast<int>(static_cast<unsigned>(civil.month()));
  const int day = static_cast<int>(static_cast<unsigned>(civil.day()));
  const bool cut = month == 2 && day == 29 && !std::chrono::year(year).is_leap();
  const auto result = DateFromParts(year, month, cut ? 28 : day);
  if (!result) return std::nullopt;
  return AtTime(*result, date.TimeOfDay());
}

int DaysInMonth(int year, int month) {
  constexpr std::array kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap_day = month == 2 && std::chrono::year(year).is_leap();
  return kDays[static_cast<std::size_t>(month - 1)] + (leap_day ? 1 : 0);
}

std::optional<OleDate> DaysLater(OleDate date, std::int64_t days) {
  const double day = std::trunc(date.Days()) + static_cast<double>(days);
  if (!IsInRange(day)) return std::nullopt;
  return AtTime(OleDate(day), date.TimeOfDay());
}

bool IsInRange(double days) {
  // The times of the first day count away from zero, as those of the last do.
  return days > kFirstDay - 1 && days < kLastDay + 1;
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
