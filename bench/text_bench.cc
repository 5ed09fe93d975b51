#include <ZQ7Standard/StandardObject.h>

#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

void CheckDigit(benchmark::State& state) {
  const StandardObject standard;
  Measure(state, Barcodes(),
          [&standard](const Text& code) { return standard.GetEAN13ChekDigit(code); });
}
BENCHMARK(CheckDigit)->Name("check_digit/ours");

/// Twelve steps with alternating weights 1 and 3.
int PlainCheckDigit(TextView code) {
  int sum = 0;
  for (std::size_t i = 0; i < 12; ++i) {
    const char16_t c = code[i];
    const int digit = c >= u'0' && c <= u'9' ? c - u'0' : 0;
    sum += i % 2 == 0 ? digit : digit * 3;
  }
  return (10 - sum % 10) % 10;
}

void CheckDigitLoop(benchmark::State& state) {
  Measure(state, Barcodes(), PlainCheckDigit);
}
BENCHMARK(CheckDigitLoop)->Name("check_digit/loop");

template <typename Call>
void MeasureTexts(benchmark::State& state, const std::vector<Text>& texts, Call call) {
  Measure(state, texts, call);
  CountAllocations(state, texts, call);
}

void FormatPrimaryKey(benchmark::State& state) {
  const StandardObject standard;
  MeasureTexts(state, DocumentNumbers(),
               [&standard](TextView key) { return standard.FormatPrimaryKey(key, 0, 0, 1, 0, 1); });
}
BENCHMARK(FormatPrimaryKey)->Name("format_primary_key/ours");

void AddList(benchmark::State& state) {
  constexpr std::size_t kItems = 100;
  const StandardObject standard;
  Text list = u"CASH";
  for (std::size_t i = 1; i < kItems; ++i) list += u";" + Barcodes()[i];
  MeasureTexts(state, Barcodes(), [&](TextView item) { return standard.AddList(list, item); });
}
BENCHMARK(AddList)->Name("add_list/ours");

void IncreaseString(benchmark::State& state) {
  const StandardObject standard;
  MeasureTexts(state, DocumentNumbers(),
               [&standard](TextView key) { return standard.IncreaseString(key); });
}
BENCHMARK(IncreaseString)->Name("increase_string/ours");

void ReverseString(benchmark::State& state) {
  const StandardObject standard;
  MeasureTexts(state, InvoiceTexts(1024),
               [&standard](TextView text) { return standard.ReverseString(text); });
}
BENCHMARK(ReverseString)->Name("reverse_string/ours");

}  // namespace
}  // namespace ZQ7Standard::Bench
