#include <ZQ7Standard/Types.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

#include "base/ascii.h"
#include "base/raise.h"
#include "dates/date_math.h"

namespace ZQ7Standard {
namespace {

using std::chrono::local_days;
using std::chrono::year_month_day;

constexpr local_days kDayZero{std::chrono::year(1899) / 12 / 30};

}  // namespace

OleDate::OleDate(double days) : days_(days) {
  if (!IsInRange(days)) {
    Raise(Error::kInvalidArgument, {"OleDate", "days"}, days);
  }
}

OleDate OleDate::FromParts(int year, int month, int day, int hour, int minute, int second) {
  const auto date = DateFromParts(year, month, day);
  const bool is_time =
      hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59 && second >= 0 && second <= 59;
  if (!date || !is_time) {
    std::string parts;
    for (const int part : {year, month, day, hour, minute, second}) {
      parts.append(parts.empty() ? "" : ", ").append(std::to_string(part));
    }
    Raise(Error::kInvalidArgument, {"OleDate::FromParts"}, FromUtf8(parts));
  }
  return AtTime(*date, (hour * 3600 + minute * 60 + second) / 86400.0);
}

OleDate OleDate::FromCivil(local_days day) {
  return OleDate(static_cast<double>((day - kDayZero).count()));
}

double OleDate::TimeOfDay() const {
  return std::abs(days_ - static_cast<int>(days_));
}

local_days OleDate::Civil() const {
  return kDayZero + std::chrono::days(static_cast<int>(days_));
}

int OleDate::Year() const {
  return static_cast<int>(year_month_day(Civil()).year());
}

int OleDate::Month() const {
  return static_cast<int>(static_cast<unsigned>(year_month_day(Civil()).month()));
}

int OleDate::Day() const {
  return static_cast<int>(static_cast<unsigned>(year_month_day(Civil()).day()));
}

int OleDate::Weekday() const {
  return static_cast<int>(std::chrono::weekday(Civil()).c_encoding()) + 1;
}

int OleDate::Hour() const {
  return MillisecondsOfDay(*this) / 3600000;
}

int OleDate::Minute() const {
  return MillisecondsOfDay(*this) / 60000 % 60;
}

int OleDate::Second() const {
  return MillisecondsOfDay(*this) / 1000 % 60;
}

OleDate OleDate::AddDays(std::int64_t days) const {
  const auto later = DaysLater(*this, days);
  if (!later) Raise(Error::kInvalidArgument, {"OleDate::AddDays", "days"}, days);
  return *later;
}

Text OleDate::ToText() const {
  Text text;
  AppendNumber(text, Year(), 4);
  AppendNumber(text += u'-', Month(), 2);
  AppendNumber(text += u'-', Day(), 2);
  if (TimeOfDay() == 0) return text;
  AppendNumber(text += u' ', Hour(), 2);
  AppendNumber(text += u':', Minute(), 2);
  AppendNumber(text += u':', Second(), 2);
  return text;
}

bool operator==(OleDate a, OleDate b) {
  return (a <=> b) == std::weak_ordering::equivalent;
}

std::weak_ordering operator<=>(OleDate a, OleDate b) {
  if (a.Civil() != b.Civil()) return a.Civil() <=> b.Civil();
  // Neither can be NaN.
  if (a.TimeOfDay() < b.TimeOfDay()) return std::weak_ordering::less;
  if (a.TimeOfDay() > b.TimeOfDay()) return std::weak_ordering::greater;
  return std::weak_ordering::equivalent;
}

}  // namespace ZQ7Standard
