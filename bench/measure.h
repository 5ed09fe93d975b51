#ifndef ZQ7STANDARD_BENCH_MEASURE_H_
#define ZQ7STANDARD_BENCH_MEASURE_H_

#include <benchmark/benchmark.h>

#include "bench/allocations.h"

namespace ZQ7Standard::Bench {

/// Measures `call` on all of `inputs`; one iteration is a pass over them. The counter "call" is the
/// time of one call in seconds.
template <typename Inputs, typename Call>
void Measure(benchmark::State& state, const Inputs& inputs, Call call) {
  for (auto _ : state) {
    for (const auto& input : inputs) benchmark::DoNotOptimize(call(input));
  }
  using benchmark::Counter;
  const auto calls = state.iterations() * static_cast<std::int64_t>(inputs.size());
  state.SetItemsProcessed(calls);
  state.counters["call"] = Counter(static_cast<double>(calls), Counter::kIsRate | Counter::kInvert);
}

/// Sets the counter "allocs" to the mean number of allocations of one `call`.
template <typename Inputs, typename Call>
void CountAllocations(benchmark::State& state, const Inputs& inputs, Call call) {
  const std::uint64_t before = AllocationCount();
  for (const auto& input : inputs) benchmark::DoNotOptimize(call(input));
  state.counters["allocs"] =
      static_cast<double>(AllocationCount() - before) / static_cast<double>(inputs.size());
}

}  // namespace ZQ7Standard::Bench

#endif  // ZQ7STANDARD_BENCH_MEASURE_H_
