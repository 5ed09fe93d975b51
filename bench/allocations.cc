#include "bench/allocations.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::uint64_t allocation_count = 0;  // the program has one thread

}  // namespace

void* operator new(std::size_t size) {
  ++allocation_count;
  if (void* const memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}

namespace ZQ7Standard::Bench {

std::uint64_t AllocationCount() {
  return allocation_count;
}

}  // namespace ZQ7Standard::Bench
