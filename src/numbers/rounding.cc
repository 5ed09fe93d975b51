#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>

#include <limits>
#include <string>

#include "numbers/number_text.h"

namespace ZQ7Standard {
namespace {

constexpr std::int64_t kUnit = 10000;  // of a Currency

}  // namespace

double StandardObject::FixNumber2(double iValue, std::int16_t DecimalDigit,
                                  bool IgnoreNextDigit) const {
  if (DecimalDigit < 0) {
    throw RunTimeError::InvalidArgument("FixNumber2",
                                        std::to_string(DecimalDigit) + " decimal digits");
  }
  const auto number = ToDecimal(iValue);
  if (!number) throw RunTimeError::Overflow("FixNumber2", std::to_string(iValue));
  if (!IgnoreNextDigit) return ToDouble(RoundDecimals(*number, DecimalDigit));
  return ToDouble(CutDecimals(RoundDecimals(*number, DecimalDigit + 2), DecimalDigit));
}

double StandardObject::FixNumber(double iValue, std::int16_t DecimalDigit) const {
  return FixNumber2(iValue, DecimalDigit, false);
}

double StandardObject::Round(double iValue, std::int16_t DecimalDigit) const {
  return FixNumber2(iValue, DecimalDigit, false);
}

double StandardObject::Floor(double iValue) const {
  return FixNumber2(iValue, 0, true);
}

double StandardObject::Ceiling(double iValue) const {
  const double cut = Floor(iValue);
  return iValue > cut ? cut + 1 : cut;
}

double StandardObject::FixNumberWithCutMode(double iValue, std::int16_t DecimalDigit,
                                            ZQ7FixUnit CutMode) const {
  const double rounded = FixNumber2(iValue, DecimalDigit, false);
  const double cut = FixNumber2(rounded, 0, true);
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
    throw RunTimeError::Overflow("FixMoneyDecimal", Utf8(iValue.ToText()));
  }
  return Currency::FromScaled(whole + kUnit);
}

}  // namespace ZQ7Standard
