#ifndef ZQ7STANDARD_SRC_TEXT_CASE_MAPPING_H_
#define ZQ7STANDARD_SRC_TEXT_CASE_MAPPING_H_

#include <ZQ7Standard/Types.h>

namespace ZQ7Standard {

/// `text` in lower case by Unicode's simple one-to-one mapping, whatever the
/// locale. Characters beyond U+FFFF stay as they are.
Text ToLower(TextView text);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_TEXT_CASE_MAPPING_H_
