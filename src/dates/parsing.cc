#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>

#include "base/ascii.h"
#include "base/fields.h"
#include "base/raise.h"
#include "dates/date_math.h"
#include "dates/date_text.h"
#include "dates/eras.h"
#include "numbers/number_text.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

// The earliest year of a date, in the Buddhist Era.
constexpr int kFirstTypedYear = 100 + kBuddhistOffset;
constexpr int kLastTypedYear = 9999;
constexpr int kLastPeriodYear = kBlankYear - 1;

/// The number at the front of a field, rounded to a whole number; nullopt beyond 16 bits.
std::optional<int> ReadField(TextView field) {
  if (const auto digits = ReadShortNumber(field)) return *digits;
  const auto number = ReadLeadingNumber(field);
  return number ? RoundToInteger<std::int16_t>(*number) : std::nullopt;
}

/// The first fields of a text, assigned in the order of a system.
struct DayMonthYear {
  int day;
  int month;
  int year;
};

DayMonthYear InOrder(const std::array<int, 3>& fields, FieldOrder order) {
  const bool day_first = order == FieldOrder::kDayFirst;
  return {fields[day_first ? 0 : 1], fields[day_first ? 1 : 0], fields[2]};
}

/// A month and year typed year first, "2567/03".
struct Period {
  double year;
  double month;

  bool IsValid() const { return month >= 1 && month <= 12 && year >= 1 && year <= kLastPeriodYear; }
};

/// Reads the first four characters before the first "/" as the year, in the system's era, and the
/// last two after it as the month.
Period ReadPeriod(TextView text, Era era) {
  const auto whole_number = [](TextView digits) { return std::nearbyint(ReadTypedNumber(digits)); };
  if (text.find(u'/') == TextView::npos) return {0, 0};
  const TextView year = TakeField(text, u'/').substr(0, 4);
  TextView month = TakeField(text, u'/');
  month.remove_prefix(month.size() - std::min<std::size_t>(month.size(), 2));
  return {whole_number(year) - EraDifference(era), whole_number(month)};
}

std::optional<OleDate> ReadDate(ServiceSet& services, TextView text) {
  return ReadDateText(text, services.Convention(), services.Today().Year());
}

}  // namespace

OleDate StandardObject::CTDATE(TextView iText, bool /*NoUsedBackwardSupportOnly*/) const {
  if (iText.empty()) return {};
  std::array<int, 3> fields = {0, 0, 0};
  std::size_t count = 0;
  for (TextView rest = iText; !rest.empty(); ++count) {
    const auto field = ReadField(TakeField(rest, u'/'));
    if (!field) Raise(Error::kOverflow, {"CTDATE", "iText"}, iText);
    if (count < fields.size()) fields[count] = *field;
  }
  if (count < 2) Raise(Error::kSubscriptOutOfRange, {"CTDATE", "iText"}, iText);
  const DateConvention convention = services_->Convention();
  const auto [day, month, year] = InOrder(fields, convention.order);
  const auto date = DateInEra(month, day, year, convention.era);
  if (!date) Raise(Error::kTypeMismatch, {"CTDATE", "iText"}, iText);
  return *date;
}

bool StandardObject::IsTDate(TextView iText, bool /*NoUsedBackwardSupportOnly*/) const {
  std::array<int, 3> fields = {0, 0, 0};
  std::size_t count = 0;
  for (TextView rest = iText; !rest.empty(); ++count) {
    if (count == fields.size()) return false;
    const TextView text = TakeField(rest, u'/');
    if (count == 2 && text.size() != 4) return false;
    const auto digits = ReadShortNumber(text);
    const auto number = digits ? *digits : RoundToInteger<std::int32_t>(std::abs(StrVal(text)));
    if (!number) return false;
    fields[count] = *number;
  }
  if (count != fields.size()) return false;
  const DateConvention convention = services_->Convention();
  const auto [day, month, year] = InOrder(fields, convention.order);
  return year >= kFirstTypedYear && year <= kLastTypedYear &&
         DateInEra(month, day, year, convention.era).has_value();
}

OleDate StandardObject::CDATE2000(TextView iText) const {
  const auto date = ReadDate(*services_, iText);
  if (!date) return GETBlankDate();
  return AddYears(*date, GetEraDif()).value_or(GETBlankDate());
}

OleDate StandardObject::GETValidDate(TextView DateString) const {
  if (!IsTDateTime(DateString)) return services_->Today();
  try {
    return CTDATE(DateString);
  } catch (const RunTimeError&) {
    return services_->Today();
  }
}

bool StandardObject::IsTDateTime(TextView iText) const {
  return ReadDate(*services_, iText).has_value();
}

bool StandardObject::isMounthYear(TextView inMMYYYY) const {
  if (inMMYYYY.size() != 7) return false;
  const double month = StrVal(inMMYYYY.substr(0, 2));
  const double year = StrVal(inMMYYYY.substr(3));
  return month >= 1 && month <= 12 && year >= kFirstTypedYear;
}

OleDate StandardObject::GETDateFromTextYYYYMMDD(TextView iDateYYYY_MM_DD) const {
  const OleDate unreadable = *DateSerial(GetEraDif(), 3, 3);
  if (const auto date = ReadDate(*services_, iDateYYYY_MM_DD)) {
    const int year = Year2000(*date);
    if (year <= kLastGregorianKeyYear) return *date;
    return *DateSerial(year - kBuddhistOffset, date->Month(), date->Day());
  }
  Text digits;
  for (const char16_t c : iDateYYYY_MM_DD) {
    if (TextView(u"_ -/").find(c) == TextView::npos) digits.push_back(c);
  }
  if (digits.size() != 8 || !std::ranges::all_of(digits, IsAsciiDigit)) return unreadable;
  const auto number = [&digits](std::size_t start, std::size_t length) {
    return static_cast<int>(*ReadLeadingNumber(TextView(digits).substr(start, length)));
  };
  const int typed_year = number(0, 4);
  const int year = typed_year > kLastGregorianKeyYear ? typed_year - kBuddhistOffset : typed_year;
  Text dashed;
  AppendNumber(dashed, year, 4);
  dashed.append(u"-").append(digits, 4, 2).append(u"-").append(digits, 6, 2);
  return ReadDate(*services_, dashed) ? *DateSerial(year, number(4, 2), number(6, 2)) : unreadable;
}

OleDate StandardObject::CTPeriod(TextView iText) const {
  const Period period = ReadPeriod(iText, services_->Convention().era);
  if (!period.IsValid()) {
    const OleDate today = services_->Today();
    return today.AddDays(1 - today.Day());
  }
  return *DateSerial(static_cast<int>(period.year), static_cast<int>(period.month), 1);
}

bool StandardObject::IsTPeriod(TextView iText) const {
  return ReadPeriod(iText, services_->Convention().era).IsValid();
}

}  // namespace ZQ7Standard
