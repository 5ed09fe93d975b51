#ifndef ZQ7STANDARD_SRC_NUMBERS_SCALING_H_
#define ZQ7STANDARD_SRC_NUMBERS_SCALING_H_

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace ZQ7Standard {

inline constexpr auto kPowersOfTen = [] {
  std::array<std::uint64_t, 20> powers{};
  std::uint64_t power = 1;
  for (std::uint64_t& entry : powers) {
    entry = power;
    power *= 10;
  }
  return powers;
}();

constexpr std::uint64_t PowerOfTen(int exponent) {
  return kPowersOfTen[static_cast<std::size_t>(exponent)];
}

/// A whole number of 128 bits, for processors whose compiler has none.
struct TwoWords {
  std::uint64_t low = 0;
  std::uint64_t high = 0;
};

constexpr TwoWords operator*(TwoWords a, std::uint64_t b) {
  constexpr std::uint64_t kLowHalf = 0xFFFF'FFFF;
  const std::uint64_t low_low = (a.low & kLowHalf) * (b & kLowHalf);
  const std::uint64_t low_high = (a.low & kLowHalf) * (b >> 32U);
  const std::uint64_t high_low = (a.low >> 32U) * (b & kLowHalf);
  const std::uint64_t middle = (low_low >> 32U) + (low_high & kLowHalf) + (high_low & kLowHalf);
  return {middle << 32U | (low_low & kLowHalf), (a.low >> 32U) * (b >> 32U) + (low_high >> 32U) +
                                                    (high_low >> 32U) + (middle >> 32U) +
                                                    a.high * b};
}

constexpr TwoWords operator+(TwoWords a, TwoWords b) {
  const std::uint64_t low = a.low + b.low;
  return {low, a.high + b.high + (low < a.low ? 1 : 0)};
}

constexpr TwoWords operator<<(TwoWords a, int count) {
  if (count == 0) return a;
  return count < 64 ? TwoWords{a.low << count, a.high << count | a.low >> (64 - count)}
                    : TwoWords{0, a.low << (count - 64)};
}

/// The low word of `a` divided by 2^`count`.
constexpr std::uint64_t LowWordOf(TwoWords a, int count) {
  if (count == 0) return a.low;
  return count < 64 ? a.low >> count | a.high << (64 - count) : a.high >> (count - 64);
}

#ifdef __SIZEOF_INT128__
__extension__ using Wide = unsigned __int128;

constexpr std::uint64_t LowWordOf(Wide a, int count) {
  return static_cast<std::uint64_t>(a >> count);
}
#else
using Wide = TwoWords;
#endif

/// mantissa / 2^shift × 10^power, halves up. The product of mantissa and power fits in 128 bits,
/// the result in 64; `shift` is from 1 to 127.
template <typename Word = Wide>
constexpr std::uint64_t Scale(std::uint64_t mantissa, int shift, int power) {
  const Word product =
      Word{mantissa} * PowerOfTen(std::min(power, 19)) * PowerOfTen(power > 19 ? power - 19 : 0);
  return LowWordOf(product + (Word{1} << (shift - 1)), shift);
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_NUMBERS_SCALING_H_
