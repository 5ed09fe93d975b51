#ifndef ZQ7STANDARD_SRC_FORMATS_LINES_H_
#define ZQ7STANDARD_SRC_FORMATS_LINES_H_

#include <ZQ7Standard/Types.h>

#include <string_view>

namespace ZQ7Standard {

inline constexpr std::string_view kLineEnd = "\r\n";

/// Removes the first line from the front of `rest` with the CR LF, LF or CR that ends it, and
/// returns it without that.
std::string_view TakeLine(std::string_view& rest);

/// A text with CR LF for each line break, as messages have them.
Text WithLineEnds(TextView text);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_LINES_H_
