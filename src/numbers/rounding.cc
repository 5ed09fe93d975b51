#include <ZQ7Standard/StandardObject.h>

#include <limits>
#include <string_view>

#include "base/raise.h"
#include "numbers/number_text.h"

namespace ZQ7Standard {
namespace {

constexpr std::int64_t kUnit = 10000;  // of a Currency

enum class Ending { kRounded, kCut };

/// Rounds or cuts `number` to `decimals` decimals.
double RoundOrCut(std::string_view operation, double number, int decimals, Ending ending) {
  if (decimals < 0) Raise(Error::kInvalidArgument, {operation, "DecimalDigit"}, decimals);
  const auto decimal = ToDecimal(number);
  if (!decimal) Raise(Error::kOverflow, {operation, "iValue"}, number);
  if (ending == Ending::kRounded) return ToDouble(RoundDecimals(*decimal, decimals));
  return ToDouble(CutDecimals(RoundDecimals(*decimal, decimals + 2), decimals));
}

}  // namespace

double StandardObject::FixNumber2(double iValue, std::int16_t DecimalDigit,
                                  bool IgnoreNextDigit) const {
  return RoundOrCut("FixNumber2", iValue, DecimalDigit,
                    IgnoreNextDigit ? Ending::kCut : Ending::kRounded);
}

double StandardObject::FixNumber(double iValue, std::int16_t DecimalDigit) const {
  return RoundOrCut("FixNumber", iValue, DecimalDigit, Ending::kRounded);
}

double StandardObject::Round(double iValue, std::int16_t DecimalDigit) const {
  return RoundOrCut("Round", iValue, DecimalDigit, Ending::kRounded);
}

double StandardObject::Floor(double iValue) const {
  return RoundOrCut("Floor", iValue, 0, Ending::kCut);
}

double StandardObject::Ceiling(double iValue) const {
  const double cut = RoundOrCut("Ceiling", iValue, 0, Ending::kCut);
  return iValue > cut ? cut + 1 : cut;
}

double StandardObject::FixNumberWithCutMode(double iValue, std::int16_t DecimalDigit,
                                            ZQ7FixUnit CutMode) const {
  constexpr auto kOperation = "FixNumberWithCutMode";
  const double rounded = RoundOrCut(kOperation, iValue, DecimalDigit, Ending::kRounded);
  const double cut = RoundOrCut(kOperation, rounded, 0, Ending::kCut);
  switch (CutMode) {
    case ZQ7FixUnitFiveUp:
      return cut + 0.5 > rounded ? cut : cut + 1;
    case ZQ7FixUnitAllUp:
      return rounded > cut ? cut + 1 : rounded;
    case ZQ7FixUnitAllDown:
      return cut;
    case ZQ7FixUnitNone:
      break;
  }
  return rounded;
}

Currency StandardObject::FixMoneyDecimal(Currency iValue, bool IncreaseToCeiling,
                                         TextView /*CelingList*/) const {
  const std::int64_t whole = iValue.Scaled() / kUnit * kUnit;
  if (iValue.Scaled() <= whole) return iValue;
  if (!IncreaseToCeiling) return Currency::FromScaled(whole);
  if (whole > std::numeric_limits<std::int64_t>::max() - kUnit) {
    Raise(Error::kOverflow, {"FixMoneyDecimal", "iValue"}, iValue);
  }
  return Currency::FromScaled(whole + kUnit);
}

}  // namespace ZQ7Standard
