#ifndef ZQ7STANDARD_SRC_BASE_UNICODE_H_
#define ZQ7STANDARD_SRC_BASE_UNICODE_H_

#include <ZQ7Standard/Types.h>

#include <string>

namespace ZQ7Standard {

// The two halves of a character beyond U+FFFF, the high one first.
constexpr bool IsHighSurrogate(char32_t c) {
  return c >= 0xD800 && c <= 0xDBFF;
}
constexpr bool IsLowSurrogate(char32_t c) {
  return c >= 0xDC00 && c <= 0xDFFF;
}

/// `text` in UTF-8 with its control characters escaped, such as "\n" and "\u009b", so that
/// it stays on one line.
std::string OnOneLine(TextView text);

/// The same in quotation marks, for error messages: quotation marks inside are escaped, and after
/// 100 code units "…" stands for the rest.
std::string Quoted(TextView text);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_BASE_UNICODE_H_
