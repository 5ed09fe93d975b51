#ifndef ZQ7STANDARD_SRC_BASE_REPLACE_H_
#define ZQ7STANDARD_SRC_BASE_REPLACE_H_

#include <ZQ7Standard/Types.h>

namespace ZQ7Standard {

// Each runs in time proportional to the lengths, however many replacements there are.

/// Replaces each `from` (not empty) in `text` by `to`, from the left; inserted text is not searched
/// again.
void ReplaceAll(Text& text, TextView from, TextView to);

/// Appends `text` to `result` with each `from` (not empty) replaced by `to`,
/// from the left.
void AppendReplaced(Text& result, TextView text, TextView from, TextView to);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_BASE_REPLACE_H_
