#include "bench/icu/icu.h"
#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

void MeasureWords(benchmark::State& state, IcuMoneyWords (*make)(UErrorCode&)) {
  UErrorCode status = U_ZERO_ERROR;
  const IcuMoneyWords words = make(status);
  icu::UnicodeString text;
  Measure(state, Column(Amounts(), &Amount::value), [&](double amount) {
    text.remove();
    words.Append(amount, text, status);
    return text.length();
  });
  Check(state, status);
}

void ThaiWordsIcu(benchmark::State& state) {
  MeasureWords(state, IcuMoneyWords::Thai);
}
BENCHMARK(ThaiWordsIcu)->Name("thai_words/icu");

void EnglishWordsIcu(benchmark::State& state) {
  MeasureWords(state, IcuMoneyWords::English);
}
BENCHMARK(EnglishWordsIcu)->Name("english_words/icu");

}  // namespace
}  // namespace ZQ7Standard::Bench
