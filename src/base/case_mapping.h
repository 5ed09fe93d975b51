#ifndef ZQ7STANDARD_SRC_BASE_CASE_MAPPING_H_
#define ZQ7STANDARD_SRC_BASE_CASE_MAPPING_H_

#include <ZQ7Standard/Types.h>

namespace ZQ7Standard {

// Unicode's simple one-to-one mapping, whatever the locale. Characters beyond
// U+FFFF stay as they are, and so does Thai, which has no case.

/// `text` in lower case.
Text ToLower(TextView text);

/// `c` in upper case.
char16_t ToUpper(char16_t c);

/// Whether two texts are equal in upper case.
bool EqualsIgnoringCase(TextView a, TextView b);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_BASE_CASE_MAPPING_H_
