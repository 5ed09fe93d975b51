#include <fast_float/fast_float.h>

#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

void ReadNumberFastFloat(benchmark::State& state) {
  Measure(state, Column(Amounts(), &Amount::digits), [](const std::string& amount) {
    double value = 0;
    fast_float::from_chars(amount.data(), amount.data() + amount.size(), value);
    return value;
  });
}
BENCHMARK(ReadNumberFastFloat)->Name("read_number/fast_float");

}  // namespace
}  // namespace ZQ7Standard::Bench
