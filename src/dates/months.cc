#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <limits>
#include <string>

#include "dates/civil.h"
#include "dates/date_text.h"

namespace ZQ7Standard {
namespace {

constexpr int kMonthsPerYear = 12;

/// The month after `date`, or before it when `step` is -1, as the system reads
/// "Mon/day/year": on the same day, or on the last one that the month has.
/// Nothing when no day of that month is a date.
std::optional<OleDate> OneMonth(OleDate date, int step, Era era) {
  const auto civil = YearMonthDay(date);
  int year = static_cast<int>(civil.year()) + EraDifference(era);
  int month = static_cast<int>(static_cast<unsigned>(civil.month())) + step;
  if (month > kMonthsPerYear || month < 1) {
    year += step;
    month -= step * kMonthsPerYear;
  }
  for (int day = static_cast<int>(static_cast<unsigned>(civil.day())); day > 0; --day) {
    if (const auto result = ReadNamedMonthDate(month, day, year, era)) return result;
  }
  return std::nullopt;
}

/// Three numbers of a call, for the message of an error.
std::string Describe(OleDate date, int months) {
  return std::to_string(date.Days()) + " days, " + std::to_string(months) + " months";
}

}  // namespace

OleDate StandardObject::AddMonth(OleDate InDate, std::int16_t NumberOfMonth) const {
  const Era era = Convention().era;
  const int months = NumberOfMonth == 0 ? 1 : NumberOfMonth;
  std::optional<OleDate> date = InDate;
  for (int i = 0; i < std::abs(months) && date; ++i)
    date = OneMonth(*date, months > 0 ? 1 : -1, era);
  if (!date) throw RunTimeError::InvalidArgument("AddMonth", Describe(InDate, months));
  return *date;
}

OleDate StandardObject::AddYear(OleDate InDate, std::int16_t NumberOfYear) const {
  const int months = (NumberOfYear == 0 ? 1 : NumberOfYear) * kMonthsPerYear;
  using Limits = std::numeric_limits<std::int16_t>;
  if (months < Limits::min() || months > Limits::max()) {
    throw RunTimeError::Overflow("AddYear", std::to_string(NumberOfYear) + " years");
  }
  return AddMonth(InDate, static_cast<std::int16_t>(months));
}

OleDate StandardObject::GETFirstDayOfMonthYear(std::int16_t iMonth, std::int16_t iYear2000) const {
  const Era era = Convention().era;
  const int year = iYear2000 + EraDifference(era);
  const std::string input = std::to_string(iMonth) + ", " + std::to_string(iYear2000);
  if (year > std::numeric_limits<std::int16_t>::max()) {
    throw RunTimeError::Overflow("GETFirstDayOfMonthYear", input);
  }
  const int month = iMonth < 0 ? 1 : std::min<int>(iMonth, kMonthsPerYear);
  const auto date = ReadNamedMonthDate(month, 1, year, era);
  if (!date) throw RunTimeError::TypeMismatch("GETFirstDayOfMonthYear", input);
  return *date;
}

OleDate StandardObject::GETLastDayOfMonthYear(std::int16_t iMonth, std::int16_t iYear2000) const {
  const auto first = DateSerial(iYear2000, iMonth, 1);
  if (!first) {
    throw RunTimeError::InvalidArgument("GETLastDayOfMonthYear",
                                        std::to_string(iMonth) + ", " + std::to_string(iYear2000));
  }
  return first->AddDays(DaysInMonth(first->Year(), first->Month()) - 1);
}

}  // namespace ZQ7Standard
