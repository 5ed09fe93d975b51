#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

#include "base/raise.h"
#include "dates/civil.h"
#include "dates/date_math.h"
#include "dates/first_day_of_month.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

/// The day `months` months later, or earlier, for the operation called. The era is asked for only
/// if it matters.
OleDate MonthsLater(std::string_view operation, OleDate start, int months, const auto& era) {
  const int step = months > 0 ? 1 : -1;
  const auto civil = YearMonthDay(start);
  int year = static_cast<int>(civil.year());
  int month = static_cast<int>(static_cast<unsigned>(civil.month()));
  int day = static_cast<int>(static_cast<unsigned>(civil.day()));
  for (int i = 0; i < std::abs(months); ++i) {
    month += step;
    if (month < 1 || month > kMonthsPerYear) {
      year += step;
      month -= step * kMonthsPerYear;
      // A Gregorian system completes a two-digit year, as if typed.
      if (year == 99 && era() == Era::kGregorian) year = 1999;
    }
    day = std::min(day, DaysInMonth(year, month));
  }
  const auto date = DateFromParts(year, month, day);
  if (!date) {
    Raise(Error::kInvalidArgument, {operation, "InDate"}, start,
          std::to_string(months) + " months");
  }
  return *date;
}

}  // namespace

OleDate StandardObject::AddMonth(OleDate InDate, std::int16_t NumberOfMonth) const {
  const int months = NumberOfMonth == 0 ? 1 : NumberOfMonth;
  return MonthsLater("AddMonth", InDate, months, [this] { return services_->Convention().era; });
}

OleDate StandardObject::AddYear(OleDate InDate, std::int16_t NumberOfYear) const {
  const int months = (NumberOfYear == 0 ? 1 : NumberOfYear) * kMonthsPerYear;
  using Limits = std::numeric_limits<std::int16_t>;
  if (months < Limits::min() || months > Limits::max()) {
    Raise(Error::kOverflow, {"AddYear", "NumberOfYear"}, NumberOfYear);
  }
  return MonthsLater("AddYear", InDate, months, [this] { return services_->Convention().era; });
}

OleDate StandardObject::GETFirstDayOfMonthYear(std::int16_t iMonth, std::int16_t iYear2000) const {
  return FirstDayOfMonth("GETFirstDayOfMonthYear", iMonth, iYear2000, services_->Convention().era);
}

OleDate StandardObject::GETLastDayOfMonthYear(std::int16_t iMonth, std::int16_t iYear2000) const {
  const auto first = DateSerial(iYear2000, iMonth, 1);
  if (!first) {
    Raise(Error::kInvalidArgument, {"GETLastDayOfMonthYear", "iYear2000"}, iYear2000);
  }
  return first->AddDays(DaysInMonth(first->Year(), first->Month()) - 1);
}

}  // namespace ZQ7Standard
