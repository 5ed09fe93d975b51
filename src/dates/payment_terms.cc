#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include "base/raise.h"
#include "dates/date_math.h"
#include "numbers/number_text.h"

namespace ZQ7Standard {
namespace {

/// What the days of a term count from, and its suffix in text.
struct Condition {
  bool end_of_month;
  bool delivery_days;
  TextView short_suffix;
  TextView full_suffix;
};

// By `ZQ7ConditionType`. "BILL" and the last "DATE" are on printed documents although the members
// are named differently.
constexpr std::array<Condition, 9> kConditions = {{
    {false, false, u" AID", u" AFTER INVOICE DATE"},
    {false, true, u" ADD", u" AFTER DELIVERY DATE"},
    {false, true, u" ABD", u" AFTER BILL DATE"},
    {true, true, u" ARD", u" AFTER RECEIVE OS/DOC"},
    {true, false, u" AEIM", u" AFTER END OF INVOICE MONTH"},
    {true, true, u" AEDM", u" AFTER END OF DELIVERY MONTH"},
    {true, true, u" AEBM", u" AFTER END OF BILL MONTH"},
    {true, true, u" AERM", u" AFTER END OF RECEIVE OS/DOC MONTH"},
    {true, true, u" AESD", u" AFTER END OF SPT DATE"},
}};

const Condition* FindCondition(ZQ7ConditionType type) {
  if (type < ZQ7AfterInvoiceDate || type > ZQ7AfterEndOfSPTMonth) return nullptr;
  return &kConditions[static_cast<std::size_t>(type)];
}

/// The number that a float prints as, the shortest that reads back as the same float: 2.35 is 2.35,
/// not the 2.3499999 it holds, and 123456789 is 123456790.
Decimal ShortestDecimal(float value) {
  std::array<char, 16> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                 std::chars_format::scientific)
                       .ptr;
  double printed = 0;
  std::from_chars(digits.data(), end, printed);
  return WithoutEndingZeros(*ToDecimal(printed));
}

bool IsPositive(float value) {
  return value > 0 && value <= std::numeric_limits<float>::max();
}

template <typename Enumeration>
Enumeration ToEnumeration(float value) {
  return static_cast<Enumeration>(RoundToInteger<std::int32_t>(value).value_or(-1));
}

}  // namespace

OleDate StandardObject::GetConditionDueDate(OleDate InvoiceDate, ZQ7ConditionType ConditionType,
                                            std::int16_t NetDay, std::int16_t DeliveryDay) const {
  const Condition* const condition = FindCondition(ConditionType);
  if (!condition) return {};
  OleDate start = InvoiceDate;
  if (condition->end_of_month) {
    // The year is passed as the month and the month as the year: stored documents were made this
    // way, and their due dates must stay the same.
    const auto month = static_cast<std::int16_t>(InvoiceDate.Month());
    const auto year = static_cast<std::int16_t>(InvoiceDate.Year());
    // NOLINTNEXTLINE(readability-suspicious-call-argument)
    start = GETLastDayOfMonthYear(year, month);
  }
  const int days = NetDay + (condition->delivery_days ? DeliveryDay : 0);
  const auto due = DaysLater(start, days);
  if (!due) Raise(Error::kInvalidArgument, {"GetConditionDueDate", "NetDay"}, days);
  return *due;
}

Text StandardObject::FormatCondition2(float Condition1, std::int16_t ConditionDay1,
                                      ZQ7ConditionType ConditionType,
                                      ZQ7ConditionOutputType OutputType, float ConditionDay) const {
  if (!IsPositive(ConditionDay)) return u"CASH";
  Text text;
  text.reserve(48);
  if (IsPositive(Condition1) && ConditionDay1 > 0) {
    text.append(FormatDecimal(ShortestDecimal(Condition1), 1, Grouping::kThousands)).append(u"/");
    text.append(FormatDecimal(*ToDecimal(ConditionDay1), 0, Grouping::kThousands)).append(u", ");
  }
  const Decimal days = ShortestDecimal(ConditionDay);
  text.append(u"N/").append(FormatDecimal(days, std::max(0, -days.exponent), Grouping::kNone));
  const Condition* const known = FindCondition(ConditionType);
  const Condition& condition = known ? *known : kConditions.front();
  const bool full = OutputType == ZQ7ConditionOutputTypeFull;
  return text.append(full ? condition.full_suffix : condition.short_suffix);
}

Text StandardObject::FormatCondition(float Condition1, std::int16_t ConditionDay1,
                                     float ConditionType, float OutputType,
                                     float ConditionDay) const {
  return FormatCondition2(Condition1, ConditionDay1, ToEnumeration<ZQ7ConditionType>(ConditionType),
                          ToEnumeration<ZQ7ConditionOutputType>(OutputType), ConditionDay);
}

}  // namespace ZQ7Standard
