#ifndef ZQ7STANDARD_BENCH_ALLOCATIONS_H_
#define ZQ7STANDARD_BENCH_ALLOCATIONS_H_

#include <cstdint>

namespace ZQ7Standard::Bench {

/// How often the program has called `operator new`.
std::uint64_t AllocationCount();

}  // namespace ZQ7Standard::Bench

#endif  // ZQ7STANDARD_BENCH_ALLOCATIONS_H_
