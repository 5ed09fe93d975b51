#ifndef ZQ7STANDARD_TESTS_FUZZ_CHECK_H_
#define ZQ7STANDARD_TESTS_FUZZ_CHECK_H_

#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace ZQ7Standard {

/// Aborts the run if `holds` is false, so that libFuzzer keeps the input.
inline void Check(bool holds) {
  if (!holds) std::abort();
}

/// The fuzzer's bytes as UTF-8, to bring names and Thai letters within reach.
inline Text FuzzText(const std::uint8_t* data, std::size_t size) {
  return FromUtf8(std::string(data, data + size));
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_FUZZ_CHECK_H_
