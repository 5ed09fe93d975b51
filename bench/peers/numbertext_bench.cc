#include <Numbertext.hxx>
#include <string>

#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

void MeasureWords(benchmark::State& state, const std::string& language) {
  Numbertext words;
  words.set_prefix(ZQ7_NUMBERTEXT_DATA);
  if (!words.load(language)) return state.SkipWithError("no language data");
  Measure(state, Column(Amounts(), &Amount::digits),
          [&words, &language](const std::string& amount) {
            std::string text = "THB " + amount;
            words.numbertext(text, language);
            return text;
          });
}

void ThaiWordsNumbertext(benchmark::State& state) {
  MeasureWords(state, "th");
}
BENCHMARK(ThaiWordsNumbertext)->Name("thai_words/numbertext");

void EnglishWordsNumbertext(benchmark::State& state) {
  MeasureWords(state, "en");
}
BENCHMARK(EnglishWordsNumbertext)->Name("english_words/numbertext");

}  // namespace
}  // namespace ZQ7Standard::Bench
