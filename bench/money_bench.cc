#include <ZQ7Standard/BahtStringObject.h>

#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

void ThaiWords(benchmark::State& state) {
  BahtStringObject words;
  const auto call = [&words](const Amount& amount) { return words.BahtString(amount.value); };
  Measure(state, Amounts(), call);
  CountAllocations(state, Amounts(), call);
}
BENCHMARK(ThaiWords)->Name("thai_words/ours");

void EnglishWords(benchmark::State& state) {
  BahtStringObject words;
  const auto call = [&words](const Amount& amount) {
    return words.BahtString(amount.value, false, true);
  };
  Measure(state, Amounts(), call);
  CountAllocations(state, Amounts(), call);
}
BENCHMARK(EnglishWords)->Name("english_words/ours");

}  // namespace
}  // namespace ZQ7Standard::Bench
