#include <unicode/numberformatter.h>
#include <unicode/numfmt.h>

#include <memory>

#include "bench/icu/icu.h"
#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

void FormatNumberIcu(benchmark::State& state) {
  UErrorCode status = U_ZERO_ERROR;
  const auto formatter = icu::number::NumberFormatter::withLocale("th").precision(
      icu::number::Precision::fixedFraction(2));
  Measure(state, Column(Amounts(), &Amount::value),
          [&](double amount) { return formatter.formatDouble(amount, status).toString(status); });
  Check(state, status);
}
BENCHMARK(FormatNumberIcu)->Name("format_number/icu");

void FormatNumberIcuFormat(benchmark::State& state) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::NumberFormat> format(icu::NumberFormat::createInstance("th", status));
  if (U_FAILURE(status)) return Check(state, status);
  format->setMinimumFractionDigits(2);
  format->setMaximumFractionDigits(2);
  icu::UnicodeString text;
  Measure(state, Column(Amounts(), &Amount::value), [&](double amount) {
    text.remove();
    return format->format(amount, text).length();
  });
}
BENCHMARK(FormatNumberIcuFormat)->Name("format_number/icu_format");

}  // namespace
}  // namespace ZQ7Standard::Bench
