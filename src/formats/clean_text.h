#ifndef ZQ7STANDARD_SRC_FORMATS_CLEAN_TEXT_H_
#define ZQ7STANDARD_SRC_FORMATS_CLEAN_TEXT_H_

#include <ZQ7Standard/Types.h>

namespace ZQ7Standard {

/// A text of the machine's as hosts get it: trimmed, without control characters, 256 bytes of UTF-8
/// at most.
Text CleanText(TextView text);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_CLEAN_TEXT_H_
