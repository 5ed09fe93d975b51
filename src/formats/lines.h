#ifndef ZQ7STANDARD_SRC_FORMATS_LINES_H_
#define ZQ7STANDARD_SRC_FORMATS_LINES_H_

#include <string_view>

namespace ZQ7Standard {

inline constexpr std::string_view kLineEnd = "\r\n";

/// Takes the first line of `rest` off its front, with the CR LF, LF or CR that ends it,
/// which the line given does not have.
std::string_view TakeLine(std::string_view& rest);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_LINES_H_
