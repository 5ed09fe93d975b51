#include <ZQ7Standard/BahtStringObject.h>

#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

void ThaiWords(benchmark::State& state) {
  BahtStringObject words;
  const auto call = [&words](double amount) { return words.BahtString(amount); };
  const auto amounts = Column(Amounts(), &Amount::value);
  Measure(state, amounts, call);
  CountAllocations(state, amounts, call);
}
BENCHMARK(ThaiWords)->Name("thai_words/ours");

void EnglishWords(benchmark::State& state) {
  BahtStringObject words;
  const auto call = [&words](double amount) { return words.BahtString(amount, false, true); };
  const auto amounts = Column(Amounts(), &Amount::value);
  Measure(state, amounts, call);
  CountAllocations(state, amounts, call);
}
BENCHMARK(EnglishWords)->Name("english_words/ours");

}  // namespace
}  // namespace ZQ7Standard::Bench
