#include "dates/civil.h"

#include <array>
#include <cstddef>

namespace ZQ7Standard {
namespace {

using std::chrono::days;
using std::chrono::local_days;
using std::chrono::year_month_day;

constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;

// The first year that a day of `std::chrono` can have.
constexpr int kFirstChronoYear = -32767;
constexpr int kLastChronoYear = 32767;

bool HasYear(int year) {
  return year >= kFirstYear && year <= kLastYear;
}

}  // namespace

int DaysInMonth(int year, int month) {
  constexpr std::array kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap_day = month == 2 && std::chrono::year(year).is_leap();
  return kDays[static_cast<std::size_t>(month - 1)] + (leap_day ? 1 : 0);
}

bool IsCivilDay(int year, int month, int day) {
  const bool is_month = month >= 1 && month <= kMonthsPerYear;
  return HasYear(year) && is_month && day >= 1 && day <= DaysInMonth(year, month);
}

std::optional<local_days> CarriedDay(int year, int month, int day) {
  const int months = year * kMonthsPerYear + month - 1;
  const int civil_year = (months >= 0 ? months : months - (kMonthsPerYear - 1)) / kMonthsPerYear;
  if (civil_year < kFirstChronoYear || civil_year > kLastChronoYear) return std::nullopt;
  const local_days first(Civil(civil_year, months - civil_year * kMonthsPerYear + 1, 1));
  const local_days result = first + days(day - 1);
  if (!HasYear(static_cast<int>(year_month_day(result).year()))) return std::nullopt;
  return result;
}

std::optional<local_days> YearsLater(local_days day, int years) {
  const year_month_day civil(day);
  const std::chrono::year year = civil.year() + std::chrono::years(years);
  if (!HasYear(static_cast<int>(year))) return std::nullopt;
  const year_month_day later = year / civil.month() / civil.day();
  return local_days(later.ok() ? later : year / std::chrono::February / 28);
}

}  // namespace ZQ7Standard
