#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <cstddef>

#include "base/ascii.h"
#include "base/fields.h"
#include "base/replace.h"
#include "dates/day_time_text.h"
#include "numbers/number_text.h"

namespace ZQ7Standard {
namespace {

constexpr int kHoursPerDay = 24;
constexpr int kMinutesPerHour = 60;
constexpr int kMinutesPerDay = kHoursPerDay * kMinutesPerHour;

struct ClockTime {
  int hour = 0;
  int minute = 0;

  bool IsValid() const { return hour < kHoursPerDay && minute < kMinutesPerHour; }
};

/// The hour and minute of four digits "HHMM", which may be out of range; nullopt for other text.
std::optional<ClockTime> ReadFourDigits(TextView text) {
  const auto digits = text.size() == 4 ? ReadShortNumber(text) : std::nullopt;
  if (!digits) return std::nullopt;
  return ClockTime{*digits / 100, *digits % 100};
}

Text Without(TextView text, TextView characters) {
  Text rest;
  for (const char16_t c : text) {
    if (characters.find(c) == TextView::npos) rest.push_back(c);
  }
  return rest;
}

/// The last `count` characters of `text`, padded with leading zeros.
Text LastPadded(const Text& text, std::size_t count) {
  const Text padded = Text(count, u'0') + text;
  return padded.substr(padded.size() - count);
}

}  // namespace

OleDate StandardObject::CTTime(TextView ITimeText) const {
  const auto time = ReadFourDigits(ITimeText);
  if (!time || !time->IsValid()) return {};
  // Calculated in this order, to the last bit: hosts compare dates for equality.
  return OleDate(h2d(time->hour + static_cast<double>(time->minute) / kMinutesPerHour));
}

bool StandardObject::isTTime(TextView ITimeText) const {
  const auto time = ReadFourDigits(ITimeText);
  return time && time->IsValid();
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
  for (const TextView mark : {u"AM", u"PM"}) ReplaceAll(digits, mark, {});
  // With seconds, the hour and minute are the first four of six digits.
  const Text hour_minute = LastPadded(digits, colons > 1 ? 6 : 4).substr(0, 4);
  const auto typed = ReadFourDigits(hour_minute);
  if (!typed) return {};
  const ClockTime time = {(typed->hour + (afternoon ? 12 : 0)) % kHoursPerDay, typed->minute};
  const int minutes = time.hour * kMinutesPerHour + time.minute;
  return OleDate(time.IsValid() ? minutes / static_cast<double>(kMinutesPerDay) : 0);
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
