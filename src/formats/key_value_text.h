#ifndef ZQ7STANDARD_SRC_FORMATS_KEY_VALUE_TEXT_H_
#define ZQ7STANDARD_SRC_FORMATS_KEY_VALUE_TEXT_H_

#include <ZQ7Standard/Types.h>

#include <string>
#include <string_view>

namespace ZQ7Standard {

// Files of lines [KEY]=value, as bytes of the code page. A line belongs to a key if it begins with
// blanks, if any, and the key in brackets, in any case.

/// The value of the first line of `key` with a "="; otherwise what follows the "]" of its last
/// line. Empty if no line belongs to the key.
std::string_view FindValue(std::string_view contents, TextView key);

/// The line that sets `key`, with its line end.
std::string SettingLine(TextView key, TextView value);

/// Sets every line of `key` in `contents` to `value`, or appends a line if there is none. The other
/// lines lose their leading blanks and end in CR LF.
std::string WithValue(std::string_view contents, TextView key, TextView value);

/// `contents` without the lines of `key`; the other lines change as above.
std::string WithoutKey(std::string_view contents, TextView key);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_KEY_VALUE_TEXT_H_
