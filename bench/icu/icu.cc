#include "bench/icu/icu.h"

#include <unicode/timezone.h>

#include <cmath>

namespace ZQ7Standard::Bench {

icu::UnicodeString ToIcu(TextView text) {
  return {text.data(), static_cast<std::int32_t>(text.size())};
}

UDate ToIcu(OleDate date) {
  constexpr double kMillisecondsPerDay = 86'400'000;
  return static_cast<double>(date.Civil().time_since_epoch().count()) * kMillisecondsPerDay +
         std::round(date.TimeOfDay() * kMillisecondsPerDay);
}

void Check(benchmark::State& state, UErrorCode status) {
  if (U_FAILURE(status)) state.SkipWithError(u_errorName(status));
}

std::unique_ptr<icu::SimpleDateFormat> DateFormat(const char16_t* pattern, const char* locale,
                                                  UErrorCode& status) {
  auto format = std::make_unique<icu::SimpleDateFormat>(pattern, icu::Locale(locale), status);
  if (U_SUCCESS(status)) format->setTimeZone(*icu::TimeZone::getGMT());
  return format;
}

std::unique_ptr<icu::SimpleDateFormat> ThaiDateFormat(const char16_t* pattern, UErrorCode& status) {
  return DateFormat(pattern, "th_TH@calendar=buddhist", status);
}

IcuMoneyWords IcuMoneyWords::Thai(UErrorCode& status) {
  return {"th", {u"บาท", u"", u"สตางค์", u"ถ้วน"}, status};
}

IcuMoneyWords IcuMoneyWords::English(UErrorCode& status) {
  return {"en", {u" baht", u" and ", u" satang", u""}, status};
}

IcuMoneyWords::IcuMoneyWords(const char* locale, Units units, UErrorCode& status)
    : speller_(icu::URBNF_SPELLOUT, icu::Locale(locale), status), units_(units) {}

void IcuMoneyWords::Append(double amount, icu::UnicodeString& text, UErrorCode& status) const {
  const std::int64_t total = std::llround(amount * 100);
  const std::int64_t whole = total / 100;
  const std::int64_t sub_units = total % 100;
  icu::FieldPosition unused;
  if (whole != 0 || sub_units == 0) {
    speller_.format(whole, text, unused, status);
    text.append(units_.unit, -1);
    text.append(sub_units == 0 ? units_.even : units_.joint, -1);
  }
  if (sub_units != 0) {
    speller_.format(sub_units, text, unused, status);
    text.append(units_.sub_unit, -1);
  }
}

}  // namespace ZQ7Standard::Bench
