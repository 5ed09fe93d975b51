#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_WIDE_TEXT_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_WIDE_TEXT_H_

#include <ZQ7Standard/Types.h>

#include <string>
#include <string_view>

namespace ZQ7Standard {

// The wide texts of the system are UTF-16 too, of another type.

inline std::wstring Wide(TextView text) {
  return {text.begin(), text.end()};
}

inline Text FromWide(std::wstring_view text) {
  return {text.begin(), text.end()};
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_WIDE_TEXT_H_
