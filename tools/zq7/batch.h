#ifndef ZQ7STANDARD_TOOLS_ZQ7_BATCH_H_
#define ZQ7STANDARD_TOOLS_ZQ7_BATCH_H_

#include <ostream>
#include <streambuf>

#include "host.h"

namespace ZQ7Tool {

/// Answers each line of `in` that is not blank by one line of `out`, until the end of
/// `in` or a failure of `out`. What is written is flushed whenever `in` has to be
/// waited for. What reading throws reaches the caller.
void RunBatch(std::streambuf& in, std::ostream& out, const Settings& settings);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_BATCH_H_
