#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

#include "base/ascii.h"
#include "base/raise.h"
#include "dates/day_time_text.h"
#include "numbers/number_text.h"

namespace ZQ7Standard {
namespace {

constexpr double kFirstOf16Digits = 1e15;

/// Hours (below 1E+15) as whole minutes, rounded like the printed number of minutes.
std::int64_t WholeMinutes(double hours) {
  const double minutes = hours * 60;
  if (minutes < kFirstOf16Digits) {
    return static_cast<std::int64_t>(ToDouble(RoundDecimals(*ToDecimal(minutes), 0)));
  }
  const double whole = std::floor(hours);  // the minutes would not print exactly
  return static_cast<std::int64_t>(whole) * 60 + std::llround((hours - whole) * 60);
}

}  // namespace

double StandardObject::DAYTIME2DAY(TextView iDDHHMMText) const {
  const auto span = ReadDayTime(iDDHHMMText);
  if (!span) return StrVal(iDDHHMMText);
  const double hours = std::min(span->hours, 24.0);
  const double minutes = std::min(span->minutes, 60.0);
  return span->days + hours / 24 + minutes / 24 / 60;
}

Text StandardObject::DAY2DAYTIME(double iDay) const {
  constexpr double kMillisecondsPerMinute = 60 * 1000;
  constexpr double kMillisecondsPerDay = 24 * 60 * kMillisecondsPerMinute;
  const auto [days, milliseconds] = SplitDays(std::abs(iDay), kMillisecondsPerDay);
  const auto number = ToDecimal(days);
  if (!number) Raise(Error::kOverflow, {"DAY2DAYTIME", "iDay"}, iDay);
  const int minutes = static_cast<int>(milliseconds / kMillisecondsPerMinute);
  Text text = FormatDecimal(*number, 0, Grouping::kNone);
  text.push_back(u':');
  AppendNumber(text, minutes / 60, 2);
  text.push_back(u':');
  AppendNumber(text, minutes % 60, 2);
  return text;
}

Text StandardObject::FormatHour(double iHour) const {
  const double hours = std::abs(iHour);
  if (!(hours < kFirstOf16Digits)) {
    Raise(Error::kOverflow, {"FormatHour", "iHour"}, iHour);
  }
  const std::int64_t minutes = WholeMinutes(hours);
  Text text = iHour < 0 && minutes > 0 ? u"-" : u"";
  const Decimal whole{static_cast<std::uint64_t>(minutes / 60)};
  text += FormatDecimal(whole, 0, Grouping::kNone);
  text.push_back(u':');
  AppendNumber(text, static_cast<int>(minutes % 60), 2);
  return text;
}

bool StandardObject::isDayTime(TextView IDayTimeText, bool AcceptZeroValue) const {
  const auto span = ReadDayTimeOrDigits(IDayTimeText).value_or(DayTime{});
  return AcceptZeroValue || span.days != 0 || span.hours != 0 || span.minutes != 0;
}

}  // namespace ZQ7Standard
