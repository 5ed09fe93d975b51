#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string>

#include "base/raise.h"
#include "dates/date_math.h"
#include "dates/day_time_text.h"
#include "numbers/number_text.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

constexpr double kSecondsPerDay = 24 * 60 * 60;

/// The name of a unit of time.
struct UnitName {
  TextView one;
  TextView many;
  TextView thai;
};

// From the largest to the smallest.
constexpr std::size_t kUnits = 4;
constexpr std::array<UnitName, kUnits> kUnitNames = {{
    {u"day", u"days", u"วัน"},
    {u"hour", u"hours", u"ชั่วโมง"},
    {u"minute", u"minutes", u"นาที"},
    {u"second", u"seconds", u"วินาที"},
}};

/// A count for each unit of time.
using Counts = std::array<double, kUnits>;

/// Splits a span of 0 or more days, rounded to the second, into units.
Counts UnitsOf(double span) {
  const auto [days, seconds] = SplitDays(span, kSecondsPerDay);
  const double minutes = std::floor(seconds / 60);
  const double hours = std::floor(minutes / 60);
  return {days, hours, minutes - hours * 60, seconds - minutes * 60};
}

TextView NameOf(std::size_t unit, double count, bool thai) {
  const UnitName& name = kUnitNames[unit];
  if (thai) return name.thai;
  return count == 1 ? name.one : name.many;
}

/// The days from `start` to `end`. Their day counts cannot be subtracted: before 1899-12-30 the
/// fraction counts the other way.
double DaysBetween(OleDate start, OleDate end) {
  const auto days = static_cast<double>((end.Civil() - start.Civil()).count());
  return days + (end.TimeOfDay() - start.TimeOfDay());
}

}  // namespace

OleDate StandardObject::TimeLeftDateTime(OleDate StartDate, double DoneCount,
                                         double TotalCount) const {
  const double elapsed = DaysBetween(StartDate, services_->Now());
  if (!(elapsed > 0 && DoneCount > 0 && DoneCount < TotalCount)) return {};
  return OleDate(std::min(elapsed * (TotalCount - DoneCount) / DoneCount, kLastDay));
}

Text StandardObject::FormatTimeleft(double TimeLeft, std::optional<bool> UseThai) const {
  if (!std::isfinite(TimeLeft)) {
    Raise(Error::kOverflow, {"FormatTimeleft", "TimeLeft"}, TimeLeft);
  }
  const bool thai = UseThai ? *UseThai : services_->Convention().era == Era::kBuddhist;
  const Counts counts = UnitsOf(std::max(TimeLeft, 0.0));
  Text text;
  int written = 0;
  for (std::size_t unit = 0; unit < kUnits && written < 2; ++unit) {
    const double count = counts[unit];
    const bool is_none_left = unit + 1 == kUnits && written == 0;
    if (count == 0 && !is_none_left) continue;
    if (written > 0) text.push_back(u' ');
    text.append(FormatDecimal(*ToDecimal(count), 0, Grouping::kNone)).push_back(u' ');
    text.append(NameOf(unit, count, thai));
    ++written;
  }
  return text;
}

Text StandardObject::TimeLeftText(OleDate StartDate, double DoneCount, double TotalCount,
                                  std::optional<bool> UseThai) const {
  if (DoneCount <= 0 && DoneCount < TotalCount) return {};
  return FormatTimeleft(TimeLeftDateTime(StartDate, DoneCount, TotalCount).Days(), UseThai);
}

}  // namespace ZQ7Standard
