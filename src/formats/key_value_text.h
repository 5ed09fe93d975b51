#ifndef ZQ7STANDARD_SRC_FORMATS_KEY_VALUE_TEXT_H_
#define ZQ7STANDARD_SRC_FORMATS_KEY_VALUE_TEXT_H_

#include <ZQ7Standard/Types.h>

#include <string>
#include <string_view>

namespace ZQ7Standard {

// Files of lines [KEY]=value, as bytes of the code page. A line belongs to a key when it
// begins with the key in brackets, in any case, after blanks.

/// The value of the first line of `key` with a "="; else what stands behind the "]" of
/// the last one. Empty when no line belongs to the key.
std::string_view FindValue(std::string_view contents, TextView key);

/// The line that sets `key`, with its line end.
std::string SettingLine(TextView key, TextView value);

/// `contents` with every line of `key` set to `value`, or a line more when there was
/// none. The other lines lose the blanks at their front and end in CR LF.
std::string WithValue(std::string_view contents, TextView key, TextView value);

/// `contents` without the lines of `key`, the other lines as above.
std::string WithoutKey(std::string_view contents, TextView key);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_KEY_VALUE_TEXT_H_
