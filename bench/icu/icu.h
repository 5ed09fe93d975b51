#ifndef ZQ7STANDARD_BENCH_ICU_ICU_H_
#define ZQ7STANDARD_BENCH_ICU_ICU_H_

#include <ZQ7Standard/Types.h>
#include <benchmark/benchmark.h>
#include <unicode/rbnf.h>
#include <unicode/smpdtfmt.h>
#include <unicode/unistr.h>

#include <cstdint>
#include <memory>

namespace ZQ7Standard::Bench {

icu::UnicodeString ToIcu(TextView text);

/// A moment in Greenwich.
UDate ToIcu(OleDate date);

/// Fails the benchmark if a call of ICU has failed.
void Check(benchmark::State& state, UErrorCode status);

/// Reads and writes dates in a locale, in Greenwich.
std::unique_ptr<icu::SimpleDateFormat> DateFormat(const char16_t* pattern, const char* locale,
                                                  UErrorCode& status);

/// The same for Thai dates in the Buddhist Era.
std::unique_ptr<icu::SimpleDateFormat> ThaiDateFormat(const char16_t* pattern, UErrorCode& status);

/// Money amounts in words, composed of two spelled numbers.
class IcuMoneyWords {
 public:
  static IcuMoneyWords Thai(UErrorCode& status);
  static IcuMoneyWords English(UErrorCode& status);

  void Append(double amount, icu::UnicodeString& text, UErrorCode& status) const;

 private:
  struct Units {
    const char16_t* unit;
    const char16_t* joint;  // between unit and sub-unit
    const char16_t* sub_unit;
    const char16_t* even;  // after an amount without sub-units
  };

  IcuMoneyWords(const char* locale, Units units, UErrorCode& status);

  icu::RuleBasedNumberFormat speller_;
  Units units_;
};

}  // namespace ZQ7Standard::Bench

#endif  // ZQ7STANDARD_BENCH_ICU_ICU_H_
