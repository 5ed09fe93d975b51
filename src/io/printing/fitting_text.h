#ifndef ZQ7STANDARD_SRC_IO_PRINTING_FITTING_TEXT_H_
#define ZQ7STANDARD_SRC_IO_PRINTING_FITTING_TEXT_H_

#include <ZQ7Standard/Types.h>

#include <functional>

namespace ZQ7Standard {

/// What is left of `text` after dropping characters from its end, one at a time, until the `width`
/// of the rest is at most `limit` (from 0). A surrogate pair is one character; `width` of the empty
/// text is 0.
///
/// A binary search calls `width` in proportion to the logarithm of the length. A longer text is
/// usually wider, but joining letters can make it narrower. The result is right unless a character
/// narrows the text before it by more than `shrinkage`, or text more than 64 code units away.
TextView FittingStart(TextView text, double limit, double shrinkage,
                      const std::function<double(TextView)>& width);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_PRINTING_FITTING_TEXT_H_
