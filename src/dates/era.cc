#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <array>

#include "dates/eras.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

using std::chrono::local_days;
using std::chrono::year;

constexpr local_days BlankDay(int blank_year) {
  return local_days(year(blank_year) / 3 / 3);
}

constexpr local_days OlderBlankDay(int blank_year) {
  return local_days(year(blank_year) / 8 / 8);
}

// Besides the two blank dates: those converted between eras once too often, and the zero date.
constexpr std::array<local_days, 6> kBlankDays = {BlankDay(kBlankYear),
                                                  BlankDay(kBlankYear + kBuddhistOffset),
                                                  BlankDay(kBlankYear - kBuddhistOffset),
                                                  OlderBlankDay(kOlderBlankYear),
                                                  OlderBlankDay(kOlderBlankYear - kBuddhistOffset),
                                                  local_days(year(1899) / 12 / 30)};

}  // namespace

std::int16_t StandardObject::GetEraDif() const {
  return static_cast<std::int16_t>(EraDifference(services_->Convention().era));
}

std::int16_t StandardObject::CTYEAR() const {
  return static_cast<std::int16_t>(services_->Today().Year() + GetEraDif());
}

std::int16_t StandardObject::Year2000(OleDate InDate) const {
  return static_cast<std::int16_t>(YearInEra(InDate.Year(), services_->Convention().era));
}

std::int16_t StandardObject::GetDateFormat() const {
  const DateConvention convention = services_->Convention();
  const bool month_first = convention.order == FieldOrder::kMonthFirst;
  if (convention.era == Era::kBuddhist) return month_first ? ZQ7MDBBBB : ZQ7DMBBBB;
  return month_first ? ZQ7MDYYYY : ZQ7DMYYYY;
}

Text StandardObject::GetDateFormatString(std::int16_t DateFormat) const {
  switch (DateFormat) {
    case ZQ7MDYYYY:
    case ZQ7MDBBBB:
      return u"m/d/yyyy";
    case ZQ7DMYYYY:
    case ZQ7DMBBBB:
      return u"d/m/yyyy";
    default:
      return {};
  }
}

OleDate StandardObject::GETBlankDate() const {
  return OleDate::FromCivil(kBlankDays.front());
}

OleDate StandardObject::GETMAXDate() const {
  return GETBlankDate();
}

bool StandardObject::isBlankDate(OleDate iDate) const {
  return std::ranges::count(kBlankDays, iDate.Civil()) > 0 && iDate.TimeOfDay() == 0;
}

OleDate StandardObject::TrimDate(OleDate iDate) const {
  return OleDate::FromCivil(iDate.Civil());
}

}  // namespace ZQ7Standard
