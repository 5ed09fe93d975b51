#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <cstddef>

#include "dates/day_time_text.h"
#include "numbers/number_text.h"
#include "text/ascii.h"
#include "text/pieces.h"

namespace ZQ7Standard {
namespace {

constexpr int kHoursPerDay = 24;
constexpr int kMinutesPerHour = 60;

/// The four digits "HHMM" as a number, 930 for "0930"; nothing for other text.
std::optional<int> FourDigits(TextView text) {
  return text.size() == 4 ? ReadShortNumber(text) : std::nullopt;
}

/// The time of day of 930 (9:30) as a fraction of a day; nothing when it is no
/// time from 0:00 to 23:59.
std::optional<double> TimeOfDay(int hour_minute) {
  const int hour = hour_minute / 100;
  const int minute = hour_minute % 100;
  if (hour >= kHoursPerDay || minute >= kMinutesPerHour) return std::nullopt;
  return (hour * kMinutesPerHour + minute) / static_cast<double>(kHoursPerDay * kMinutesPerHour);
}

std::optional<double> ReadFourDigitTime(TextView text) {
  const auto digits = FourDigits(text);
  return digits ? TimeOfDay(*digits) : std::nullopt;
}

Text Without(TextView text, TextView characters) {
  Text rest;
  for (const char16_t c : text) {
    if (characters.find(c) == TextView::npos) rest.push_back(c);
  }
  return rest;
}

void RemoveAll(Text& text, TextView part) {
  for (std::size_t at = 0; (at = text.find(part, at)) != Text::npos;) text.erase(at, part.size());
}

/// The last `count` characters of `text` after enough zeros.
Text LastPadded(const Text& text, std::size_t count) {
  const Text padded = Text(count, u'0') + text;
  return padded.substr(padded.size() - count);
}

}  // namespace

OleDate StandardObject::CTTime(TextView ITimeText) const {
  return OleDate(ReadFourDigitTime(ITimeText).value_or(0));
}

bool StandardObject::isTTime(TextView ITimeText) const {
  return ReadFourDigitTime(ITimeText).has_value();
}

OleDate StandardObject::Str2AddDay(TextView InTime, std::int16_t StartValue) const {
  const Text digits = Without(InTime, u":.");
  const bool next_day = digits.size() == 4 && StrVal(digits) >= 2400;
  return OleDate(next_day ? 1 : StartValue);
}

OleDate StandardObject::Str2TIME(TextView InTime) const {
  const auto colons = std::ranges::count(InTime, u':');
  Text upper(InTime);
  std::ranges::transform(upper, upper.begin(), AsciiUpper);
  const bool afternoon = upper.find(u"PM") != Text::npos;
  Text digits = Without(upper, u" :.");
  RemoveAll(digits, u"AM");
  RemoveAll(digits, u"PM");
  // With seconds the hour and minute are the first four of six digits.
  const Text hour_minute = LastPadded(digits, colons > 1 ? 6 : 4).substr(0, 4);
  const auto number = FourDigits(hour_minute);
  if (!number) return {};
  return OleDate(TimeOfDay((*number + (afternoon ? 1200 : 0)) % 2400).value_or(0));
}

double StandardObject::CTHour(TextView ITimeText) const {
  TextView digits = TrimFront(ITimeText);
  const bool negative = digits.starts_with(u'-');
  if (negative) digits.remove_prefix(1);
  const auto span = ReadDayTime(digits);
  if (!span) return StrVal(ITimeText);
  const double hours = span->hours + std::min(span->minutes, 60.0) / kMinutesPerHour;
  return negative ? 0 - hours : hours;
}

bool StandardObject::isHour(TextView IHourText, bool AcceptZeroValue) const {
  const auto span = ReadDayTimeOrDigits(IHourText).value_or(DayTime{});
  return AcceptZeroValue || span.hours != 0 || span.minutes != 0;
}

}  // namespace ZQ7Standard
