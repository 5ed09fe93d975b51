#ifndef ZQ7STANDARD_SRC_BASE_FIELDS_H_
#define ZQ7STANDARD_SRC_BASE_FIELDS_H_

#include <ZQ7Standard/Types.h>

namespace ZQ7Standard {

/// Removes the text up to the next `separator` from the front of `rest`, and the separator. After a
/// trailing separator there is no empty field.
TextView TakeField(TextView& rest, char16_t separator);

/// `text` from its first character that is not in `set`.
TextView TrimFront(TextView text, TextView set = u" ");

/// `text` up to its last character that is not in `set`.
TextView TrimBack(TextView text, TextView set = u" ");

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_BASE_FIELDS_H_
