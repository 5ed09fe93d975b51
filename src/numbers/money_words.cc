#include <ZQ7Standard/BahtStringObject.h>

#include <cmath>

#include "base/ascii.h"
#include "base/case_mapping.h"
#include "base/replace.h"
#include "numbers/english_words.h"
#include "numbers/thai_words.h"

namespace ZQ7Standard {
namespace {

constexpr double kLargestAmount = 9999999999999.99;

constexpr TextView kThaiUnit = u"บาท";
constexpr TextView kThaiSubUnit = u"สตางค์";
constexpr TextView kEnglishUnit = u"baht";
constexpr TextView kEnglishSubUnit = u"satang";

/// The word for 1/100 of a unit.
TextView SubUnitOf(TextView unit) {
  if (unit == kThaiUnit) return kThaiSubUnit;
  const bool baht =
      EqualsIgnoringAsciiCase(unit, kEnglishUnit) || EqualsIgnoringAsciiCase(unit, u"THB");
  return baht ? kEnglishSubUnit : u"cent";
}

}  // namespace

Text BahtStringObject::MoneyText(double inDouble, bool useBreak, bool useEnglish, TextView NewUnit,
                                 TextView /*NewSubUnit*/) {
  unit_text_ = !NewUnit.empty() ? NewUnit : useEnglish ? kEnglishUnit : kThaiUnit;
  sub_unit_text_ = SubUnitOf(unit_text_);
  if (inDouble == 0) return useEnglish ? u"Zero" + unit_text_ : MoneyTextT(inDouble);
  if (std::abs(inDouble) > kLargestAmount) return {};
  Text words = useEnglish ? MoneyTextE(inDouble) : MoneyTextT(inDouble);
  if (words.empty()) return words;
  if (useEnglish && !NewUnit.empty()) {
    ReplaceAll(words, kEnglishUnit, ToLower(unit_text_));
    ReplaceAll(words, kEnglishSubUnit, ToLower(sub_unit_text_));
  }
  if (useBreak) return u"=" + words + u"=";
  return words;
}

Text BahtStringObject::BahtString(double inDouble, bool useBreak, bool useEnglish, TextView NewUnit,
                                  TextView NewSubUnit) {
  return MoneyText(inDouble, useBreak, useEnglish, NewUnit, NewSubUnit);
}

Text BahtStringObject::MoneyTextT(double inDouble) {
  if (unit_text_.empty()) unit_text_ = kThaiUnit;
  if (sub_unit_text_.empty()) sub_unit_text_ = kThaiSubUnit;
  return ThaiMoneyWords(inDouble, unit_text_, sub_unit_text_);
}

Text BahtStringObject::BahtStringT(double inDouble) {
  return MoneyTextT(inDouble);
}

Text BahtStringObject::MoneyTextE(double inDouble) {
  return EnglishMoneyWords(inDouble);
}

Text BahtStringObject::BahtStringE(double inDouble) {
  return MoneyTextE(inDouble);
}

Text BahtStringObject::MonthText(std::int16_t /*MonthNumber*/, bool /*FullText*/,
                                 bool /*UseThai*/) const {
  return {};
}

Text BahtStringObject::About() const {
  return u"ZQ7Standard, by the ZQ7Standard contributors";
}

}  // namespace ZQ7Standard
