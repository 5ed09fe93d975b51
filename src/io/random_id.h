#ifndef ZQ7STANDARD_SRC_IO_RANDOM_ID_H_
#define ZQ7STANDARD_SRC_IO_RANDOM_ID_H_

#include <ZQ7Standard/platform/random_source.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace ZQ7Standard {

/// 128 random bits as hexadecimal digits, for what must have a name of its own.
inline std::string RandomId(RandomSource& random) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string id;
  random.Reseed();
  while (id.size() < 32) id += kDigits[static_cast<std::size_t>(random.Next() * 16)];
  return id;
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_RANDOM_ID_H_
