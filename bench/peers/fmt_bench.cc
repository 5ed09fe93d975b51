#include <fmt/format.h>

#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

void FormatNumberFmt(benchmark::State& state) {
  Measure(state, Column(Amounts(), &Amount::value),
          [](double amount) { return fmt::format("{:.2f}", amount); });
}
BENCHMARK(FormatNumberFmt)->Name("format_number/fmt");

}  // namespace
}  // namespace ZQ7Standard::Bench
