#include <ZQ7Standard/StandardObject.h>

#include <cmath>
#include <limits>
#include <string>

#include "base/ascii.h"
#include "base/raise.h"
#include "numbers/number_text.h"

namespace ZQ7Standard {
namespace {

template <typename Integer>
Integer ToInteger(double value, std::string_view operation, TextView text) {
  const auto integer = RoundToInteger<Integer>(value);
  if (!integer) Raise(Error::kOverflow, {operation, "istr"}, text);
  return *integer;
}

}  // namespace

double StandardObject::StrVal(TextView istr) const {
  return StrVal2(istr, -1);
}

double StandardObject::StrVal2(TextView istr, std::int32_t DecimalDigit) const {
  const double value = ReadTypedNumber(istr);
  if (DecimalDigit == -1) return value;
  if (DecimalDigit < 0 || DecimalDigit > std::numeric_limits<std::int16_t>::max()) return 0;
  return FixNumber(value, static_cast<std::int16_t>(DecimalDigit));
}

std::int16_t StandardObject::StrInt(TextView istr, std::int32_t DecimalDigit) const {
  return ToInteger<std::int16_t>(StrVal2(istr, DecimalDigit), "StrInt", istr);
}

std::int32_t StandardObject::StrLng(TextView istr, std::int32_t DecimalDigit) const {
  return ToInteger<std::int32_t>(StrVal2(istr, DecimalDigit), "StrLng", istr);
}

float StandardObject::StrSng(TextView istr, std::int32_t DecimalDigit) const {
  const auto value = static_cast<float>(StrVal2(istr, DecimalDigit));
  if (std::isinf(value)) Raise(Error::kOverflow, {"StrSng", "istr"}, istr);
  return value;
}

double StandardObject::Null2Zero(std::optional<double> InputValue) const {
  return InputValue.value_or(0);
}

Text StandardObject::Numb(TextView iText, bool IncludeDot, bool IncludeSign) const {
  Text numeric;
  for (const char16_t c : iText) {
    const bool dot = IncludeDot && c == u'.';
    const bool sign = IncludeSign && (c == u'+' || c == u'-');
    if (IsAsciiDigit(c) || dot || sign) numeric.push_back(c);
  }
  return numeric;
}

Text StandardObject::Trim2Number(TextView iText, bool IncludeDot, bool IncludeSign) const {
  return Numb(iText, IncludeDot, IncludeSign);
}

double StandardObject::d2h(double iDay) const {
  return iDay * 24;
}

double StandardObject::d2m(double iDay) const {
  return iDay * 24 * 60;
}

double StandardObject::h2d(double iHour) const {
  return iHour / 24;
}

double StandardObject::m2d(double iMinute) const {
  return iMinute / 60 / 24;
}

Text StandardObject::d2Str(double iValue) const {
  const auto number = ToDecimal(iValue);
  if (!number) Raise(Error::kOverflow, {"d2Str", "iValue"}, iValue);
  return ShortestText(*number);
}

}  // namespace ZQ7Standard
