#include "moments.h"

#include <cmath>

namespace ZQ7Bindings {
namespace {

using std::chrono::days;
using std::chrono::local_days;
using ZQ7Standard::OleDate;

constexpr local_days kDayZero{std::chrono::year(1899) / 12 / 30};
constexpr local_days kLastDay{std::chrono::year(9999) / 12 / 31};

}  // namespace

double DayCount(const Moment& moment) {
  const auto day = static_cast<double>((moment.day - kDayZero).count());
  const double fraction =
      static_cast<double>(moment.microseconds) / static_cast<double>(kDayMicroseconds);
  const double count = day < 0 ? day - fraction : day + fraction;
  // A time just before midnight may not round to another day.
  return std::trunc(count) == day ? count : std::nextafter(count, 0);
}

Moment MomentOf(OleDate date) {
  const local_days day = date.Civil();
  const double time = date.TimeOfDay() * static_cast<double>(kDayMicroseconds);
  if (time == 0) return {day, 0};
  for (const std::int64_t step : {1'000'000, 1'000}) {
    const Moment round{day, std::llround(time / static_cast<double>(step)) * step};
    if (round.microseconds < kDayMicroseconds && DayCount(round) == date.Days()) return round;
  }
  const Moment nearest{day, std::llround(time)};
  if (nearest.microseconds < kDayMicroseconds) return nearest;
  // Less than a microsecond before midnight.
  return day == kLastDay ? Moment{day, kDayMicroseconds - 1} : Moment{day + days(1), 0};
}

Moment MomentAt(std::int64_t microseconds, local_days epoch) {
  const auto day = std::chrono::floor<days>(std::chrono::microseconds(microseconds));
  return {epoch + day, microseconds - day.count() * kDayMicroseconds};
}

std::int64_t MicrosecondsSince(local_days epoch, const Moment& moment) {
  return (moment.day - epoch).count() * kDayMicroseconds + moment.microseconds;
}

}  // namespace ZQ7Bindings
