#ifndef ZQ7STANDARD_SRC_IO_PRINTING_FITTING_TEXT_H_
#define ZQ7STANDARD_SRC_IO_PRINTING_FITTING_TEXT_H_

#include <ZQ7Standard/Types.h>

#include <functional>

namespace ZQ7Standard {

/// What is left of `text` when characters are dropped from its end, one at a time,
/// until `width` of the rest is no more than `limit` (from 0). A surrogate pair is one
/// character; `width` of the empty text is 0.
///
/// Found by halving, so `width` is called in proportion to the logarithm of the
/// length. A longer text is usually wider, but where letters join it may be narrower.
/// The result is right as long as no character narrows the text in front of it by more
/// than `shrinkage`, or one that is more than 64 code units away.
TextView FittingStart(TextView text, double limit, double shrinkage,
                      const std::function<double(TextView)>& width);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_PRINTING_FITTING_TEXT_H_
