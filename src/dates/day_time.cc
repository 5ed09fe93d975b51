#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "dates/day_time_text.h"
#include "numbers/number_text.h"
#include "text/ascii.h"

namespace ZQ7Standard {

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
  const double span = std::abs(iDay);
  double days = std::floor(span);
  double milliseconds = std::round((span - days) * kMillisecondsPerDay);
  if (milliseconds == kMillisecondsPerDay) {
    days += 1;
    milliseconds = 0;
  }
  const auto number = ToDecimal(days);
  if (!number) throw RunTimeError::Overflow("DAY2DAYTIME", std::to_string(iDay));
  const int minutes = static_cast<int>(milliseconds / kMillisecondsPerMinute);
  Text text = FormatDecimal(*number, 0, Grouping::kNone);
  text.push_back(u':');
  AppendNumber(text, minutes / 60, 2);
  text.push_back(u':');
  AppendNumber(text, minutes % 60, 2);
  return text;
}

bool StandardObject::isDayTime(TextView IDayTimeText, bool AcceptZeroValue) const {
  const auto span = ReadDayTimeOrDigits(IDayTimeText).value_or(DayTime{});
  return AcceptZeroValue || span.days != 0 || span.hours != 0 || span.minutes != 0;
}

}  // namespace ZQ7Standard
