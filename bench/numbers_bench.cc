#include <ZQ7Standard/StandardObject.h>

#include <array>
#include <charconv>

#include "bench/inputs.h"
#include "bench/measure.h"
#include "numbers/number_text.h"

namespace ZQ7Standard::Bench {
namespace {

void FormatNumber(benchmark::State& state) {
  Measure(state, Column(Amounts(), &Amount::value),
          [](double amount) { return FormatDecimal(*ToDecimal(amount), 2, Grouping::kThousands); });
}
BENCHMARK(FormatNumber)->Name("format_number/ours");

void FormatNumberToChars(benchmark::State& state) {
  std::array<char, 32> text;
  Measure(state, Column(Amounts(), &Amount::value), [&text](double amount) {
    return std::to_chars(text.data(), text.data() + text.size(), amount, std::chars_format::fixed,
                         2)
        .ptr;
  });
}
BENCHMARK(FormatNumberToChars)->Name("format_number/to_chars");

void ReadNumber(benchmark::State& state) {
  const StandardObject standard;
  Measure(state, Column(Amounts(), &Amount::typed),
          [&standard](const Text& amount) { return standard.StrVal(amount); });
}
BENCHMARK(ReadNumber)->Name("read_number/ours");

void ReadNumberFromChars(benchmark::State& state) {
  Measure(state, Column(Amounts(), &Amount::digits), [](const std::string& amount) {
    double value = 0;
    std::from_chars(amount.data(), amount.data() + amount.size(), value);
    return value;
  });
}
BENCHMARK(ReadNumberFromChars)->Name("read_number/from_chars");

}  // namespace
}  // namespace ZQ7Standard::Bench
