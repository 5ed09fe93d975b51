#include <ZQ7Standard/StandardObject.h>

#include <array>
#include <charconv>

#include "bench/inputs.h"
#include "bench/measure.h"
#include "numbers/number_text.h"

namespace ZQ7Standard::Bench {
namespace {

void FormatNumber(benchmark::State& state) {
  const auto call = [](const Amount& amount) {
    return FormatDecimal(*ToDecimal(amount.value), 2, Grouping::kThousands);
  };
  Measure(state, Amounts(), call);
  CountAllocations(state, Amounts(), call);
}
BENCHMARK(FormatNumber)->Name("format_number/ours");

void FormatNumberToChars(benchmark::State& state) {
  std::array<char, 32> text;
  Measure(state, Amounts(), [&text](const Amount& amount) {
    return std::to_chars(text.data(), text.data() + text.size(), amount.value,
                         std::chars_format::fixed, 2)
        .ptr;
  });
}
BENCHMARK(FormatNumberToChars)->Name("format_number/to_chars");

void ReadNumber(benchmark::State& state) {
  const StandardObject standard;
  Measure(state, Amounts(),
          [&standard](const Amount& amount) { return standard.StrVal(amount.typed); });
}
BENCHMARK(ReadNumber)->Name("read_number/ours");

void ReadNumberFromChars(benchmark::State& state) {
  Measure(state, Amounts(), [](const Amount& amount) {
    double value = 0;
    std::from_chars(amount.digits.data(), amount.digits.data() + amount.digits.size(), value);
    return value;
  });
}
BENCHMARK(ReadNumberFromChars)->Name("read_number/from_chars");

}  // namespace
}  // namespace ZQ7Standard::Bench
