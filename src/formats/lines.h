#ifndef ZQ7STANDARD_SRC_FORMATS_LINES_H_
#define ZQ7STANDARD_SRC_FORMATS_LINES_H_

#include <ZQ7Standard/Types.h>

#include <optional>
#include <string_view>

namespace ZQ7Standard {

inline constexpr std::string_view kLineEnd = "\r\n";

/// Removes the first line from the front of `rest` with the CR LF, LF or CR that ends it, and
/// returns it without that.
std::string_view TakeLine(std::string_view& rest);

/// What follows `beginning` on the first line of `text` that begins with it; nullopt if none does.
std::optional<std::string_view> LineAfter(std::string_view text, std::string_view beginning);

/// A text with CR LF for each line break, as messages have them.
Text WithLineEnds(TextView text);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_LINES_H_
