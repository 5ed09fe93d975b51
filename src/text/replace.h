#ifndef ZQ7STANDARD_SRC_TEXT_REPLACE_H_
#define ZQ7STANDARD_SRC_TEXT_REPLACE_H_

#include <ZQ7Standard/Types.h>

namespace ZQ7Standard {

/// Replaces each `from` (not empty) in `text` by `to`, from the left; what was
/// put in is not looked at again.
void ReplaceAll(Text& text, TextView from, TextView to);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_TEXT_REPLACE_H_
